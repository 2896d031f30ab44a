#include "desktop/PageView.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>

#include "base/Text.h"
#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

constexpr QColor frameLine(0xD8, 0xC8, 0xB0);
constexpr QColor markRed(0xC0, 0x00, 0x00);

}  // namespace

PageView::PageView(QWidget& parent, const std::vector<LayoutGroup>& layoutGroups, int questionWidth,
                   const ViewMaker& maker)
    : QWidget(&parent), questionCharacters(questionWidth) {
    groups.reserve(layoutGroups.size());
    for (const LayoutGroup& group : layoutGroups)
        groups.push_back(makeGroup(group, maker));
}

PageView::Group PageView::makeGroup(const LayoutGroup& group, const ViewMaker& maker) {
    Group made;
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
        made.rows.push_back(makeRow(row, maker));
        nameControls(made.rows.back(), made);
    }
    return made;
}

PageView::Row PageView::makeRow(const LayoutRow& row, const ViewMaker& maker) {
    Row made;
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
    for (const std::string& key : split(row.controls, " ")) {
        if (ControlView* view = maker(key, *this)) {
            view->showLines(row.lines);
            made.controls.push_back(view);
        }
    }
    if (!row.unit.empty())
        made.unit = makeLabel(row.unit);
    if (made.question && fillsWidth(made)) {
        QFont bold = font();
        bold.setBold(true);
        made.question->setFont(bold);
    }
    return made;
}

void PageView::nameControls(const Row& row, const Group& group) {
    const bool leads = leadsRow(row);
    QString question = row.question ? row.question->text() : QString();
    if (question.isEmpty() && fillsWidth(row))
        question = group.frame   ? static_cast<QLabel&>(group.frame->widget()).text()
                   : group.title ? group.title->text()
                                 : QString();
    std::size_t column = leads ? 0 : 1;
    for (ControlView* view : row.controls) {
        const QString head = column > 0 && column < group.heads.size() ? group.heads[column]->text() : QString();
        view->name(head.isEmpty() ? question : question + ": " + head);
        if (leads && column == 0)
            question = view->widget().accessibleName();
        ++column;
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
            if (row.liveQuestion)
                nameControls(row, group);
        }
    }
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
}

bool PageView::event(QEvent* event) {
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::FontChange)
        if (lastWidth > 0)
            arrange(lastWidth, lastViewHeight);
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
