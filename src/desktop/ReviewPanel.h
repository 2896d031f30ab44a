#pragma once

#include <QDockWidget>
#include <functional>

#include "desktop/ReviewLines.h"

class QLabel;
class QLineEdit;
class QToolButton;

namespace plandesk::desktop {

class ReviewList;
class ReviewMap;

/// The picture of the review: a field to find questions, the list of findings (or of what was found, or of what differs
/// from a file), the map of pages, and a line for what there is to say.
class ReviewPanel : public QDockWidget {
public:
    explicit ReviewPanel(QWidget& mainWindow);

    void showFindings(ReviewGroups groups);
    void showPages(std::vector<ReviewPage> pages);
    /// Shows a list instead of the findings, under a title, until the user goes back to them.
    void showOther(const QString& title, ReviewGroups groups);
    bool showsFindings() const { return !other; }
    void backToFindings();
    void say(const QString& text);

    /// What the list shows, and its title.
    QString title() const;
    const ReviewGroups& groups() const;
    const ReviewLine* step(bool back);

    bool hasKeys() const;
    void takeKeys();
    void beginSearch();
    /// Back to the findings from the questions that were found.
    void endSearch();

    void setVisible(bool on) override;
    /// Grows with the font.
    int usualWidth() const;

    std::function<void(const ReviewTarget& target)> go = [](const ReviewTarget&) {};
    std::function<void(const ReviewPage& page)> goToPage = [](const ReviewPage&) {};
    /// The questions that hold these words.
    std::function<ReviewGroup(const QString& words)> find = [](const QString&) { return ReviewGroup(); };
    std::function<void()> left = [] {};  ///< the keyboard is to go back to the forms

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool forwards) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void search(const QString& words);
    void showMode();

    QLineEdit* field;
    QLabel* heading;
    QToolButton* back;
    ReviewList* list;
    ReviewMap* map;
    QLabel* notice;
    ReviewGroups findings;
    bool other = false;
};

}  // namespace plandesk::desktop
