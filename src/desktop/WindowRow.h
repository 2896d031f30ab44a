#pragma once

#include <QTabBar>
#include <vector>

namespace plandesk {
class Form;
class Screen;
}  // namespace plandesk

namespace plandesk::desktop {

class ScreenView;

/// The names of the open forms, in the order in which they were opened; a click brings one to the front.
class WindowRow : public QTabBar {
public:
    WindowRow(Screen& screen, ScreenView& view);

    /// Shows which forms are open now, and which is in front.
    void sync();
    /// Brings the form to the front that was used before the front one, or with `back` the one used longest ago. As
    /// long as Ctrl is held down, further steps go on from there.
    void step(bool back);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    QSize tabSizeHint(int index) const override;

private:
    void bringToFront(Form* form);

    Screen& screen;
    ScreenView& view;
    std::vector<Form*> open;  ///< may hold forms that are gone by now; looked up in the screen before each use
    std::vector<Form*> used;  ///< while Ctrl is held down: the forms in the order of use when it began
    std::size_t place = 0;
};

}  // namespace plandesk::desktop
