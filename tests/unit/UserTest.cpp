#include "controls/User.h"

#include <algorithm>
#include <ctime>
#include <limits>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "unit/SampleForm.h"

namespace plandesk {
namespace {

using test::Log;

struct UserTest : testing::Test, test::Desk {
    test::SampleForm form{screen};
    Log& log = form.log;

    std::vector<Message> boxes() { return ports.dialogs.take(); }
};

int digitsOnly(int key) {
    return key == 8 || (key >= '0' && key <= '9') ? key : 0;
}

// Typing

TEST_F(UserTest, TypingReplacesTheContentAndFiresChangeForEachKey) {
    form.txtFirst.setText("old");
    log.clear();
    Log seen;
    form.txtFirst.change = [&] { seen.push_back(form.txtFirst.text()); };
    EXPECT_TRUE(user::type(form.txtFirst, "new"));
    EXPECT_EQ(seen, (Log{"n", "ne", "new"}));
    EXPECT_EQ(log, Log{"txtFirst GotFocus"});
}

TEST_F(UserTest, TypingTheSameTextFiresChangeAllTheSame) {
    form.txtFirst.setText("ab");
    log.clear();
    user::type(form.txtFirst, "ab");
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "txtFirst Change", "txtFirst Change"}));
}

TEST_F(UserTest, EachKeyPassesTheFormsFilterBeforeTheControls) {
    Log keys;
    form.txtFirst.keyPress = [&](int key) {
        keys.emplace_back(1, static_cast<char>(key));
        return key == 'b' ? 0 : key == 'c' ? 'C' : key;
    };
    user::type(form.txtFirst, "a#bc");
    EXPECT_EQ(keys, (Log{"a", "b", "c"}));
    EXPECT_EQ(form.txtFirst.text(), "aC");
}

TEST_F(UserTest, TypingWithAllKeysSwallowedKeepsTheContent) {
    form.txtFirst.setText("12");
    form.txtFirst.keyPress = digitsOnly;
    log.clear();
    user::type(form.txtFirst, "abc");
    EXPECT_EQ(form.txtFirst.text(), "12");
    user::type(form.txtFirst, "x3y4");
    EXPECT_EQ(form.txtFirst.text(), "34");
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "txtFirst Change", "txtFirst Change"}));
}

TEST_F(UserTest, TypingNothingKeepsTheContent) {
    form.txtFirst.setText("kept");
    user::type(form.txtFirst, "");
    EXPECT_EQ(form.txtFirst.text(), "kept");
    EXPECT_TRUE(form.txtFirst.focused());
}

TEST_F(UserTest, AReactionThatRewritesTheTextLeavesTheCaretAtItsPlaceFromTheLeft) {
    form.txtFirst.change = [&] {
        if (const std::string& text = form.txtFirst.text(); !text.ends_with(".00"))
            form.txtFirst.setText(text.substr(0, text.find('.')) + ".00");
    };
    user::type(form.txtFirst, "125");
    EXPECT_EQ(form.txtFirst.text(), "125.00");
    EXPECT_EQ(form.txtFirst.caret(), 3U);
    user::append(form.txtFirst, "7");
    EXPECT_EQ(form.txtFirst.text(), "125.00");
}

TEST_F(UserTest, TheCaretIsCountedInCharactersAndStandsAtTheEndOfAShorterText) {
    form.txtFirst.change = [&] {
        if (form.txtFirst.text() == "ab")
            form.txtFirst.setText("\u0905\u0906\u0907");
    };
    user::type(form.txtFirst, "abc");
    EXPECT_EQ(form.txtFirst.text(), "\u0905\u0906c\u0907");
    form.txtFirst.change = [&] {
        if (form.txtFirst.text() == "xyz")
            form.txtFirst.setText("1");
    };
    user::type(form.txtFirst, "xyz2");
    EXPECT_EQ(form.txtFirst.text(), "12");
}

TEST_F(UserTest, AppendTypesAtTheEnd) {
    form.txtFirst.setText("Plot");
    user::append(form.txtFirst, " 7");
    EXPECT_EQ(form.txtFirst.text(), "Plot 7");
    form.txtFirst.keyPress = digitsOnly;
    user::append(form.txtFirst, "x8");
    EXPECT_EQ(form.txtFirst.text(), "Plot 78");
}

TEST_F(UserTest, WhateverIsTypedIsKeptAsTyped) {
    const std::string text = "\u092d\u0942\u0916\u0902\u0921 \u05d0\u05d1 \u20ac \U0001F3E0 \t\x01\r\n";
    user::type(form.txtFirst, text);
    EXPECT_EQ(form.txtFirst.text(), text);
    user::type(form.txtFirst, "a\xFF\xC3z");
    EXPECT_EQ(form.txtFirst.text(), "a\xFF\xC3z");
}

TEST_F(UserTest, ChangeReactionMayEmptyTheBoxWhileTheUserTypes) {
    form.txtFirst.change = [&] {
        if (form.txtFirst.text().find('x') != std::string::npos) {
            form.txtFirst.setText("");
            form.txtFirst.setFocus();
        }
    };
    user::type(form.txtFirst, "12x34");
    EXPECT_EQ(form.txtFirst.text(), "34");
    EXPECT_TRUE(form.txtFirst.focused());
}

TEST_F(UserTest, KeysGoNowhereAfterAReactionMovedTheFocusAway) {
    form.txtFirst.change = [&] { form.txtSecond.setFocus(); };
    EXPECT_TRUE(user::type(form.txtFirst, "123"));
    EXPECT_EQ(form.txtFirst.text(), "1");
    EXPECT_EQ(form.txtSecond.text(), "");
    EXPECT_TRUE(form.txtSecond.focused());
}

TEST_F(UserTest, KeysGoNowhereAfterAReactionClosedTheBox) {
    form.txtFirst.change = [&] { form.txtFirst.setEnabled(false); };
    user::type(form.txtFirst, "123");
    EXPECT_EQ(form.txtFirst.text(), "1");
    form.txtSecond.change = [&] { form.txtSecond.locked = true; };
    user::type(form.txtSecond, "123");
    EXPECT_EQ(form.txtSecond.text(), "1");
}

TEST_F(UserTest, EachKeyIsAnEventOfItsOwnSoThatAnErrorLosesNoOtherKey) {
    form.txtFirst.change = [&] {
        if (form.txtFirst.text().size() > 4)
            throw RuntimeError(ErrorNumber::Overflow);
    };
    user::type(form.txtFirst, "400000");
    EXPECT_EQ(form.txtFirst.text(), "400000");
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "Overflow", Icon::Critical}, {"", "Overflow", Icon::Critical}}));
}

TEST_F(UserTest, FormUnloadedWhileTheUserTypesIsDestroyedOnlyWhenAllKeysAreDown) {
    auto owner = std::make_unique<test::SampleForm>(screen, "frmOther");
    TextBox& box = owner->txtFirst;
    box.change = [&] { screen.unload(std::move(owner)); };
    EXPECT_TRUE(user::type(box, "123"));
    EXPECT_EQ(owner, nullptr);
    EXPECT_EQ(screen.focused(), nullptr);
}

TEST_F(UserTest, TypingTakesTimeInProportionToTheText) {
    // Processor time: other programs of the machine do not count.
    const auto clocksFor = [this](std::size_t length) {
        auto best = std::numeric_limits<double>::max();
        for (int run = 0; run < 3; ++run) {
            const std::clock_t start = std::clock();
            user::type(form.txtFirst, std::string(length, 'a'));
            best = std::min(best, static_cast<double>(std::clock() - start));
            EXPECT_EQ(form.txtFirst.text().size(), length);
            log.clear();
        }
        return best;
    };
    form.txtFirst.change = nullptr;
    const double small = clocksFor(10'000);
    const double large = clocksFor(100'000);
    EXPECT_LT(large, 40 * small) << "ten times the keys, " << large / small << " times the time";
}

TEST_F(UserTest, HiddenDisabledAndLockedBoxesTakeNoKeys) {
    form.txtFirst.setVisible(false);
    form.txtSecond.setEnabled(false);
    form.txtNotes.locked = true;
    for (TextBox* box : {&form.txtFirst, &form.txtSecond, &form.txtNotes}) {
        EXPECT_FALSE(user::type(*box, "a"));
        EXPECT_FALSE(user::append(*box, "a"));
        EXPECT_FALSE(user::clear(*box));
        EXPECT_FALSE(user::edit(*box, "a"));
        EXPECT_EQ(box->text(), "");
    }
    EXPECT_EQ(log, Log{});
}

TEST_F(UserTest, ClearEmptiesTheBoxWithOneChangeAndNoFilter) {
    form.txtFirst.setText("abc");
    form.txtFirst.keyPress = [](int) { return 0; };
    log.clear();
    EXPECT_TRUE(user::clear(form.txtFirst));
    EXPECT_TRUE(user::clear(form.txtFirst));
    EXPECT_EQ(form.txtFirst.text(), "");
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "txtFirst Change"}));
}

TEST_F(UserTest, EditAsAWholeFiresOneChangeAndNoFilter) {
    form.txtFirst.keyPress = digitsOnly;
    EXPECT_TRUE(user::edit(form.txtFirst, "# pasted"));
    EXPECT_TRUE(user::edit(form.txtFirst, "# pasted"));
    EXPECT_EQ(form.txtFirst.text(), "# pasted");
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "txtFirst Change"}));
}

// Single keys

TEST_F(UserTest, OneCharacterIsTypedAtTheEnd) {
    form.txtFirst.setText("Plot");
    EXPECT_TRUE(user::press(form.txtFirst, "s"));
    EXPECT_TRUE(user::press(form.txtFirst, "Space"));
    EXPECT_TRUE(user::press(form.txtFirst, "\u0917"));
    EXPECT_TRUE(user::press(form.txtFirst, "#"));
    EXPECT_EQ(form.txtFirst.text(), "Plots \u0917");
}

TEST_F(UserTest, KeyWithANameThatIsNotKnownTypesNothing) {
    EXPECT_TRUE(user::press(form.txtFirst, "F4"));
    EXPECT_TRUE(user::press(form.txtFirst, ""));
    EXPECT_EQ(form.txtFirst.text(), "");
}

TEST_F(UserTest, BackspaceErasesOneCharacterHoweverManyBytesItHas) {
    form.txtFirst.setText("a\u00e9\u0917\U0001F3E0\r\n");
    Log seen;
    form.txtFirst.change = [&] { seen.push_back(form.txtFirst.text()); };
    for (int presses = 0; presses < 6; ++presses)
        user::press(form.txtFirst, "Backspace");
    EXPECT_EQ(seen, (Log{"a\u00e9\u0917\U0001F3E0", "a\u00e9\u0917", "a\u00e9", "a", ""}));
}

TEST_F(UserTest, BackspaceErasesOneByteOfATextThatIsNoUtf8) {
    form.txtFirst.setText("a\x80\x80\x80");
    user::press(form.txtFirst, "Backspace");
    EXPECT_EQ(form.txtFirst.text(), "a\x80\x80");
    form.txtFirst.setText("\u0917\x80");
    user::press(form.txtFirst, "Backspace");
    EXPECT_EQ(form.txtFirst.text(), "\u0917");
}

TEST_F(UserTest, BackspacePassesTheFilters) {
    form.txtFirst.setText("12");
    form.txtFirst.keyPress = digitsOnly;
    user::press(form.txtFirst, "Backspace");
    EXPECT_EQ(form.txtFirst.text(), "1");
    form.formSwallows = 8;
    user::press(form.txtFirst, "Backspace");
    EXPECT_EQ(form.txtFirst.text(), "1");
}

TEST_F(UserTest, LockedBoxTakesTheFocusButNoKey) {
    form.txtNotes.setText("kept");
    form.txtNotes.locked = true;
    form.txtNotes.multiLine = true;
    form.tabOnEnter = false;
    for (const std::string_view key : {"a", "Space", "Backspace", "Enter"})
        EXPECT_TRUE(user::press(form.txtNotes, key));
    EXPECT_EQ(form.txtNotes.text(), "kept");
    EXPECT_TRUE(form.txtNotes.focused());
}

TEST_F(UserTest, FunctionKeysAndEscGoToTheForm) {
    for (const std::string_view key : {"F2", "F3", "Esc"})
        user::press(form.txtFirst, key);
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "F2", "F3", "Esc"}));
    EXPECT_EQ(form.txtFirst.text(), "");
}

TEST_F(UserTest, TabMovesOnWithOneStopInAGroupOfOptionsAndRoundAtTheEnd) {
    user::focus(form.txtFirst);
    Log reached;
    for (int step = 0; step < 8; ++step) {
        user::pressForm(form, "Tab");
        reached.push_back(form.activeControl()->key());
    }
    EXPECT_EQ(reached,
              (Log{"txtSecond", "Opt1Y", "chkDone", "cboZone", "cmdSave", "lblLink", "txtFirst", "txtSecond"}));
}

TEST_F(UserTest, ShiftTabMovesBackInScreenOrderAndRoundAtTheStart) {
    EXPECT_TRUE(user::press(form.txtSecond, "Shift+Tab"));
    EXPECT_TRUE(form.txtFirst.focused());
    form.cmdSave.setEnabled(false);
    form.lblLink.setVisible(false);
    user::pressForm(form, "Shift+Tab");
    EXPECT_TRUE(form.cboZone.focused());
    test::SampleForm other{screen, "frmOther"};
    user::pressForm(other, "Shift+Tab");
    EXPECT_TRUE(other.lblLink.focused()) << "without a focus it goes to the last control";
}

TEST_F(UserTest, TabPassesOverHiddenAndDisabledControls) {
    form.txtSecond.setEnabled(false);
    form.Opt1.setVisible(false);
    form.fraMore.setVisible(false);
    user::press(form.txtFirst, "Tab");
    EXPECT_TRUE(form.cmdSave.focused());
}

TEST_F(UserTest, TabOnTheOnlyControlStaysThere) {
    form.forEach<Control>([&](Control& control) { control.setEnabled(&control == &form.txtFirst); });
    user::press(form.txtFirst, "Tab");
    EXPECT_TRUE(form.txtFirst.focused());
    EXPECT_EQ(log, Log{"txtFirst GotFocus"});
}

TEST_F(UserTest, TabIsHeldByALeaveCheck) {
    form.txtFirst.leaveCheck = [] { return false; };
    user::press(form.txtFirst, "Tab");
    EXPECT_TRUE(form.txtFirst.focused());
}

TEST_F(UserTest, TabWithoutAFocusGoesToTheFirstControl) {
    EXPECT_TRUE(user::pressForm(form, "Tab"));
    EXPECT_TRUE(form.txtFirst.focused());
    form.strip.setTab(1);
    user::pressForm(form, "Tab");
    EXPECT_TRUE(form.txtPage0.focused()) << "the focus was on a page that is not shown any more";
}

TEST_F(UserTest, TabOnAFormWithoutALayoutDoesNothing) {
    Form bare{screen, "frmBare", "Bare"};
    TextBox box{bare, "txtOnly"};
    EXPECT_TRUE(user::press(box, "Tab"));
    EXPECT_TRUE(box.focused());
}

TEST_F(UserTest, EnterActsAsTabAfterTheFormsOwnReaction) {
    EXPECT_TRUE(user::press(form.txtFirst, "Enter"));
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "Enter", "txtFirst LostFocus", "txtSecond GotFocus"}));
    EXPECT_TRUE(user::press(form.cmdSave, "Enter"));
    EXPECT_TRUE(form.lblLink.focused()) << "a button is left, not pressed";
}

TEST_F(UserTest, EnterAndSpacePressALinkAndAnIcon) {
    for (const bool enterIsTab : {true, false}) {
        form.tabOnEnter = enterIsTab;
        for (Control* control : {static_cast<Control*>(&form.lblLink), static_cast<Control*>(&form.imgIcon)}) {
            user::focus(*control);
            log.clear();
            user::press(*control, "Enter");
            user::press(*control, "Space");
            EXPECT_EQ(log, (Log{control->key() + " Click", control->key() + " Click"}));
            EXPECT_TRUE(control->focused());
        }
    }
}

TEST_F(UserTest, AClickOnALinkLeavesTheFocusWhereItIs) {
    user::focus(form.txtFirst);
    user::click(form.lblLink);
    EXPECT_TRUE(form.txtFirst.focused());
}

TEST_F(UserTest, TabStopsAtTheOptionThatIsOnAndLeavesTheGroupFromAnyOfThem) {
    form.Opt1.no.setValue(true);
    user::press(form.txtSecond, "Tab");
    EXPECT_TRUE(form.Opt1.no.focused());
    user::press(form.Opt1.no, "Shift+Tab");
    EXPECT_TRUE(form.txtSecond.focused());
    user::press(form.chkDone, "Shift+Tab");
    EXPECT_TRUE(form.Opt1.no.focused());
    form.Opt1.clear();
    user::press(form.Opt1.no, "Shift+Tab");
    EXPECT_TRUE(form.txtSecond.focused()) << "the other option is no stop of its own";
    user::press(form.Opt1.yes, "Tab");
    EXPECT_TRUE(form.chkDone.focused());
}

TEST_F(UserTest, TheFirstLetterChoosesAnOptionOfTheGroupWithTheEventsOfAClick) {
    user::focus(form.Opt1.yes);
    log.clear();
    user::press(form.Opt1.yes, "n");
    EXPECT_TRUE(form.Opt1.no.value());
    EXPECT_EQ(log, (Log{"Opt1Y LostFocus", "Opt1N GotFocus", "Opt1N Click"}));
    log.clear();
    user::press(form.Opt1.no, "N");
    EXPECT_EQ(log, Log{"Opt1N Click"}) << "as a click on the option that is on";
    user::press(form.Opt1.no, "Y");
    EXPECT_TRUE(form.Opt1.yes.value());
    EXPECT_TRUE(form.Opt1.yes.focused());
    user::press(form.Opt1.yes, "x");
    EXPECT_EQ(form.Opt1.code(), 1);
}

TEST_F(UserTest, ALetterOfSeveralOptionsChoosesOneAfterTheOther) {
    form.Opt1.yes.setCaption("Structural");
    form.Opt1.no.setCaption(" surveyor");
    user::press(form.Opt1.yes, "s");
    EXPECT_TRUE(form.Opt1.no.value());
    user::press(form.Opt1.no, "s");
    EXPECT_TRUE(form.Opt1.yes.value());
    form.Opt1.yes.setEnabled(false);
    user::press(form.Opt1.no, "s");
    EXPECT_TRUE(form.Opt1.no.value()) << "an option that is closed is not chosen";
}

TEST_F(UserTest, ArrowsMoveRoundAGroupAndChooseNothing) {
    form.Opt1.yes.setValue(true);
    user::focus(form.Opt1.yes);
    for (const std::string_view key : {"Right", "Right", "Left", "Down", "Up"})
        user::pressForm(form, key);
    EXPECT_TRUE(form.Opt1.no.focused());
    EXPECT_TRUE(form.Opt1.yes.value());
    EXPECT_EQ(std::ranges::count(log, "Opt1N Click"), 0);
    form.Opt1.yes.setEnabled(false);
    user::press(form.Opt1.no, "Left");
    EXPECT_TRUE(form.Opt1.no.focused());
}

TEST_F(UserTest, TabFromTheButtonThatTurnedThePageGoesToItsFirstAnswer) {
    form.cmdSave.click = [&] { form.strip.setTab(1); };
    user::click(form.cmdSave);
    user::pressForm(form, "Tab");
    EXPECT_TRUE(form.txtPage0.focused());
    user::press(form.cmdSave, "Tab");
    EXPECT_TRUE(form.lblLink.focused()) << "once the page has been entered, the order holds";
    user::showTab(form.strip, 0);
    user::pressForm(form, "Shift+Tab");
    EXPECT_TRUE(form.lblLink.focused()) << "backwards the order holds";
}

TEST_F(UserTest, PagesAreTurnedByTheirTabsAndBeyondThemByTheButtonsThatLeadOn) {
    EXPECT_TRUE(user::turnPage(form, true));
    EXPECT_EQ(form.strip.tab(), 1);
    EXPECT_FALSE(user::turnPage(form, true)) << "there is no button that leads on";
    EXPECT_TRUE(user::turnPage(form, false));
    EXPECT_EQ(form.strip.tab(), 0);
    form.txtFirst.leaveCheck = [] { return false; };
    user::focus(form.txtFirst);
    user::turnPage(form, true);
    EXPECT_EQ(form.strip.tab(), 0) << "a leave check holds the page too";
    Form bare{screen, "frmBare", "Bare"};
    EXPECT_FALSE(user::turnPage(bare, true));
}

TEST_F(UserTest, EnterWhereItIsNoTabPressesAButtonAndEndsALine) {
    form.tabOnEnter = false;
    form.txtNotes.multiLine = true;
    form.txtNotes.setText("one");
    log.clear();
    user::press(form.txtNotes, "Enter");
    user::press(form.txtFirst, "Enter");
    user::press(form.cmdSave, "Enter");
    EXPECT_EQ(form.txtNotes.text(), "one\r\n");
    EXPECT_EQ(form.txtFirst.text(), "");
    EXPECT_EQ(log, (Log{"txtNotes GotFocus", "txtNotes Change", "txtNotes LostFocus", "txtFirst GotFocus",
                        "txtFirst LostFocus", "cmdSave GotFocus", "cmdSave Click"}));
}

TEST_F(UserTest, SpacePressesButtonsOptionsAndChecks) {
    user::press(form.cmdSave, "Space");
    user::press(form.Opt1.yes, "Space");
    user::press(form.Opt1.yes, "Space");
    user::press(form.chkDone, "Space");
    EXPECT_EQ(form.Opt1.code(), 1);
    EXPECT_EQ(form.chkDone.value(), 1);
    EXPECT_EQ(log, (Log{"cmdSave GotFocus", "cmdSave Click", "cmdSave LostFocus", "Opt1Y GotFocus", "Opt1Y Click",
                        "Opt1Y Click", "Opt1Y LostFocus", "chkDone GotFocus", "chkDone Click"}));
}

TEST_F(UserTest, SpaceAndLettersDoNothingToListsAndDates) {
    for (Control* control : {static_cast<Control*>(&form.cboZone), static_cast<Control*>(&form.DTPicker1)})
        for (const std::string_view key : {"Space", "x", "Backspace"})
            EXPECT_TRUE(user::press(*control, key));
    EXPECT_EQ(form.cboZone.listIndex(), -1);
    EXPECT_EQ(log, (Log{"cboZone GotFocus", "cboZone LostFocus", "DTPicker1 GotFocus"}));
}

TEST_F(UserTest, KeyOfAFormGoesToTheControlThatHadTheFocusLast) {
    user::focus(form.txtSecond);
    screen.dropFocus();
    user::pressForm(form, "7");
    EXPECT_EQ(form.txtSecond.text(), "7");
    EXPECT_TRUE(form.txtSecond.focused());
    form.txtSecond.setEnabled(false);
    EXPECT_TRUE(user::pressForm(form, "8"));
    EXPECT_EQ(form.txtSecond.text(), "7");
    user::pressForm(form, "Enter");
    EXPECT_TRUE(form.Opt1.yes.focused()) << "Enter moves on from the box that was closed";
}

TEST_F(UserTest, KeysGoToNoHiddenNorDisabledControl) {
    form.cmdSave.setEnabled(false);
    form.txtFirst.setVisible(false);
    EXPECT_FALSE(user::press(form.cmdSave, "Space"));
    EXPECT_FALSE(user::press(form.txtFirst, "a"));
    EXPECT_EQ(log, Log{});
}

// Clicks and choices

TEST_F(UserTest, ClickFocusesThenActs) {
    user::focus(form.txtFirst);
    log.clear();
    EXPECT_TRUE(user::click(form.cmdSave));
    EXPECT_TRUE(user::click(form.Opt1.no));
    EXPECT_TRUE(user::click(form.chkDone));
    EXPECT_EQ(log, (Log{"txtFirst LostFocus", "cmdSave GotFocus", "cmdSave Click", "cmdSave LostFocus",
                        "Opt1N GotFocus", "Opt1N Click", "Opt1N LostFocus", "chkDone GotFocus", "chkDone Click"}));
}

TEST_F(UserTest, ClickOnALabelImageOrFrameLeavesTheFocusWhereItIs) {
    user::focus(form.txtFirst);
    log.clear();
    EXPECT_TRUE(user::click(form.lblLink));
    EXPECT_TRUE(user::click(form.imgIcon));
    EXPECT_TRUE(user::click(form.fraMore));
    EXPECT_TRUE(form.txtFirst.focused());
    EXPECT_EQ(log, (Log{"lblLink Click", "imgIcon Click", "fraMore Click"}));
}

TEST_F(UserTest, ClickOnAHiddenOrDisabledControlDoesNothing) {
    form.cmdSave.setEnabled(false);
    form.imgIcon.setEnabled(false);
    form.lblLink.setVisible(false);
    form.Opt1.setVisible(false);
    EXPECT_FALSE(user::click(form.cmdSave));
    EXPECT_FALSE(user::click(form.imgIcon));
    EXPECT_FALSE(user::click(form.lblLink));
    EXPECT_FALSE(user::click(form.Opt1.yes));
    EXPECT_EQ(log, Log{});
}

TEST_F(UserTest, ClickIsLostWhenALeaveCheckHoldsTheFocus) {
    user::focus(form.txtFirst);
    form.txtFirst.leaveCheck = [] { return false; };
    log.clear();
    EXPECT_TRUE(user::click(form.Opt1.yes));
    EXPECT_EQ(form.Opt1.code(), 2);
    EXPECT_TRUE(user::click(form.lblLink));
    EXPECT_EQ(log, Log{"lblLink Click"}) << "a label takes no focus, so nothing holds its click";
}

TEST_F(UserTest, ClickIsLostWhenTheLostFocusClosesTheButton) {
    form.txtFirst.lostFocus = [&] { form.cmdSave.setEnabled(false); };
    user::focus(form.txtFirst);
    user::click(form.cmdSave);
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "cmdSave GotFocus"}));
}

TEST_F(UserTest, ErrorInALostFocusDoesNotLoseWhatTheUserDoesNext) {
    form.txtFirst.lostFocus = [] { throw RuntimeError(ErrorNumber::TypeMismatch); };
    user::focus(form.txtFirst);
    user::type(form.txtSecond, "5");
    EXPECT_EQ(form.txtSecond.text(), "5");
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "Type mismatch", Icon::Critical}}));
}

TEST_F(UserTest, ErrorInAClickShowsOneBoxAndTheProgramGoesOn) {
    form.cmdSave.click = [] { throw RuntimeError(ErrorNumber::FileNotFound); };
    EXPECT_TRUE(user::click(form.cmdSave));
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "File not found", Icon::Critical}}));
    EXPECT_TRUE(user::type(form.txtFirst, "on"));
    EXPECT_EQ(form.txtFirst.text(), "on");
}

TEST_F(UserTest, FormMayBeUnloadedByItsOwnButton) {
    auto owner = std::make_unique<test::SampleForm>(screen, "frmOther");
    Button& button = owner->cmdSave;
    button.click = [&] { screen.unload(std::move(owner)); };
    EXPECT_TRUE(user::click(button));
    EXPECT_EQ(screen.focused(), nullptr);
}

TEST_F(UserTest, PickFiresClickAlsoForTheSameItem) {
    EXPECT_TRUE(user::pick(form.cboZone, 1));
    EXPECT_TRUE(user::pick(form.cboZone, 1));
    EXPECT_EQ(form.cboZone.text(), "Commercial");
    EXPECT_EQ(log, (Log{"cboZone GotFocus", "cboZone Click", "cboZone Click"}));
}

TEST_F(UserTest, PickBeyondTheListIsABoxAndChangesNothing) {
    user::pick(form.cboZone, 1);
    EXPECT_TRUE(user::pick(form.cboZone, 3));
    EXPECT_EQ(form.cboZone.listIndex(), 1);
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "Invalid property value", Icon::Critical}}));
}

TEST_F(UserTest, DatesAndTabsArePickedWithTheFocusOnThem) {
    EXPECT_TRUE(user::pickDate(form.DTPicker1, {2025, 1, 31}));
    EXPECT_TRUE(user::pickDate(form.DTPicker1, {2025, 1, 31}));
    EXPECT_TRUE(user::showTab(form.strip, 1));
    EXPECT_EQ(form.DTPicker1.date(), (Date{2025, 1, 31}));
    EXPECT_EQ(form.strip.tab(), 1);
    EXPECT_EQ(log,
              (Log{"DTPicker1 GotFocus", "DTPicker1 Change", "DTPicker1 LostFocus", "strip GotFocus", "strip Click"}));
    form.cboZone.setEnabled(false);
    form.DTPicker1.setVisible(false);
    form.strip.setEnabled(false);
    EXPECT_FALSE(user::pick(form.cboZone, 0));
    EXPECT_FALSE(user::pickDate(form.DTPicker1, {2026, 1, 31}));
    EXPECT_FALSE(user::showTab(form.strip, 0));
}

TEST_F(UserTest, LeaveRunsTheLeaveCheckAndGoesNowhere) {
    bool hold = true;
    form.txtFirst.leaveCheck = [&] {
        log.emplace_back("check");
        return !hold;
    };
    user::focus(form.txtFirst);
    EXPECT_TRUE(user::leave(form.txtFirst));
    EXPECT_TRUE(form.txtFirst.focused());
    hold = false;
    EXPECT_TRUE(user::leave(form.txtFirst));
    EXPECT_EQ(screen.focused(), nullptr);
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "check", "check", "txtFirst LostFocus"}));
}

TEST_F(UserTest, FocusTellsWhetherItArrived) {
    EXPECT_TRUE(user::focus(form.txtFirst));
    form.txtFirst.leaveCheck = [] { return false; };
    EXPECT_FALSE(user::focus(form.txtSecond));
    EXPECT_FALSE(user::focus(form.lblLink));
    form.cmdSave.setEnabled(false);
    EXPECT_FALSE(user::focus(form.cmdSave));
}

TEST_F(UserTest, NoHandReachesAFormBehindAModalOne) {
    test::SampleForm modal{screen, "frmModal"};
    form.show();
    form.txtFirst.setText("kept");
    modal.showModal();
    form.log.clear();
    EXPECT_FALSE(user::type(form.txtFirst, "x"));
    EXPECT_FALSE(user::append(form.txtFirst, "x"));
    EXPECT_FALSE(user::clear(form.txtFirst));
    EXPECT_FALSE(user::press(form.txtFirst, "x"));
    EXPECT_FALSE(user::pressForm(form, "F2"));
    EXPECT_FALSE(user::click(form.cmdSave));
    EXPECT_FALSE(user::click(form.lblLink));
    EXPECT_FALSE(user::pick(form.cboZone, 0));
    EXPECT_FALSE(user::pickDate(form.DTPicker1, {2026, 1, 31}));
    EXPECT_FALSE(user::showTab(form.strip, 1));
    EXPECT_FALSE(user::focus(form.txtFirst));
    EXPECT_FALSE(user::bringToFront(form));
    EXPECT_FALSE(user::close(form));
    EXPECT_EQ(form.log, Log{});
    EXPECT_EQ(form.txtFirst.text(), "kept");
    EXPECT_TRUE(user::type(modal.txtFirst, "typed"));
    EXPECT_TRUE(user::close(modal));
    EXPECT_TRUE(user::type(form.txtFirst, "x"));
    EXPECT_FALSE(user::close(modal));
}

TEST_F(UserTest, NothingReachesAFormAfterTheEndOfTheProgram) {
    form.cmdSave.click = [&] { screen.end(); };
    user::click(form.cmdSave);
    user::type(form.txtFirst, "late");
    EXPECT_EQ(form.txtFirst.text(), "");
    EXPECT_EQ(ports.program.ends, 1);
}

}  // namespace
}  // namespace plandesk
