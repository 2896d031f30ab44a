#pragma once

#include "desktop/ChildFrame.h"

namespace plandesk {
class Form;
}

namespace plandesk::desktop {

class FormView;
class ScreenView;

/// A form in its frame inside the main window.
class ChildWindow : public ChildFrame {
public:
    ChildWindow(Form& form, ScreenView& screen, QWidget& desk);

    FormView& view() const { return *contents; }
    /// Shows caption and colours of the form anew.
    void syncForm();
    void closeWindow() override;
    void bringToFront(Qt::FocusReason reason) override;
    void turnPage(bool forwards) override;
    QString caption() const override;
    /// The form is gone.
    void detach();

protected:
    /// Whether no modal form keeps the user from this one.
    bool inReach() const override;
    bool centred() const override;
    QSize naturalSize(QSize room) const override;
    /// Holds for all forms but those that stand in the middle.
    void wishMaximised(bool on) override;
    void sizingEnded() override;

private:
    Form* form;
    ScreenView& screen;
    FormView* contents;
};

}  // namespace plandesk::desktop
