#pragma once

#include <QTreeView>
#include <functional>

#include "desktop/ReviewLines.h"

namespace plandesk::desktop {

class ReviewListModel;

/// The groups of lines, one of which is the current one. However many there are, only those in sight are laid out.
class ReviewList : public QTreeView {
public:
    explicit ReviewList(QWidget& panel);

    /// Shows these instead. Lines that were there before keep their place: which is current, what is in sight, which
    /// groups are closed. Where the current line is gone, the next step leads to the one that came behind it.
    void show(ReviewGroups groups);
    /// Shows others, of which none is the current one.
    void showAnew(ReviewGroups groups);
    const ReviewGroups& groups() const;
    /// Makes the next line the current one, or the one before, round and round. Null when there is none.
    const ReviewLine* step(bool back);
    const ReviewLine* currentLine() const;

    std::function<void(const ReviewLine& line)> chosen = [](const ReviewLine&) {};  ///< by Enter or a click
    std::function<void()> left = [] {};                                             ///< by Esc

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void choose(const QModelIndex& index);
    void goTo(int line);

    ReviewListModel* lines;
    int at = -1;        ///< place of the current line among all of them
    bool gone = false;  ///< the line that was current is gone; `at` is the one behind it
};

}  // namespace plandesk::desktop
