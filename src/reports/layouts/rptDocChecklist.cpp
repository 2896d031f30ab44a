#include "reports/layouts/Layouts.h"
#include "reports/layouts/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

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

}  // namespace

Paper rptDocChecklist() {
    return {
        .name = "rptDocChecklist",
        .title = "Document checklist",
        .header = {{SectionKind::Heading, {line({text("Documenty CheckList - Mandatory & Conditional Mandatory")})}}},
        .body = {mandatory(),
                 {SectionKind::Letter, {line({text("Conditional Mandatory check list")}, RowStyle::Bold)}},
                 conditional()},
    };
}

}  // namespace plandesk
