// Each separator in each kind of field is a finding, and names itself as the cause.

#include <array>
#include <cstdlib>

#include "base/Text.h"
#include "review/Marks.h"
#include "unit/ReviewFixture.h"

namespace plandesk::test {
namespace {

using ReviewMarksTest = ReviewFixture;

struct BoxCase {
    std::string_view kind;
    std::string_view form, box;
    std::string_view marks;  ///< separated by blanks
};

constexpr std::array boxCases = std::to_array<BoxCase>({
    {"a box of its own in a section", "frmAnnexureA", "txtTitle", "@ || \\"},
    {"a box among others in one element", "frmAnnexureA", "txtArchNm", "# @ || \\"},
    {"the applicant's name", "frmAnnexureA", "txtApplicantNm", "~ @ || \\"},
    {"a box of ANNEXUREB that is not escaped", "frmAnnexureA", "txtWhyNot", "& < ]]>"},
    {"a packed box", "AnnexureACont", "txtRmk4", "$$ @ || \\"},
    {"a packed box among others in one element", "AnnexureACont", "txtRoofs", "$$ # @ || \\"},
    {"a page number", "frmDocCheckList", "txtDocPageNo(0)", "-"},
    {"a box of the payment", "frmPayDetail", "txtBankNm", "|| \\"},
    {"a box of several lines", "frmNaOrder", "txtNARemark", "& < ]]>"},
    {"a list that is written by its text", "frmNaOrder", "cmbAreaForNA", "& <"},
    {"a row of the revised case", "frmDiscretionrevisedCase", "txtRuleC(3)", "# ~ & < ]]>"},
    {"a row of the new case", "frmDiscretionNewCase", "txtRule(3)", "# & < ]]>"},
});

TEST_F(ReviewMarksTest, EachSeparatorInEachKindOfBoxIsItsOwnCause) {
    for (const BoxCase& each : boxCases)
        for (const std::string& mark : split(each.marks, " ")) {
            begin();
            world.option("frmPayDetail", "OptCheque").setValue(true);
            for (const std::string_view box : {"txtChqDraftNo", "txtBankNm", "txtBranchNm"})
                world.box("frmPayDetail", box).setText("77");
            world.box("frmDocCheckList", "txtDocPageNo(0)").setText("1");
            world.box("frmDocCheckList", "txtDocPageNo(1)").setText("2");
            world.proposal.forms.touch("frmNaOrder");
            const std::set<std::string> before = lineSet(review(world.shell));
            auto& box = control<Control>(each.form, each.box);
            const std::string text = "1" + mark + "2";
            if (auto* list = dynamic_cast<ComboBox*>(&box))
                list->setText(text);
            else
                dynamic_cast<TextBox&>(box).restoreText(text);
            const std::vector<Finding> changed = further(found(FindingKind::Changed), before);
            ASSERT_FALSE(changed.empty()) << mark << " in " << each.kind;
            for (const Finding& finding : changed)
                EXPECT_TRUE(finding.cause.starts_with(mark + " ")) << mark << " in " << each.kind << "\n"
                                                                   << lineOf(finding);
            EXPECT_NE(at(changed, each.form, each.box), nullptr) << mark << " in " << each.kind << lines(changed);
        }
}

struct CellCase {
    std::string_view name;
    Tables::Member table;
    int column;
    std::string_view marks;
};

constexpr std::array cellCases = std::to_array<CellCase>({
    {"plots", &Tables::rsPlot712, PlotColumn::PlotName, "$-$ @-> ^#^ & < ]]>"},
    {"plots of the cards", &Tables::rsPlotPRC, PlotColumn::PlotName, "$-$ @-> ^#^ & < ]]>"},
    {"7/12 extracts", &Tables::rsExtract712, ExtractColumn::HissaNo, "#"},
    {"owners", &Tables::rsOwner712, OwnerColumn::Name, "#"},
    {"holders", &Tables::rsPAH712, HolderColumn::Name, "# & < ]]>"},
    {"property cards", &Tables::rsExtractPRC, ExtractColumn::HissaNo, "# & < ]]>"},
    {"owners of the cards", &Tables::rsOwnerPRC, OwnerColumn::Name, "#"},
    {"owner types of the cards", &Tables::rsOwnerPRC, OwnerColumn::OwnerType, "& < ]]>"},
    {"holders of the cards", &Tables::rsPAHPRC, HolderColumn::Name, "# & < ]]>"},
    {"status of the ownership", &Tables::rsOwnership, OwnershipColumn::DocStatus, "#"},
    {"orders", &Tables::rsULCOrder, ULCOrderColumn::OrderNo, "#"},
    {"orders under section 8(4)", &Tables::rsULCOrderUS84, US84OrderColumn::AppName, "# & < ]]>"},
    {"plots of an order", &Tables::rsUS84Plots, US84PlotColumn::Taluka, "# & < ]]>"},
    {"orders under section 20", &Tables::rsULCOrderUS20a1, US20a1OrderColumn::iii, "# & < ]]>"},
    {"figures built", &Tables::rsSchemeBuilt, SchemeColumn::FLD2, "# ^ & < ]]>"},
    {"figures sold", &Tables::rsSchemeSold, SchemeColumn::FLD2, "# ^ & < ]]>"},
    {"orders under section 22", &Tables::rsULCOrderUS22, US22OrderColumn::FLD1, "# & < ]]>"},
});

TEST_F(ReviewMarksTest, EachSeparatorInACellOfEachTableIsItsOwnCause) {
    beginWhole();
    const std::set<std::string> before = lineSet(review(world.shell));
    for (const CellCase& each : cellCases)
        for (const std::string& mark : split(each.marks, " ")) {
            const Value was = table(each.table).allRows()[0][static_cast<std::size_t>(each.column)];
            table(each.table).replace(0, each.column, "1" + mark + "2");
            const std::vector<Finding> changed = further(found(FindingKind::Changed), before);
            ASSERT_FALSE(changed.empty()) << mark << " in " << each.name;
            for (const Finding& finding : changed)
                EXPECT_TRUE(finding.cause.starts_with(mark + " ")) << mark << " in " << each.name << "\n"
                                                                   << lineOf(finding);
            table(each.table).replace(0, each.column, was);
        }
}

TEST_F(ReviewMarksTest, OfSeveralMarksInOneAnswerTheOneThatMovesItIsTheCause) {
    begin();
    world.box("frmAnnexureA", "txtTitle").setText("a#b~c&d@e");
    const std::vector<Finding> changed = found(FindingKind::Changed);
    ASSERT_FALSE(changed.empty());
    for (const Finding& finding : changed)
        EXPECT_TRUE(finding.cause.starts_with("@")) << lineOf(finding);
}

TEST_F(ReviewMarksTest, ACharacterThatNoXmlFileHoldsIsACause) {
    begin();
    world.box("frmAnnexureA", "txtTitle")
        .restoreText(
            "a\x02"
            "b");
    const std::vector<Finding> changed = found(FindingKind::Changed);
    ASSERT_FALSE(changed.empty());
    EXPECT_EQ(changed.front().control, "txtTitle");
    EXPECT_EQ(changed.front().cause, "a control character is no character of an XML file and makes it unreadable.");
}

TEST_F(ReviewMarksTest, ALetterThatTheCodePageCannotHoldIsACause) {
    begin();
    world.box("frmAnnexureA", "txtTitle")
        .setText(
            "a\xE0\xA4\x97"
            "b");
    EXPECT_EQ(lines(found(FindingKind::Changed)), "");
    const char* set = std::getenv("LC_ALL");
    const std::string before = set ? set : "";
    setenv("LC_ALL", "C", 1);
    const std::vector<Finding> changed = found(FindingKind::Changed);
    set ? setenv("LC_ALL", before.c_str(), 1) : unsetenv("LC_ALL");
    ASSERT_EQ(changed.size(), 1U) << lines(changed);
    EXPECT_EQ(changed.front().sentence,
              "\"a\xE0\xA4\x97"
              "b\" arrives as \"a?b\".");
    EXPECT_EQ(changed.front().cause, "a letter is a character that the system's code page cannot hold.");
}

TEST_F(ReviewMarksTest, AnAnswerWithManyMarksHasOneEntryForEach) {
    begin();
    world.box("frmAnnexureA", "txtTitle").setText("a||b^#^c#d");
    const std::vector<Marked> marks = markedAnswers(world.proposal);
    ASSERT_EQ(marks.size(), 3U);
    EXPECT_EQ(marks[0].mark + marks[1].mark + marks[2].mark, "||^#^#");
    EXPECT_EQ(marks[0].alone, "a||bcd");
    EXPECT_EQ(marks[1].alone, "ab^#^cd");
    EXPECT_EQ(marks[2].alone, "abc#d");
    for (const Marked& mark : marks)
        EXPECT_EQ(mark.clean, "abcd");
}

}  // namespace
}  // namespace plandesk::test
