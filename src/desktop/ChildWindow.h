#pragma once

#include <QFrame>

class QLabel;
class QToolButton;

namespace plandesk {
class Form;
}

namespace plandesk::desktop {

class FormView;
class ScreenView;

/// A form in its frame inside the main window: caption, buttons to maximise and close it, contents. The frame is drawn
/// to another size by its edges.
class ChildWindow : public QFrame {
public:
    ChildWindow(Form& form, ScreenView& screen, QWidget& desk);

    FormView& view() const { return *contents; }
    /// Shows caption and colours of the form anew.
    void syncForm();
    void colourBar(bool front);
    /// Takes the size it needs, or the one that the user gave it, as far as the main window leaves room.
    void fit();
    /// Fills the main window, or goes back to the size it had.
    void setMaximised(bool on);
    /// The user's wish for the one or the other; it holds for all forms but those that stand in the middle.
    void toggleMaximised();
    bool maximised() const { return fillsDesk; }
    /// From now on the arrow keys draw the lower right corner, until any other key is pressed or the focus goes.
    void beginSizing();
    /// The form is gone.
    void detach();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void grow();
    QToolButton* makeBox(const QString& name, const QString& sign);
    void arrange();
    void showMaximiseBox();
    void showTitle();
    /// Whether no modal form keeps the user from this one.
    bool inReach() const;
    void bringToFront();
    void closeForm();
    int border() const;
    QRect inside() const;
    Qt::Edges edgesAt(QPoint place) const;
    /// Draws the edges to another place, not beyond the least size and the desk.
    void drawEdges(Qt::Edges edges, QPoint by, const QRect& from);

    Form* form;
    ScreenView& screen;
    QWidget* bar;
    QLabel* title;
    QToolButton* maximiseBox;
    FormView* contents;
    QPoint grip;
    bool moved = false;
    Qt::Edges drawnEdges;  ///< those that the mouse holds
    QRect drawnFrom;       ///< where the window stood when it took hold
    bool drawn = false;    ///< it has a size that the user gave it
    bool fillsDesk = false;
    QRect smaller;  ///< its place while it fills the desk
};

}  // namespace plandesk::desktop
