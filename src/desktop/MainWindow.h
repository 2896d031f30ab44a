#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "desktop/Desk.h"
#include "desktop/PreviewWindows.h"
#include "desktop/ReviewDesk.h"
#include "desktop/ScreenView.h"
#include "desktop/WindowRow.h"

class QAction;

namespace plandesk {
class Form;
class Proposal;
class mdiInterface;
}  // namespace plandesk

namespace plandesk::desktop {

/// The place, without frame, of a window that stands at `wanted` as far as it is inside `available` with its frame.
QRect framedWithin(const QRect& available, const QMargins& frame, const QRect& wanted);

/// The picture of the main window: menu, desk with the forms, status bar, and the beat of the two timers. It comes onto
/// the screen as a bare desk and furnishes itself when that is painted, since reading the fonts and drawing the icon
/// take longer than all else of the start.
class MainWindow : public QMainWindow {
public:
    MainWindow(Proposal& proposal, mdiInterface& shell);
    ~MainWindow() override;

    /// Makes what the first paint does not need: menu, status bar, keys, review, timers, icon. Once; later calls do
    /// nothing. A window that nobody paints furnishes itself a moment after it was shown.
    void furnish();

    ScreenView& forms() { return screenView; }
    PreviewWindows& previews() { return previewWindows; }
    /// Prints a preview with a dialog; without one set, on the default printer.
    std::function<void(const Paper& paper, const PaperPages& pages, QWidget* window)> printWithDialog;
    /// Closes the window as the user would, as soon as no act is under way.
    void closeWhenIdle();
    /// The menu entry of that name; null when there is none.
    QAction* entry(std::string_view name) const;

protected:
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeMenu();
    void makeStatusBar();
    void makeShortcuts();
    void makeTimers();
    /// Title and colour of the desk: what an empty window shows.
    void showFrame();
    void showState();
    /// Tells on the empty desk what to do, to whoever has not begun or has closed all forms.
    void tellHowToBegin();
    /// Makes the window fit the screen together with its frame, while it has the size that it was given at first.
    void fitScreen();
    void closeIfAsked();
    void printPreview(const Paper& paper, const PaperPages& pages, QWidget* window);
    /// The keyboard came to a widget by itself, with a click for instance.
    void focusWentTo(const QWidget& widget);

    Proposal& proposal;
    mdiInterface& shell;
    Desk* desk;
    QSize ownSize;
    ScreenView screenView;
    PreviewWindows previewWindows;
    WindowRow* openForms = nullptr;
    std::unique_ptr<ReviewDesk> review;
    std::map<std::string, QAction*, std::less<>> entries;
    bool closeAsked = false;
    QTimer timer1;
    QTimer timer2;
};

}  // namespace plandesk::desktop
