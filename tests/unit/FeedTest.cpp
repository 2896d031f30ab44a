#include "reports/Feed.h"

#include <set>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "reports/ReportCatalogue.h"
#include "unit/Sources.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

constexpr std::string_view sheet = "frmAnnexureA";

constexpr std::array rows = std::to_array<FeedRow>({
    {"Title", 20, FeedRule::Text, "txtTitle", sheet},
    {"Trimmed", 20, FeedRule::Trimmed, "txtTitle", sheet},
    {"Upper", 20, FeedRule::Upper, "txtTitle", sheet},
    {"Page", 20, FeedRule::Page, "txtRevNo", sheet},
    {"Zone", 20, FeedRule::Text, "cboZone", sheet},
    {"Street", 20, FeedRule::Text, "lblStreet(1)", sheet},
    {"Day", 20, FeedRule::Date, "DTPicker1", sheet},
    {"Enclosed", 20, FeedRule::YesNo, "Opt3", sheet},
    {"Fixed", 20, FeedRule::Fixed, "asd"},
    {"Number", 20, FeedRule::RowNumber},
    {"Empty", 20, FeedRule::Nothing},
    {"Open", 20, FeedRule::Fixed, "open", sheet, "txtRmk1"},
});
constexpr auto columns = columnsOf(rows);
constexpr Feed sound{.rows = rows, .columns = columns};

struct Feeds : testing::Test, World {
    std::vector<std::string> values(const Feed& feed, int row = 0) {
        const auto table = feedTable(feed, proposal);
        const auto rows = table->allRows();
        std::vector<std::string> texts;
        for (const Value& value : rows.at(static_cast<std::size_t>(row)))
            texts.push_back(isNull(value) ? "null" : valueText(value));
        return texts;
    }

    /// What is wrong with a feed of that row alone.
    std::string faultOf(const FeedRow& row, int count = 1) {
        const std::vector<std::string> faults =
            feedFaults({.rows = {&row, 1}, .columns = {}, .count = count}, proposal);
        EXPECT_LE(faults.size(), 1U);
        return faults.empty() ? "" : faults.front();
    }
};

TEST_F(Feeds, ARowIsCopiedFromTheControlsByEachRule) {
    box(sheet, "txtTitle").setText(" Row houses ");
    list(sheet, "cboZone").setText("Residential (R1)");
    date(sheet, "DTPicker1").setDate({2024, 2, 29});
    option(sheet, "Opt3N").setValue(true);
    EXPECT_EQ(values(sound),
              (std::vector<std::string>{" Row houses ", "Row houses", "ROW HOUSES", "--", "Residential (R1)",
                                        "2.Street", "29/02/2024", "NO", "asd", "1", "null", "open"}));
    option(sheet, "Opt3Y").setValue(true);
    box(sheet, "txtRevNo").setText(" ");
    box(sheet, "txtRmk1").setEnabled(false);
    const auto again = values(sound);
    EXPECT_EQ(again[3], " ") << "a page of blanks is not empty";
    EXPECT_EQ(again[7], "YES");
    EXPECT_EQ(again[11], "");
    option(sheet, "Opt3Y").setValue(false);
    EXPECT_EQ(values(sound)[7], "--");
    EXPECT_EQ(feedFaults(sound, proposal), std::vector<std::string>{});
}

TEST_F(Feeds, EachFaultIsToldByName) {
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Text}), "column A: nothing feeds it");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Fixed}), "column A: nothing feeds it");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Nothing, "txtTitle"}), "column A: it has a source that nothing reads");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Text, "txtTitle"}), "column A: its source is on no form");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Fixed, "x", sheet}), "column A: it has a form that nothing reads");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::OptionsWalk, "Opt3Y", sheet}), "column A: nothing walks over it");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Text, "txtTitel", sheet}), "column A: frmAnnexureA has no txtTitel");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Text, "cmdSave", sheet}), "column A: frmAnnexureA has no cmdSave");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Date, "txtTitle", sheet}), "column A: frmAnnexureA has no txtTitle");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::YesNo, "txtTitle", sheet}), "column A: frmAnnexureA has no txtTitle");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Fixed, "x", sheet, "txtTitel"}), "column A: frmAnnexureA has no txtTitel");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Text, "txtTitle", "frmAnnex"}), "column A: There is no form frmAnnex");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Text, "lblStreet", sheet}, 4), "");
    EXPECT_EQ(faultOf({"A", 9, FeedRule::Text, "lblStreet", sheet}, 5), "column A: frmAnnexureA has no lblStreet");
    const FeedRow two[] = {{"A", 9, FeedRule::Nothing}, {"a", 9, FeedRule::Nothing}};
    EXPECT_EQ(feedFaults({.rows = two, .columns = {}}, proposal),
              (std::vector<std::string>{"column A: it is there twice", "column a: it is there twice"}));
    const FeedRow walked{"A", 9, FeedRule::OptionsWalk, "txtTitle", sheet};
    EXPECT_EQ(feedFaults({.rows = {&walked, 1}, .columns = {}, .walk = [](Proposal&, Recordset&) {}}, proposal),
              std::vector<std::string>{"column A: frmAnnexureA has no txtTitle"});
}

TEST_F(Feeds, AControlThatIsNotThereEndsTheFeed) {
    static constexpr std::array lost = std::to_array<FeedRow>({{"A", 9, FeedRule::Text, "txtTitel", sheet}});
    static constexpr auto lostColumns = columnsOf(lost);
    EXPECT_THROW(feedTable({.rows = lost, .columns = lostColumns}, proposal), RuntimeError);
}

TEST_F(Feeds, EveryFeedOfTheCatalogueIsSound) {
    std::set<const Feed*> seen;
    for (const Report& report : reportCatalogue()) {
        if (seen.insert(report.feed).second) {
            EXPECT_EQ(feedFaults(*report.feed, proposal), std::vector<std::string>{}) << report.name;
        }
    }
    EXPECT_EQ(seen.size(), 12U);
}

// Layouts

TEST(ReportCatalogue, EveryFieldOfALayoutHasItsColumn) {
    for (const Paper& paper : reportLayouts()) {
        ASSERT_TRUE(isReport(paper.name)) << paper.name;
        std::set<std::string> known;
        for (const FeedRow& row : findReport(paper.name).feed->rows)
            known.insert(upperCase(row.column));
        for (const auto* part : {&paper.header, &paper.body, &paper.footer})
            for (const PaperSection& section : *part)
                for (const PaperRow& row : section.rows)
                    for (const PaperCell& cell : row.cells)
                        for (const PaperItem& item : cell)
                            if (item.isField()) {
                                EXPECT_TRUE(known.contains(upperCase(item.field)))
                                    << paper.name << " has the field " << item.field;
                            }
    }
}

TEST(ReportCatalogue, EveryReportHasItsLayout) {
    for (const Report& row : reportCatalogue())
        EXPECT_NE(findLayout(row.name), nullptr) << row.name;
    EXPECT_EQ(reportCatalogue().size(), reportLayouts().size());
}

TEST(ReportCatalogue, EveryReportThatHasAFileIsListed) {
    const auto reports = inSources(PLANDESK_SOURCES, R"re(\nReport (\w+)\(\) \{)re");
    EXPECT_EQ(reports.size(), reportCatalogue().size());
    for (const auto& [name, file] : reports) {
        EXPECT_TRUE(isReport(name)) << name << " of " << file << " is not in the catalogue";
        EXPECT_EQ(file, name + ".cpp");
    }
}

TEST(ReportCatalogue, EveryReportNamedInTheSourcesIsThere) {
    const auto named = inSources(PLANDESK_SOURCES, R"re("(rpt\w+)")re");
    EXPECT_GE(named.size(), 17U);
    for (const auto& [name, file] : named)
        EXPECT_TRUE(isReport(name)) << name << " of " << file;
}

TEST(ReportCatalogue, ReportsAreFoundInAnyCaseAndUnknownOnesByName) {
    EXPECT_EQ(findReport("RPTRECIEPT").name, "rptReciept");
    EXPECT_FALSE(isReport("rptReceipt"));
    try {
        findReport("rptReceipt");
        FAIL() << "an unknown report was found";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.description, "There is no report rptReceipt");
    }
}

TEST(ReportCatalogue, EachWindowStandsAtItsPlace) {
    const auto at = [](std::string_view report) {
        const PaperPlace place = findReport(report).window;
        return std::vector<int>{place.left, place.top, place.width, place.height};
    };
    using Place = std::vector<int>;
    for (const std::string_view page :
         {"rptAnnexutreA", "rptAnnexutreA1", "rptAnnexutreA2", "rptAnnexutreA3", "rptAnnexutreA4", "rptAnnexutreA5"})
        EXPECT_EQ(at(page), (Place{0, 0, 15000, 9500})) << page;
    EXPECT_EQ(at("rptReciept"), (Place{0, 0, 15000, 8750}));
    for (const std::string_view report :
         {"rptPaymentDetails", "rptDocChecklist", "rptFormofSupervision", "rptNoticeforcommencementofwork",
          "rptformforintimationofcompletionofworkuptoplinthlevel", "forbldgcompletion",
          "rptforpartoccupancycertificate", "rptTDRfortransferringownership"})
        EXPECT_EQ(at(report), (Place{0, 600, 15000, 8750})) << report;
    EXPECT_EQ(at("rptDiscretionNewCase"), (Place{50, 600, 15000, 8750}));
    EXPECT_EQ(at("rptDiscretionRevCase"), (Place{50, 600, 15000, 8750}));
}

}  // namespace
}  // namespace plandesk::test
