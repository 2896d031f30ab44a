#include "desktop/ReviewList.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <set>
#include <tuple>

#include "desktop/ReviewLinePainter.h"
#include "desktop/ReviewListModel.h"

namespace plandesk::desktop {

namespace {

/// What tells lines apart that stand in two states of the list. The sentence does not: it changes with the answer.
using Identity = std::tuple<int, std::string_view, std::string_view, int, int, QStringView>;

std::vector<Identity> identities(const ReviewGroups& groups) {
    std::vector<Identity> all;
    int number = 0;
    for (const ReviewGroup& group : groups) {
        for (const ReviewLine& line : group.lines)
            all.emplace_back(number, line.target.form, line.target.control, line.target.row, line.target.column,
                             line.question);
        ++number;
    }
    return all;
}

/// Where the line that stood at `at` stands now, or else the first of those behind it that is still there; `gone` tells
/// of that.
int followed(const std::vector<Identity>& before, const std::vector<Identity>& now, int at, bool& gone) {
    if (at < 0 || at >= static_cast<int>(before.size()))
        return -1;
    const auto old = before.begin() + at;
    const auto same = std::ranges::find(now, *old);
    if (same != now.end())
        return static_cast<int>(same - now.begin());
    gone = true;
    const std::set<Identity> left(now.begin(), now.end());
    const auto next = std::find_if(old, before.end(), [&](const Identity& each) { return left.contains(each); });
    return next == before.end() ? 0 : static_cast<int>(std::ranges::find(now, *next) - now.begin());
}

}  // namespace

ReviewList::ReviewList(QWidget& panel) : QTreeView(&panel), lines(new ReviewListModel(this)) {
    setObjectName(QStringLiteral("reviewList"));
    setAccessibleName(tr("Findings"));
    setModel(lines);
    setItemDelegate(new ReviewLinePainter(*this, *lines));
    setHeaderHidden(true);
    constexpr int indent = 16;
    setIndentation(indent);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // without it lines would be wrapped to another width
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
    connect(this, &QTreeView::clicked, this, [this](const QModelIndex& index) { choose(index); });
}

const ReviewGroups& ReviewList::groups() const {
    return lines->groups();
}

void ReviewList::show(ReviewGroups groups) {
    if (groups == lines->groups())
        return;
    const ReviewGroups before = lines->groups();
    std::vector<bool> closed;
    for (int row = 0; row < lines->rowCount({}); ++row)
        closed.push_back(!isExpanded(lines->index(row, 0, {})));
    const int scrolled = verticalScrollBar()->value();
    lines->setGroups(std::move(groups));
    at = followed(identities(before), identities(lines->groups()), at, gone);
    if (lines->lineCount() == 0)
        at = -1;
    if (at < 0)
        gone = false;
    const bool sameGroups = closed.size() == lines->groups().size();
    for (int row = 0; row < lines->rowCount({}); ++row)
        setExpanded(lines->index(row, 0, {}), !sameGroups || !closed[static_cast<std::size_t>(row)]);
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(scrolled);
    const bool behind = gone;
    if (at >= 0 && isExpanded(lines->indexOfLine(at).parent()))
        setCurrentIndex(lines->indexOfLine(at));
    gone = behind;
}

void ReviewList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (!lines->line(current))
        return;
    at = lines->placeOf(current);
    gone = false;
}

void ReviewList::showAnew(ReviewGroups groups) {
    lines->setGroups(std::move(groups));
    at = -1;
    gone = false;
    expandAll();
}

const ReviewLine* ReviewList::step(bool back) {
    const int count = lines->lineCount();
    if (count == 0)
        return nullptr;
    const int next = at < 0 ? (back ? count - 1 : 0) : at + (back ? -1 : gone ? 0 : 1);
    goTo((next + count) % count);
    return &lines->lineAt(at);
}

const ReviewLine* ReviewList::currentLine() const {
    return lines->line(currentIndex());
}

void ReviewList::goTo(int line) {
    const QModelIndex index = lines->indexOfLine(line);
    expand(index.parent());
    setCurrentIndex(index);
    at = line;
    gone = false;
}

void ReviewList::choose(const QModelIndex& index) {
    if (lines->group(index)) {
        setExpanded(index, !isExpanded(index));
    } else if (const ReviewLine* line = lines->line(index)) {
        chosen(ReviewLine(*line));  // of its own, since the list may show others before it is done
    }
}

void ReviewList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        return left();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return choose(currentIndex());
    QTreeView::keyPressEvent(event);
}

void ReviewList::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    // Narrower lines are higher.
    if (event->size().width() != event->oldSize().width())
        scheduleDelayedItemsLayout();
}

}  // namespace plandesk::desktop
