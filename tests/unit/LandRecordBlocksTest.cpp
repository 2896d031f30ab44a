#include "document/LandRecordBlocks.h"

#include <gtest/gtest.h>

#include "controls/User.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/frmNaOrder.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "proposal/LandRecordColumns.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

struct Blocks : testing::Test, World {
    Tables& tables = proposal.tables;

    /// Adds a row; std::monostate leaves a cell empty.
    static void add(Recordset& table, const std::vector<Value>& values) {
        table.addNew();
        for (std::size_t column = 0; column < values.size(); ++column)
            table.set(static_cast<int>(column), values[column]);
        table.update();
    }
    static Value text(std::string_view text) { return std::string(text); }
    static inline const Value null{};
};

TEST_F(Blocks, WithoutRowsTheTextOfAnEarlierBuildStays) {
    proposal.extractOwnerXML = "earlier";
    proposal.prcOwnerXML = "earlier";
    proposal.is712Current = false;
    buildExtractBlock(proposal);
    EXPECT_FALSE(proposal.is712Current);
    EXPECT_EQ(proposal.extractOwnerXML, "earlier");
    add(*tables.rsExtract712, {1});
    tables.rsExtract712->setFilter("ExtNo = 2");
    buildExtractBlock(proposal);
    buildPRCBlock(proposal);
    EXPECT_EQ(proposal.extractOwnerXML, "earlier");
    EXPECT_EQ(proposal.prcOwnerXML, "earlier");
}

TEST_F(Blocks, A712ExtractIsWrittenWithItsOwnersAndHolders) {
    add(*tables.rsExtract712, {1, text(" 12 & 3 "), text("<4>"), Date{2001, 2, 3}, text("a>b"), 2, 120.25, 1});
    add(*tables.rsOwner712,
        {1, 1, text(" Sham & Co "), text("Signed"), text("Bank Loan"), text("  ------ Select------  ")});
    add(*tables.rsOwner712,
        {1, 2, null, text(" -- Select -- "), text("  ----------- Select----------  "), text("H & H")});
    add(*tables.rsPAH712, {1, 1, text(" Ram & Co "), true});
    proposal.forms.get<frmPlotExtractRelation>().txtNoOfExtract712.setText(" 7 ");
    proposal.forms.get<frmMain712>().txtRemark.setText(" one & two ");
    buildExtractBlock(proposal);
    EXPECT_EQ(proposal.extractOwnerXML,
              "<a712Extract><NoOfExtract> 7 </NoOfExtract><Extract1>"
              "<Static>12 &amp; 3#&lt;4&gt;#03/02/2001#a&gt;b#2#120.25#1</Static><NoOfOwner>2</NoOfOwner>"
              "<OWNER1>Sham &amp; Co#Sign#1</OWNER1><OWNER2>##0H &amp; H</OWNER2><NoOfPAH>1</NoOfPAH>"
              "<PAH1>Ram & Co#1</PAH1></Extract1><Remark712>one &amp; two</Remark712></a712Extract>");
    EXPECT_TRUE(proposal.is712Current);
    EXPECT_FALSE(proposal.isSavingLandRecord);
}

TEST_F(Blocks, APrcIsWrittenWithoutItsFerfarNumberAndUnescaped) {
    add(*tables.rsExtractPRC, {1, text(" 12 & 3 "), null, Date{2001, 2, 3}, text("0"), 1, 50.0, 1});
    add(*tables.rsOwnerPRC, {1, 1, text("Sham & Co"), text("PAH Given"), text("EASEMENT"), text(" H & H ")});
    add(*tables.rsOwnerPRC, {1, 2, text("Ram"), null, null, null});
    add(*tables.rsPAHPRC, {1, 1, null, null});
    proposal.forms.get<frmMain712>().txtRemark.setText(" 7/12 < PRC ");
    proposal.forms.get<frmPRCEXT>().txtRemark.setText("not this one");
    proposal.is712Current = true;
    buildPRCBlock(proposal);
    EXPECT_EQ(proposal.prcOwnerXML,
              "<PRC><NoOfPRC>1</NoOfPRC><PRC1><Static>12 & 3##03/02/2001#1#50#1</Static><NoOfOwner>2</NoOfOwner>"
              "<OWNER1>Sham &amp; Co#PAH#9#H & H</OWNER1><OWNER2>Ram##0#</OWNER2><NoOfPAH>1</NoOfPAH>"
              "<PAH1>#0</PAH1></PRC1><RemarkPRC> 7/12 &lt; PRC </RemarkPRC></PRC>");
    EXPECT_FALSE(proposal.is712Current);
}

TEST_F(Blocks, NullsLeaveTheirSeparatorsAndAnExtractWithoutOwnersItsCounts) {
    add(*tables.rsExtract712, {1});
    proposal.remark712 = "last read";
    buildExtractBlock(proposal);
    EXPECT_EQ(proposal.extractOwnerXML,
              "<a712Extract><NoOfExtract></NoOfExtract><Extract1><Static>######</Static><NoOfOwner>0</NoOfOwner>"
              "<NoOfPAH>0</NoOfPAH></Extract1><Remark712>last read</Remark712></a712Extract>");
    EXPECT_EQ(proposal.forms.loaded("frmMain712"), nullptr);
}

TEST_F(Blocks, TheRemarkLastReadClosesThePrcsTooWhileThe712FormIsNotLoaded) {
    add(*tables.rsExtractPRC, {1});
    proposal.remark712 = " last read ";
    proposal.remarkPRC = "of the cards";
    proposal.forms.get<frmPRCEXT>().txtRemark.setText("typed");
    buildPRCBlock(proposal);
    EXPECT_EQ(proposal.prcOwnerXML,
              "<PRC><NoOfPRC>1</NoOfPRC><PRC1><Static>#####</Static><NoOfOwner>0</NoOfOwner><NoOfPAH>0</NoOfPAH></PRC1>"
              "<RemarkPRC> last read </RemarkPRC></PRC>");
}

TEST_F(Blocks, LongWorkTellsHowFarItHasCome) {
    struct Told : Progress {
        std::vector<int> steps;
        int told = 0;
        int ends = 0;
        void begin(std::string_view, int count) override { steps.push_back(count); }
        void step() override { ++told; }
        void end() override { ++ends; }
    } told;
    const Ports plain = ports;
    Proposal other({plain.dialogs, plain.clock, plain.files, plain.program, told});
    other.tables.createAllTables();
    for (int extract = 1; extract <= 30; ++extract) {
        add(*other.tables.rsExtract712, {extract});
        if (extract <= 20)
            add(*other.tables.rsExtractPRC, {extract});
    }
    buildExtractBlock(other);
    buildPRCBlock(other);
    EXPECT_EQ(told.steps, (std::vector{30, 20}));
    EXPECT_EQ(told.told, 50);
    EXPECT_EQ(told.ends, 2);
}

TEST_F(Blocks, SigningStatuses) {
    add(*tables.rsExtract712, {1});
    for (const std::string_view status :
         {" -- Select -- ", "-- Select --", "---- Select ----", "Signed", " Signed", "signed", "PAH Given", ""})
        add(*tables.rsOwner712, {1, 1, text("N"), text(status)});
    add(*tables.rsOwner712, {1, 1, text("N"), null});
    buildExtractBlock(proposal);
    const std::array expected = {"N##0",    "N##0",    "N#PAH#0", "N#Sign#0", "N#PAH#0",
                                 "N#PAH#0", "N#PAH#0", "N#PAH#0", "N##0"};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        EXPECT_NE(proposal.extractOwnerXML.find("<OWNER" + number + ">" + expected[i] + "</OWNER" + number + ">"),
                  std::string::npos)
            << number << " in " << proposal.extractOwnerXML;
    }
}

TEST_F(Blocks, ANameFullOfSeparatorsIsWrittenAsItStands) {
    add(*tables.rsExtract712, {1});
    add(*tables.rsOwner712, {1, 1, text("a#b$$c^#^d$-$e@->f^g~h||i@j"), null, null, null});
    buildExtractBlock(proposal);
    EXPECT_NE(proposal.extractOwnerXML.find("<OWNER1>a#b$$c^#^d$-$e@-&gt;f^g~h||i@j##0</OWNER1>"), std::string::npos);
}

TEST_F(Blocks, ExtractsAreNumberedByTheirPlaceNotByTheirNumber) {
    add(*tables.rsExtract712, {5, text("five")});
    add(*tables.rsExtract712, {2, text("two")});
    buildExtractBlock(proposal);
    EXPECT_NE(proposal.extractOwnerXML.find("<Extract1><Static>five#"), std::string::npos);
    tables.rsExtract712->setSort(" ExtNo ");
    buildExtractBlock(proposal);
    EXPECT_NE(proposal.extractOwnerXML.find("<Extract1><Static>two#"), std::string::npos);
    EXPECT_EQ(tables.rsOwner712->filter(), "ExtNo = 5");
    EXPECT_EQ(tables.rsPAH712->filter(), "ExtNo = 5");
    EXPECT_EQ(tables.rsExtract712->filter(), "");
}

TEST_F(Blocks, AWholeSaveBuildsBothBlocksWithTheRightFormsMode) {
    shell.press("mnuNew");
    fillFirstPage();
    auto& relation = proposal.forms.get<frmPlotExtractRelation>();
    relation.open();
    relation.txtNoOfPlot712.setText("1");
    relation.txtNoOfPlot.setText("1");
    user::editCell(relation.dgd712ExtractRelation, 0, PlotColumn::NoOfPRC, "1");
    user::click(relation.cmdSave712Relation);
    relation.SSTab1.setTab(1);
    user::editCell(relation.dgdPRCPlotRel, 0, PlotColumn::NoOfPRC, "2");
    tables.create(&Tables::rsPlotPRCSaved);
    user::click(relation.cmdSave);
    proposal.forms.unload("frmMain712");
    ports.dialogs.answers.push_back("/p.xml");
    shell.press("mnuSave");
    EXPECT_NE(proposal.proposalText.find("<NTS><a712Extract><NoOfExtract>1</NoOfExtract>"), std::string::npos);
    EXPECT_NE(proposal.proposalText.find("</a712Extract><PRC><NoOfPRC>2</NoOfPRC>"), std::string::npos);
    EXPECT_NE(proposal.proposalText.find("</PRC><NAOrder><OrderNo></OrderNo><OrderDate>15/03/2024</OrderDate>"),
              std::string::npos);
    EXPECT_NE(proposal.proposalText.find("<PLOT-REL>1^#^1^#^1$-$$-$1@-></PLOT-REL>"), std::string::npos);
    EXPECT_NE(proposal.proposalText.find("<PLOT-PRCDETAILS>1^#^2^#^1$-$$-$2@-></PLOT-PRCDETAILS>"), std::string::npos);
    EXPECT_FALSE(proposal.isSavingLandRecord);
    EXPECT_EQ(tables.rsOwnership712, tables.rsOwnership);
    EXPECT_EQ(proposal.forms.get<frmMain712>().fraExt.caption(), "Extract Details");
}

TEST_F(Blocks, NewLoadsThe712FormHidden) {
    shell.press("mnuNew");
    ASSERT_NE(proposal.forms.loaded("frmMain712"), nullptr);
    EXPECT_FALSE(proposal.forms.loaded("frmMain712")->visible());
}

}  // namespace
}  // namespace plandesk::test
