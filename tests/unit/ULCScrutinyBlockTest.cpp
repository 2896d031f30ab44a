#include "document/ULCScrutinyBlock.h"

#include "OrdersFixture.h"
#include "proposal/OrderColumns.h"

namespace plandesk::test {
namespace {

struct ULCBlock : Orders {
    std::string built() {
        buildULCScrutinyXML(proposal);
        return proposal.ULCScrutinyXML;
    }
    /// Content of the element in the block built now.
    std::string content(const std::string& element, int extract) {
        const std::string xml = built();
        const std::size_t from = xml.find("<EXTRACT-" + std::to_string(extract) + " ");
        const std::size_t begin = xml.find("<" + element + ">", from) + element.size() + 2;
        return xml.substr(begin, xml.find("</" + element + ">", begin) - begin);
    }
    void dropOrders() {
        for (const Tables::Member table : orderTables)
            tables.create(table);
        tables.create(&Tables::rsULCOrderUS22);
    }
};

TEST_F(ULCBlock, WithoutOwnershipItHoldsTheCodeAndNoExtract) {
    EXPECT_EQ(built(),
              "<ULCORDER-SCRUTINY><DOCCONTROLLINGOWNERSHIP></DOCCONTROLLINGOWNERSHIP><NOOFEXTRACT>0</NOOFEXTRACT>"
              "</ULCORDER-SCRUTINY>");
    scrutiny().optDocCtrlOwn[1].setValue(true);
    EXPECT_EQ(built(),
              "<ULCORDER-SCRUTINY><DOCCONTROLLINGOWNERSHIP>2</DOCCONTROLLINGOWNERSHIP><NOOFEXTRACT>0"
              "</NOOFEXTRACT></ULCORDER-SCRUTINY>");
}

TEST_F(ULCBlock, AnExtractWithoutOrdersHasEmptyElements) {
    saveLandRecords();
    scrutiny();  // the first extract is chosen, so the list over its order wrote its index
    dropOrders();
    const std::string xml = built();
    const std::string none =
        "<ULC-US-84></ULC-US-84><NO-OF-PLOT>0</NO-OF-PLOT><ULC-US-20a1></ULC-US-20a1>"
        "<ULC-US-22>#</ULC-US-22>";
    EXPECT_EQ(xml,
              "<ULCORDER-SCRUTINY><DOCCONTROLLINGOWNERSHIP></DOCCONTROLLINGOWNERSHIP><NOOFEXTRACT>3</NOOFEXTRACT>"
              "<EXTRACT-1 DOCTYPE = '712' ><AREADIVISION>Anand#100#0</AREADIVISION><ULCORDER>Anand#0##</ULCORDER>" +
                  none +
                  "</EXTRACT-1><EXTRACT-2 DOCTYPE = '712' ><AREADIVISION>Bhide#20.5#0</AREADIVISION>"
                  "<ULCORDER>Bhide###</ULCORDER>" +
                  none +
                  "</EXTRACT-2><EXTRACT-3 DOCTYPE = 'PRC' ><AREADIVISION>Chand &amp; Co#7#0</AREADIVISION>"
                  "<ULCORDER>Chand &amp; Co###</ULCORDER>" +
                  none + "</EXTRACT-3></ULCORDER-SCRUTINY>");
}

TEST_F(ULCBlock, OnlyTheFirstTwoRowsAreEscaped) {
    saveLandRecords();
    auto& form = scrutiny();
    user::editCell(form.dgdULCOrderDetails, 0, ULCOrderColumn::Remarks, " <seen> & left ");
    auto& order = us84();
    order.txtApplicantName.setText(" A & <B> ");
    user::click(order.cmdSave);
    EXPECT_EQ(content("ULCORDER", 1), "Anand#1##&lt;seen&gt; &amp; left");
    EXPECT_NE(content("ULC-US-84", 1).find("#A & <B>#"), std::string::npos);
}

TEST_F(ULCBlock, AnOrderUnderSectionEightLeavesOutItsNumberOfPlotsAndListsThePlots) {
    saveLandRecords();
    auto& order = us84();
    order.txtCaseNumber.setText("C1");
    user::pickDate(order.dtpResultDate, {2001, 2, 3});
    order.txtApplicantAddress.setText("Road");
    user::type(order.txtNoOfPlotOwnedByApplicant, "2");
    user::leave(order.txtNoOfPlotOwnedByApplicant);
    for (int column = US84PlotColumn::Village; column <= US84PlotColumn::Surplus; ++column)
        user::editCell(order.dgdTableAB, 1, column, std::to_string(column));
    order.txtSurveyNo.setText("12/3");
    user::click(order.cmdSave);
    EXPECT_EQ(content("ULC-US-84", 1), "C1#03/02/2001##Road#4.00###4#12/3");
    EXPECT_EQ(content("NO-OF-PLOT", 1), "2");
    EXPECT_EQ(content("US-84-PLOT-1", 1), "##############");
    EXPECT_EQ(content("US-84-PLOT-2", 1), "1#2#3#4#5#6#7#8#9#10#11#12#13#14#15");
    EXPECT_EQ(built().find("<ULC-US-84-1>"), std::string::npos);
}

TEST_F(ULCBlock, EverySchemeHasSevenPairsAndAnUnopenedOneNone) {
    saveLandRecords();
    auto& order = us20();
    user::pick(order.cmbSchemaType, 1);
    user::editCell(order.dgdSchemeDetails, 0, SchemeGridColumn::FLD2, "5");
    user::type(order.txtSpeDisScheme, "9");
    user::click(order.cmdSave);
    EXPECT_EQ(content("ULC-US-20a1", 1), "1#2###" + ports.clock.today().text() + "###########2#9#5^#^#^#^#^#^#^");
    tables.rsSchemeBuilt->setFilter("ExtNo = 1");
    tables.rsSchemeBuilt->deleteRow();
    EXPECT_EQ(content("ULC-US-20a1", 1), "1#2###" + ports.clock.today().text() + "###########2#9#");
}

TEST_F(ULCBlock, OrdersRunInStepByTheirPlaceNotByTheirNumber) {
    saveLandRecords();
    scrutiny();
    Recordset& orders = *tables.rsULCOrder;
    orders.setFilter("ExtNo = 1");
    orders.deleteRow();
    EXPECT_EQ(content("ULCORDER", 1), "Bhide###");
    EXPECT_EQ(content("ULCORDER", 2), "Chand &amp; Co###");
    EXPECT_EQ(content("ULCORDER", 3), "###");  // behind the last order the separators stay
    EXPECT_EQ(content("AREADIVISION", 1), "Anand#100#0");
}

TEST_F(ULCBlock, APlaceBeyondTheNumberOfExtractsIsOfAPRC) {
    saveLandRecords();
    scrutiny();
    proposal.noOfExtract712 = 1;
    EXPECT_NE(built().find("<EXTRACT-2 DOCTYPE = 'PRC' >"), std::string::npos);
}

TEST_F(ULCBlock, TheFiltersOfTheLastExtractStay) {
    saveLandRecords();
    scrutiny();
    built();
    EXPECT_EQ(tables.rsUS84Plots->filter(), " ExtNo = 3");
    EXPECT_EQ(tables.rsULCOrderUS22->filter(), " ExtNo = 3");
    EXPECT_EQ(tables.rsOwnership->filter(), "");
}

TEST_F(ULCBlock, AWholeSaveOfARunWithoutLandRecordsKeepsTheEarlierBlock) {
    proposal.ULCScrutinyXML = "<ULCORDER-SCRUTINY>earlier</ULCORDER-SCRUTINY>";
    saveNewProposal("one.xml");
    EXPECT_NE(ports.files.contents["one.xml"].find("<ULCORDER-SCRUTINY>earlier</ULCORDER-SCRUTINY></NTS>"),
              std::string::npos);
}

}  // namespace
}  // namespace plandesk::test
