#include <array>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "landrecords/ExtractForm.h"
#include "landrecords/frmNaOrder.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "unit/LayoutCheck.h"
#include "unit/World.h"

// What the forms of the land records say beside their controls, and that every control has its place.

namespace plandesk::test {
namespace {

struct Question {
    std::string_view form;
    std::string_view control;
    std::string_view question;
    std::string_view unit{};
    std::string_view mark{};
};

constexpr std::array questions = std::to_array<Question>({
    {"frmPlotExtractRelation", "txtNoOfPlot712", "No. of Plot"},
    {"frmPlotExtractRelation", "txtNoOfExtract712", "Total No. of Extract : "},
    {"frmPlotExtractRelation", "txtNoOfPlot", "No. of Plot"},
    {"frmPlotExtractRelation", "txtNoOfPrc", "Total No. of PRC :"},
    {"frmMain712", "txtCaseType", "Case Type"},
    {"frmPRCEXT", "txtCaseType", "Case Type"},
    {"frmNaOrder", "txtNaOrderNo", " N.A. Order No.", "", "*"},
    {"frmNaOrder", "DTPicker1", "Date : ", "", "*"},
    {"frmNaOrder", "txtLandArea", " Land Area", " Sq.Mtr.", "*"},
    {"frmNaOrder", "cmbAreaForNA", " Area for which N.A. Order Issued", "", "*"},
    {"frmNaOrder", "txtNARemark", "N.A. Order Remark"},
});

struct LandRecordsLayout : testing::Test, World {};

TEST_F(LandRecordsLayout, HasAPlaceForEveryVisibleControl) {
    for (const std::string_view form : {"frmPlotExtractRelation", "frmMain712", "frmPRCEXT", "frmNaOrder"})
        EXPECT_EQ(layoutFaults(*proposal.forms.touch(form)), std::vector<std::string>()) << form;
}

TEST_F(LandRecordsLayout, AsksItsQuestionsInTheirWords) {
    for (const Question& asked : questions) {
        SCOPED_TRACE(asked.control);
        const LayoutRow* found = rowOf(*proposal.forms.touch(asked.form), asked.control);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->question, asked.question);
        EXPECT_EQ(found->unit, asked.unit);
        EXPECT_EQ(found->mark, asked.mark);
    }
}

TEST_F(LandRecordsLayout, HeadsTheGridsOfOwnersAndHolders) {
    for (const std::string_view form : {"frmMain712", "frmPRCEXT"})
        for (const std::string_view heading : {"Original Ownership", "Power Of Attorney Information"})
            EXPECT_NE(
                findRow(*proposal.forms.touch(form), [&](const LayoutRow& row) { return row.question == heading; }),
                nullptr)
                << heading;
}

TEST_F(LandRecordsLayout, CallsTheExtractFormsByTheirOwnCaptionsUntilTheChecklistOpensThem) {
    EXPECT_EQ(proposal.forms.touch("frmMain712")->caption(), "Scrutiny Of 7/12 Extract");
    EXPECT_EQ(proposal.forms.touch("frmPRCEXT")->caption(), "PRC Extract Scruitny ");
}

TEST_F(LandRecordsLayout, TipsOfTheAddButtonsTellWhatTheyAdd) {
    auto& form = proposal.forms.get<frmPlotExtractRelation>();
    EXPECT_EQ(form.cmdAddPlot.toolTip, "Add New Plot !");
    EXPECT_EQ(form.cmdAddPlotPRC.toolTip, "Add New Plot !");
}

}  // namespace
}  // namespace plandesk::test
