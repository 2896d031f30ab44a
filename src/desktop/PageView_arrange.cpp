// Where the parts of a page stand.

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <numeric>

#include "desktop/Accessible.h"
#include "desktop/FlowLine.h"
#include "desktop/PageView.h"

namespace plandesk::desktop {

namespace {

/// Share of the page's width that the answers get at least, in percent, when the questions would take all.
constexpr int answerShare = 45;

/// Average characters that a page takes at most beside its questions: a readable line of answer, item, marks, margins.
constexpr int charactersBesideQuestions = 104;

}  // namespace

int PageView::gap() const {
    return fontMetrics().averageCharWidth();
}

int PageView::lineHeight() const {
    // Height of a text box and its like: the tallest of what commonly stands in a row.
    constexpr int border = 10;
    return fontMetrics().height() + border;
}

bool PageView::boxStandsAlone(const Row& row) {
    return !row.unit && std::ranges::count_if(row.controls, [](const ControlView* view) {
                            return view->control() && view->control()->kind() == ControlKind::TextBox;
                        }) == 1;
}

int PageView::controlsWidth(const Row& row) const {
    const bool alone = boxStandsAlone(row);
    int width = row.unit ? row.unit->sizeHint().width() : 0;
    for (const ControlView* view : row.controls)
        width += view->naturalWidth(alone) + gap();
    return width;
}

PageView::Columns PageView::columnsFor(int width) const {
    int item = 0;
    int mark = 0;
    int question = 0;
    int answers = 0;
    int filling = 0;
    for (const Group& group : groups) {
        const std::vector<int> table = tableColumns(group);
        answers = std::max(answers, std::accumulate(table.begin(), table.end(), 0));
        for (const Row& row : group.rows) {
            if (row.item)
                item = std::max(item, row.item->sizeHint().width() + gap());
            if (row.mark)
                mark = std::max(mark, row.mark->sizeHint().width());
            if (fillsWidth(row)) {
                filling = std::max(filling, row.controls.front()->naturalWidth(true));
                continue;
            }
            if (row.question && !row.controls.empty())
                question = std::max(question, fontMetrics().horizontalAdvance(row.question->text()) + 1);
            if (!group.heads.empty() && leadsRow(row))
                question = std::max(question, row.controls.front()->naturalWidth(false));
            if (group.heads.empty())
                answers = std::max(answers, controlsWidth(row));
        }
    }
    question = std::min(question, questionCharacters * fontMetrics().averageCharWidth());
    Columns columns;
    const int leastMargin = 2 * gap();
    columns.naturalWidth = 2 * leastMargin + std::max(item + question + mark + 2 * gap() + answers, filling);
    const int margin = std::max(leastMargin, (width - readableWidth(columns.naturalWidth)) / 2);
    columns.right = width - margin;
    columns.item = margin;
    columns.question = margin + item;
    constexpr int percent = 100;
    const int room = columns.right - columns.question - mark - 2 * gap();
    columns.questionWidth = std::min(question, room - std::min(answers, room * answerShare / percent));
    columns.mark = columns.question + columns.questionWidth + gap();
    columns.controls = columns.mark + mark + gap();
    return columns;
}

int PageView::readableWidth(int naturalWidth) const {
    return std::max(naturalWidth, (questionCharacters + charactersBesideQuestions) * gap());
}

int PageView::marginFor(int width) {
    updateShown();
    return columnsFor(width).item;
}

int PageView::naturalWidth() {
    updateShown();
    return columnsFor(0).naturalWidth;
}

/// Heads that may be broken over lines need no more than their longest word.
int PageView::headWidth(const Group& group, std::size_t column) const {
    if (column >= group.heads.size())
        return 0;
    const QLabel& head = *group.heads[column];
    if (!group.layout.lastFills)
        return head.sizeHint().width() + gap();
    int longest = 0;
    for (const QString& word : head.text().split(' '))
        longest = std::max(longest, fontMetrics().horizontalAdvance(word));
    return longest + gap();
}

std::vector<int> PageView::tableColumns(const Group& group) const {
    std::vector<int> widths;
    if (group.heads.empty())
        return widths;
    for (const Row& row : group.rows) {
        const std::size_t first = leadsRow(row) ? 1 : 0;
        for (std::size_t place = first; place < row.controls.size(); ++place) {
            const std::size_t column = place - first;
            if (column == widths.size())
                widths.push_back(headWidth(group, column + 1));
            widths[column] = std::max(widths[column], row.controls[place]->naturalWidth(false) + gap());
        }
    }
    return widths;
}

void PageView::arrange(int width, int viewHeight) {
    lastWidth = width;
    lastViewHeight = viewHeight;
    updateShown();
    if (const Control* live = liveQuestion())
        nameControls(live->form());
    const Columns columns = columnsFor(width);
    int bottom = gap();
    for (Group& group : groups)
        if (group.shown)
            bottom = placeGroup(group, columns, bottom);
    resize(width, bottom + gap());
    // What has just been placed is no reason to place it again.
    QCoreApplication::removePostedEvents(this, QEvent::LayoutRequest);
    update();
}

int PageView::placeGroup(Group& group, const Columns& columns, int top) {
    const int padding = group.frame ? gap() : 0;
    int bottom = placeTitle(group, columns, top + padding);
    std::vector<int> widths = tableColumns(group);
    const int total = std::accumulate(widths.begin(), widths.end(), 0);
    const int room = columns.right - columns.controls;
    if (total > room)
        for (int& width : widths)
            width = width * room / total;
    else if (group.layout.lastFills && !widths.empty())
        widths.back() += room - total;
    if (!group.heads.empty())
        bottom = placeHeads(group, columns, widths, bottom);
    for (const Row& row : group.rows) {
        if (!row.shown)
            continue;
        bottom = (group.heads.empty() ? placeRow(row, columns, bottom)
                                      : placeTableRow(group, row, columns, widths, bottom)) +
                 gap() / 2;
        if (row.options)
            row.options->surround();
    }
    group.outline = QRect(columns.item - gap(), top, columns.right - columns.item + 2 * gap(), bottom + padding - top);
    return bottom + padding + gap();
}

int PageView::placeTitle(const Group& group, const Columns& columns, int top) {
    int bottom = top;
    const auto place = [&](QWidget& label) {
        label.setGeometry(columns.item, bottom, columns.right - columns.item, label.sizeHint().height());
        bottom += label.sizeHint().height() + gap() / 2;
    };
    if (group.frame)
        place(group.frame->widget());
    if (group.title)
        place(*group.title);
    return bottom;
}

int PageView::placeHeads(const Group& group, const Columns& columns, const std::vector<int>& widths, int top) {
    int height = 0;
    int left = columns.question;
    for (std::size_t column = 0; column < group.heads.size(); ++column) {
        QLabel* head = group.heads[column];
        const int width = column == 0 ? columns.questionWidth : column <= widths.size() ? widths[column - 1] : gap();
        head->setWordWrap(fontMetrics().horizontalAdvance(head->text()) > width);
        head->setGeometry(left, top, width, head->wordWrap() ? head->heightForWidth(width) : head->sizeHint().height());
        height = std::max(height, head->height());
        left = column == 0 ? columns.controls : left + width;
    }
    return top + height + gap() / 2;
}

int PageView::placeQuestion(const Row& row, const Columns& columns, int top, int width) {
    const int offset = (lineHeight() - fontMetrics().height()) / 2;
    if (row.item)
        row.item->setGeometry(columns.item, top + offset, columns.question - columns.item - gap(),
                              row.item->sizeHint().height());
    if (row.mark)
        row.mark->setGeometry(QRect({columns.mark, top + offset}, row.mark->sizeHint()));
    if (!row.question)
        return top;
    const int height = row.question->heightForWidth(width);
    row.question->setGeometry(columns.question, top + offset, width, height);
    return top + offset + height;
}

int PageView::placeTableRow(const Group& group, const Row& row, const Columns& columns, const std::vector<int>& widths,
                            int top) {
    int bottom = std::max(top + lineHeight(), placeQuestion(row, columns, top, columns.questionWidth));
    std::size_t first = 0;
    int middle = top + lineHeight() / 2;
    if (leadsRow(row)) {
        first = 1;
        ControlView& lead = *row.controls.front();
        const QSize size = lead.sizeFor(columns.questionWidth, false);
        const int height = std::max(size.height(), lineHeight());
        lead.widget().setGeometry(QRect({columns.question, top}, QSize(size.width(), height)));
        bottom = std::max(bottom, top + height);
        middle = top + height / 2;
    }
    const auto place = [&](QWidget& widget, int left, QSize size) {
        widget.setGeometry(QRect({left, std::max(top, middle - size.height() / 2)}, size));
        bottom = std::max(bottom, widget.geometry().bottom() + 1);
    };
    int left = columns.controls;
    for (std::size_t cell = first; cell < row.controls.size(); ++cell) {
        const int width = widths[cell - first];
        const bool wide = group.layout.lastFills && cell + 1 == row.controls.size();
        place(row.controls[cell]->widget(), left, row.controls[cell]->sizeFor(width - gap(), wide));
        left += width;
    }
    if (row.unit)
        place(*row.unit, left, row.unit->sizeHint());
    return bottom;
}

int PageView::placeRow(const Row& row, const Columns& columns, int top) {
    if (row.controls.empty())
        return placeQuestion(row, columns, top, columns.right - columns.question);
    if (fillsWidth(row))
        return placeFilling(row, columns, top);
    if (row.above)
        return placeUnder(row, top);
    const int room = columns.right - columns.controls;
    const bool tooWide = std::ranges::any_of(
        row.controls, [room](const ControlView* view) { return view->shownByCode() && view->leastWidth() > room; });
    const int questionBottom = placeQuestion(row, columns, top, columns.questionWidth);
    if (tooWide)
        return placeControls(row, columns.question, columns.right, questionBottom + gap() / 2);
    return std::max(questionBottom, placeControls(row, columns.controls, columns.right, top));
}

/// The control under its column, and its question where there is room before it.
int PageView::placeUnder(const Row& row, int top) {
    ControlView& view = *row.controls.front();
    const std::optional<QRect> stretch = row.above->stretchAbove(*view.control());
    view.setOnPage(row.shown && stretch);
    const QRect grid = row.above->widget().geometry();
    int start = grid.left();
    if (stretch) {
        // A column that is narrow, or seen in part, still has its figure shown in full.
        const int width = std::max(stretch->width(), view.widget().sizeHint().width());
        start = std::max(grid.left(), std::min(stretch->left(), grid.right() + 1 - width));
        view.widget().setGeometry(start, top, width, lineHeight());
    }
    const int room = start - gap() - grid.left();
    if (row.question) {
        row.question->setVisible(row.shown && row.question->sizeHint().width() <= room);
        row.question->setGeometry(grid.left(), top, room, lineHeight());
    }
    return top + lineHeight();
}

int PageView::placeFilling(const Row& row, const Columns& columns, int top) {
    const int width = columns.right - columns.item;
    int start = top;
    if (row.question) {
        start += gap() / 2;
        const int height = row.question->heightForWidth(width);
        row.question->setGeometry(columns.item, start, width, height);
        start += height + gap() / 2;
    }
    ControlView& view = *row.controls.front();
    constexpr int leastLines = 8;
    const int left = lastViewHeight - start - 2 * gap() - gap() / 2;
    const bool stretches = view.fillsPage() && lastViewHeight > 0;
    const int height = stretches ? std::max(left, leastLines * lineHeight()) : view.sizeFor(width, true).height();
    view.widget().setGeometry(columns.item, start, width, height);
    return start + height;
}

int PageView::placeControls(const Row& row, int left, int right, int top) {
    FlowLine line(left, right, top, lineHeight(), gap());
    const bool alone = boxStandsAlone(row);
    for (ControlView* view : row.controls)
        if (view->shownByCode())
            line.add(view->widget(), view->sizeFor(line.room(view->naturalWidth(alone)), alone));
    if (row.unit)
        line.add(*row.unit, row.unit->sizeHint());
    return line.finish();
}

}  // namespace plandesk::desktop
