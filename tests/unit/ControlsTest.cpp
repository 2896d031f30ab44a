#include "controls/Controls.h"

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "unit/SampleForm.h"

namespace plandesk {
namespace {

using test::Log;

struct ControlsTest : testing::Test, test::Desk {
    test::SampleForm form{screen};
    Log& log = form.log;

    /// The number of the run-time error that `action` ends in; 0 when it ends in none.
    template <class Action>
    static int errorOf(const Action& action) {
        try {
            action();
        } catch (const RuntimeError& error) {
            return error.number;
        }
        return 0;
    }
};

// Text boxes

TEST_F(ControlsTest, TextAssignedByCodeIsThereWhenChangeFires) {
    std::string seen;
    form.txtFirst.change = [&] { seen = form.txtFirst.text(); };
    form.txtFirst.setText("Plot 7");
    EXPECT_EQ(seen, "Plot 7");
}

TEST_F(ControlsTest, TextAssignedByCodeFiresNothingIfEqual) {
    form.txtFirst.setText("");
    EXPECT_EQ(log, Log{});
    form.txtFirst.setText("a");
    form.txtFirst.setText("a");
    EXPECT_EQ(log, Log{"txtFirst Change"});
    form.txtFirst.setText("A");
    EXPECT_EQ(log, (Log{"txtFirst Change", "txtFirst Change"}));
}

TEST_F(ControlsTest, AChangeReactionMayAssignTheTextAnew) {
    int changes = 0;
    form.txtFirst.change = [&] {
        ++changes;
        if (!form.txtFirst.text().ends_with(".00"))
            form.txtFirst.setText(form.txtFirst.text() + ".00");
    };
    form.txtFirst.setText("5");
    EXPECT_EQ(form.txtFirst.text(), "5.00");
    EXPECT_EQ(changes, 2);
}

TEST_F(ControlsTest, AnErrorInAChangeReactionReachesTheAssigningCodeAndKeepsTheText) {
    form.txtFirst.change = [] { throw RuntimeError(ErrorNumber::Overflow); };
    EXPECT_EQ(errorOf([&] { form.txtFirst.setText("70000"); }), 6);
    EXPECT_EQ(form.txtFirst.text(), "70000");
}

TEST_F(ControlsTest, RestoredTextFiresNothing) {
    form.txtFirst.restoreText("old");
    EXPECT_EQ(form.txtFirst.text(), "old");
    EXPECT_EQ(log, Log{});
}

TEST_F(ControlsTest, ATextBoxMayBeAssignedAPieceOfItself) {
    form.txtFirst.setText("a text that is longer than any short buffer");
    form.txtFirst.setText(std::string_view(form.txtFirst.text()).substr(2));
    EXPECT_EQ(form.txtFirst.text(), "text that is longer than any short buffer");
}

// Options

TEST_F(ControlsTest, OptionAssignedTrueGoesOnAfterTheOthersWentOffSilently) {
    form.Opt1.yes.setValue(true);
    log.clear();
    bool yesWasOff = false;
    form.Opt1.no.click = [&] {
        yesWasOff = !form.Opt1.yes.value() && form.Opt1.no.value();
        log.emplace_back("no");
    };
    form.Opt1.no.setValue(true);
    EXPECT_TRUE(yesWasOff);
    EXPECT_EQ(log, Log{"no"});
}

TEST_F(ControlsTest, OptionAssignedTrueFiresNothingIfOn) {
    form.Opt1.yes.setValue(true);
    form.Opt1.yes.setValue(true);
    EXPECT_EQ(log, Log{"Opt1Y Click"});
}

TEST_F(ControlsTest, OptionAssignedFalseGoesOffWithoutAnEvent) {
    form.Opt1.yes.setValue(true);
    log.clear();
    form.Opt1.yes.setValue(false);
    EXPECT_FALSE(form.Opt1.yes.value());
    EXPECT_FALSE(form.Opt1.no.value());
    EXPECT_EQ(log, Log{});
}

TEST_F(ControlsTest, OptionChosenByTheUserFiresClickAlsoWhenOnAlready) {
    form.Opt1.yes.choose();
    form.Opt1.yes.choose();
    EXPECT_EQ(log, (Log{"Opt1Y Click", "Opt1Y Click"}));
    form.Opt1.no.choose();
    EXPECT_FALSE(form.Opt1.yes.value());
    EXPECT_TRUE(form.Opt1.no.value());
}

TEST_F(ControlsTest, OptionsOfOtherGroupsKeepTheirValue) {
    form.Opt1.yes.setValue(true);
    form.IsNarrow.no.setValue(true);
    EXPECT_TRUE(form.Opt1.yes.value());
}

TEST_F(ControlsTest, AnOptionMayClearItsOwnPairInItsClick) {
    form.Opt1.yes.click = [&] { form.Opt1.clear(); };
    form.Opt1.yes.choose();
    EXPECT_EQ(form.Opt1.code(), 2);
}

TEST_F(ControlsTest, PairOfNamesAndArrayOfTwoAnswerAlike) {
    EXPECT_EQ(form.Opt1.yes.key(), "Opt1Y");
    EXPECT_EQ(form.Opt1.no.key(), "Opt1N");
    EXPECT_EQ(form.IsNarrow.yes.key(), "IsNarrow(1)");
    EXPECT_EQ(form.IsNarrow.no.key(), "IsNarrow(0)");
    EXPECT_EQ(form.Opt1.yes.caption(), "Yes");
    EXPECT_EQ(form.IsNarrow.no.caption(), "No");
    for (YesNo* pair : {&form.Opt1, &form.IsNarrow}) {
        EXPECT_EQ(pair->code(), 2);
        pair->yes.setValue(true);
        EXPECT_EQ(pair->code(), 1);
        pair->no.setValue(true);
        EXPECT_EQ(pair->code(), 0);
        pair->clear();
        EXPECT_EQ(pair->code(), 2);
    }
}

TEST_F(ControlsTest, YesNoCodeGivesNoWhenBothAreOn) {
    EXPECT_EQ(yesNoCode(false, false), 2);
    EXPECT_EQ(yesNoCode(true, false), 1);
    EXPECT_EQ(yesNoCode(false, true), 0);
    EXPECT_EQ(yesNoCode(true, true), 0);
}

TEST_F(ControlsTest, PairIsShownEnabledAndWiredAsOne) {
    form.Opt1.setVisible(false);
    form.Opt1.setEnabled(false);
    EXPECT_FALSE(form.Opt1.yes.visible() || form.Opt1.no.visible());
    EXPECT_FALSE(form.Opt1.yes.enabled() || form.Opt1.no.enabled());
    int clicks = 0;
    form.Opt1.onClick([&clicks] { ++clicks; });
    form.Opt1.yes.setValue(true);
    form.Opt1.no.setValue(true);
    EXPECT_EQ(clicks, 2);
}

// Check boxes

TEST_F(ControlsTest, CheckBoxFiresClickOnAnyChangeByCodeOrUser) {
    form.chkDone.setValue(1);
    form.chkDone.setValue(0);
    form.chkDone.toggle();
    EXPECT_EQ(form.chkDone.value(), 1);
    EXPECT_EQ(log, (Log{"chkDone Click", "chkDone Click", "chkDone Click"}));
}

TEST_F(ControlsTest, CheckBoxFiresNothingIfEqual) {
    form.chkDone.setValue(0);
    EXPECT_EQ(log, Log{});
}

TEST_F(ControlsTest, CheckBoxTakesNoOtherNumberThan0And1) {
    form.chkDone.setValue(1);
    EXPECT_EQ(errorOf([&] { form.chkDone.setValue(2); }), 380);
    EXPECT_EQ(errorOf([&] { form.chkDone.setValue(-1); }), 380);
    EXPECT_EQ(form.chkDone.value(), 1);
}

// Lists

TEST_F(ControlsTest, ListIndexAssignedByCodeSetsTheTextBeforeClick) {
    std::string seen;
    form.cboZone.click = [&] { seen = form.cboZone.text(); };
    form.cboZone.setListIndex(1);
    EXPECT_EQ(seen, "Commercial");
    EXPECT_EQ(form.cboZone.listIndex(), 1);
}

TEST_F(ControlsTest, ListIndexAssignedByCodeFiresNothingIfEqual) {
    form.cboZone.setListIndex(2);
    form.cboZone.setListIndex(2);
    EXPECT_EQ(log, Log{"cboZone Click"});
}

TEST_F(ControlsTest, ListIndexMinusOneClearsTheTextAndFiresNothing) {
    form.cboZone.setListIndex(0);
    log.clear();
    form.cboZone.setListIndex(-1);
    EXPECT_EQ(form.cboZone.listIndex(), -1);
    EXPECT_EQ(form.cboZone.text(), "");
    EXPECT_EQ(log, Log{});
}

TEST_F(ControlsTest, ListIndexMinusOneKeepsATextThatWasNoItem) {
    form.cboZone.setText("Green belt");
    form.cboZone.setListIndex(-1);
    EXPECT_EQ(form.cboZone.text(), "Green belt");
}

TEST_F(ControlsTest, ListIndexBeyondTheListIsAnErrorAndChangesNothing) {
    form.cboZone.setListIndex(1);
    log.clear();
    for (const int position : {3, 100, -2})
        EXPECT_EQ(errorOf([&] { form.cboZone.setListIndex(position); }), 380) << position;
    EXPECT_EQ(form.cboZone.listIndex(), 1);
    EXPECT_EQ(form.cboZone.text(), "Commercial");
    EXPECT_EQ(log, Log{});
}

TEST_F(ControlsTest, ListTextAssignedByCodeFindsTheItemThatEqualsItExactlyAndFiresNothing) {
    form.cboZone.setText("Industrial");
    EXPECT_EQ(form.cboZone.listIndex(), 2);
    form.cboZone.setText("industrial");
    EXPECT_EQ(form.cboZone.listIndex(), -1);
    EXPECT_EQ(form.cboZone.text(), "industrial");
    EXPECT_EQ(log, Log{});
}

TEST_F(ControlsTest, ListPickedByTheUserFiresClickAlsoForTheSameItem) {
    form.cboZone.pick(0);
    form.cboZone.pick(0);
    EXPECT_EQ(log, (Log{"cboZone Click", "cboZone Click"}));
    EXPECT_EQ(errorOf([&] { form.cboZone.pick(-1); }), 380);
    EXPECT_EQ(errorOf([&] { form.cboZone.pick(3); }), 380);
    EXPECT_EQ(form.cboZone.text(), "Residential");
}

TEST_F(ControlsTest, ListItemsCarryTheirData) {
    form.cboZone.addItem("Agricultural", 17);
    EXPECT_EQ(form.cboZone.listCount(), 4);
    EXPECT_EQ(form.cboZone.item(3), "Agricultural");
    EXPECT_EQ(form.cboZone.itemData(3), 17);
    EXPECT_EQ(form.cboZone.itemData(0), 0);
    EXPECT_EQ(errorOf([&] { form.cboZone.item(4); }), 381);
    EXPECT_EQ(errorOf([&] { form.cboZone.itemData(-1); }), 381);
}

TEST_F(ControlsTest, AClearedListIsEmptyWithoutAnEvent) {
    form.cboZone.setListIndex(1);
    log.clear();
    form.cboZone.clear();
    EXPECT_EQ(form.cboZone.listCount(), 0);
    EXPECT_EQ(form.cboZone.listIndex(), -1);
    EXPECT_EQ(form.cboZone.text(), "");
    EXPECT_EQ(log, Log{});
}

TEST_F(ControlsTest, AListMayBeFilledAnewInItsOwnClick) {
    form.cboZone.click = [&] { form.cboZone.clear(); };
    form.cboZone.pick(1);
    EXPECT_EQ(form.cboZone.text(), "");
}

// Dates, captions, tabs

TEST_F(ControlsTest, DateFiresChangeIfDifferent) {
    form.DTPicker1.setDate({2024, 2, 29});
    form.DTPicker1.setDate({2024, 2, 29});
    EXPECT_EQ(form.DTPicker1.date(), (Date{2024, 2, 29}));
    EXPECT_EQ(log, Log{"DTPicker1 Change"});
}

TEST_F(ControlsTest, CaptionFiresChangeIfDifferent) {
    form.lblLink.setCaption("Link");
    EXPECT_EQ(log, Log{});
    form.lblLink.setCaption("Other link");
    EXPECT_EQ(form.lblLink.caption(), "Other link");
    EXPECT_EQ(log, Log{"lblLink Change"});
}

TEST_F(ControlsTest, TabFiresClickIfDifferent) {
    EXPECT_EQ(form.strip.tab(), 0);
    EXPECT_EQ(form.strip.count(), 2);
    form.strip.setTab(0);
    EXPECT_EQ(log, Log{});
    form.strip.setTab(1);
    EXPECT_EQ(log, Log{"strip Click"});
    EXPECT_EQ(errorOf([&] { form.strip.setTab(2); }), 5);
    EXPECT_EQ(errorOf([&] { form.strip.setTab(-1); }), 5);
    EXPECT_EQ(form.strip.tab(), 1);
}

// All kinds

TEST_F(ControlsTest, ControlIsWhatCodeSetWhateverHidesItOnScreen) {
    form.fraMore.setVisible(false);
    form.strip.setTab(1);
    EXPECT_TRUE(form.chkDone.visible());
    EXPECT_TRUE(form.chkDone.enabled());
    form.chkDone.setVisible(false);
    form.fraMore.setVisible(true);
    EXPECT_FALSE(form.chkDone.visible());
    EXPECT_EQ(log, Log{"strip Click"});
}

TEST_F(ControlsTest, FocusIsTakenByVisibleEnabledControlsOfTheKindsThatTakeIt) {
    EXPECT_TRUE(form.txtFirst.takesFocus());
    EXPECT_TRUE(form.cmdSave.takesFocus());
    EXPECT_TRUE(form.lblLink.takesFocus()) << "a label that can be clicked is a link";
    EXPECT_TRUE(form.imgIcon.takesFocus());
    EXPECT_FALSE(form.fraMore.takesFocus());
    form.lblLink.click = nullptr;
    EXPECT_FALSE(form.lblLink.takesFocus());
    form.txtFirst.setVisible(false);
    EXPECT_FALSE(form.txtFirst.takesFocus());
    form.cmdSave.setEnabled(false);
    EXPECT_FALSE(form.cmdSave.takesFocus());
}

TEST_F(ControlsTest, KeyOfAnArrayMemberCarriesItsIndex) {
    EXPECT_EQ(form.txtPage0.key(), "txtPage(0)");
    EXPECT_EQ(form.txtPage1.name(), "txtPage");
    EXPECT_EQ(form.txtPage1.index(), 1);
    EXPECT_EQ(form.txtNotes.key(), "txtNotes");
    EXPECT_EQ(form.txtNotes.index(), Control::noIndex);
}

TEST_F(ControlsTest, KindsHaveTheNamesOfTheDump) {
    const std::vector<std::pair<const Control*, std::string_view>> kinds = {
        {&form.txtFirst, "TextBox"}, {&form.Opt1.yes, "OptionButton"}, {&form.chkDone, "CheckBox"},
        {&form.cboZone, "ComboBox"}, {&form.DTPicker1, "DatePicker"},  {&form.lblLink, "Label"},
        {&form.cmdSave, "Button"},   {&form.imgIcon, "Image"},         {&form.fraMore, "Frame"},
        {&form.strip, "TabStrip"},   {&form.rtfHelp, "RichText"},
    };
    for (const auto& [control, name] : kinds)
        EXPECT_EQ(kindName(control->kind()), name);
    EXPECT_EQ(kindName(ControlKind::Grid), "Grid");
}

TEST_F(ControlsTest, FireRunsTheReactionOfAnEventInAnyCase) {
    EXPECT_TRUE(form.txtFirst.fire("Change"));
    EXPECT_TRUE(form.txtFirst.fire("lostfocus"));
    EXPECT_TRUE(form.cmdSave.fire("CLICK"));
    EXPECT_TRUE(form.lblLink.fire("change"));
    EXPECT_TRUE(form.cboZone.fire("Click"));
    EXPECT_TRUE(form.DTPicker1.fire("Change"));
    EXPECT_TRUE(form.strip.fire("Click"));
    EXPECT_TRUE(form.chkDone.fire("GotFocus"));
    EXPECT_EQ(log, (Log{"txtFirst Change", "txtFirst LostFocus", "cmdSave Click", "lblLink Change", "cboZone Click",
                        "DTPicker1 Change", "strip Click", "chkDone GotFocus"}));
}

TEST_F(ControlsTest, FireKnowsOnlyTheEventsOfTheKind) {
    EXPECT_FALSE(form.txtFirst.fire("Click"));
    EXPECT_FALSE(form.cboZone.fire("Change"));
    EXPECT_FALSE(form.cmdSave.fire("KeyPress"));
    EXPECT_EQ(log, Log{});
    form.cmdSave.click = nullptr;
    EXPECT_TRUE(form.cmdSave.fire("Click")) << "an event without a reaction is there all the same";
}

// What the views hear

TEST_F(ControlsTest, EachChangeThatIsSeenIsToldToTheObserverOnce) {
    test::RecordingObserver observer;
    screen.observer = &observer;
    form.txtFirst.setText("a");
    form.lblLink.setForeColor(red);
    form.lblLink.setForeColor(red);
    form.chkDone.setVisible(false);
    form.chkDone.setVisible(false);
    form.chkDone.setEnabled(false);
    form.chkDone.setEnabled(false);
    form.txtPage1.setBackColor(disabledGrey);
    form.txtPage1.setBackColor(disabledGrey);
    form.Opt1.yes.setValue(true);
    form.Opt1.no.setValue(true);
    EXPECT_EQ(observer.log, (Log{"control txtFirst", "control lblLink", "control chkDone", "control chkDone",
                                 "control txtPage(1)", "control Opt1Y", "control Opt1Y", "control Opt1N"}));
    screen.observer = nullptr;
}

TEST_F(ControlsTest, ObserverIsToldBeforeTheReactionRuns) {
    test::RecordingObserver observer;
    screen.observer = &observer;
    Log told;
    form.txtFirst.change = [&] { told = observer.log; };
    form.txtFirst.setText("a");
    EXPECT_EQ(told, Log{"control txtFirst"});
    screen.observer = nullptr;
}

}  // namespace
}  // namespace plandesk
