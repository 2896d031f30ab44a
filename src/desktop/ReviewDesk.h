#pragma once

#include <QKeySequence>
#include <QObject>
#include <QSize>
#include <QTimer>
#include <functional>
#include <memory>
#include <string_view>

#include "desktop/ReviewLook.h"

class QAction;
class QLabel;
class QMainWindow;
class QMenu;

namespace plandesk {
class Proposal;
class ReviewCopy;
class mdiInterface;
}  // namespace plandesk

namespace plandesk::desktop {

class ReviewPanel;
class ScreenView;

/// The review in the main window: its menu, its panel at the right, its counts in the status bar. As long as the panel
/// is closed it does nothing. It changes nothing of the proposal by itself; going to a finding is an act of the user.
class ReviewDesk : public QObject {
public:
    struct Room {
        QMainWindow& window;
        Proposal& proposal;
        mdiInterface& shell;
        ScreenView& forms;
    };
    /// `before`: the entry of the menu bar that the review's menu stands before.
    ReviewDesk(const Room& room, QAction* before);
    ~ReviewDesk() override;

    /// Shows which of its commands are available now.
    void showState();
    QAction* entry(const QString& name) const;

private:
    void makeMenu(QAction* before);
    QAction* add(QMenu& menu, const char* name, const QString& text, const QKeySequence& keys,
                 const std::function<void()>& command);

    void setOpen(bool on);
    bool open() const;
    void openedOrClosed();
    /// Makes the window wider by the panel, as far as the screen has room, and narrower again when it closes, unless
    /// the user gave it another size meanwhile.
    void makeRoom(bool forPanel);
    bool begun() const;
    void changed();
    void look();
    void looked(std::unique_ptr<ReviewResult> result);

    void step(bool back);
    void go(const ReviewTarget& target);
    /// Opens a form that is not loaded yet, by its menu entry where it has one.
    void openForm(std::string_view form);
    void goToPage(const ReviewPage& page);
    void compare();
    void saveList();
    /// Shows that file in the program that this machine has for such files; tells where it is when there is none.
    void openGuide(const std::string& file);
    ReviewGroup find(const QString& words);

    /// Made when it is opened for the first time.
    ReviewPanel& madePanel();

    Room room;
    ReviewPanel* panel = nullptr;
    bool wasOpen = false;
    int wider = 0;    ///< what the window was made wider by
    QSize widerSize;  ///< its size then
    QLabel* counts;
    QMenu* menu = nullptr;
    ReviewLook lookout;
    QTimer pause;  ///< runs while the user may still be typing
    bool stepWhenLooked = false;
    std::unique_ptr<ReviewCopy> searched;  ///< what questions are looked for in, until the user acts again
};

}  // namespace plandesk::desktop
