#include "reports/Report.h"
#include "reports/papers/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

constexpr std::string_view mandatoryForm = "frmDocCheckList";
constexpr std::string_view conditionalForm = "frmDocCheckList1";

constexpr FeedRow page(std::string_view column, std::string_view form, std::string_view box) {
    return {column, form == mandatoryForm ? 100 : 5, FeedRule::Page, box, form};
}

constexpr FeedRow blank(std::string_view column) {
    return {column, 5, FeedRule::Nothing};
}

// All nine mandatory documents have their pages on paper. Of the 35 conditional rows the first five have, and those are
// the documents 9 to 13 of the form.
constexpr std::array rows = std::to_array<FeedRow>({
    page("txtpagefrom1", mandatoryForm, "txtDocPageNo(0)"),
    page("txtpagefrom2", mandatoryForm, "txtDocPageNo(2)"),
    page("txtpagefrom3", mandatoryForm, "txtDocPageNo(4)"),
    page("txtpagefrom4", mandatoryForm, "txtDocPageNo(6)"),
    page("txtpagefrom5", mandatoryForm, "txtDocPageNo(8)"),
    page("txtpagefrom6", mandatoryForm, "txtDocPageNo(10)"),
    page("txtpagefrom7", mandatoryForm, "txtDocPageNo(12)"),
    page("txtpagefrom8", mandatoryForm, "txtDocPageNo(14)"),
    page("txtpagefrom9", mandatoryForm, "txtDocPageNo(16)"),
    page("txtpageto1", mandatoryForm, "txtDocPageNo(1)"),
    page("txtpageto2", mandatoryForm, "txtDocPageNo(3)"),
    page("txtpageto3", mandatoryForm, "txtDocPageNo(5)"),
    page("txtpageto4", mandatoryForm, "txtDocPageNo(7)"),
    page("txtpageto5", mandatoryForm, "txtDocPageNo(9)"),
    page("txtpageto6", mandatoryForm, "txtDocPageNo(11)"),
    page("txtpageto7", mandatoryForm, "txtDocPageNo(13)"),
    page("txtpageto8", mandatoryForm, "txtDocPageNo(15)"),
    page("txtpageto9", mandatoryForm, "txtDocPageNo(17)"),
    page("mtxtpagefrom1", conditionalForm, "txtDocPageNo(18)"),
    page("mtxtpagefrom2", conditionalForm, "txtDocPageNo(20)"),
    page("mtxtpagefrom3", conditionalForm, "txtDocPageNo(22)"),
    page("mtxtpagefrom4", conditionalForm, "txtDocPageNo(24)"),
    page("mtxtpagefrom5", conditionalForm, "txtDocPageNo(26)"),
    blank("mtxtpagefrom6"),
    blank("mtxtpagefrom7"),
    blank("mtxtpagefrom8"),
    blank("mtxtpagefrom9"),
    blank("mtxtpagefrom10"),
    blank("mtxtpagefrom11"),
    blank("mtxtpagefrom12"),
    blank("mtxtpagefrom13"),
    blank("mtxtpagefrom14"),
    blank("mtxtpagefrom15"),
    blank("mtxtpagefrom16"),
    blank("mtxtpagefrom17"),
    blank("mtxtpagefrom18"),
    blank("mtxtpagefrom19"),
    blank("mtxtpagefrom20"),
    blank("mtxtpagefrom21"),
    blank("mtxtpagefrom22"),
    blank("mtxtpagefrom23"),
    blank("mtxtpagefrom24"),
    blank("mtxtpagefrom25"),
    blank("mtxtpagefrom26"),
    blank("mtxtpagefrom27"),
    blank("mtxtpagefrom28"),
    blank("mtxtpagefrom29"),
    blank("mtxtpagefrom30"),
    blank("mtxtpagefrom31"),
    blank("mtxtpagefrom32"),
    blank("mtxtpagefrom33"),
    blank("mtxtpagefrom34"),
    blank("mtxtpagefrom35"),
    page("mtxtpageto1", conditionalForm, "txtDocPageNo(19)"),
    page("mtxtpageto2", conditionalForm, "txtDocPageNo(21)"),
    page("mtxtpageto3", conditionalForm, "txtDocPageNo(23)"),
    page("mtxtpageto4", conditionalForm, "txtDocPageNo(25)"),
    page("mtxtpageto5", conditionalForm, "txtDocPageNo(27)"),
    blank("mtxtpageto6"),
    blank("mtxtpageto7"),
    blank("mtxtpageto8"),
    blank("mtxtpageto9"),
    blank("mtxtpageto10"),
    blank("mtxtpageto11"),
    blank("mtxtpageto12"),
    blank("mtxtpageto13"),
    blank("mtxtpageto14"),
    blank("mtxtpageto15"),
    blank("mtxtpageto16"),
    blank("mtxtpageto17"),
    blank("mtxtpageto18"),
    blank("mtxtpageto19"),
    blank("mtxtpageto20"),
    blank("mtxtpageto21"),
    blank("mtxtpageto22"),
    blank("mtxtpageto23"),
    blank("mtxtpageto24"),
    blank("mtxtpageto25"),
    blank("mtxtpageto26"),
    blank("mtxtpageto27"),
    blank("mtxtpageto28"),
    blank("mtxtpageto29"),
    blank("mtxtpageto30"),
    blank("mtxtpageto31"),
    blank("mtxtpageto32"),
    blank("mtxtpageto33"),
    blank("mtxtpageto34"),
    blank("mtxtpageto35"),
});
constexpr auto columns = columnsOf(rows);
constexpr Feed feed{.rows = rows, .columns = columns, .table = &Tables::rsReportChecklist};

PaperSection documents(std::vector<PaperRow> rows) {
    rows.insert(rows.begin(), {{{text("Document Name")}, {text("Page From")}, {text("Page To")}}, RowStyle::Head});
    return {.kind = SectionKind::Table, .rows = std::move(rows), .widths = {72, 14, 14}};
}

PaperRow document(std::string_view name, std::string_view from, std::string_view to) {
    return {{{text(name)}, {field(from)}, {field(to)}}};
}

PaperSection mandatory() {
    return documents({
        document("Five copies of plans showing services", "txtpagefrom1", "txtpageto1"),
        document("Particulars of development", "txtpagefrom2", "txtpageto2"),
        document("Ownership title document (7/12 Extract/P.R.Card/Allotment letter)", "txtpagefrom3", "txtpageto3"),
        document("Actual demarcation Certificate", "txtpagefrom4", "txtpageto4"),
        document("Copy of receipt of paying Building Permit fee", "txtpagefrom5", "txtpageto5"),
        document("Tax Clerance Certificate from V.D.M.A. Tax Department", "txtpagefrom6", "txtpageto6"),
        document("Affidavit and Indemnity Bond/Order under U.L.C. Act", "txtpagefrom7", "txtpageto7"),
        document("NOC from drainage department Section", "txtpagefrom8", "txtpageto8"),
        document("NOC from water supply development section", "txtpagefrom9", "txtpageto9"),
    });
}

// Two documents stand here twice.
PaperSection conditional() {
    return documents({
        document("Demarcation Certificate showing Road Widening Line/ Reservation", "mtxtpagefrom1", "mtxtpageto1"),
        document("Power of Attorney", "mtxtpagefrom2", "mtxtpageto2"),
        document("Copy of Sanctioned Layout Plan", "mtxtpagefrom3", "mtxtpageto3"),
        document("NOC from MSEB", "mtxtpagefrom4", "mtxtpageto4"),
        document("NOC from M.I.D.C Office (leasedeed, Possession receipt  demarcation certificate,M.P.C.B.M.C.)",
                 "mtxtpagefrom5", "mtxtpageto5"),
        document("NOC from MSEB", "mtxtpagefrom6", "mtxtpageto6"),
        document("NOC from M.I.D.C Office (leasedeed, Possession receipt  demarcation certificate,M.P.C.B.M.C.)",
                 "mtxtpagefrom7", "mtxtpageto7"),
        document("Strom water dain/rain harvesting", "mtxtpagefrom8", "mtxtpageto8"),
        document("Reg.sale/ lease deed/ power of attorney", "mtxtpagefrom9", "mtxtpageto9"),
        document("Labour Commissioner NOC", "mtxtpagefrom10", "mtxtpageto10"),
        document("Tax clearance certificate.[Redevelopment,Reconstruction)", "mtxtpagefrom11", "mtxtpageto11"),
        document("NA order", "mtxtpagefrom12", "mtxtpageto12"),
        document("Development agreement", "mtxtpagefrom13", "mtxtpageto13"),
        document("Copy of right of way", "mtxtpagefrom14", "mtxtpageto14"),
        document("Affidavit (for ULC)", "mtxtpagefrom15", "mtxtpageto15"),
        document("Indemnity bond (for ULC)", "mtxtpagefrom16", "mtxtpageto16"),
        document("ULC order", "mtxtpagefrom17", "mtxtpageto17"),
        document("Society NOC (if plot area under society)", "mtxtpagefrom18", "mtxtpageto18"),
        document("Allotment letter of society", "mtxtpagefrom19", "mtxtpageto19"),
        document("B-form (if plot under T.P.scheme)", "mtxtpagefrom20", "mtxtpageto20"),
        document("Structural stability report(if existing structure retained)", "mtxtpagefrom21", "mtxtpageto21"),
        document("MHADA lease deed(if plot from MHADA layout)", "mtxtpagefrom22", "mtxtpageto22"),
        document("Land acquisition opinion", "mtxtpagefrom23", "mtxtpageto23"),
        document("Tenent NOC/occupier NOC", "mtxtpagefrom24", "mtxtpageto24"),
        document("Order under section 32g of BTAL Act", "mtxtpagefrom25", "mtxtpageto25"),
        document("NOC from khari land board", "mtxtpagefrom26", "mtxtpageto26"),
        document("NOC from forest Department", "mtxtpagefrom27", "mtxtpageto27"),
        document("Environment clearance from NOEF", "mtxtpagefrom28", "mtxtpageto28"),
        document("NOC from tourism Department", "mtxtpagefrom29", "mtxtpageto29"),
        document("NOC from dept of explosives", "mtxtpagefrom30", "mtxtpageto30"),
        document("NOC from collector", "mtxtpagefrom31", "mtxtpageto31"),
        document("NOC from Civil Aviation Dept.", "mtxtpagefrom32", "mtxtpageto32"),
        document("NOC from police", "mtxtpagefrom33", "mtxtpageto33"),
        document("N A tax receipt", "mtxtpagefrom34", "mtxtpageto34"),
        document("Water Tax receipt", "mtxtpagefrom35", "mtxtpageto35"),
    });
}

Paper paper() {
    return {
        .title = "Document checklist",
        .header = {{SectionKind::Heading, {line({text("Documenty CheckList - Mandatory & Conditional Mandatory")})}}},
        .body = {mandatory(),
                 {SectionKind::Letter, {line({text("Conditional Mandatory check list")}, RowStyle::Bold)}},
                 conditional()},
    };
}

}  // namespace

Report rptDocChecklist() {
    return {
        .name = "rptDocChecklist",
        .feed = &feed,
        .procedure = "fillChecklist",
        .shownBy = ShownBy::Procedure,
        .window = letterWindow,
        .layout = paper,
    };
}

}  // namespace plandesk
