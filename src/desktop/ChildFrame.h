#pragma once

#include <QFrame>

class QLabel;
class QToolButton;

namespace plandesk::desktop {

/// A window within the main window, whatever it shows: caption, buttons to maximise and close it, contents. It is drawn
/// to another size by its edges.
class ChildFrame : public QFrame {
public:
    explicit ChildFrame(QWidget& desk);

    void colourBar(bool front);
    /// Takes the size it needs, or the one that the user gave it, as far as the main window leaves room.
    void fit();
    /// Fills the main window, or goes back to the size it had.
    void setMaximised(bool on);
    /// The user's wish for the one or the other.
    void toggleMaximised();
    bool maximised() const { return fillsDesk; }
    /// From now on the arrow keys draw the lower right corner, until any other key is pressed or the focus goes.
    void beginSizing();
    /// The user's wish to close it.
    virtual void closeWindow() = 0;
    /// Brings it before all others; `reason`: how the keyboard comes to it.
    virtual void bringToFront(Qt::FocusReason reason) = 0;
    /// Gives it the keyboard.
    virtual void takeKeys() {}
    /// To the next page of what it shows, or to the one before.
    virtual void turnPage(bool /*forwards*/) {}
    virtual QString caption() const = 0;

protected:
    /// Below the caption, which becomes its parent's; before the frame is shown.
    void setContents(QWidget& shown);
    void showTitle();
    /// Makes room for what came in sight, unless the user gave the window its size. It never shrinks by itself.
    void grow();

    /// Whether the user can act on it.
    virtual bool inReach() const = 0;
    /// Whether it stands in the middle of the main window.
    virtual bool centred() const { return false; }
    /// The size of its contents when nothing else is wished, at most `room`.
    virtual QSize naturalSize(QSize room) const = 0;
    /// The wish for another size, which may be one for others too.
    virtual void wishMaximised(bool on) { setMaximised(on); }
    /// The keys that drew the frame are free again.
    virtual void sizingEnded() = 0;

    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QToolButton* makeBox(const QString& name, const QString& sign);
    void arrange();
    void showMaximiseBox();
    int border() const;
    QRect inside() const;
    Qt::Edges edgesAt(QPoint place) const;
    /// Draws the edges to another place, not beyond the least size and the desk.
    void drawEdges(Qt::Edges edges, QPoint by, const QRect& from);

    QWidget* bar;
    QLabel* title;
    QToolButton* maximiseBox;
    QWidget* contents = nullptr;
    QPoint grip;
    bool moved = false;
    Qt::Edges drawnEdges;  ///< those that the mouse holds
    QRect drawnFrom;       ///< where the window stood when it took hold
    bool drawn = false;    ///< it has a size that the user gave it
    bool fillsDesk = false;
    QRect smaller;  ///< its place while it fills the desk
};

}  // namespace plandesk::desktop
