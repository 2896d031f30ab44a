#include "desktop/PageView.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>
#include <map>

#include "base/Text.h"
#include "controls/Form.h"
#include "controls/Naming.h"
#include "desktop/Accessible.h"
#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

constexpr QColor frameLine(0xD8, 0xC8, 0xB0);
constexpr QColor markRed(0xC0, 0x00, 0x00);

}  // namespace

PageView::PageView(QWidget& parent, const Form& form, const std::vector<LayoutGroup>& layoutGroups,
                   const ViewMaker& maker)
    : QWidget(&parent), questionCharacters(form.layout().questionWidth) {
    groups.reserve(layoutGroups.size());
    for (const LayoutGroup& group : layoutGroups)
        groups.push_back(makeGroup(form, group, maker));
    relateGrids();
    nameControls(form);
}

void PageView::relateGrids() {
    for (Group& group : groups) {
        for (Row& row : group.rows) {
            if (row.layout->under.empty() || row.controls.empty())
                continue;
            for (const Row& other : group.rows)
                if (other.layout->controls == row.layout->under && !other.controls.empty())
                    row.above = other.controls.front();
            if (!row.above)
                continue;
            if (row.question) {
                row.question->setWordWrap(false);
                row.question->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            }
            row.above->stretchMoved = [this, &row] { placeUnder(row, row.controls.front()->widget().y()); };
        }
    }
}

PageView::Group PageView::makeGroup(const Form& form, const LayoutGroup& group, const ViewMaker& maker) {
    Group made;
    made.layout = group;
    QFont bold = font();
    bold.setBold(true);
    if (!group.frame.empty() && (made.frame = maker(group.frame, *this)))
        made.frame->widget().setFont(bold);
    if (!group.title.empty()) {
        made.title = makeLabel(group.title);
        made.title->setFont(bold);
    }
    for (const std::string_view head : group.heads)
        made.heads.push_back(makeLabel(head));
    for (const LayoutRow& row : group.rows) {
        made.rows.push_back(makeRow(form, row, maker));
        relateLabels(made.rows.back());
    }
    return made;
}

PageView::Row PageView::makeRow(const Form& form, const LayoutRow& row, const ViewMaker& maker) {
    Row made;
    made.layout = &row;
    if (!trim(row.item).empty()) {
        made.item = makeLabel(row.item);
        made.item->setAlignment(Qt::AlignRight | Qt::AlignTop);
    }
    if (!row.label.empty() && (made.liveQuestion = maker(row.label, *this)))
        made.question = static_cast<QLabel*>(&made.liveQuestion->widget());
    else if (!row.question.empty())
        made.question = makeLabel(row.question);
    if (made.question)
        made.question->setWordWrap(true);
    if (!row.mark.empty()) {
        made.mark = makeLabel(row.mark);
        QPalette palette;
        palette.setColor(QPalette::WindowText, markRed);
        made.mark->setPalette(palette);
    }
    makeControls(form, made, maker);
    if (!row.unit.empty())
        made.unit = makeLabel(row.unit);
    if (made.question && fillsWidth(made)) {
        QFont bold = font();
        bold.setBold(true);
        made.question->setFont(bold);
    }
    return made;
}

void PageView::makeControls(const Form& form, Row& row, const ViewMaker& maker) {
    for (const std::string& key : split(row.layout->controls, " ")) {
        const Control* control = form.findKey(key);
        if (!control)
            continue;
        const bool option = control->kind() == ControlKind::OptionButton;
        if (option && !row.options)
            row.options = new OptionsBox(*this);
        ControlView* view = maker(key, option ? *row.options : static_cast<QWidget&>(*this));
        if (!view)
            continue;
        view->showLines(row.layout->lines);
        row.controls.push_back(view);
    }
}

void PageView::nameControls(const Form& form) {
    std::map<QString, int> known;
    const auto unique = [&known](const std::string& name) {
        const QString words = toQt(name);
        const int number = ++known[words.toLower()];
        return number == 1 ? words : QStringLiteral("%1 (%2)").arg(words).arg(number);
    };
    for (const Group& group : groups) {
        for (const Row& row : group.rows) {
            const RowNaming names = nameRow(form, group.layout, *row.layout);
            if (row.options) {
                row.options->setAccessibleName(unique(names.question));
                row.options->setAccessibleDescription(toQt(names.description));
            }
            for (ControlView* view : row.controls) {
                const auto naming = std::ranges::find(names.controls, view->control(), &Naming::control);
                if (naming == names.controls.end())
                    continue;
                const bool grouped = view->widget().parentWidget() == row.options;
                const bool label = naming->control->kind() == ControlKind::Label;
                view->name(grouped || label ? toQt(naming->name) : unique(naming->name), toQt(naming->description));
            }
        }
    }
}

void PageView::relateLabels(const Row& row) {
    QLabel* label = row.question;
    for (ControlView* view : row.controls) {
        if (view->control()->kind() == ControlKind::Label) {
            label = static_cast<QLabel*>(&view->widget());
            continue;
        }
        // An ampersand in the text would become a key of its own.
        if (label && !label->text().contains('&'))
            label->setBuddy(view->widget().parentWidget() == row.options ? row.options : &view->widget());
        label = nullptr;
    }
}

QLabel* PageView::makeLabel(std::string_view text) {
    auto* label = new QLabel(toQt(trim(text)), this);
    label->setTextFormat(Qt::PlainText);
    return label;
}

bool PageView::fillsWidth(const Row& row) {
    return row.controls.size() == 1 && row.controls.front()->fillsWidth();
}

bool PageView::leadsRow(const Row& row) {
    return !row.question && !row.controls.empty() && row.controls.front()->standsAsQuestion();
}

void PageView::updateShown() {
    for (Group& group : groups) {
        group.shown = !group.frame || group.frame->shownByCode();
        if (group.title)
            group.title->setVisible(group.shown);
        for (QLabel* head : group.heads)
            head->setVisible(group.shown);
        for (Row& row : group.rows) {
            const bool some = row.controls.empty() ? !row.liveQuestion || row.liveQuestion->shownByCode()
                                                   : std::ranges::any_of(row.controls, &ControlView::shownByCode);
            row.shown = group.shown && some;
            setShown(row);
        }
    }
}

const Control* PageView::liveQuestion() const {
    for (const Group& group : groups)
        for (const Row& row : group.rows)
            if (row.liveQuestion && row.liveQuestion->control())
                return row.liveQuestion->control();
    return nullptr;
}

void PageView::setShown(const Row& row) {
    for (QLabel* label : {row.item, row.mark, row.unit})
        if (label)
            label->setVisible(row.shown);
    if (row.liveQuestion)
        row.liveQuestion->setOnPage(row.shown);
    else if (row.question)
        row.question->setVisible(row.shown);
    for (ControlView* view : row.controls)
        view->setOnPage(row.shown);
    if (row.options)
        row.options->setVisible(row.shown);
}

std::vector<QWidget*> PageView::parts(const Row& row) {
    std::vector<QWidget*> parts;
    for (QLabel* label : {row.item, row.question, row.mark, row.unit})
        if (label)
            parts.push_back(label);
    for (const ControlView* view : row.controls)
        parts.push_back(&view->widget());
    return parts;
}

QRect PageView::rowOf(const QWidget& widget) const {
    for (const Group& group : groups) {
        for (const Row& row : group.rows) {
            const std::vector<QWidget*> all = parts(row);
            if (std::ranges::none_of(all, [&](auto* part) { return part == &widget || part->isAncestorOf(&widget); }))
                continue;
            QRect place;
            for (const QWidget* part : all)
                if (!part->isHidden())
                    place |= part->geometry();
            return place;
        }
    }
    return {widget.mapTo(this, QPoint(0, 0)), widget.size()};
}

bool PageView::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::FontChange)
        if (const int before = height(); lastWidth > 0) {
            arrange(lastWidth, lastViewHeight);
            if (height() > before)
                grew();
        }
    return QWidget::event(event);
}

void PageView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setPen(frameLine);
    for (const Group& group : groups)
        if (group.frame && group.shown)
            painter.drawRoundedRect(group.outline.adjusted(0, 0, -1, -1), 4, 4);
}

}  // namespace plandesk::desktop
