#include "controls/Meaning.h"

#include <gtest/gtest.h>

#include "controls/Controls.h"
#include "controls/User.h"
#include "unit/SampleForm.h"

namespace plandesk {
namespace {

using test::Desk;
using test::SampleForm;

struct MeaningOfBoxes : testing::Test, Desk {
    SampleForm form{screen};

    MeaningOfBoxes() { form.show(); }
    Message shown() {
        const std::vector<Message> all = ports.dialogs.take();
        return all.size() == 1 ? all.front() : Message{"", "not one box"};
    }
};

TEST_F(MeaningOfBoxes, aBoxWithoutAMeaningHasNoSecondLine) {
    screen.message("Saved", "");
    const Message box = shown();
    EXPECT_EQ(box.text, "Saved");
    EXPECT_EQ(box.detail, "");
    EXPECT_EQ(box.about, nullptr);
}

TEST_F(MeaningOfBoxes, aBoxToldWhileTheUserTypesMeansTheBoxTypedInto) {
    form.txtFirst.change = [this] { screen.message("Enter Numeric Data", ""); };
    user::type(form.txtFirst, "x");
    const Message box = shown();
    EXPECT_EQ(box.detail, "Sample: First");
    EXPECT_EQ(box.about, &form.txtFirst);
}

TEST_F(MeaningOfBoxes, anErrorMeansTheControlWhoseReactionFailed) {
    form.Opt1.no.click = [] { throw RuntimeError(ErrorNumber::Overflow); };
    user::click(form.Opt1.no);
    const Message box = shown();
    EXPECT_EQ(box.text, "Overflow");
    EXPECT_EQ(box.detail, "Sample: Answer");
    EXPECT_EQ(box.about, &form.Opt1.no);
}

TEST_F(MeaningOfBoxes, anErrorOfAButtonMeansTheFieldThatWasBeingRead) {
    form.cmdSave.click = [this] {
        const Meaning meant(screen, form.cboZone);
        throw RuntimeError(ErrorNumber::TypeMismatch);
    };
    user::click(form.cmdSave);
    EXPECT_EQ(shown().about, &form.cboZone);
}

TEST_F(MeaningOfBoxes, anErrorOfAButtonAloneHasNoSecondLine) {
    form.cmdSave.click = [] { throw RuntimeError(ErrorNumber::TypeMismatch); };
    user::click(form.cmdSave);
    EXPECT_EQ(shown().detail, "");
}

TEST_F(MeaningOfBoxes, aLeaveCheckAndALostFocusMeanTheControlThatIsLeft) {
    user::focus(form.txtFirst);
    form.txtFirst.leaveCheck = [this] {
        screen.message("Can not be blank !", "");
        return true;
    };
    user::focus(form.txtSecond);
    EXPECT_EQ(shown().about, &form.txtFirst);
    form.txtSecond.lostFocus = [] { throw RuntimeError(ErrorNumber::Overflow); };
    user::focus(form.cboZone);
    EXPECT_EQ(shown().about, &form.txtSecond);
}

TEST_F(MeaningOfBoxes, theInnermostOneHoldsAndTheOuterOneComesBack) {
    const Meaning file(screen, "/a/file was not written.");
    {
        const Meaning field(screen, form.txtFirst);
        screen.message("inner", "");
        EXPECT_EQ(shown().about, &form.txtFirst);
    }
    screen.message("outer", "");
    EXPECT_EQ(shown().detail, "/a/file was not written.");
}

TEST_F(MeaningOfBoxes, anErrorThatWasHandledLeavesNothingBehind) {
    screen.event([this] {
        try {
            const Meaning field(screen, form.txtFirst);
            throw RuntimeError(ErrorNumber::Overflow);
        } catch (const RuntimeError&) {
        }
        screen.message("something else", "");
    });
    EXPECT_EQ(shown().about, nullptr);
}

}  // namespace
}  // namespace plandesk
