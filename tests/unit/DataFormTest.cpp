#include "proposal/DataForm.h"

#include <gtest/gtest.h>

#include "controls/Controls.h"
#include "controls/User.h"
#include "unit/TestPorts.h"

namespace plandesk {
namespace {

class frmTwoBoxes : public DataForm {
public:
    explicit frmTwoBoxes(Proposal& proposal) : DataForm(proposal, "frmTwoBoxes", "Two boxes") {}
    const Layout& layout() const override {
        static constexpr Layout sheet{.head = "txtFirst txtSecond"};
        return sheet;
    }

    TextBox txtFirst{*this, "txtFirst"};
    TextBox txtSecond{*this, "txtSecond"};
};

TEST(DataForm, DropsTheEightSpecialKeys) {
    test::TestPorts ports;
    Proposal proposal{ports};
    frmTwoBoxes form{proposal};
    user::type(form.txtFirst, "a#$%&*@^~b!\"'()");
    EXPECT_EQ(form.txtFirst.text(), "ab!\"'()");
}

TEST(DataForm, KeepsWhatIsPasted) {
    test::TestPorts ports;
    Proposal proposal{ports};
    frmTwoBoxes form{proposal};
    user::edit(form.txtFirst, "R & D #7");
    EXPECT_EQ(form.txtFirst.text(), "R & D #7");
}

TEST(DataForm, TreatsEnterAsTab) {
    test::TestPorts ports;
    Proposal proposal{ports};
    frmTwoBoxes form{proposal};
    user::press(form.txtFirst, "Enter");
    EXPECT_TRUE(form.txtSecond.focused());
    user::pressForm(form, "Enter");
    EXPECT_TRUE(form.txtFirst.focused());
}

}  // namespace
}  // namespace plandesk
