#include "desktop/ReviewPanel.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>
#include <utility>

#include "desktop/ReviewList.h"
#include "desktop/ReviewMap.h"

namespace plandesk::desktop {

namespace {

constexpr int usualCharacters = 58;
constexpr int leastCharacters = 30;
constexpr int gap = 6;

}  // namespace

ReviewPanel::ReviewPanel(QWidget& mainWindow)
    : QDockWidget(tr("Review"), &mainWindow),
      field(new QLineEdit(this)),
      heading(new QLabel(this)),
      back(new QToolButton(this)),
      list(new ReviewList(*this)),
      map(new ReviewMap(*this)),
      notice(new QLabel(this)) {
    setObjectName(QStringLiteral("reviewPanel"));
    setFeatures(DockWidgetClosable);
    setAllowedAreas(Qt::RightDockWidgetArea);

    field->setObjectName(QStringLiteral("reviewSearch"));
    field->setPlaceholderText(tr("Find a question (Ctrl+F)"));
    field->setAccessibleName(tr("Find a question"));
    field->setClearButtonEnabled(true);
    field->installEventFilter(this);
    connect(field, &QLineEdit::textChanged, this, [this](const QString& words) { search(words); });

    heading->setObjectName(QStringLiteral("reviewHeading"));
    heading->setTextFormat(Qt::PlainText);
    heading->setWordWrap(true);
    back->setObjectName(QStringLiteral("reviewBack"));
    back->setText(tr("Findings"));
    back->setToolTip(tr("Back to the findings (Esc)"));
    back->setFocusPolicy(Qt::TabFocus);
    connect(back, &QToolButton::clicked, this, [this] { backToFindings(); });
    auto* row = new QHBoxLayout;
    row->addWidget(heading, 1);
    row->addWidget(back);

    notice->setObjectName(QStringLiteral("reviewNotice"));
    notice->setTextFormat(Qt::PlainText);
    notice->setWordWrap(true);
    notice->hide();

    auto* parts = new QSplitter(Qt::Vertical, this);
    parts->setChildrenCollapsible(false);
    parts->addWidget(list);
    parts->addWidget(map);
    parts->setStretchFactor(0, 3);
    parts->setStretchFactor(1, 2);

    auto* contents = new QWidget(this);
    contents->setMinimumWidth(leastCharacters * fontMetrics().averageCharWidth());
    auto* column = new QVBoxLayout(contents);
    column->setContentsMargins(gap, gap, gap, gap);
    column->setSpacing(gap);
    column->addWidget(field);
    column->addLayout(row);
    column->addWidget(parts, 1);
    column->addWidget(notice);
    setWidget(contents);
    list->chosen = [this](const ReviewLine& line) { go(line.target); };
    map->chosen = [this](const ReviewPage& page) { goToPage(page); };
    list->left = [this] { other ? backToFindings() : left(); };
    map->left = [this] { left(); };
    showMode();
}

void ReviewPanel::showMode() {
    heading->setVisible(other);
    back->setVisible(other);
    list->setAccessibleName(other ? heading->text() : tr("Findings"));
}

void ReviewPanel::showFindings(ReviewGroups groups) {
    findings = std::move(groups);
    if (!other)
        list->show(findings);
}

void ReviewPanel::showPages(std::vector<ReviewPage> pages) {
    map->show(std::move(pages));
}

void ReviewPanel::showOther(const QString& title, ReviewGroups groups) {
    other = true;
    heading->setText(title);
    list->showAnew(std::move(groups));
    say({});
    showMode();
}

void ReviewPanel::backToFindings() {
    if (!field->text().isEmpty())
        return field->clear();  // which leads here again
    if (!std::exchange(other, false))
        return;
    const bool hadKeys = back->hasFocus();
    list->showAnew(findings);
    say({});
    if (hadKeys)
        takeKeys();
    showMode();
}

void ReviewPanel::search(const QString& words) {
    if (words.trimmed().isEmpty()) {
        backToFindings();
        return;
    }
    ReviewGroup found = find(words);
    const QString title = found.lines.empty() ? tr("No question holds these words.") : tr("Questions found");
    showOther(title, {std::move(found)});
}

void ReviewPanel::say(const QString& text) {
    notice->setText(text);
    notice->setVisible(!text.isEmpty());
}

QString ReviewPanel::title() const {
    return other ? heading->text() : tr("Findings");
}

const ReviewGroups& ReviewPanel::groups() const {
    return list->groups();
}

const ReviewLine* ReviewPanel::step(bool backwards) {
    return list->step(backwards);
}

bool ReviewPanel::hasKeys() const {
    const QWidget* has = QApplication::focusWidget();
    return has && isAncestorOf(has) && isVisible();
}

int ReviewPanel::usualWidth() const {
    constexpr int leastForms = 3;  // the forms have two thirds of the window at least
    return std::min(usualCharacters * fontMetrics().averageCharWidth(), window()->width() / leastForms);
}

void ReviewPanel::setVisible(bool on) {
    // The toolkit would give the keyboard to whatever comes next; it goes back to where the system's focus is.
    if (QWidget* has = QApplication::focusWidget(); !on && hasKeys())
        has->clearFocus();
    QDockWidget::setVisible(on);
}

void ReviewPanel::takeKeys() {
    list->setFocus(Qt::OtherFocusReason);
}

void ReviewPanel::beginSearch() {
    field->setFocus(Qt::ShortcutFocusReason);
    field->selectAll();
}

void ReviewPanel::endSearch() {
    field->clear();
}

bool ReviewPanel::event(QEvent* event) {
    // Keys that nothing in the panel takes are not for the forms either.
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        left();
        return true;
    }
    return QDockWidget::event(event);
}

bool ReviewPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched != field || event->type() != QEvent::KeyPress)
        return QDockWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (other)
            if (const ReviewLine* line = list->currentLine() ? list->currentLine() : list->step(false))
                go(ReviewTarget(line->target));
        return true;
    case Qt::Key_Down:
    case Qt::Key_Up:
        if (!list->currentLine())
            list->step(false);
        takeKeys();
        return true;
    case Qt::Key_Escape:
        other ? backToFindings() : left();
        return true;
    default:
        return false;
    }
}

bool ReviewPanel::focusNextPrevChild(bool forwards) {
    QList<QWidget*> stations;
    for (QWidget* station : std::initializer_list<QWidget*>{field, back, list, map})
        if (station->isVisible())
            stations.append(station);
    const qsizetype count = stations.size();
    const qsizetype at = stations.indexOf(QApplication::focusWidget());
    stations[(at + (forwards ? 1 : count - 1)) % count]->setFocus(forwards ? Qt::TabFocusReason
                                                                           : Qt::BacktabFocusReason);
    return true;
}

}  // namespace plandesk::desktop
