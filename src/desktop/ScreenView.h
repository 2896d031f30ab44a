#pragma once

#include <QObject>
#include <QRect>
#include <functional>
#include <set>
#include <string>
#include <type_traits>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "controls/Screen.h"

class QWidget;

namespace plandesk::desktop {

class ChildFrame;
class ChildWindow;
class FormView;

/// The forms of a screen as child windows of one widget. It hears of every change in the system and shows all of them
/// together when the event that made them has ended, or when a message opens within it.
class ScreenView : public QObject, private ScreenObserver {
public:
    /// `desk` is the room inside the main window; both outlive this.
    ScreenView(Screen& screen, QWidget& desk);
    ~ScreenView() override;

    /// Runs one act of the user on the system, then shows what came of it. Does nothing while another act is under way,
    /// which is so as long as a message or file dialog of it is open. `reason`: how the focus moves, if it does.
    void act(Qt::FocusReason reason, const std::function<void()>& what);
    /// Whether an act is under way.
    bool busy() const { return underWay > 0; }
    /// Shows all that changed since the last time.
    void refresh();

    /// Does what the toolkit asks of the system between two acts (a cell to paint, a key to filter, a tick, a size),
    /// and gives its result, or an empty one when it fails. This is where exceptions stop: none may pass through the
    /// toolkit's frames, whose painters and flags it would leave behind half done. Application stops what was not
    /// foreseen. A failure is told in one box when the act under way has ended, and only once until the user acts
    /// again, since what fails at a repaint fails at the next one too.
    template <class Work, class Result = std::invoke_result_t<const Work&>>
    Result guarded(const Work& work) noexcept {
        try {
            return work();
        } catch (...) {
            failed();
        }
        if constexpr (!std::is_void_v<Result>)
            return {};
    }
    /// Takes note of the exception that is being handled; to be called within a catch alone.
    void failed() noexcept;

    /// The forms that are open and those that are shown later fill the desk, or have a size of their own.
    void fillDesk(bool on);
    /// The desk has another size.
    void fitWindows();
    /// A box or file dialog has closed and given the keyboard back.
    void dialogClosed();
    /// The toolkit moved the focus by itself; it is put back in a moment.
    void focusStrayed();
    /// The keyboard goes to where the focus is, from wherever it is now.
    void takeKeysBack();

    /// A window on the desk that is no form came to the front, above all forms, and has the keyboard; with null the
    /// forms have both again.
    void setGuest(ChildFrame* window);
    ChildFrame* guest() const { return guestWindow; }
    /// Another window of the desk opened, closed or has another name; it is told when the running act has ended.
    void windowsChanged();

    /// View of the form; null when it is not drawn yet.
    FormView* viewOf(const Form& form) const;
    ChildWindow* windowOf(const Form& form) const;
    /// What one sees of the control, on the machine's screen; empty when it cannot be seen.
    QRect placeOnScreen(const Control& control) const;

    std::function<void()> formsShown = [] {};         ///< other windows of the desk are shown now
    std::function<void()> mainWindowTouched = [] {};  ///< caption, menu or the open forms changed
    std::function<void()> acted = [] {};              ///< an act of the user has ended
    /// Whether a part of the window beside the forms has the keyboard; it keeps it until the user acts on the forms.
    std::function<bool()> keyboardElsewhere = [] { return false; };

private:
    void controlChanged(Control& control) override;
    void formChanged(Form& form) override;
    void formUnloading(Form& form) override;
    void focusChanged(Control* focused) override;
    void mainWindowChanged() override;

    void later();
    void showForms();
    void colourBars();
    void showForm(Form& form);
    void showControls();
    /// Whether the control stands on a page of its form that is not the one shown.
    bool onTurnedPage(const Control& control) const;
    /// The control of the form that keys go to when none has the focus; null when none can take it. `atFirst`: the
    /// first answer, wherever the focus was last.
    Control* keyboardTarget(const Form& form, bool atFirst) const;
    /// Gives the focus to the front form when nothing has it. True when that ran reactions.
    bool giveFocus();
    void placeKeyboard();
    void tellFailures();

    Screen& screen;
    QWidget& desk;
    std::unordered_map<const Form*, ChildWindow*> windows;
    std::unordered_set<Form*> changedForms;
    std::vector<Form*> raised;  ///< each came to the front, the last one last
    std::unordered_set<Control*> changedControls;
    ChildFrame* guestWindow = nullptr;
    bool deskFilled = false;
    bool mainChanged = false;
    bool focusMoved = false;  ///< the keyboard may not be where the focus is
    bool arrived = false;     ///< the focused control has not had the keyboard since it got the focus
    bool keysWanted = false;  ///< the user acted on the forms, which are to have the keyboard
    bool posted = false;
    int underWay = 0;
    std::set<std::string> failures;  ///< since the user's last act
    std::vector<std::string> untold;
    Qt::FocusReason reason = Qt::OtherFocusReason;
};

}  // namespace plandesk::desktop
