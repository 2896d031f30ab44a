#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "controls/Controls.h"
#include "driver/Session.h"
#include "proposal/Grid.h"
#include "unit/ScratchFolder.h"

namespace plandesk::driver::test {

inline constexpr GridColumn gridColumns[] = {
    {.caption = "No", .width = 600, .locked = true},
    {.caption = "Description", .width = 2400},
    {.caption = "Name", .width = 1800, .button = true},
    {.caption = "Hidden", .width = 0},
};

/// A form with a control of each kind.
class frmEverything : public Form {
public:
    static constexpr std::string_view formName = "frmEverything";

    explicit frmEverything(Proposal& proposal) : Form(proposal.screen, formName, "Everything") {
        txtLocked.setText("fixed");
        txtLocked.locked = true;
        txtOff.setEnabled(false);
        cmdGone.setVisible(false);
        cmdFail.click = [] { throw RuntimeError(ErrorNumber::Overflow); };
        txtText.leaveCheck = [this] { return txtText.text() != "held"; };
        txtText.lostFocus = [this] { lblSaid.setCaption("left"); };
        imgPicture.click = [this] { lblSaid.setCaption("seen"); };
        lblSaid.setBackColor(fromBlueGreenRed(0x0000FF));
        cboList.addItem("first", 11);
        cboList.addItem("5", 12);
        Opt1.yes.click = [this] { lblSaid.setCaption("yes"); };
        strip.click = [this] { lblSaid.setCaption("turned"); };
        grid.bind(proposal.tables.rsPlot712);
        grid.setColumns(gridColumns);
        grid.buttonClick = [this](int column) { lblSaid.setCaption("button " + std::to_string(column)); };
        procedure("validate", [this] { lblSaid.setCaption("validated"); });
        procedure("ask", [this, &proposal] {
            const bool yes = proposal.screen.ports.dialogs.askYesNo({"Ask", "Sure?", Icon::Question});
            lblSaid.setCaption(yes ? "sure" : "unsure");
        });
        procedure("choose", [this, &proposal] {
            lblSaid.setCaption(proposal.screen.ports.dialogs.saveFile({"Save", "xml", "xml", "before.xml"}));
        });
        procedure("write", [&proposal] { proposal.screen.ports.files.writeWhole("written.txt", "one\r\ntwo\r\n"); });
    }
    void functionKey(std::string_view key) override { lblSaid.setCaption(key); }

    TextBox txtText{*this, "txtText"};
    TextBox txtLocked{*this, "txtLocked"};
    TextBox txtOff{*this, "txtOff"};
    TextBox txtPage0{*this, "txtPage", 0};
    TextBox txtPage1{*this, "txtPage", 1};
    YesNo Opt1{*this, "Opt1Y", "Opt1N"};
    YesNo IsNarrow{*this, "IsNarrow"};
    CheckBox chkDone{*this, "chkDone", "Done"};
    ComboBox cboList{*this, "cboList"};
    DatePicker DTPicker1{*this, "DTPicker1"};
    Label lblSaid{*this, "lblSaid", "nothing"};
    Image imgPicture{*this, "imgPicture"};
    RichText rtfHelp{*this, "rtfHelp", "<p>Help</p>"};
    TabStrip strip{*this, "strip", 2};
    Grid grid{*this, "grid"};
    Button cmdFail{*this, "cmdFail", "Fail"};
    Button cmdGone{*this, "cmdGone", "Gone"};
};

/// Where the test program, the driver and the files that they read lie.
inline const std::filesystem::path programFolder = std::filesystem::read_symlink("/proc/self/exe").parent_path();

struct Outcome {
    int status;
    std::string out;
    std::string err;
};

inline Outcome runScript(const std::string& script) {
    std::ostringstream out;
    std::ostringstream err;
    Session session(programFolder, "s.txt", out, err);
    session.proposal.forms.declare<frmEverything>();
    std::istringstream lines(script);
    const int status = session.run(lines);
    return {status, out.str(), err.str()};
}

/// The script holds, and prints this.
inline void expectOutput(const std::string& script, const std::string& out) {
    const Outcome outcome = runScript(script);
    EXPECT_EQ(outcome.status, Session::Held) << script;
    EXPECT_EQ(outcome.err, "") << script;
    EXPECT_EQ(outcome.out, out) << script;
}

inline void expectHeld(const std::string& script) {
    expectOutput(script, "");
}

/// The last line of the script is wrong; nothing behind it runs.
inline void expectWrong(const std::string& line, const std::string& reason) {
    const Outcome outcome = runScript("\n" + line + "\nprint-flag feeArea\n");
    EXPECT_EQ(outcome.status, Session::WrongScript) << line;
    EXPECT_EQ(outcome.err, "s.txt:2: " + reason + "\n") << line;
    EXPECT_EQ(outcome.out, "") << line;
}

/// The one expectation of the script, in its second line, does not hold.
inline void expectFailed(const std::string& line, const std::string& told) {
    const Outcome outcome = runScript("touch frmEverything\n" + line + "\nprint-flag feeArea\n");
    EXPECT_EQ(outcome.status, Session::Failed) << line;
    EXPECT_EQ(outcome.err, "s.txt:2: " + told + "\n") << line;
    EXPECT_EQ(outcome.out, "0\n") << "the script goes on after " << line;
}

class DriverInAFolder : public testing::Test {
protected:
    DriverInAFolder() { std::filesystem::current_path(std::filesystem::path(folder.path(""))); }
    ~DriverInAFolder() override { std::filesystem::current_path(earlier); }

    std::filesystem::path earlier = std::filesystem::current_path();
    plandesk::test::ScratchFolder folder;
};

}  // namespace plandesk::driver::test
