#include "controls/Naming.h"

#include <gtest/gtest.h>

#include "controls/Controls.h"
#include "controls/Form.h"
#include "controls/Screen.h"
#include "unit/TestPorts.h"

namespace plandesk {
namespace {

using test::TestPorts;

class NamedForm : public Form {
public:
    explicit NamedForm(Screen& screen) : Form(screen, "NamedForm", " Named ") {}

    Label live{*this, "live", "Revision No. "};
    Label street{*this, "street", "1. Street "};
    Label unit{*this, "unit", " Sq.Mtr. "};
    TextBox first{*this, "first"};
    TextBox second{*this, "second"};
    CheckBox check{*this, "check", " Enclosed "};
    YesNo answer{*this, "answerY", "answerN"};
    Image image{*this, "image"};
    Button button{*this, "button", "Save"};

    const Layout& layout() const override {
        static constexpr LayoutRow rows[] = {
            {.item = "1.", .question = " Width ", .controls = "street first", .unit = "m", .mark = "*"},
            {.item = "2.", .question = "Is it so?", .controls = "answerY answerN"}};
        static constexpr LayoutGroup groups[] = {{"Section", rows}};
        static constexpr LayoutPage pages[] = {{groups}};
        static constexpr Layout sheet{.pages = pages, .buttons = "button"};
        return sheet;
    }
};

struct ControlNames : testing::Test {
    TestPorts machine;
    Screen screen{machine};
    NamedForm form{screen};

    RowNaming names(const LayoutRow& row, const LayoutGroup& group = {}) { return nameRow(form, group, row); }
};

TEST_F(ControlNames, aBoxIsCalledAsItsQuestion) {
    const RowNaming row = names({.question = " Width ", .controls = "first"});
    EXPECT_EQ(row.question, "Width");
    EXPECT_EQ(row.controls.at(0).name, "Width");
    EXPECT_EQ(row.controls.at(0).control, &form.first);
    EXPECT_EQ(row.controls.at(0).description, "");
}

TEST_F(ControlNames, aLiveCaptionIsTheQuestion) {
    EXPECT_EQ(names({.controls = "first", .label = "live"}).controls.at(0).name, "Revision No.");
    form.live.setCaption("Resubmission No.");
    EXPECT_EQ(names({.controls = "first", .label = "live"}).controls.at(0).name, "Resubmission No.");
}

TEST_F(ControlNames, whatIsSpokenTakesThePlaceOfTheQuestion) {
    EXPECT_EQ(names({.question = "Width", .controls = "first", .spoken = "Width, second box"}).controls.at(0).name,
              "Width, second box");
}

TEST_F(ControlNames, labelsBetweenBoxesTellThemApart) {
    const RowNaming row = names({.question = "Width", .controls = "street first second"});
    EXPECT_EQ(row.controls.at(1).name, "Width: 1. Street");
    EXPECT_EQ(row.controls.at(2).name, "Width");
}

TEST_F(ControlNames, aLabelBehindTheLastBoxIsItsUnit) {
    const RowNaming row = names({.question = "Area", .controls = "first unit"});
    EXPECT_EQ(row.controls.at(0).name, "Area");
    EXPECT_EQ(row.controls.at(0).description, "in Sq.Mtr.");
}

TEST_F(ControlNames, marksAreTold) {
    EXPECT_EQ(names({.question = "Area", .controls = "first", .unit = "m", .mark = "*"}).controls.at(0).description,
              "in m, mandatory");
    EXPECT_EQ(names({.question = "Area", .controls = "first", .mark = "#"}).controls.at(0).description,
              "one of these is mandatory");
}

TEST_F(ControlNames, optionsHaveTheirOwnWordsAndTheRowTheQuestion) {
    const RowNaming row = names({.question = "Is it so?", .controls = "answerY answerN", .mark = "*"});
    EXPECT_EQ(row.question, "Is it so?");
    EXPECT_EQ(row.description, "mandatory");
    EXPECT_EQ(row.controls.at(0).name, "Yes");
    EXPECT_EQ(row.controls.at(1).name, "No");
    EXPECT_EQ(row.controls.at(0).description, "");
}

TEST_F(ControlNames, optionsWithoutAQuestionAreCalledAsTheirSectionOrTheForm) {
    EXPECT_EQ(names({.controls = "answerY answerN"}, {.title = " Mode "}).question, "Mode");
    EXPECT_EQ(names({.controls = "answerY answerN"}).question, "Named");
}

TEST_F(ControlNames, aBoxBehindOptionsAsksForDetails) {
    EXPECT_EQ(names({.question = "Is it so?", .controls = "answerY answerN first"}).controls.at(2).name,
              "Is it so?: details");
}

TEST_F(ControlNames, aColumnHeadStandsBehindTheQuestionAndTheSectionBeforeIt) {
    static constexpr std::string_view heads[] = {"", "Area ", "Rate"};
    const RowNaming row =
        names({.question = "Residential", .controls = "first second"}, {.title = "A . Fees  ", .heads = heads});
    EXPECT_EQ(row.controls.at(0).name, "A . Fees: Residential: Area");
    EXPECT_EQ(row.controls.at(1).name, "A . Fees: Residential: Rate");
}

TEST_F(ControlNames, aCheckBoxThatBeginsARowNamesWhatFollows) {
    static constexpr std::string_view heads[] = {"", "Page From", "Page To"};
    const RowNaming row = names({.controls = "check first second"}, {.title = "Documents", .heads = heads});
    EXPECT_EQ(row.controls.at(0).name, "Enclosed");
    EXPECT_EQ(row.controls.at(1).name, "Enclosed: Page From");
    EXPECT_EQ(row.controls.at(2).name, "Enclosed: Page To");
}

TEST_F(ControlNames, anIconIsNamedByItsQuestionAndItsTip) {
    form.image.toolTip = "Click Here to add the Details";
    EXPECT_EQ(names({.question = "PRC", .controls = "image"}).controls.at(0).name,
              "PRC: Click Here to add the Details");
}

TEST_F(ControlNames, whatHasNoWordsAtAllHasTheFormsCaption) {
    EXPECT_EQ(names({.controls = "first"}).controls.at(0).name, "Named");
}

TEST_F(ControlNames, controlsThatTheFormDoesNotHaveAreLeftOut) {
    EXPECT_EQ(names({.question = "Width", .controls = "missing first"}).controls.size(), 1U);
}

TEST_F(ControlNames, thePlaceOfAnAnswerIsFormAndQuestion) {
    EXPECT_EQ(placeOf(form.first), "Named: Width: 1. Street");
    EXPECT_EQ(placeOf(form.answer.no), "Named: Is it so?");
    EXPECT_EQ(placeOf(form.button), "");
    EXPECT_EQ(placeOf(form.second), "");
    EXPECT_EQ(placeOf(form.street), "");
}

}  // namespace
}  // namespace plandesk
