#pragma once

#include <QTabBar>
#include <vector>

namespace plandesk {
class Screen;
}  // namespace plandesk

namespace plandesk::desktop {

class ChildFrame;
class PreviewWindows;
class ScreenView;

/// The names of the open forms and reports, in the order in which they were opened; a click brings one to the front.
class WindowRow : public QTabBar {
public:
    WindowRow(Screen& screen, ScreenView& view, const PreviewWindows& previews);

    /// Shows which of them are open now, and which is in front.
    void sync();
    /// Brings the one to the front that was used before the front one, or with `back` the one used longest ago. As
    /// long as Ctrl is held down, further steps go on from there.
    void step(bool back);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    QSize tabSizeHint(int index) const override;

private:
    /// All that is open, in the order of use, the front one first.
    std::vector<ChildFrame*> inUse() const;
    void bringToFront(ChildFrame* window);

    Screen& screen;
    ScreenView& view;
    const PreviewWindows& previews;
    std::vector<ChildFrame*> open;  ///< may hold windows that are gone by now; looked up before each use
    std::vector<ChildFrame*> used;  ///< while Ctrl is held down: the windows in the order of use when it began
    std::size_t place = 0;
};

}  // namespace plandesk::desktop
