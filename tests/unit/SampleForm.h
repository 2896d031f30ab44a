#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/Controls.h"
#include "controls/Form.h"
#include "controls/Screen.h"
#include "unit/TestPorts.h"

namespace plandesk::test {

/// What happened, in order: "txtFirst Change", "Opt1Y Click".
using Log = std::vector<std::string>;

/// A form with a control of each kind, each of whose reactions tells its log.
class SampleForm : public Form {
public:
    explicit SampleForm(Screen& screen, std::string_view name = "frmSample") : Form(screen, name, "Sample") {
        for (Control* control : controls())
            tellReactions(*control);
    }

    const Layout& layout() const override;
    int keyPress(int key) const override { return key == formSwallows ? 0 : key; }
    bool enterActsAsTab() const override { return tabOnEnter; }
    void enterPressed() override { log.emplace_back("Enter"); }
    void functionKey(std::string_view key) override { log.emplace_back(key); }
    using Form::procedure;

    Log log;
    bool tabOnEnter = true;
    int formSwallows = '#';

    Label lblLink{*this, "lblLink", "Link"};
    TabStrip strip{*this, "strip", 2};
    TextBox txtFirst{*this, "txtFirst"};
    TextBox txtSecond{*this, "txtSecond"};
    YesNo Opt1{*this, "Opt1Y", "Opt1N"};
    YesNo IsNarrow{*this, "IsNarrow"};
    Frame fraMore{*this, "fraMore", "More"};
    CheckBox chkDone{*this, "chkDone", "Done"};
    ComboBox cboZone{*this, "cboZone", {"Residential", "Commercial", "Industrial"}};
    DatePicker DTPicker1{*this, "DTPicker1"};
    TextBox txtPage0{*this, "txtPage", 0};
    TextBox txtPage1{*this, "txtPage", 1};
    TextBox txtNotes{*this, "txtNotes"};
    Image imgIcon{*this, "imgIcon"};
    RichText rtfHelp{*this, "rtfHelp", "<p>Help</p>"};
    Button cmdSave{*this, "cmdSave", "&Save"};

private:
    void tellReactions(Control& control);
};

inline void SampleForm::tellReactions(Control& control) {
    const auto tell = [this, &control](std::string_view event) {
        return [this, entry = control.key() + " " + std::string(event)] { log.push_back(entry); };
    };
    control.gotFocus = tell("GotFocus");
    control.lostFocus = tell("LostFocus");
    if (auto* box = dynamic_cast<TextBox*>(&control))
        box->change = tell("Change");
    if (auto* captioned = dynamic_cast<Captioned*>(&control)) {
        captioned->change = tell("Change");
        captioned->click = tell("Click");
    }
    if (auto* list = dynamic_cast<ComboBox*>(&control))
        list->click = tell("Click");
    if (auto* picker = dynamic_cast<DatePicker*>(&control))
        picker->change = tell("Change");
    if (auto* tabs = dynamic_cast<TabStrip*>(&control))
        tabs->click = tell("Click");
}

inline const Layout& SampleForm::layout() const {
    static constexpr LayoutRow texts[] = {
        {.item = "1", .question = "First", .controls = "txtFirst txtSecond"},
        {.item = "2", .question = "Answer", .controls = "Opt1Y Opt1N"},
    };
    static constexpr LayoutRow more[] = {{.item = "3", .question = "Done", .controls = "chkDone cboZone"}};
    static constexpr LayoutRow pageNumbers[] = {
        {.item = "4", .question = "Pages", .controls = "txtPage(0) txtPage(1)"},
        {.item = "5", .question = "Narrow", .controls = "IsNarrow(1) IsNarrow(0)"},
    };
    static constexpr LayoutGroup firstPage[] = {{.rows = texts}, {.rows = more, .frame = "fraMore"}};
    static constexpr LayoutGroup secondPage[] = {{.rows = pageNumbers}};
    static constexpr LayoutPage pages[] = {{firstPage}, {secondPage}};
    static constexpr Layout sheet{.head = "lblLink", .tabs = "strip", .pages = pages, .buttons = "cmdSave"};
    return sheet;
}

/// What a view would be told.
class RecordingObserver : public ScreenObserver {
public:
    Log log;
    void controlChanged(Control& control) override { log.push_back("control " + control.key()); }
    void formChanged(Form& form) override { log.push_back("form " + form.name()); }
    void formUnloading(Form& form) override { log.push_back("unloading " + form.name()); }
    void focusChanged(Control* focused) override { log.push_back("focus " + (focused ? focused->key() : "nowhere")); }
    void mainWindowChanged() override { log.emplace_back("main window"); }
};

/// A screen on a machine in memory.
struct Desk {
    TestPorts ports;
    Screen screen{ports};
};

}  // namespace plandesk::test
