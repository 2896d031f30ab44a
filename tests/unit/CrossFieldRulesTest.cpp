#include "particulars/CrossFieldRules.h"

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "unit/SampleForm.h"

namespace plandesk::test {
namespace {

/// A form whose options have no reactions of their own.
struct Plain : Form {
    explicit Plain(Screen& screen) : Form(screen, "frmPlain", "") {}
    YesNo Opt1{*this, "Opt1Y", "Opt1N"};
    YesNo Opt2{*this, "Opt2Y", "Opt2N"};
    TextBox txtFirst{*this, "txtFirst"};
};

struct Rules : testing::Test, Desk {
    Plain form{screen};

    /// What the wiring of the rules is refused with.
    std::string refusal(std::span<const CrossFieldRule> rules) {
        try {
            wireCrossFieldRules(form, rules);
        } catch (const RuntimeError& error) {
            return error.description;
        }
        return "";
    }
};

TEST_F(Rules, SeveralEffectsOfOneOptionAreCarriedOutInTheirOrder) {
    static constexpr CrossFieldRule rules[] = {{"", Effect::Hide, "Opt2Y Opt2N"},
                                               {"Opt1Y", Effect::Show, "Opt2Y Opt2N"},
                                               {"Opt1Y", Effect::EmptyAndClose, "txtFirst"},
                                               {"Opt1Y", Effect::Open, "txtFirst"}};
    form.txtFirst.setText("x");
    EXPECT_EQ(refusal(rules), "");
    EXPECT_FALSE(form.Opt2.no.visible());
    form.Opt1.yes.choose();
    EXPECT_TRUE(form.Opt2.no.visible());
    EXPECT_EQ(form.txtFirst.text(), "");
    EXPECT_TRUE(form.txtFirst.enabled());
}

TEST_F(Rules, ARuleThatWouldReplaceAnotherReactionIsRefused) {
    static constexpr CrossFieldRule rules[] = {{"Opt1Y", Effect::Show, "Opt2Y"}};
    form.Opt1.yes.click = [] {};
    EXPECT_EQ(refusal(rules), "frmPlain.Opt1Y has a reaction beside its rules");
}

TEST_F(Rules, NamesAndKindsThatTheFormLacksAreTold) {
    static constexpr CrossFieldRule noControl[] = {{"", Effect::Hide, "Opt2Y Opt3Y"}};
    EXPECT_EQ(refusal(noControl), "frmPlain has no Opt3Y");
    static constexpr CrossFieldRule noOption[] = {{"txtFirst", Effect::Hide, "Opt2Y"}};
    EXPECT_EQ(refusal(noOption), "frmPlain has no txtFirst");
    static constexpr CrossFieldRule noBox[] = {{"", Effect::Open, "Opt2Y"}};
    EXPECT_EQ(refusal(noBox), "frmPlain has no Opt2Y");
}

}  // namespace
}  // namespace plandesk::test
