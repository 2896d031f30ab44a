#include "reports/ReportDesk.h"

#include <gtest/gtest.h>

#include "base/RuntimeError.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

PaperItem label(std::string_view text) {
    return {.text = text};
}

PaperItem field(std::string_view column) {
    return {.field = column};
}

ReportData data(std::vector<std::string_view> columns, std::vector<std::vector<std::string>> rows) {
    ReportData made;
    made.columns = std::move(columns);
    made.rows = std::move(rows);
    return made;
}

/// What each row of the section shows: texts as they stand, fields as NAME=VALUE.
std::vector<std::string> shown(const PaperSection& section) {
    std::vector<std::string> rows;
    for (const PaperRow& row : section.rows) {
        std::string& text = rows.emplace_back();
        for (const PaperCell& cell : row.cells)
            for (const PaperItem& item : cell)
                text +=
                    item.isField() ? std::string(item.field) + "=" + item.value + ";" : std::string(item.text) + ";";
    }
    return rows;
}

TEST(FilledPaper, FieldsTakeTheirColumnsInAnyCaseAsOftenAsTheyStand) {
    const Paper layout{.name = "rptX",
                       .title = "X",
                       .header = {{SectionKind::Heading, {{{{label("%D"), field("fld1")}}}}}},
                       .body = {{SectionKind::Pairs, {{{{label("Name :")}, {field("FLD1")}}}}},
                                {SectionKind::Pairs, {{{{label("Unset")}, {field("Fld2"), field("nowhere")}}}}}},
                       .footer = {{SectionKind::Letter, {{{{field("Fld3")}}}}}}};
    const Paper paper = fillPaper(layout, data({"Fld1", "FLD2", "FLD3"}, {{"Asha", "", "x y"}}));
    EXPECT_EQ(shown(paper.header[0]), std::vector<std::string>{"%D;fld1=Asha;"});
    EXPECT_EQ(shown(paper.body[0]), std::vector<std::string>{"Name :;FLD1=Asha;"});
    EXPECT_EQ(shown(paper.body[1]), std::vector<std::string>{"Unset;Fld2=;nowhere=;"});
    EXPECT_EQ(shown(paper.footer[0]), std::vector<std::string>{"Fld3=x y;"});
}

TEST(FilledPaper, ARepeatedRowStandsOnceForEachRowOfTheData) {
    const Paper layout{.name = "rptX",
                       .title = "X",
                       .body = {{.kind = SectionKind::Table,
                                 .rows = {{{{label("Head")}}, RowStyle::Head}, {{{field("NO")}}}},
                                 .widths = {100},
                                 .repeats = true}}};
    using Rows = std::vector<std::string>;
    EXPECT_EQ(shown(fillPaper(layout, data({"No"}, {{"1"}, {"2"}, {"3"}})).body[0]),
              (Rows{"Head;", "NO=1;", "NO=2;", "NO=3;"}));
    EXPECT_EQ(shown(fillPaper(layout, data({"No"}, {{"1"}})).body[0]), (Rows{"Head;", "NO=1;"}));
    EXPECT_EQ(shown(fillPaper(layout, {}).body[0]), (Rows{"Head;", "NO=;"}));
}

struct Heard : ReportObserver {
    std::vector<std::string> log;

    void reportShown(const Preview& preview) override { log.push_back("shown " + std::string(preview.name)); }
    void reportChanged(const Preview& preview) override { log.push_back("changed " + std::string(preview.name)); }
    void reportClosed(std::string_view name) override { log.push_back("closed " + std::string(name)); }
    void reportPrinted(const Preview& printed) override { log.push_back("printed " + std::string(printed.name)); }
};

struct Desk : testing::Test, World {
    Desk() { desk.observer = &heard; }
    ~Desk() override { desk.observer = nullptr; }

    std::vector<std::string_view> open() const {
        std::vector<std::string_view> names;
        for (const Preview* preview : shell.reports().previews())
            names.push_back(preview->name);
        return names;
    }

    ReportDesk& desk = shell.reports();
    Heard heard;
};

TEST_F(Desk, APreviewShowsACopyUntilItsReportIsFedAgain) {
    ReportData remarks = data({"FLD1"}, {{"first"}});
    desk.bind("rptDiscretionNewCase", remarks);
    desk.show("RPTDISCRETIONNEWCASE");
    remarks.rows[0][0] = "later";
    const Preview* preview = desk.find("rptDiscretionNewCase");
    ASSERT_NE(preview, nullptr);
    EXPECT_EQ(*preview->data.find("fld1"), "first");
    EXPECT_EQ(preview->paper.name, "rptDiscretionNewCase");
    EXPECT_EQ(preview->paper.date, ports.clock.day);
    desk.bind("rptDiscretionNewCase", remarks);
    EXPECT_EQ(*preview->data.find("fld1"), "later");
    desk.bind("rptDiscretionNewCase", remarks);  // nothing new
    EXPECT_EQ(heard.log, (std::vector<std::string>{"shown rptDiscretionNewCase", "changed rptDiscretionNewCase"}));
}

TEST_F(Desk, PreviewsStackAndComeToTheFront) {
    desk.show("rptReciept");
    desk.show("rptDocChecklist");
    desk.show("rptReciept");
    EXPECT_EQ(open(), (std::vector<std::string_view>{"rptDocChecklist", "rptReciept"}));
    desk.place("rptReciept", {.left = 1, .top = 2, .width = 3, .height = 4});
    desk.show("rptReciept");
    EXPECT_EQ(desk.find("rptReciept")->place.height, 4);
    EXPECT_TRUE(desk.pressClose("rptDocChecklist"));
    EXPECT_FALSE(desk.pressClose("rptDocChecklist"));
    EXPECT_EQ(open(), std::vector<std::string_view>{"rptReciept"});
    desk.unloadAll();
    EXPECT_TRUE(open().empty());
    EXPECT_EQ(heard.log, (std::vector<std::string>{"shown rptReciept", "shown rptDocChecklist", "shown rptReciept",
                                                   "shown rptReciept", "closed rptDocChecklist", "closed rptReciept"}));
}

TEST_F(Desk, AReportKeepsWhatItWasGivenUntilAllAreUnloaded) {
    desk.bind("rptReciept", data({"LicNo"}, {{"77"}}));
    desk.show("rptReciept");
    desk.close("rptReciept");
    EXPECT_EQ(*desk.filled("rptReciept").data.find("LicNo"), "77");
    desk.unloadAll();
    EXPECT_EQ(desk.filled("rptReciept").data.find("LicNo"), nullptr);
}

TEST_F(Desk, PrintingGoesToThePrinterWithoutAPreview) {
    desk.bind("rptReciept", data({"LicNo"}, {{"77"}}));
    desk.print("rptReciept");
    desk.writePdf("rptReciept", "/out");
    EXPECT_EQ(ports.printer.printed, std::vector<std::string>{"rptReciept"});
    EXPECT_EQ(ports.printer.files, std::vector<std::filesystem::path>{"/out/rptReciept.pdf"});
    EXPECT_TRUE(open().empty());
    EXPECT_EQ(heard.log, std::vector<std::string>{"printed rptReciept"});
    ports.printer.failures.emplace("rptReciept", RuntimeError(ErrorNumber::PrinterError));
    EXPECT_THROW(desk.print("rptReciept"), RuntimeError);
    EXPECT_EQ(heard.log.size(), 1U);
}

TEST_F(Desk, APaperBearsTheNameOfTheProfessionalAsItStoodWhenItWasFed) {
    desk.bind("rptReciept", {});
    EXPECT_EQ(desk.filled("rptReciept").paper.person, "");
    box("frmAnnexureA", "txtArchNm").setText("Rao ");
    box("frmAnnexureA", "txtArchFirstName").setText("Meera");
    EXPECT_EQ(desk.filled("rptReciept").paper.person, "");
    desk.bind("rptReciept", {});
    EXPECT_EQ(desk.filled("rptReciept").paper.person, "Meera Rao");
}

TEST_F(Desk, NothingIsClosedBehindAModalForm) {
    desk.show("rptReciept");
    proposal.forms.touch("frmNaOrder")->showModal();
    EXPECT_FALSE(desk.pressClose("rptReciept"));
    proposal.forms.touch("frmNaOrder")->hide();
    EXPECT_TRUE(desk.pressClose("rptReciept"));
}

TEST_F(Desk, AnUnknownReportIsToldByName) {
    EXPECT_THROW(desk.show("rptReceipt"), RuntimeError);
    EXPECT_THROW(desk.bind("rptReceipt", {}), RuntimeError);
    EXPECT_THROW(desk.print("rptReceipt"), RuntimeError);
    EXPECT_EQ(desk.find("rptReceipt"), nullptr);
}

}  // namespace
}  // namespace plandesk::test
