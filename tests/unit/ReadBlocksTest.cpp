#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ExtractsFixture.h"
#include "ProposalFile.h"
#include "fees/frmDiscretionNewCase.h"
#include "fees/frmDiscretionrevisedCase.h"
#include "landrecords/frmNaOrder.h"
#include "ulc/frmScrutinyULC.h"

namespace plandesk::test {
namespace {

using Boxes = std::vector<Message>;

/// The box of an opening whose procedure failed.
Boxes failed(std::string_view numberAndDescription) {
    return {{" Particulars of Development (Read XML) ", std::string(numberAndDescription), Icon::Critical}};
}
const Boxes outOfRangeBox = failed("9:Subscript out of range");
const Boxes missingBox = failed("91:Object variable or With block variable not set");
const Boxes mismatchBox = failed("13:Type mismatch");

/// A document with the blocks given, the plots in the form of today.
struct ReadBlocks : testing::Test {
    Reading reading;
    Tables& tables = reading.world.proposal.tables;
    Proposal& proposal = reading.world.proposal;
    ProposalFile file;

    Boxes open() { return reading.open(file); }
    /// The rows, their cells with "|" between.
    Texts rows(Tables::Member table) {
        Texts texts;
        for (const auto& row : tables.ensure(table).allRows()) {
            std::string text;
            for (const Value& value : row)
                text += "|" + (isNull(value) ? "null" : valueText(value));
            texts.push_back(text.substr(1));
        }
        return texts;
    }
    frmPlotExtractRelation& relation() { return proposal.forms.get<frmPlotExtractRelation>(); }

    void plots712(std::string_view text) { file.setText("PLOT-REL", text); }
    void plotsPRC(std::string_view text) { file.setText("PLOT-PRCDETAILS", text); }
    /// What stands in NTS.
    void nts(const std::string& blocks) { file.setText("NTS", blocks); }
    static std::string extracts(const std::string& content) {
        return "<a712Extract><NoOfExtract>99</NoOfExtract>" + content + "<Remark712>seen</Remark712></a712Extract>";
    }
    static std::string extract(int number, const std::string& statics, const std::string& owners,
                               const std::string& holders = "<NoOfPAH>0</NoOfPAH>") {
        const std::string name = "Extract" + std::to_string(number);
        return "<" + name + "><Static>" + statics + "</Static>" + owners + holders + "</" + name + ">";
    }
    static std::string ulc(const std::string& document, int count, const std::string& content) {
        return "<ULCORDER-SCRUTINY><DOCCONTROLLINGOWNERSHIP>" + document + "</DOCCONTROLLINGOWNERSHIP><NOOFEXTRACT>" +
               std::to_string(count) + "</NOOFEXTRACT>" + content + "</ULCORDER-SCRUTINY>";
    }
};

TEST_F(ReadBlocks, PlotsComeBackByTheirPlaceWithTheirCounts) {
    plots712("2^#^3^#^7$-$ A-1 $-$2@->9$-$B$-$1@->");
    plotsPRC("1^#^2^#^1$-$C$-$2@->");
    EXPECT_EQ(open(), Boxes());
    EXPECT_EQ(rows(&Tables::rsPlot712), (Texts{"1|For Plot No : 1| A-1 |2", "2|For Plot No : 2|B|1"}));
    EXPECT_EQ(rows(&Tables::rsPlotPRC), (Texts{"1|For Plot No : 1|C|2"}));
    EXPECT_EQ(relation().txtNoOfPlot712.text(), "2");
    EXPECT_EQ(relation().txtNoOfExtract712.text(), "3");
    EXPECT_FALSE(relation().txtNoOfPlot712.enabled());
    EXPECT_TRUE(relation().cmdAddPlot.enabled());
    EXPECT_EQ(relation().txtNoOfPlot.text(), "1");
    EXPECT_EQ(relation().txtNoOfPrc.text(), "2");
    EXPECT_FALSE(relation().txtNoOfPlot.enabled());
    EXPECT_TRUE(relation().cmdAddPlotPRC.enabled());
    EXPECT_EQ(proposal.noOfExtract712, 3);
    EXPECT_EQ(proposal.noOfPRC, 2);
    EXPECT_EQ(tables.rsPlot712->absolutePosition(), 2);  // the row read last, with every row in sight
}

TEST_F(ReadBlocks, AnOlderPlotReadsBackAndAHyphenInItsNameEndsIt) {
    plots712("1^#^3^#^1-Plot A-3@->");
    EXPECT_EQ(open(), Boxes());
    EXPECT_EQ(rows(&Tables::rsPlot712), (Texts{"1|For Plot No : 1|Plot A|3"}));
    plots712("1^#^3^#^1-A-1-3@->");
    EXPECT_EQ(open(), Boxes());
    EXPECT_EQ(rows(&Tables::rsPlot712), (Texts{"1|For Plot No : 1|A|1"}));
    plots712("1^#^3^#^1-A-east-3@->");
    EXPECT_EQ(open(), mismatchBox);
}

TEST_F(ReadBlocks, TwoCountsWithoutAListFailAtTheFirstPlotAfterTheBoxesAreSet) {
    plots712("2^#^3^#^");
    EXPECT_EQ(open(), outOfRangeBox);
    EXPECT_EQ(relation().txtNoOfPlot712.text(), "2");
    EXPECT_EQ(relation().txtNoOfExtract712.text(), "3");
    plots712("2^#^3^#^1$-$A$-$1@->");
    EXPECT_EQ(open(), outOfRangeBox);
    EXPECT_EQ(rows(&Tables::rsPlot712)[0], "1|For Plot No : 1|A|1");
}

TEST_F(ReadBlocks, ATextWithoutTwoCountsIsPassedOver) {
    plots712("2");
    EXPECT_EQ(open(), Boxes());
    EXPECT_EQ(rows(&Tables::rsPlot712), Texts());
}

TEST_F(ReadBlocks, AnExtractComesBackWithItsOwnersAndHolders) {
    plots712("1^#^1^#^1$-$A$-$1@->");
    nts(extracts(extract(1, "12#2A#03/02/2001#F9#3#100.50#2",
                         "<NoOfOwner>3</NoOfOwner><OWNER1>Ram#Sign#1</OWNER1><OWNER2>Sham#PAH# </OWNER2>"
                         "<OWNER3>Sita##99H</OWNER3>",
                         "<NoOfPAH>2</NoOfPAH><PAH1>Gopal#1</PAH1><PAH2>Hari#0</PAH2>")));
    EXPECT_EQ(open(), mismatchBox);  // an encumbrance that is no number
    nts(extracts(extract(1, "12#2A#03/02/2001#F9#3#100.50#2",
                         "<NoOfOwner>3</NoOfOwner><OWNER1>Ram#Sign#1</OWNER1><OWNER2>Sham#PAH# </OWNER2>"
                         "<OWNER3>Sita##99</OWNER3>",
                         "<NoOfPAH>2</NoOfPAH><PAH1>Gopal#1</PAH1><PAH2>Hari#0</PAH2>")));
    EXPECT_EQ(open(), Boxes());
    EXPECT_EQ(rows(&Tables::rsExtract712), (Texts{"1|12|2A|03/02/2001|F9|3|100.5|2"}));
    EXPECT_EQ(rows(&Tables::rsOwner712),
              (Texts{"1|1|Ram|Signed|BANK LOAN|null", "1|2|Sham|PAH Given|----------- Select----------|null",
                     "1|3|Sita|null|----------- Select----------|null"}));
    EXPECT_EQ(rows(&Tables::rsPAH712), (Texts{"1|1|Gopal|True", "1|2|Hari|False"}));
    EXPECT_EQ(proposal.remark712, "seen");
}

TEST_F(ReadBlocks, AnExtractWithoutADateIsOfToday) {
    plots712("1^#^1^#^1$-$A$-$1@->");
    nts(extracts(extract(1, "##  ####", "<NoOfOwner>0</NoOfOwner>")));
    EXPECT_EQ(open(), Boxes());
    EXPECT_EQ(rows(&Tables::rsExtract712), (Texts{"1|||" + reading.world.ports.clock.today().text() + "||0|0|0"}));
}

TEST_F(ReadBlocks, WithoutPlotsNoExtractIsRead) {
    nts(extracts(extract(1, "12######", "<NoOfOwner>0</NoOfOwner>")));
    file.removeSection("PLOT-REL");
    EXPECT_EQ(open(), Boxes());
    EXPECT_EQ(rows(&Tables::rsExtract712), Texts());
    EXPECT_EQ(proposal.remark712, "");
}

TEST_F(ReadBlocks, WhatIsOutOfPlaceInAnExtractIsSkipped) {
    plots712("1^#^2^#^1$-$A$-$2@->");
    nts(extracts(extract(2, "12######", "<NoOfOwner>0</NoOfOwner>") +
                 extract(2, "13##01/01/2001##2#0#0",
                         "<NoOfOwner>2</NoOfOwner><OWNER2>Ram#Sign#0</OWNER2><OWNER2>Sham#Sign#0</OWNER2>")));
    EXPECT_EQ(open(), Boxes());
    EXPECT_EQ(rows(&Tables::rsExtract712), (Texts{"2|13||01/01/2001||2|0|0"}));
    EXPECT_EQ(rows(&Tables::rsOwner712), (Texts{"2|2|Sham|Signed|----------- Select----------|null"}));
}

TEST_F(ReadBlocks, TooFewPiecesLeaveTheRowUnfinishedAndEndTheProcedure) {
    plots712("1^#^2^#^1$-$A$-$2@->");
    nts(extracts(extract(1, "12#2A#01/01/2001", "<NoOfOwner>0</NoOfOwner>") +
                 extract(2, "13##01/01/2001####", "<NoOfOwner>0</NoOfOwner>")));
    EXPECT_EQ(open(), outOfRangeBox);
    EXPECT_EQ(rows(&Tables::rsExtract712), (Texts{"1|12|2A|01/01/2001|null|null|null|null"}));
}

TEST_F(ReadBlocks, MoreExtractsThanTheBlockHoldsFailAtItsRemark) {
    plots712("1^#^3^#^1$-$A$-$3@->");
    nts(extracts(extract(1, "12######", "<NoOfOwner>0</NoOfOwner>")));
    EXPECT_EQ(open(), missingBox);
    EXPECT_EQ(rows(&Tables::rsExtract712), Texts());
}

std::string prc(const std::string& statics, const std::string& owners, const std::string& holders = "") {
    return "<PRC><NoOfPRC>1</NoOfPRC><PRC1><Static>" + statics + "</Static>" + owners + holders +
           "</PRC1><RemarkPRC>looked at</RemarkPRC></PRC>";
}

TEST_F(ReadBlocks, APRCTakesItsNumberOfOwnersAsFerFarNoAndReadsOwnerTypes) {
    plotsPRC("1^#^1^#^1$-$C$-$1@->");
    nts(prc("CS 7#T1#01/01/1999#2#88.5#1",
            "<NoOfOwner>2</NoOfOwner><OWNER1>Ali#Sign#9#H - Holder</OWNER1>"
            "<OWNER2>Bo##0#</OWNER2>",
            "<NoOfPAH>1</NoOfPAH><PAH1>Chand#1</PAH1>"));
    EXPECT_EQ(open(), Boxes());
    EXPECT_EQ(rows(&Tables::rsExtractPRC), (Texts{"1|CS 7|T1|01/01/1999|2|2|88.5|1"}));
    EXPECT_EQ(rows(&Tables::rsOwnerPRC),
              (Texts{"1|1|Ali|Signed|EASEMENT|H - Holder", "1|2|Bo|null|----------- Select----------|"}));
    EXPECT_EQ(rows(&Tables::rsPAHPRC), (Texts{"1|1|Chand|True"}));
    EXPECT_EQ(proposal.remarkPRC, "looked at");
}

TEST_F(ReadBlocks, APRCWithoutADateEndsTheProcedure) {
    plotsPRC("1^#^1^#^1$-$C$-$1@->");
    nts(prc("CS 7#T1##0#0#0", "<NoOfOwner>0</NoOfOwner>"));
    EXPECT_EQ(open(), mismatchBox);
    EXPECT_EQ(rows(&Tables::rsExtractPRC), (Texts{"1|CS 7|T1|null|null|null|null|null"}));
}

TEST_F(ReadBlocks, APRCWithABlankEncumbranceEndsTheProcedure) {
    plotsPRC("1^#^1^#^1$-$C$-$1@->");
    nts(prc("CS 7#T1#01/01/1999#1#0#0", "<NoOfOwner>1</NoOfOwner><OWNER1>Ali#Sign##</OWNER1>"));
    EXPECT_EQ(open(), mismatchBox);
    EXPECT_EQ(rows(&Tables::rsOwnerPRC), (Texts{"1|1|Ali|Signed|null|null"}));
}

TEST_F(ReadBlocks, TheNaOrderComesBackAndItsFieldsOpenWithTheForm) {
    nts("<NAOrder><OrderNo>NA/7</OrderNo><OrderDate>09/01/2020</OrderDate><LandArea>10</LandArea>"
        "<AreaForNAOrder>Mixed</AreaForNAOrder><TxtArea1>6</TxtArea1><TxtArea2>4</TxtArea2><Remark>r</Remark></"
        "NAOrder>");
    EXPECT_EQ(open(), Boxes());
    auto& form = proposal.forms.get<frmNaOrder>();
    EXPECT_EQ(form.txtNaOrderNo.text(), "NA/7");
    EXPECT_EQ(form.DTPicker1.date(), (Date{2020, 1, 9}));
    EXPECT_EQ(form.txtLandArea.text(), "10");
    EXPECT_EQ(form.cmbAreaForNA.text(), "Mixed");
    EXPECT_EQ(form.txtArea1.text(), "6");
    EXPECT_EQ(form.txtArea2.text(), "4");
    EXPECT_EQ(form.txtNARemark.text(), "r");
}

constexpr std::string_view noOrders =
    "<ULC-US-84></ULC-US-84><NO-OF-PLOT>0</NO-OF-PLOT><ULC-US-20a1></ULC-US-20a1><ULC-US-22>#</ULC-US-22>";

TEST_F(ReadBlocks, AnExtractWithoutOrdersHasARowInEachTable) {
    nts(ulc("", 1,
            "<EXTRACT-1><AREADIVISION>Ram#x#0</AREADIVISION><ULCORDER>Ram#1#7#r</ULCORDER>" + std::string(noOrders) +
                "</EXTRACT-1>"));
    proposal.is712Current = true;
    EXPECT_EQ(open(), Boxes());
    EXPECT_TRUE(proposal.is712Current);
    EXPECT_TRUE(proposal.ownershipRelationSaved);
    EXPECT_EQ(tables.rsOwnership, tables.rsOwnership712);
    EXPECT_EQ(rows(&Tables::rsOwnership), (Texts{"1|Ram|null|0"}));
    EXPECT_EQ(rows(&Tables::rsULCOrder), (Texts{"1|Ram|1|7|null|r"}));
    EXPECT_EQ(rows(&Tables::rsULCOrderUS84), (Texts{"||||0||||||1"}));
    EXPECT_EQ(rows(&Tables::rsUS84Plots), Texts());
    EXPECT_EQ(rows(&Tables::rsULCOrderUS20a1), (Texts{"|||||||||||||||||1"}));
    EXPECT_EQ(rows(&Tables::rsSchemeBuilt), (Texts{"|||||||1"}));
    EXPECT_EQ(rows(&Tables::rsSchemeSold), (Texts{"|||||||1"}));
    EXPECT_EQ(rows(&Tables::rsULCOrderUS22), (Texts{"||1"}));
    const auto& form = proposal.forms.get<frmScrutinyULC>();
    EXPECT_EQ(form.txtNoOfExtranct.text(), "1");
    EXPECT_EQ(form.ownershipCode(), "");
}

TEST_F(ReadBlocks, OrdersOfEachKindComeBack) {
    nts(ulc("", 1,
            "<EXTRACT-1><AREADIVISION>Ram#2.5#1</AREADIVISION><ULCORDER>Ram###</ULCORDER>"
            "<ULC-US-84>C#03/02/2001#N#A#1#2#3#4#S</ULC-US-84><NO-OF-PLOT>2</NO-OF-PLOT>"
            "<US-84-PLOT-1>1#2#3#4#5#6#7#8#9#10#11#12#13#14#15</US-84-PLOT-1>"
            "<US-84-PLOT-2>##############</US-84-PLOT-2>"
            "<ULC-US-20a1>1#0#D#a#b#c#d#e#f#g#h#i#j#k#l#1#9#1^10#2^20#3^#^#^#^#^7</ULC-US-20a1>"
            "<ULC-US-22>5#6</ULC-US-22></EXTRACT-1>"));
    EXPECT_EQ(open(), Boxes());
    EXPECT_EQ(rows(&Tables::rsOwnership), (Texts{"1|Ram|2.5|1"}));
    EXPECT_EQ(rows(&Tables::rsULCOrderUS84), (Texts{"C|03/02/2001|N|A|2|1|2|3|4|S|1"}));
    EXPECT_EQ(rows(&Tables::rsUS84Plots), (Texts{"1|1|2|3|4|5|6|7|8|9|10|11|12|13|14|15|1", "2||||||||||||||||1"}));
    EXPECT_EQ(rows(&Tables::rsULCOrderUS20a1), (Texts{"1|0|D|a|b|c|d|e|f|g|h|i|j|k|l|1|9|1"}));
    EXPECT_EQ(rows(&Tables::rsSchemeBuilt), (Texts{"1|2|3|||||1"}));
    EXPECT_EQ(rows(&Tables::rsSchemeSold), (Texts{"10|20|||||7|1"}));
    EXPECT_EQ(rows(&Tables::rsULCOrderUS22), (Texts{"5|6|1"}));
}

TEST_F(ReadBlocks, AnOrderWhoseSchemeWasNeverOpenedEndsTheProcedureAtItsFirstPair) {
    nts(ulc("", 1,
            "<EXTRACT-1><AREADIVISION>Ram##</AREADIVISION><ULCORDER>Ram###</ULCORDER><ULC-US-84></ULC-US-84>"
            "<NO-OF-PLOT>0</NO-OF-PLOT><ULC-US-20a1>1#2###############9#</ULC-US-20a1><ULC-US-22>#</ULC-US-22>"
            "</EXTRACT-1>"));
    EXPECT_EQ(open(), outOfRangeBox);
    EXPECT_EQ(rows(&Tables::rsULCOrderUS20a1).size(), 1U);
    EXPECT_EQ(rows(&Tables::rsULCOrderUS22), Texts());
}

TEST_F(ReadBlocks, MoreExtractsThanTheULCBlockHoldsKeepTheRowsBefore) {
    nts(ulc("", 2,
            "<EXTRACT-1><AREADIVISION>Ram##</AREADIVISION><ULCORDER>Ram###</ULCORDER>" + std::string(noOrders) +
                "</EXTRACT-1>"));
    EXPECT_EQ(open(), missingBox);
    EXPECT_EQ(rows(&Tables::rsULCOrder).size(), 1U);
    EXPECT_FALSE(proposal.ownershipRelationSaved);
}

TEST_F(ReadBlocks, AnExtractThatEndsBeforeItsNumberOfPlotsLeavesItsOrderUnfinished) {
    nts(ulc("", 1,
            "<EXTRACT-1><AREADIVISION>Ram##</AREADIVISION><ULCORDER>Ram###</ULCORDER>"
            "<ULC-US-84>C#03/02/2001#N#A#1#2#3#4#S</ULC-US-84></EXTRACT-1>"));
    EXPECT_EQ(open(), missingBox);
    EXPECT_EQ(rows(&Tables::rsULCOrderUS84), (Texts{"C|03/02/2001|N|A|null|null|null|null|null|null|null"}));
}

TEST_F(ReadBlocks, TheControllingDocumentIsTurnedOnAsByTheUser) {
    const std::string rest = "<EXTRACT-1><AREADIVISION>Ram#1#1</AREADIVISION><ULCORDER>Ram###</ULCORDER>" +
                             std::string(noOrders) + "</EXTRACT-1>";
    nts(ulc("1", 1, rest));
    EXPECT_EQ(open(), Boxes());
    EXPECT_TRUE(proposal.is712Current);
    EXPECT_EQ(proposal.forms.get<frmScrutinyULC>().ownershipCode(), "1");
    EXPECT_EQ(rows(&Tables::rsOwnership), (Texts{"1|Ram|1|1"}));
    nts(ulc("2", 1, rest));
    EXPECT_EQ(open(), Boxes());
    EXPECT_EQ(proposal.forms.get<frmScrutinyULC>().ownershipCode(), "2");
    EXPECT_EQ(rows(&Tables::rsOwnership), Texts());
}

TEST_F(ReadBlocks, DiscretionRowsComeBackAndASeparatorShiftsThem) {
    file.removeSection("DISC-REV")
        .addSection("DISC-REV", {{"RULE-1", "1#2#3"}, {"RULE-2", "4#5#6~7#8#9"}})
        .setText("DISC-NEW", "a#b");
    EXPECT_EQ(open(), Boxes());
    const auto& revised = proposal.forms.get<frmDiscretionrevisedCase>();
    EXPECT_EQ(revised.txtRule[0].text(), "1");
    EXPECT_EQ(revised.txtRuleC[0].text(), "2");
    EXPECT_EQ(revised.txtRuleD[1].text(), "6");
    EXPECT_EQ(revised.txtRule[2].text(), "7");
    const auto& newCase = proposal.forms.get<frmDiscretionNewCase>();
    EXPECT_EQ(newCase.txtRule[0].text(), "a");
    EXPECT_EQ(newCase.txtRule[1].text(), "b");
}

TEST_F(ReadBlocks, WithoutTheRevisedRowsTheNewOnesAreLostToo) {
    file.removeSection("DISC-REV").setText("DISC-NEW", "a#b");
    EXPECT_EQ(open(), outOfRangeBox);
    EXPECT_EQ(proposal.forms.get<frmDiscretionNewCase>().txtRule[0].text(), "");
    EXPECT_NE(proposal.forms.loaded("frmDiscretionrevisedCase"), nullptr);
}

TEST_F(ReadBlocks, ARevisedRowWithoutTextEndsTheProcedure) {
    file.removeSection("DISC-REV").addSection("DISC-REV", {{"RULE-1", ""}}).setText("DISC-NEW", "a#b");
    EXPECT_EQ(open(), outOfRangeBox);
    EXPECT_EQ(proposal.forms.get<frmDiscretionNewCase>().txtRule[0].text(), "");
}

TEST_F(ReadBlocks, ARowBeyondTheLastBoxEndsTheProcedure) {
    file.setText("DISC-NEW", "1#2#3#4#5#6#7#8#9#10#11#12#13#14#15#16");
    EXPECT_EQ(open(), outOfRangeBox);
    EXPECT_EQ(proposal.forms.get<frmDiscretionNewCase>().txtRule[14].text(), "15");
}

TEST_F(ReadBlocks, AFailingProcedureDoesNotStopTheNext) {
    plots712("1^#^2");
    nts("<NAOrder><OrderNo>NA/7</OrderNo></NAOrder>");
    file.setText("DISC-NEW", "a");
    Boxes boxes = outOfRangeBox;
    boxes.push_back(missingBox.front());
    EXPECT_EQ(open(), boxes);
    EXPECT_EQ(proposal.forms.get<frmDiscretionNewCase>().txtRule[0].text(), "a");
}

}  // namespace
}  // namespace plandesk::test
