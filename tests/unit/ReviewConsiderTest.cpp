// What is worth a second look, each case alone.

#include <functional>

#include "unit/ReviewFixture.h"

namespace plandesk::test {
namespace {

struct Case {
    std::string_view form, control;
    std::string_view sentence;
    std::function<void(FormEvents&)> make;
};

struct ReviewConsiderTest : ReviewFixture {
    void expect(const Case& each, void (ReviewFixture::*start)()) {
        (this->*start)();
        const std::set<std::string> before = lineSet(review(world.shell));
        each.make(world);
        const std::vector<Finding> doubtful = further(found(FindingKind::Consider), before);
        EXPECT_TRUE(std::ranges::any_of(doubtful,
                                        [&](const Finding& finding) {
                                            return finding.form == each.form && finding.control == each.control &&
                                                   finding.sentence == each.sentence;
                                        }))
            << each.sentence << "\n"
            << lines(doubtful);
    }
};

void put(FormEvents& world, std::string_view form,
         std::initializer_list<std::pair<std::string_view, std::string_view>> texts) {
    for (const auto& [key, text] : texts)
        world.box(form, key).restoreText(text);
}
void choose(FormEvents& world, std::string_view form, std::string_view key) {
    world.proposal.screen.event([&] { world.option(form, key).setValue(true); });
}

TEST_F(ReviewConsiderTest, FiguresThatContradictEachOther) {
    const Case cases[] = {
        {"frmAnnexureA", "txtNetArea", "The plot area less its deductions is 900.00, and not 901.",
         [](FormEvents& w) {
             choose(w, "frmAnnexureA", "IsAnyDeductOfRoadLine(1)");
             put(w, "frmAnnexureA",
                 {{"txtPltArea", "1000"}, {"txtTotalAreaRoadDeduction", "100"}, {"txtNetArea", "901"}});
         }},
        {"frmAnnexureA", "txtAreaAllowed", "The least of plot, actual and net area is 800.00, and not 900.",
         [](FormEvents& w) {
             put(w, "frmAnnexureA", {{"txtPltArea", "1000"}, {"txtActualArea", "900"}});
             choose(w, "frmAnnexureA", "IsAnyDeductOfRoadLine(1)");
             choose(w, "frmAnnexureA", "Opt2Y");
             put(w, "frmAnnexureA", {{"txtTotalAreaRoadDeduction", "200"}, {"txtNetArea", "800"}});
         }},
        {"frmAnnexureA", "txtTotalNoOfTenements", "The existing and the proposed tenements are 7.00, and not 8.",
         [](FormEvents& w) {
             put(w, "frmAnnexureA", {{"txtNoTeneExist", "3"}, {"txtTenePropose", "4"}, {"txtTotalNoOfTenements", "8"}});
         }},
        {"frmAnnexureA", "txtTotTene", "The overall floor space divided by the actual area is 1.25, and not 1.5.",
         [](FormEvents& w) {
             put(w, "frmAnnexureA", {{"txtActualArea", "800"}, {"txtOverAllFloorArea", "1000"}, {"txtTotTene", "1.5"}});
         }},
        {"frmPayDetail", "txtGrandTotal", "All amounts together are 30.00, and not 40.",
         [](FormEvents& w) {
             put(w, "frmPayDetail", {{"txtOther", "10"}, {"txtCompoundFees", "20"}, {"txtGrandTotal", "40"}});
         }},
        {"frmPayDetail", "txtDevAmtC", "The area times its rate is 50.00, and not 60.",
         [](FormEvents& w) {
             put(w, "frmPayDetail", {{"txtDevAreaC", "10"}, {"txtDevRateC", "5"}, {"txtDevAmtC", "60"}});
         }},
        {"frmDocCheckList", "txtDocPageNo(5)", "The last page, 3, stands before the first, 7.",
         [](FormEvents& w) {
             w.box("frmDocCheckList", "txtDocPageNo(4)").setText("7");
             w.box("frmDocCheckList", "txtDocPageNo(5)").setText("3");
         }},
    };
    for (const Case& each : cases)
        expect(each, &ReviewFixture::begin);
}

TEST_F(ReviewConsiderTest, NumbersBesideWhatIsListed) {
    const Case cases[] = {
        {"frmPlotExtractRelation", "txtNoOfPlot712", "The plots that are listed are 2, and not 3.",
         [](FormEvents& w) {
             put(w, "frmPlotExtractRelation", {{"txtNoOfPlot712", "3"}});
         }},
        {"frmPlotExtractRelation", "txtNoOfPrc", "The plots together have 3, and not 9.",
         [](FormEvents& w) {
             put(w, "frmPlotExtractRelation", {{"txtNoOfPrc", "9"}});
         }},
        {"frmPlotExtractRelation", "txtNoOfExtract712", "There are 3 7/12 extracts, and the plots together have 2.",
         [](FormEvents& w) { w.proposal.tables.rsPlot712->replace(1, PlotColumn::NoOfPRC, 0); }},
        {"frmMain712", "dgdInfoOfExtract", "7 owners are told, and 2 are listed.",
         [](FormEvents& w) { w.proposal.tables.rsExtract712->replace(0, ExtractColumn::NoOfOwners, 7); }},
        {"frmPRCEXT", "dgdInfoOfExtract", "7 holders are told, and 2 are listed.",
         [](FormEvents& w) { w.proposal.tables.rsExtractPRC->replace(0, ExtractColumn::NoOfPAHs, 7); }},
        {"frmUS84", "txtNoOfPlotOwnedByApplicant", "7 plots are told, and 2 are listed.",
         [](FormEvents& w) { w.proposal.tables.rsULCOrderUS84->replace(0, US84OrderColumn::NoOfPlots, "7"); }},
        {"frmUS84", "txtTotAreaOwnerShip", "The plots together have 0.00, and not 700.",
         [](FormEvents& w) {
             w.proposal.tables.rsULCOrderUS84->replace(0, US84OrderColumn::TotalAreaUnderOwnerShip, "700");
         }},
        {"frmUS84", "txtSurplusArea", "The total less deduction and green belt is 0.00, and not 7.",
         [](FormEvents& w) { w.proposal.tables.rsULCOrderUS84->replace(0, US84OrderColumn::Surplus, "7"); }},
        {"frmULC20aDetails", "txtCommonScheme(4)", "The surplus of the order under section 8(4) is 0.00, and not 7.",
         [](FormEvents& w) {
             w.proposal.tables.rsULCOrderUS84->replace(0, US84OrderColumn::Surplus, "0");
             w.proposal.tables.rsULCOrderUS20a1->replace(0, US20a1OrderColumn::v, "7");
         }},
    };
    for (const Case& each : cases)
        expect(each, &ReviewFixture::beginWhole);
}

TEST_F(ReviewConsiderTest, DatesToComeAndWhatNoDocumentCarries) {
    constexpr std::string_view noPlace = "The document has no place for this answer; it is on no file.";
    const Case cases[] = {
        {"frmAnnexureA", "DTPicker1", "16/03/2024 lies in the future.",
         [](FormEvents& w) {
             w.date("frmAnnexureA", "DTPicker1").setDate({2024, 3, 16});
         }},
        {"frmMain712", "dgdInfoOfExtract", "16/03/2024 lies in the future.",
         [](FormEvents& w) {
             w.proposal.tables.rsExtract712->replace(1, ExtractColumn::DateOf712, Date{2024, 3, 16});
         }},
        {"frmUS84", "dtpResultDate", "16/03/2024 lies in the future.",
         [](FormEvents& w) {
             w.proposal.tables.rsULCOrderUS84->replace(0, US84OrderColumn::ResultDate, "16/03/2024");
         }},
        {"frmULC20aDetails", "txtCommonScheme(1)",
         "The picker of an order that was read stands at the present day, and the next save of its form writes that "
         "for 14/03/2024.",
         [](FormEvents& w) { w.proposal.tables.rsULCOrderUS20a1->replace(0, US20a1OrderColumn::ii, "14/03/2024"); }},
        {"frmAnnexureA", "txtReservationArea", noPlace,
         [](FormEvents& w) {
             put(w, "frmAnnexureA", {{"txtReservationArea", "7"}});
         }},
        {"frmAnnexureA", "txtExistingTotalFloorArea", noPlace,
         [](FormEvents& w) {
             put(w, "frmAnnexureA", {{"txtExistingTotalFloorArea", "7"}});
         }},
        {"frmAnnexureA", "txtProposedTotalFloorArea", noPlace,
         [](FormEvents& w) {
             put(w, "frmAnnexureA", {{"txtProposedTotalFloorArea", "7"}});
         }},
        {"frmScrutinyULC", "txtArea", noPlace,
         [](FormEvents& w) {
             put(w, "frmScrutinyULC", {{"txtArea", "7"}});
         }},
        {"frmofsupervision", "txtEngineer",
         "No file keeps the letters: this one is lost with New, Open and the program's end.",
         [](FormEvents& w) {
             put(w, "frmofsupervision", {{"txtEngineer", "Gauri"}});
         }},
    };
    for (const Case& each : cases)
        expect(each, &ReviewFixture::beginWhole);
}

TEST_F(ReviewConsiderTest, CertificatesThatTheNextFileDoesNotCarryOrCarriesFromEarlier) {
    begin();
    world.box("frmIssuOfDRc", "txtVillage").setText("Tervale");
    const auto sentences = [&] {
        std::string all;
        for (const Finding& finding : found(FindingKind::Consider))
            if (finding.form == "frmIssuOfDRc") {
                EXPECT_NE(finding.question, "") << finding.sentence;
                all += finding.sentence + "\n";
            }
        return all;
    };
    EXPECT_EQ(sentences(), "The application for a certificate is not in the file until its own Save was pressed.\n");
    user::click(world.button("frmIssuOfDRc", "cmdSave"));
    const std::string lost =
        "The application for a certificate is in the next file, and lost when that is opened and saved again after a "
        "new start.\n";
    EXPECT_EQ(sentences(), lost);
    world.box("frmIssuOfDRc", "txtVillage").setText("Balundi");
    EXPECT_EQ(sentences(), lost +
                               "The application for a certificate is written as it was when its own Save was last "
                               "pressed; what was typed since is not.\n");
}

TEST_F(ReviewConsiderTest, ExtractsWithoutAnOrderAreToldOnce) {
    beginWhole();
    const std::vector<Finding> doubtful = found(FindingKind::Consider);
    EXPECT_EQ(std::ranges::count_if(doubtful,
                                    [](const Finding& each) {
                                        return each.sentence.starts_with("5 extracts lack an order of some kind");
                                    }),
              1)
        << lines(doubtful);
}

}  // namespace
}  // namespace plandesk::test
