#include "reports/Report.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "reports/ReportCatalogue.h"
#include "unit/Sources.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

constexpr std::string_view sheet = "frmAnnexureA";

std::string twice(Proposal& proposal) {
    return std::to_string(2 * proposal.feeArea);
}

constexpr ReportColumn columns[] = {
    {.name = "Title", .form = sheet, .control = "txtTitle"},
    {.name = "Enclosed", .form = sheet, .control = "Opt3"},
    {.name = "Twice", .value = twice},
    {.name = "Page", .staysEmpty = true},
};
constexpr ReportItem items[] = {{.text = "Proposal:"}, {.field = "Title"}, {.field = "Twice"}, {.field = "Page"}};
constexpr Report sound{"rptSound", columns, items};

struct Reports : testing::Test, World {
    std::vector<std::string> faultsOf(const ReportColumn& column, const ReportItem& item = {.text = "x"}) {
        return reportFaults({"rptBad", {&column, 1}, {&item, 1}}, proposal);
    }
};

TEST_F(Reports, ARowIsFilledFromTheControlsAsTheyStand) {
    box(sheet, "txtTitle").setText(" Row houses ");
    option(sheet, "Opt3N").setValue(true);
    proposal.feeArea = 21;
    EXPECT_EQ(fillReport(sound, proposal), (std::vector<std::string>{" Row houses ", "0", "42", ""}));
    EXPECT_EQ(reportFaults(sound, proposal), std::vector<std::string>{});
}

TEST_F(Reports, EachFaultIsToldByName) {
    using Faults = std::vector<std::string>;
    const ReportColumn fed{.name = "Fed", .value = twice};
    EXPECT_EQ(faultsOf({.name = "Title"}), Faults{"rptBad, column Title: nothing feeds it"});
    EXPECT_EQ(faultsOf({.name = "Title", .form = sheet, .control = "txtTitle", .value = twice}),
              Faults{"rptBad, column Title: it is fed and something else besides"});
    EXPECT_EQ(faultsOf({.name = "Title", .value = twice, .staysEmpty = true}),
              Faults{"rptBad, column Title: it is fed and something else besides"});
    EXPECT_EQ(faultsOf({.name = "Title", .form = sheet, .control = "txtTitel"}),
              Faults{"rptBad, column Title: frmAnnexureA has no txtTitel"});
    EXPECT_EQ(faultsOf({.name = "Title", .form = "frmAnnex", .control = "txtTitle"}),
              Faults{"rptBad, column Title: There is no form frmAnnex"});
    EXPECT_EQ(faultsOf(fed, {.field = "Feed"}), Faults{"rptBad, item Feed: it has no column"});
    EXPECT_EQ(faultsOf(fed, {.text = "x", .field = "Fed"}),
              Faults{"rptBad, item Fed: it is neither a text nor a field, or both"});
    EXPECT_EQ(faultsOf(fed, {}), Faults{"rptBad, item : it is neither a text nor a field, or both"});
    const ReportColumn two[] = {fed, fed};
    EXPECT_EQ(reportFaults({"rptBad", two, {}}, proposal),
              (Faults{"rptBad, column Fed: it is there twice", "rptBad, column Fed: it is there twice"}));
}

TEST_F(Reports, AControlThatIsNotThereIsToldWhenTheReportIsFilled) {
    const ReportColumn column{.name = "Title", .form = sheet, .control = "txtTitel"};
    EXPECT_THROW(fillReport({"rptBad", {&column, 1}, {}}, proposal), RuntimeError);
}

TEST_F(Reports, EveryReportOfTheCatalogueIsSound) {
    for (const Report* report : reportCatalogue())
        EXPECT_EQ(reportFaults(*report, proposal), std::vector<std::string>{});
}

TEST(ReportCatalogue, EveryReportNamedInTheSourcesIsThereOrToCome) {
    std::set<std::string_view> known(reportsToCome().begin(), reportsToCome().end());
    for (const Report* report : reportCatalogue())
        EXPECT_TRUE(known.insert(report->name).second) << report->name << " is there, not to come";
    const auto named = inSources(PLANDESK_SOURCES, R"re("(rpt\w+)")re");
    EXPECT_GE(named.size(), 17U);
    for (const auto& [name, file] : named)
        EXPECT_TRUE(known.contains(name)) << name << " of " << file;
}

TEST(ReportCatalogue, EveryReportThatIsDefinedIsInTheCatalogue) {
    std::set<std::string_view> catalogued;
    for (const Report* report : reportCatalogue())
        catalogued.insert(report->name);
    for (const auto& [name, file] :
         inSources(PLANDESK_SOURCES, R"re(Report \w+\s*(?:=\s*)?\{(?:\s*\.name = )?"(\w+)")re"))
        EXPECT_TRUE(catalogued.contains(name)) << name << " of " << file;
}

}  // namespace
}  // namespace plandesk::test
