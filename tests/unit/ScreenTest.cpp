#include "controls/Screen.h"

#include <memory>
#include <new>
#include <stdexcept>

#include <gtest/gtest.h>

#include "unit/SampleForm.h"

namespace plandesk {
namespace {

using test::Log;

struct ScreenTest : testing::Test, test::Desk {
    test::SampleForm form{screen};
    test::SampleForm other{screen, "frmOther"};
    Log& log = form.log;

    std::vector<Message> boxes() { return ports.dialogs.take(); }
};

// Moves of the focus

TEST_F(ScreenTest, FocusLeavesTheOldControlBeforeItReachesTheNewOne) {
    screen.moveFocus(form.txtFirst);
    EXPECT_TRUE(screen.moveFocus(form.txtSecond));
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "txtFirst LostFocus", "txtSecond GotFocus"}));
    EXPECT_EQ(screen.focused(), &form.txtSecond);
    EXPECT_TRUE(form.txtSecond.focused());
    EXPECT_EQ(form.activeControl(), &form.txtSecond);
}

TEST_F(ScreenTest, FocusOnTheSameControlFiresNothing) {
    screen.moveFocus(form.txtFirst);
    form.txtFirst.leaveCheck = [] { return false; };
    EXPECT_TRUE(screen.moveFocus(form.txtFirst));
    form.txtFirst.setFocus();
    EXPECT_EQ(log, Log{"txtFirst GotFocus"});
}

TEST_F(ScreenTest, LeaveCheckRunsBeforeLostFocusAndMayHoldTheFocus) {
    bool hold = true;
    form.txtFirst.leaveCheck = [&] {
        log.emplace_back("check");
        return !hold;
    };
    screen.moveFocus(form.txtFirst);
    EXPECT_FALSE(screen.moveFocus(form.txtSecond));
    EXPECT_TRUE(form.txtFirst.focused());
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "check"}));
    hold = false;
    log.clear();
    EXPECT_TRUE(screen.moveFocus(form.txtSecond));
    EXPECT_EQ(log, (Log{"check", "txtFirst LostFocus", "txtSecond GotFocus"}));
}

TEST_F(ScreenTest, LeaveCheckMaySendTheFocusToAThirdControl) {
    form.txtFirst.leaveCheck = [&] {
        form.txtPage0.setFocus();
        return false;
    };
    screen.moveFocus(form.txtFirst);
    EXPECT_FALSE(screen.moveFocus(form.txtSecond));
    EXPECT_TRUE(form.txtPage0.focused());
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "txtFirst LostFocus", "txtPage(0) GotFocus"}));
}

TEST_F(ScreenTest, MoveToAnotherFormRunsNoLeaveCheckButLostFocus) {
    form.txtFirst.leaveCheck = [] { return false; };
    form.show();
    other.show();
    screen.moveFocus(form.txtFirst);
    EXPECT_TRUE(form.front());
    EXPECT_TRUE(screen.moveFocus(other.txtFirst));
    EXPECT_TRUE(other.front());
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "txtFirst LostFocus"}));
    EXPECT_EQ(other.log, Log{"txtFirst GotFocus"});
    EXPECT_EQ(form.activeControl(), &form.txtFirst) << "a form remembers where its focus was";
}

TEST_F(ScreenTest, CodeThatSetsTheFocusRunsNoLeaveCheck) {
    form.txtFirst.leaveCheck = [] { return false; };
    screen.moveFocus(form.txtFirst);
    form.txtSecond.setFocus();
    EXPECT_TRUE(form.txtSecond.focused());
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "txtFirst LostFocus", "txtSecond GotFocus"}));
}

TEST_F(ScreenTest, MenuTakesTheFocusWithoutALeaveCheck) {
    form.txtFirst.leaveCheck = [] { return false; };
    screen.moveFocus(form.txtFirst);
    screen.dropFocus();
    EXPECT_EQ(screen.focused(), nullptr);
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "txtFirst LostFocus"}));
}

TEST_F(ScreenTest, LeavingToNowhereRunsTheLeaveCheck) {
    bool hold = true;
    form.txtFirst.leaveCheck = [&] { return !hold; };
    screen.moveFocus(form.txtFirst);
    EXPECT_FALSE(screen.leaveFocus());
    EXPECT_TRUE(form.txtFirst.focused());
    hold = false;
    EXPECT_TRUE(screen.leaveFocus());
    EXPECT_EQ(screen.focused(), nullptr);
    EXPECT_TRUE(screen.leaveFocus()) << "nothing to leave";
    EXPECT_EQ(log, (Log{"txtFirst GotFocus", "txtFirst LostFocus"}));
}

TEST_F(ScreenTest, LostFocusThatGivesTheFocusBackEndsTheMove) {
    form.txtFirst.lostFocus = [&] {
        log.emplace_back("back");
        form.txtFirst.setFocus();
    };
    screen.moveFocus(form.txtFirst);
    log.clear();
    EXPECT_FALSE(screen.moveFocus(form.txtSecond));
    EXPECT_TRUE(form.txtFirst.focused());
    EXPECT_EQ(log, (Log{"back", "txtFirst GotFocus"})) << "the new control got nothing and lost nothing";
}

TEST_F(ScreenTest, LostFocusThatGivesTheFocusBackRunsOnceAlsoTowardsAnotherForm) {
    form.show();
    other.show();
    form.txtFirst.lostFocus = [&] {
        log.emplace_back("back");
        form.txtFirst.setFocus();
    };
    screen.moveFocus(form.txtFirst);
    log.clear();
    EXPECT_FALSE(screen.moveFocus(other.txtFirst));
    EXPECT_TRUE(form.txtFirst.focused());
    EXPECT_TRUE(form.front()) << "the form that has the focus is the front one";
    EXPECT_EQ(log, (Log{"back", "txtFirst GotFocus"}));
    EXPECT_EQ(other.log, Log{});
}

TEST_F(ScreenTest, LostFocusMaySendTheFocusOn) {
    form.txtFirst.lostFocus = [&] { form.txtPage1.setFocus(); };
    screen.moveFocus(form.txtFirst);
    log.clear();
    EXPECT_FALSE(screen.moveFocus(form.txtSecond));
    EXPECT_TRUE(form.txtPage1.focused());
    EXPECT_EQ(log, Log{"txtPage(1) GotFocus"});
}

TEST_F(ScreenTest, ControlThatTheFocusReachesByADetourGetsItOnce) {
    form.txtFirst.lostFocus = [&] {
        form.txtPage1.setFocus();
        form.txtSecond.setFocus();
    };
    screen.moveFocus(form.txtFirst);
    log.clear();
    EXPECT_TRUE(screen.moveFocus(form.txtSecond));
    EXPECT_EQ(log, (Log{"txtPage(1) GotFocus", "txtPage(1) LostFocus", "txtSecond GotFocus"}));
}

TEST_F(ScreenTest, TwoFormsThatTakeTheFocusBackFromEachOtherComeToRest) {
    form.show();
    other.show();
    form.txtFirst.lostFocus = [&] { form.txtFirst.setFocus(); };
    other.txtFirst.lostFocus = [&] { other.txtFirst.setFocus(); };
    screen.moveFocus(form.txtFirst);
    EXPECT_FALSE(screen.moveFocus(other.txtFirst));
    EXPECT_TRUE(form.txtFirst.focused());
    other.txtFirst.setFocus();
    EXPECT_TRUE(form.txtFirst.focused());
}

TEST_F(ScreenTest, TwoControlsThatPassTheFocusToEachOtherWithoutEndAreStoppedWithABox) {
    form.txtFirst.gotFocus = [&] { other.txtFirst.setFocus(); };
    other.txtFirst.gotFocus = [&] { form.txtFirst.setFocus(); };
    screen.moveFocus(form.txtFirst);
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "Out of stack space", Icon::Critical}}));
    form.txtFirst.gotFocus = nullptr;
    other.txtFirst.gotFocus = nullptr;
    EXPECT_TRUE(screen.moveFocus(form.txtSecond)) << "the focus moves on as before";
    EXPECT_TRUE(form.txtSecond.focused());
}

TEST_F(ScreenTest, ErrorInLostFocusShowsItsBoxAndTheFocusMovesOn) {
    form.txtFirst.lostFocus = [] { throw RuntimeError(ErrorNumber::TypeMismatch); };
    screen.moveFocus(form.txtFirst);
    EXPECT_TRUE(screen.moveFocus(form.txtSecond));
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "Type mismatch", Icon::Critical}}));
    log.clear();
    screen.moveFocus(form.txtPage0);
    EXPECT_EQ(log, (Log{"txtSecond LostFocus", "txtPage(0) GotFocus"})) << "the next leave is as ever";
}

TEST_F(ScreenTest, ErrorInGotFocusShowsItsBoxAndTheFocusStays) {
    form.txtFirst.gotFocus = [] { throw RuntimeError(ErrorNumber::TypeMismatch); };
    EXPECT_TRUE(screen.moveFocus(form.txtFirst));
    EXPECT_EQ(boxes().size(), 1U);
    screen.moveFocus(form.txtSecond);
    EXPECT_EQ(log, (Log{"txtFirst LostFocus", "txtSecond GotFocus"}));
}

TEST_F(ScreenTest, ErrorInALeaveCheckEndsTheEventAndHoldsTheFocus) {
    form.txtFirst.leaveCheck = []() -> bool { throw RuntimeError(ErrorNumber::Overflow); };
    screen.moveFocus(form.txtFirst);
    screen.event([&] { screen.moveFocus(form.txtSecond); });
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "Overflow", Icon::Critical}}));
    EXPECT_TRUE(form.txtFirst.focused());
}

TEST_F(ScreenTest, FocusOnAHiddenFormShowsNothingAndRaisesNothing) {
    other.show();
    screen.setFocus(form.txtFirst);
    EXPECT_TRUE(form.txtFirst.focused());
    EXPECT_FALSE(form.visible());
    EXPECT_EQ(screen.frontForm(), &other);
    EXPECT_EQ(screen.activeForm(), &form);
}

TEST_F(ScreenTest, FrontAndActiveFormAreNoneOnAnEmptyScreen) {
    EXPECT_EQ(screen.frontForm(), nullptr);
    EXPECT_EQ(screen.activeForm(), nullptr);
    other.show();
    EXPECT_EQ(screen.activeForm(), &other) << "without a focus the front form is the active one";
}

// Events

TEST_F(ScreenTest, UnhandledErrorShowsOneBoxWithoutATitleAndTheProgramGoesOn) {
    bool after = false;
    screen.event([&] {
        form.txtFirst.setText("kept");
        throw RuntimeError(ErrorNumber::Overflow);
    });
    screen.event([&] { after = true; });
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "Overflow", Icon::Critical}}));
    EXPECT_TRUE(after);
    EXPECT_EQ(form.txtFirst.text(), "kept");
    EXPECT_FALSE(screen.ended());
}

TEST_F(ScreenTest, AnyOtherFailureIsShownLikewise) {
    screen.event([] { throw std::runtime_error("no more room"); });
    screen.event([] { throw std::bad_alloc(); });
    screen.event([] { throw 42; });
    EXPECT_EQ(boxes(), (std::vector<Message>{{"", "no more room", Icon::Critical},
                                             {"", "Out of memory", Icon::Critical},
                                             {"", "Internal error", Icon::Critical}}));
}

TEST(ScreenTestOfBoxes, ABoxThatCannotBeShownEndsItsEventAndNothingElse) {
    struct BrokenDialogs : test::RecordingDialogs {
        void showMessage(const Message& /*message*/) override { throw std::bad_alloc(); }
    } dialogs;
    test::TestPorts machine;
    Screen screen({dialogs, machine.clock, machine.files, machine.program});
    screen.event([] { throw RuntimeError(ErrorNumber::Overflow); });
    struct Fleeting : Form {
        Fleeting(Screen& screen, bool& gone) : Form(screen, "frmFleeting", ""), gone(gone) {}
        ~Fleeting() override { gone = true; }
        bool& gone;
    };
    bool gone = false;
    screen.unload(std::make_unique<Fleeting>(screen, gone));
    EXPECT_TRUE(gone) << "no event is taken to be under way any longer";
    bool ran = false;
    screen.event([&] { ran = true; });
    EXPECT_TRUE(ran);
}

TEST_F(ScreenTest, ErrorInAnInnerEventDoesNotEndTheOuterOne) {
    bool wentOn = false;
    screen.event([&] {
        screen.event([] { throw RuntimeError(ErrorNumber::TypeMismatch); });
        wentOn = true;
    });
    EXPECT_TRUE(wentOn);
    EXPECT_EQ(boxes().size(), 1U);
}

TEST(ScreenTestOfBoxes, TheDialogsHearOfEachEventOfTheUserAndNotOfThoseWithin) {
    struct CountingDialogs : test::RecordingDialogs {
        int events = 0;
        void eventBegins() override { ++events; }
    } dialogs;
    test::TestPorts machine;
    Screen screen({dialogs, machine.clock, machine.files, machine.program});
    screen.event([&] { screen.event([] {}); });
    EXPECT_EQ(dialogs.events, 1);
    screen.event([] { throw RuntimeError(ErrorNumber::Overflow); });
    EXPECT_EQ(dialogs.events, 2);
}

TEST_F(ScreenTest, MessageIsShownAsGiven) {
    screen.message("Enter Plot Area", "Plot Area");
    screen.message("Really?", "", Icon::Question);
    EXPECT_EQ(boxes(), (std::vector<Message>{{"Plot Area", "Enter Plot Area", Icon::Information},
                                             {"", "Really?", Icon::Question}}));
}

TEST_F(ScreenTest, AfterTheEndNoEventReachesTheSystem) {
    screen.event([&] { screen.end(); });
    EXPECT_TRUE(screen.ended());
    EXPECT_EQ(ports.program.ends, 1);
    bool reached = false;
    screen.event([&] { reached = true; });
    EXPECT_FALSE(reached);
}

TEST_F(ScreenTest, CaptionOfTheMainWindowIsKeptAndTold) {
    test::RecordingObserver observer;
    screen.observer = &observer;
    screen.setCaption("Plandesk  Proposal  System");
    screen.mainWindowTouched();
    EXPECT_EQ(screen.caption(), "Plandesk  Proposal  System");
    EXPECT_EQ(observer.log, (Log{"main window", "main window"}));
    screen.observer = nullptr;
}

// Unloading

/// A form that says when it is destroyed.
class MortalForm : public test::SampleForm {
public:
    MortalForm(Screen& screen, bool& gone) : SampleForm(screen, "frmMortal"), gone(gone) {}
    ~MortalForm() override { gone = true; }

private:
    bool& gone;
};

struct UnloadTest : ScreenTest {
    bool gone = false;
    std::unique_ptr<MortalForm> owner = std::make_unique<MortalForm>(screen, gone);
    MortalForm& mortal = *owner;
};

TEST_F(UnloadTest, FormUnloadedByItsOwnReactionLivesUntilTheEventEnds) {
    mortal.show();
    mortal.cmdSave.click = [&] {
        screen.unload(std::move(owner));
        EXPECT_FALSE(gone);
        mortal.txtFirst.setText("still there");
    };
    screen.event([&] { mortal.cmdSave.press(); });
    EXPECT_TRUE(gone);
    EXPECT_EQ(screen.frontForm(), nullptr);
}

TEST_F(UnloadTest, FormUnloadedInAnInnerEventLivesUntilTheOuterOneEnds) {
    screen.event([&] {
        screen.event([&] { screen.unload(std::move(owner)); });
        EXPECT_FALSE(gone);
    });
    EXPECT_TRUE(gone);
}

TEST_F(UnloadTest, FormUnloadedInAnEventThatFailsIsDestroyedToo) {
    screen.event([&] {
        screen.unload(std::move(owner));
        throw RuntimeError(ErrorNumber::TypeMismatch);
    });
    EXPECT_TRUE(gone);
}

TEST_F(UnloadTest, FormUnloadedOutsideAnEventGoesAtOnce) {
    screen.unload(std::move(owner));
    EXPECT_TRUE(gone);
    screen.unload(nullptr);
}

TEST_F(UnloadTest, FocusOfAnUnloadedFormIsNowhereWithoutALostFocus) {
    screen.moveFocus(mortal.txtFirst);
    screen.event([&] {
        screen.unload(std::move(owner));
        EXPECT_EQ(screen.focused(), nullptr);
        EXPECT_EQ(mortal.log, Log{"txtFirst GotFocus"});
    });
    screen.moveFocus(form.txtFirst);
    EXPECT_TRUE(form.txtFirst.focused());
}

TEST_F(UnloadTest, UnloadedFormCannotTakeTheFocusNorComeToTheFront) {
    form.show();
    screen.event([&] {
        screen.unload(std::move(owner));
        mortal.txtFirst.setFocus();
        mortal.show();
        EXPECT_EQ(screen.focused(), nullptr);
        EXPECT_EQ(screen.frontForm(), &form);
    });
    EXPECT_TRUE(gone);
}

TEST_F(UnloadTest, ObserverHearsNothingOfAFormAfterItsUnloading) {
    screen.moveFocus(mortal.txtFirst);
    test::RecordingObserver observer;
    screen.observer = &observer;
    screen.event([&] {
        screen.unload(std::move(owner));
        mortal.setCaption("late");
        mortal.txtFirst.setText("late");
        mortal.hide();
    });
    EXPECT_EQ(observer.log, (Log{"focus nowhere", "unloading frmMortal"}));
    screen.observer = nullptr;
}

TEST_F(UnloadTest, LostFocusMayUnloadTheFormThatTheFocusMovesTo) {
    form.txtFirst.lostFocus = [&] { screen.unload(std::move(owner)); };
    screen.moveFocus(form.txtFirst);
    screen.event([&] { EXPECT_FALSE(screen.moveFocus(mortal.txtFirst)); });
    EXPECT_TRUE(gone);
    EXPECT_EQ(screen.focused(), nullptr);
}

TEST_F(UnloadTest, FormDestroyedWhileItHasTheFocusLeavesTheFocusNowhere) {
    screen.moveFocus(mortal.txtFirst);
    owner.reset();
    EXPECT_EQ(screen.focused(), nullptr);
}

// What the views hear

TEST_F(ScreenTest, ObserverHearsOfFocusAndStacking) {
    form.show();
    other.show();
    test::RecordingObserver observer;
    screen.observer = &observer;
    screen.moveFocus(form.txtFirst);
    screen.moveFocus(form.txtSecond);
    screen.dropFocus();
    EXPECT_EQ(observer.log, (Log{"form frmSample", "focus txtFirst", "focus txtSecond", "focus nowhere"}));
    screen.observer = nullptr;
}

// Modal forms

TEST_F(ScreenTest, AModalFormIsInFrontAndAloneInReachUntilItIsHidden) {
    form.show();
    EXPECT_EQ(screen.modalForm(), nullptr);
    other.showModal();
    EXPECT_TRUE(other.visible());
    EXPECT_EQ(screen.modalForm(), &other);
    EXPECT_TRUE(screen.inReach(other));
    EXPECT_FALSE(screen.inReach(form));
    form.bringToFront();
    EXPECT_TRUE(other.front());
    other.hide();
    EXPECT_EQ(screen.modalForm(), nullptr);
    EXPECT_TRUE(screen.inReach(form));
    EXPECT_TRUE(form.front());
}

TEST_F(ScreenTest, AFormShownModalTakesTheFocusFromTheOthersAndCodeDoesNotGiveItBack) {
    form.show();
    screen.moveFocus(form.txtFirst);
    other.showModal();
    EXPECT_EQ(screen.focused(), nullptr);
    EXPECT_EQ(log.back(), "txtFirst LostFocus");
    form.txtFirst.setFocus();
    EXPECT_EQ(screen.focused(), nullptr);
    other.txtFirst.setFocus();
    form.show();
    EXPECT_TRUE(other.txtFirst.focused());
}

TEST_F(ScreenTest, AModalFormMayShowAnotherWhichGivesTheReachBackToIt) {
    test::SampleForm third{screen, "frmThird"};
    other.showModal();
    third.showModal();
    EXPECT_FALSE(screen.inReach(other));
    EXPECT_TRUE(third.front());
    third.hide();
    EXPECT_EQ(screen.modalForm(), &other);
    EXPECT_TRUE(other.front());
}

TEST_F(ScreenTest, AModalFormThatIsUnloadedGivesTheReachBack) {
    auto modal = std::make_unique<test::SampleForm>(screen, "frmModal");
    form.show();
    modal->showModal();
    screen.unload(std::move(modal));
    EXPECT_EQ(screen.modalForm(), nullptr);
    EXPECT_TRUE(screen.inReach(form));
}

}  // namespace
}  // namespace plandesk
