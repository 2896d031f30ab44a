#pragma once

#include <QScrollArea>
#include <QWidget>
#include <functional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "controls/Form.h"
#include "desktop/ControlView.h"

namespace plandesk::desktop {

class PageView;
class ScreenView;

/// A form as its layout tells: a row of links and page buttons, what stands above the tabs, the pages, a row of
/// buttons. A page is drawn when it is shown for the first time.
class FormView : public QWidget {
public:
    FormView(Form& form, ScreenView& screen, QWidget& parent);
    ~FormView() override;

    /// Shows what the control holds now, where it has been drawn.
    void sync(Control& control);
    /// Shows everything anew that was drawn.
    void syncAll();
    /// Shows anew what others changed behind the controls' backs.
    void syncStale();
    /// The form is gone; this is only a dead picture now.
    void detach();

    /// Whether the control stands on a page that was turned away.
    bool onTurnedPage(const Control& control) const;
    /// Gives the keyboard to the control, or to the form when the control is not there. `arrived`: the focus has just
    /// come to the control; its row is brought into sight then, and its text selected, unless the mouse brought it.
    void takeKeys(const Control* control, Qt::FocusReason reason, bool arrived);
    /// Widget of the control; null when it has not been drawn.
    QWidget* widgetOf(const Control& control) const;
    /// Size that shows the page without scrolling, as far as `limit` allows.
    QSize naturalSize(QSize limit);

    /// The page shown got higher, as its questions opened others.
    std::function<void()> grew = [] {};

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct Page {
        QScrollArea* area = nullptr;
        PageView* view = nullptr;
    };
    using Views = std::vector<ControlView*>;

    ControlView* makeView(std::string_view key, QWidget& parent);
    /// Null when it has not been drawn.
    ControlView* viewOf(const Control& control) const;
    Views makeViews(std::string_view keys);
    std::size_t chosenPage() const;
    void showChosenPage();
    void drawPage(std::size_t number);
    int pageWidth(int width) const;
    /// Puts the views into lines of that width; tells where the last one ends.
    int placeViews(const Views& views, int margin, int width, int top) const;
    void arrange();
    void scrollTo(const QWidget& widget);
    int gap() const;

    Form* form;
    ScreenView& screen;
    const ViewMaker maker = [this](std::string_view key, QWidget& parent) { return makeView(key, parent); };
    std::unordered_map<const Control*, ControlView*> drawn;
    Views head;
    PageView* topRows = nullptr;  ///< null when the form has none
    ControlView* tabs = nullptr;
    Views buttons;
    std::vector<Page> pages;
    std::size_t current = 0;
};

}  // namespace plandesk::desktop
