#pragma once

#include <QCoreApplication>
#include <QLineEdit>
#include <QTest>
#include <QWidget>
#include <memory>

#include "controls/Controls.h"
#include "desktop/FormView.h"
#include "desktop/QtText.h"
#include "desktop/ScreenView.h"
#include "proposal/DataForm.h"
#include "unit/TestPorts.h"

namespace plandesk::test {

/// A data form with every kind of control.
class SampleForm : public DataForm {
public:
    static constexpr std::string_view formName = "SampleForm";

    explicit SampleForm(Proposal& proposal) : DataForm(proposal, formName, "Sample ") {
        number.keyPress = keyFilterDecimal;
        notes.multiLine = true;
        link.setForeColor(blue);
        image.toolTip = "Click Here to add the Details";
        link.click = [this] { ++linkClicks; };
        button.click = [this] { ++buttonClicks; };
        image.click = [this] { ++imageClicks; };
        choice.yes.click = [this] { ++yesClicks; };
        list.click = [this] { ++picks; };
    }

    const Layout& layout() const override {
        static constexpr LayoutRow firstRows[] = {
            {"1.", "Title", "title", "", "*"},
            {"a.", "Number", "number", "Sq. Mtrs"},
            {"b.", "Is it so?", "choiceY choiceN"},
            {"", "Notes", "notes"},
            {"", "", "check"},
            {"", "Kind", "list"},
            {"", "Day", "date"},
            {"", "", "other", "", "", "caption"},
            {"", "Details", "image"},
        };
        static constexpr LayoutRow framedRows[] = {{"", "Bank", "bank"}};
        static constexpr LayoutRow secondRows[] = {{"", "On the second page", "second"}};
        static constexpr LayoutGroup firstGroups[] = {{"Heading", firstRows}, {.rows = framedRows, .frame = "frame"}};
        static constexpr LayoutGroup secondGroups[] = {{"", secondRows}};
        static constexpr LayoutPage pages[] = {{firstGroups}, {secondGroups}};
        static constexpr Layout sheet{
            .head = "link", .tabs = "tabs", .pages = pages, .buttons = "button", .firstTabNumber = 5};
        return sheet;
    }

    int linkClicks = 0;
    int buttonClicks = 0;
    int imageClicks = 0;
    int yesClicks = 0;
    int picks = 0;

    Label link{*this, "link", "Payment"};
    TabStrip tabs{*this, "tabs", 2};
    TextBox title{*this, "title"};
    TextBox number{*this, "number"};
    YesNo choice{*this, "choiceY", "choiceN"};
    TextBox notes{*this, "notes"};
    CheckBox check{*this, "check", "Enclosed"};
    ComboBox list{*this, "list", {"New", "Resi+Comm ", "Industrial"}};
    DatePicker date{*this, "date"};
    Label caption{*this, "caption", "Revision No."};
    TextBox other{*this, "other"};
    Image image{*this, "image"};
    Frame frame{*this, "frame", "Bank Detail :"};
    TextBox bank{*this, "bank"};
    TextBox second{*this, "second"};
    Button button{*this, "button", "&Save"};
};

/// A second form, to have something in front of the first.
class OtherForm : public DataForm {
public:
    static constexpr std::string_view formName = "OtherForm";

    explicit OtherForm(Proposal& proposal) : DataForm(proposal, formName, "Other") {}
    const Layout& layout() const override {
        static constexpr LayoutRow rows[] = {{"", "Box", "box"}};
        static constexpr LayoutGroup groups[] = {{"", rows}};
        static constexpr LayoutPage pages[] = {{groups}};
        static constexpr Layout sheet{.pages = pages};
        return sheet;
    }
    TextBox box{*this, "box"};
};

/// The two forms on a desk of their own, without a main window.
struct Stage {
    TestPorts machine;
    Proposal proposal{machine};
    QWidget desk;
    desktop::ScreenView view{proposal.screen, desk};

    Stage() {
        proposal.forms.declare<SampleForm>();
        proposal.forms.declare<OtherForm>();
        desk.resize(1024, 660);
        desk.show();
        form().show();
        settle();
    }

    SampleForm& form() { return proposal.forms.get<SampleForm>(); }
    OtherForm& otherForm() { return proposal.forms.get<OtherForm>(); }
    /// Shows what code changed.
    void settle() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }
    template <class Widget = QWidget>
    Widget& widget(const Control& control) {
        QWidget* found = view.viewOf(control.form())->widgetOf(control);
        Q_ASSERT(dynamic_cast<Widget*>(found));
        return static_cast<Widget&>(*found);
    }
    bool hasKeyboard(const Control& control) { return desk.focusWidget() == &widget(control); }
};

}  // namespace plandesk::test
