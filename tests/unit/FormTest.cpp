#include "controls/Form.h"

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "controls/Answers.h"
#include "unit/SampleForm.h"

namespace plandesk {
namespace {

using test::Log;

struct FormTest : testing::Test, test::Desk {
    test::SampleForm form{screen};

    /// Keys of the controls in tab order.
    Log tabOrder() const {
        Log keys;
        for (const Control* control : form.tabOrder())
            keys.push_back(control->key());
        return keys;
    }
};

TEST_F(FormTest, ControlsAreFoundByNameInAnyCase) {
    EXPECT_EQ(form.find("txtFirst"), &form.txtFirst);
    EXPECT_EQ(form.find("TXTFIRST"), &form.txtFirst);
    EXPECT_EQ(form.find("opt1y"), &form.Opt1.yes);
    EXPECT_EQ(form.find("txtFirs"), nullptr);
    EXPECT_EQ(form.find(""), nullptr);
}

TEST_F(FormTest, MembersOfAnArrayAreFoundByNameAndIndexOnly) {
    EXPECT_EQ(form.find("txtPage", 0), &form.txtPage0);
    EXPECT_EQ(form.find("TxtPage", 1), &form.txtPage1);
    EXPECT_EQ(form.find("txtPage", 2), nullptr);
    EXPECT_EQ(form.find("txtPage"), nullptr);
    EXPECT_EQ(form.find("txtFirst", 0), nullptr);
}

/// What the error says that the body raises.
template <class Body>
std::string raised(const Body& body) {
    try {
        body();
    } catch (const RuntimeError& error) {
        return std::to_string(error.number) + " " + error.description;
    }
    return "nothing";
}

TEST_F(FormTest, ANameThatTheFormLacksIsTold) {
    EXPECT_EQ(&form.at("TXTFIRST"), &form.txtFirst);
    EXPECT_EQ(&form.at<TextBox>("txtPage(1)"), &form.txtPage1);
    EXPECT_EQ(raised([&] { form.at("txtFrist"); }), "3265 frmSample has no txtFrist");
    EXPECT_EQ(raised([&] { form.at<TextBox>("Opt1Y"); }), "3265 frmSample has no Opt1Y");
    EXPECT_EQ(raised([&] { form.at(""); }), "3265 frmSample has no ");
    form.call("txtFirst_Change");
    EXPECT_EQ(form.log, Log{"txtFirst Change"});
    EXPECT_EQ(raised([&] { form.call("SaveDate"); }), "3265 frmSample has no SaveDate");
    EXPECT_EQ(raised([&] { answers(form, "txtFirst Opt1 Opt2"); }), "3265 frmSample has no Opt2");
}

TEST_F(FormTest, KeysAreReadAsLayoutsWriteThem) {
    EXPECT_EQ(form.findKey("isnarrow(1)"), &form.IsNarrow.yes);
    EXPECT_EQ(form.findKey("txtPage(1)"), &form.txtPage1);
    EXPECT_EQ(form.findKey("txtFirst"), &form.txtFirst);
    for (const std::string_view key : {"", "txtPage", "txtPage(", "txtPage()", "txtPage(0", "txtPage(0)x", "txtPage(a)",
                                       "txtPage(-1)", "txtPage(99999999999)", "txtFirst(-1)", "txtFirst()"})
        EXPECT_EQ(form.findKey(key), nullptr) << key;
}

TEST_F(FormTest, ControlsAreWalkedInTheOrderOfTheirDeclaration) {
    Log keys;
    for (const Control* control : form.controls())
        keys.push_back(control->key());
    EXPECT_EQ(keys, (Log{"lblLink", "strip", "txtFirst", "txtSecond", "Opt1Y", "Opt1N", "IsNarrow(1)", "IsNarrow(0)",
                         "fraMore", "chkDone", "cboZone", "DTPicker1", "txtPage(0)", "txtPage(1)", "txtNotes",
                         "imgIcon", "rtfHelp", "cmdSave"}));
}

TEST_F(FormTest, WalkOfOneKindSeesThatKindAlone) {
    Log keys;
    form.forEach<TextBox>([&keys](TextBox& box) { keys.push_back(box.key()); });
    EXPECT_EQ(keys, (Log{"txtFirst", "txtSecond", "txtPage(0)", "txtPage(1)", "txtNotes"}));
}

TEST_F(FormTest, TabOrderIsThePageShownInScreenOrderThenTheButtonsBelowAndTheLinksAbove) {
    EXPECT_EQ(tabOrder(), (Log{"txtFirst", "txtSecond", "Opt1Y", "Opt1N", "chkDone", "cboZone", "cmdSave", "lblLink"}));
    form.strip.setTab(1);
    EXPECT_EQ(tabOrder(), (Log{"txtPage(0)", "txtPage(1)", "IsNarrow(1)", "IsNarrow(0)", "cmdSave", "lblLink"}));
}

TEST_F(FormTest, TabOrderLeavesOutWhatAHiddenFrameHides) {
    form.fraMore.setVisible(false);
    EXPECT_EQ(tabOrder(), (Log{"txtFirst", "txtSecond", "Opt1Y", "Opt1N", "cmdSave", "lblLink"}));
}

TEST_F(FormTest, APageBeginsWithItsFirstAnswerAndWithoutOneWithItsFirstControl) {
    EXPECT_EQ(form.firstAnswer(), &form.txtFirst);
    form.txtFirst.setEnabled(false);
    form.txtSecond.setVisible(false);
    EXPECT_EQ(form.firstAnswer(), &form.Opt1.yes);
    form.Opt1.no.setValue(true);
    EXPECT_EQ(form.firstAnswer(), &form.Opt1.no) << "a group begins with the option that is on";
    form.forEach<Control>([&](Control& control) { control.setEnabled(&control == &form.lblLink); });
    EXPECT_EQ(form.firstAnswer(), &form.lblLink);
    form.lblLink.setEnabled(false);
    EXPECT_EQ(form.firstAnswer(), nullptr);
}

TEST_F(FormTest, EscClosesAFormThatMakesNothingElseOfIt) {
    struct Plain : Form {
        using Form::Form;
    } plain{screen, "frmPlain", "Plain"};
    plain.show();
    plain.functionKey("F2");
    EXPECT_TRUE(plain.visible());
    plain.functionKey("Esc");
    EXPECT_FALSE(plain.visible());
}

TEST_F(FormTest, FormWithoutALayoutHasNoTabOrder) {
    const Form bare{screen, "frmBare", "Bare"};
    EXPECT_TRUE(bare.tabOrder().empty());
}

TEST_F(FormTest, DeclaredProceduresRunByNameInAnyCase) {
    int runs = 0;
    form.procedure("SaveData", [&runs] { ++runs; });
    EXPECT_TRUE(form.run("SaveData"));
    EXPECT_TRUE(form.run("savedata"));
    EXPECT_FALSE(form.run("SaveDat"));
    EXPECT_EQ(runs, 2);
}

TEST_F(FormTest, ReactionsRunAsControlAndEventInAnyCase) {
    EXPECT_TRUE(form.run("cboZone_Click"));
    EXPECT_TRUE(form.run("txtfirst_lostfocus"));
    EXPECT_EQ(form.log, (Log{"cboZone Click", "txtFirst LostFocus"}));
    for (const std::string_view name : {"cboZone_Change", "cboZon_Click", "cboZone", "_Click", "cboZone_", "_", ""})
        EXPECT_FALSE(form.run(name)) << name;
}

TEST_F(FormTest, DeclaredProcedureGoesBeforeTheReactionOfThatName) {
    bool ran = false;
    form.procedure("cmdSave_Click", [&ran] { ran = true; });
    EXPECT_TRUE(form.run("cmdSave_Click"));
    EXPECT_TRUE(ran);
    EXPECT_EQ(form.log, Log{});
}

TEST_F(FormTest, IsHiddenUntilShownAndKeepsItsValuesWhenHidden) {
    EXPECT_FALSE(form.visible());
    form.show();
    EXPECT_TRUE(form.visible());
    form.txtFirst.setText("kept");
    form.pressClose();
    EXPECT_FALSE(form.visible());
    EXPECT_EQ(form.txtFirst.text(), "kept");
}

TEST_F(FormTest, ShowingPutsAFormBeforeTheOthers) {
    test::SampleForm other{screen, "frmOther"};
    form.show();
    other.show();
    EXPECT_TRUE(other.front());
    EXPECT_FALSE(form.front());
    form.bringToFront();
    EXPECT_TRUE(form.front());
    form.hide();
    EXPECT_TRUE(other.front());
    EXPECT_FALSE(form.front());
}

TEST_F(FormTest, HiddenFormBroughtToTheFrontStaysHiddenAndKeepsTheFocusWhereItIs) {
    test::SampleForm other{screen, "frmOther"};
    other.show();
    screen.moveFocus(other.txtFirst);
    form.bringToFront();
    EXPECT_FALSE(form.visible());
    EXPECT_TRUE(other.front());
    EXPECT_TRUE(other.txtFirst.focused());
    other.hide();
    form.show();
    EXPECT_TRUE(form.front());
}

TEST_F(FormTest, ShowingAnotherFormTakesTheFocusWithoutALeaveCheck) {
    test::SampleForm other{screen, "frmOther"};
    form.show();
    screen.moveFocus(form.txtFirst);
    form.txtFirst.leaveCheck = [] { return false; };
    other.show();
    EXPECT_EQ(screen.focused(), nullptr);
    EXPECT_EQ(form.log, (Log{"txtFirst GotFocus", "txtFirst LostFocus"}));
}

TEST_F(FormTest, HidingAFormTakesTheFocusFromItOnly) {
    test::SampleForm other{screen, "frmOther"};
    form.show();
    other.show();
    screen.moveFocus(other.txtFirst);
    form.hide();
    EXPECT_TRUE(other.txtFirst.focused());
    other.hide();
    EXPECT_EQ(screen.focused(), nullptr);
    EXPECT_EQ(other.log, (Log{"txtFirst GotFocus", "txtFirst LostFocus"}));
    other.hide();
    EXPECT_EQ(other.log.size(), 2U);
}

TEST_F(FormTest, TellsTheObserverOfWhatChangedAlone) {
    test::RecordingObserver observer;
    screen.observer = &observer;
    form.setCaption("Sample");
    form.setBackColor(white);
    form.hide();
    EXPECT_EQ(observer.log, Log{});
    form.setCaption("Other");
    form.setBackColor(red);
    form.show();
    form.hide();
    EXPECT_EQ(form.caption(), "Other");
    EXPECT_EQ(form.backColor(), red);
    EXPECT_EQ(observer.log, (Log{"form frmSample", "form frmSample", "form frmSample", "form frmSample"}));
    screen.observer = nullptr;
}

TEST(IgnoringCase, OrdersNamesAlikeInAnyCase) {
    const IgnoringCase less;
    EXPECT_FALSE(less("txtTitle", "TXTTITLE"));
    EXPECT_FALSE(less("TXTTITLE", "txtTitle"));
    EXPECT_TRUE(less("A", "b"));
    EXPECT_TRUE(less("a", "B"));
    EXPECT_TRUE(less("ab", "ABC"));
    EXPECT_TRUE(less("[", "A")) << "letters compare as small letters";
}

}  // namespace
}  // namespace plandesk
