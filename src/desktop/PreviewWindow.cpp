#include "desktop/PreviewWindow.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/Screen.h"
#include "desktop/PaperPages.h"
#include "desktop/PreviewPage.h"
#include "desktop/QtText.h"
#include "desktop/ScreenView.h"
#include "proposal/Proposal.h"
#include "reports/ReportDesk.h"

namespace plandesk::desktop {

namespace {

constexpr int twipsPerPixel = 15;
constexpr qreal zoomStep = 1.2;

}  // namespace

PreviewWindow::PreviewWindow(const Preview& preview, PreviewRoom& room)
    : ChildFrame(room.desk), room(room), name(preview.name), place(preview.place) {
    setObjectName(toQt(preview.name));
    auto* contents = new QWidget(this);
    contents->setAutoFillBackground(true);
    contents->setPalette(QApplication::palette());
    view = new PreviewPage(*contents);
    auto* column = new QVBoxLayout(contents);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(view, 1);
    column->addWidget(makeBar(*contents));  // the navigator covers what is above
    setContents(*contents);
    view->changed = [this] { showState(); };
    fit();
    move(std::max(0, place.left / twipsPerPixel), std::max(0, place.top / twipsPerPixel));
    // As told, but not beyond the desk, where its edges could not be reached.
    const QPoint limit = room.desk.rect().bottomRight() - rect().bottomRight();
    move(std::clamp(x(), 0, std::max(0, limit.x())), std::clamp(y(), 0, std::max(0, limit.y())));
}

PreviewWindow::~PreviewWindow() = default;

QWidget* PreviewWindow::makeBar(QWidget& parent) {
    auto* bar = new QWidget(&parent);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(6, 3, 6, 3);
    row->addWidget(button(
        *bar, "printButton", tr("Print..."), tr("Print"), QKeySequence::Print, [this] { print(); }, true));
    row->addWidget(button(*bar, "severalButton", tr("Several..."), tr("Choose documents and print them all"),
                          Qt::CTRL | Qt::SHIFT | Qt::Key_L,
                          [this] { act([this] { room.proposal.commands.open("frmPrint"); }); }));
    row->addWidget(button(*bar, "saveButton", tr("Save as PDF..."), tr("Save as PDF"), Qt::CTRL | Qt::SHIFT | Qt::Key_P,
                          [this] { saveAsPdf(); }));
    row->addWidget(button(*bar, "closeAllButton", tr("Close all"), tr("Close all reports"),
                          Qt::CTRL | Qt::SHIFT | Qt::Key_F4,
                          [this] { act([this] { room.proposal.procedures.at("closeReports")(); }); }));
    row->addStretch(1);
    previous = button(
        *bar, "previousButton", QString(QChar(0x25C0)), tr("Previous page"), Qt::CTRL | Qt::Key_PageUp,
        [this] { turnPage(false); }, true);
    next = button(
        *bar, "nextButton", QString(QChar(0x25B6)), tr("Next page"), Qt::CTRL | Qt::Key_PageDown,
        [this] { turnPage(true); }, true);
    number = new QLabel(bar);
    number->setObjectName(QStringLiteral("pageNumber"));
    row->addWidget(previous);
    row->addWidget(number);
    row->addWidget(next);
    row->addStretch(1);
    smaller = button(*bar, "smallerButton", QString(QChar(0x2212)), tr("Smaller"), QKeySequence::ZoomOut,
                     [this] { zoomBy(1 / zoomStep); });
    larger = button(*bar, "largerButton", QStringLiteral("+"), tr("Larger"), QKeySequence::ZoomIn,
                    [this] { zoomBy(zoomStep); });
    percentage = new QLabel(bar);
    percentage->setObjectName(QStringLiteral("pageSize"));
    row->addWidget(smaller);
    row->addWidget(percentage);
    row->addWidget(larger);
    row->addWidget(button(*bar, "widthButton", tr("Width"), tr("Whole width"), Qt::CTRL | Qt::Key_0,
                          [this] { view->setZoom(view->wholeWidth()); }));
    row->addWidget(button(*bar, "pageButton", tr("Page"), tr("Whole page"), Qt::CTRL | Qt::Key_9,
                          [this] { view->setZoom(view->wholePage()); }));
    return bar;
}

QToolButton* PreviewWindow::button(QWidget& bar, const char* objectName, const QString& text, const QString& meaning,
                                   const QKeySequence& keys, const std::function<void()>& pressed, bool known) {
    auto* made = new QToolButton(&bar);
    made->setObjectName(QLatin1String(objectName));
    made->setText(text);
    made->setAccessibleName(meaning);
    made->setToolTip(meaning + QStringLiteral(" (%1)").arg(keys.toString(QKeySequence::NativeText)));
    made->setFocusPolicy(Qt::TabFocus);
    connect(made, &QToolButton::clicked, this, pressed);
    if (known)
        return made;
    const auto* shortcut = new QShortcut(keys, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, made, [made] { made->click(); });
    return made;
}

void PreviewWindow::showPreview(const Preview& preview) {
    paper = preview.paper;
    if (!pages)
        view->setZoom(std::min(1.0, view->wholeWidth()));
    auto laidOut = std::make_unique<PaperPages>(paper);
    view->showPages(*laidOut);
    pages = std::move(laidOut);
    setAccessibleName(caption());
    showTitle();
    showState();
}

QString PreviewWindow::caption() const {
    return toQt(paper.title);
}

void PreviewWindow::showState() {
    if (!pages)
        return;
    const int page = view->page();
    number->setText(QStringLiteral("%1 / %2").arg(page + 1).arg(pages->count()));
    percentage->setText(QStringLiteral("%1 %").arg(qRound(100 * view->zoom())));
    previous->setEnabled(page > 0);
    next->setEnabled(page + 1 < pages->count());
    view->setAccessibleName(caption() + tr(", page ") + number->text());
}

void PreviewWindow::zoomBy(qreal factor) {
    view->setZoom(view->zoom() * factor);
}

bool PreviewWindow::inReach() const {
    return !room.proposal.screen.modalForm() && room.reports.find(name);
}

void PreviewWindow::bringToFront(Qt::FocusReason /*reason*/) {
    if (inReach())
        room.screen.setGuest(this);
}

void PreviewWindow::closeWindow() {
    room.screen.act(Qt::OtherFocusReason, [this] { room.reports.pressClose(name); });
}

void PreviewWindow::takeKeys() {
    if (const QWidget* has = QApplication::focusWidget(); !has || !isAncestorOf(has))
        view->setFocus(Qt::OtherFocusReason);
}

void PreviewWindow::turnPage(bool forwards) {
    view->turnTo(view->page() + (forwards ? 1 : -1));
}

QSize PreviewWindow::naturalSize(QSize most) const {
    const QSize told(place.width / twipsPerPixel, place.height / twipsPerPixel);
    return told.boundedTo(most);
}

void PreviewWindow::sizingEnded() {
    takeKeys();
}

void PreviewWindow::keyPressEvent(QKeyEvent* event) {
    if (QApplication::focusWidget() == this)
        return ChildFrame::keyPressEvent(event);  // the arrow keys draw its size
    if (event->key() == Qt::Key_Escape)
        return closeWindow();
    event->ignore();
}

bool PreviewWindow::focusNextPrevChild(bool forwards) {
    QList<QWidget*> stations;
    for (auto* child : findChildren<QWidget*>())
        if (child->focusPolicy() & Qt::TabFocus && child->isVisible() && child->isEnabled())
            stations.append(child);
    if (stations.isEmpty())
        return false;
    const qsizetype at = stations.indexOf(QApplication::focusWidget());
    const qsizetype count = stations.size();
    stations[(at + (forwards ? 1 : count - 1) + (at < 0 && !forwards ? 1 : 0)) % count]->setFocus(
        forwards ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void PreviewWindow::act(const std::function<void()>& what) {
    if (inReach())
        room.screen.act(Qt::OtherFocusReason, [&] { room.proposal.screen.event(what); });
}

void PreviewWindow::print() {
    act([this] { room.print(paper, *pages, window()); });
}

void PreviewWindow::saveAsPdf() {
    act([this] {
        const std::string chosen = room.proposal.screen.ports.dialogs.saveFile(
            {"Save as PDF", "pdf", "PDF File(s) (*.pdf)", "", std::string(paper.title)});
        if (!chosen.empty())
            room.proposal.screen.ports.printer.writePdf(paper, chosen);
    });
}

}  // namespace plandesk::desktop
