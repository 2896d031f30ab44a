#pragma once

#include <QFrame>

class QLabel;

namespace plandesk {
class Form;
}

namespace plandesk::desktop {

class FormView;
class ScreenView;

/// A form in its frame inside the main window: caption, close button, contents.
class ChildWindow : public QFrame {
public:
    ChildWindow(Form& form, ScreenView& screen, QWidget& desk);

    FormView& view() const { return *contents; }
    /// Shows caption and colours of the form anew.
    void syncForm();
    void colourBar(bool front);
    /// Takes the size it needs at the place it has, as far as the main window leaves room.
    void fit();
    /// The form is gone.
    void detach();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void bringToFront();
    void closeForm();
    QRect inside() const;

    Form* form;
    ScreenView& screen;
    QWidget* bar;
    QLabel* title;
    FormView* contents;
    QPoint grip;
    bool moved = false;
};

}  // namespace plandesk::desktop
