#pragma once

#include <QObject>
#include <QPalette>
#include <QRect>
#include <QSize>
#include <QWidget>
#include <functional>
#include <optional>
#include <string_view>

#include "controls/Control.h"

class QHelpEvent;
class QKeyEvent;

namespace plandesk::desktop {

class ScreenView;

/// One control as a widget. It shows what the control holds and hands the user's acts in; it decides nothing.
/// It belongs to its widget. Once the control is gone it is only a dead picture.
class ControlView : public QObject {
public:
    /// `widget` becomes the picture of the control and owns this object.
    ControlView(Control& control, QWidget& widget, ScreenView& screen);

    QWidget& widget() const { return picture; }
    /// Null once the form was unloaded.
    Control* control() const { return subject; }
    void detach() { subject = nullptr; }

    /// Shows what the control holds now. Lets no exception out.
    void sync();
    /// What the control shows has changed without a word of the control: another form changed its table.
    virtual bool stale() const { return false; }
    /// Whether code shows the control, wherever it stands.
    bool shownByCode() const { return subject && subject->visible(); }
    /// Whether the page shows the place of the control at all; a hidden group or row takes all of its controls away.
    void setOnPage(bool on);
    /// Says what a screen reader is to call it.
    virtual void name(const QString& name, const QString& description = {});

    /// Width that suits the control; a box that stands alone in its row may be wide.
    virtual int naturalWidth(bool alone) const;
    /// Width below which the control could not be read.
    virtual int leastWidth() const { return naturalWidth(false); }
    /// Size to be given when `available` pixels of width are there.
    virtual QSize sizeFor(int available, bool alone);
    /// It carries its own words and may stand in the place of a question.
    virtual bool standsAsQuestion() const { return false; }
    /// It takes the whole width of the page, below its question.
    virtual bool fillsWidth() const { return false; }
    /// It takes what height there is, too.
    virtual bool fillsPage() const { return false; }
    /// Left edge and width, in the coordinates of its parent, of what the label of the form is to stand under; nothing
    /// when that cannot be seen.
    virtual std::optional<QRect> stretchAbove(const Control& /*label*/) const { return {}; }
    /// That stretch may have moved.
    std::function<void()> stretchMoved = [] {};
    /// How many rows of its contents are to be seen at once; 0: as many as suit most.
    virtual void showLines(int /*lines*/) {}
    /// The part of it that takes the keyboard now.
    virtual QWidget& keyboardPart() { return picture; }
    /// The focus came to it otherwise than by the mouse: what it holds is selected, so that typing replaces it.
    virtual void selectContent() {}

    /// Hands on to filterEvent, and lets no exception out into the toolkit.
    bool eventFilter(QObject* watched, QEvent* event) final;

protected:
    /// True when the widget is not to see the event. Called while the control is there alone.
    virtual bool filterEvent(QObject* watched, QEvent* event);
    virtual void syncContent() {}
    virtual QPalette::ColorRole backRole() const { return QPalette::Window; }
    virtual Colour foreColor() const { return black; }
    /// Its text when that does not fit in; a tip shows it then.
    virtual QString hiddenText() const { return {}; }
    /// Whether the toolkit would change the control by the wheel.
    virtual bool changesByWheel() const { return false; }
    /// Handles a key of the system's own. True when the widget is not to see it.
    virtual bool systemKey(const QKeyEvent& event);
    /// Runs an act of the user on the control and shows what came of it.
    void act(const std::function<void()>& what, Qt::FocusReason reason = Qt::OtherFocusReason);

    Control* subject;
    QWidget& picture;
    ScreenView& screen;

private:
    struct Colours {
        Colour back;
        Colour fore;
        Colour form;
        bool operator==(const Colours&) const = default;
    };
    void watch(QWidget& part);
    void showState();
    void syncColours();
    bool mousePressed();
    bool showTip(const QHelpEvent& event) const;
    void focusArrived(Qt::FocusReason reason);

    std::optional<Colours> shown;
    bool onPage = true;
};

/// Captions of more characters than this may be broken over lines.
constexpr int leastCaptionCharacters = 24;

/// Makes the view of a control of the form by its name in the layout; null when the form has no such control.
using ViewMaker = std::function<ControlView*(std::string_view key, QWidget& parent)>;

/// The view of a control of any kind, its widget inside `parent`. `maker` makes those of other controls that stand
/// inside it, and lasts as long as the view.
ControlView& makeControlView(Control& control, QWidget& parent, ScreenView& screen, const ViewMaker& maker);

}  // namespace plandesk::desktop
