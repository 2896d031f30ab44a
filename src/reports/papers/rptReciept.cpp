#include "reports/Report.h"
#include "reports/papers/Parts.h"

namespace plandesk {

using namespace layouts;

namespace {

constexpr std::string_view form = "frmAnnexureA";
constexpr std::array rows = std::to_array<FeedRow>({
    {"NameOfApplcant", 200, FeedRule::Upper, "txtApplicantNm", form},
    {"AddOfApplcant", 250, FeedRule::Upper, "txtApplicantAddr", form},
    {"BldgNo", 250, FeedRule::Fixed, "....."},
    {"vilage", 250, FeedRule::Fixed, "----------"},
    {"Sector", 250, FeedRule::Upper, "cboSector", form},
    {"wardNO", 250, FeedRule::Fixed, "-------"},
    {"CTSNO", 250, FeedRule::Upper, "txtCTSNo", form},
    {"plotno", 250, FeedRule::Upper, "txtpltno", form},
    {"FinalPlotNo", 250, FeedRule::Upper, "txtFPNo", form},
    {"archName", 250, FeedRule::Upper, "txtArchNm", form},
    {"LicNo", 250, FeedRule::Upper, "txtRegNm", form},
});
constexpr auto columns = columnsOf(rows);
constexpr Feed feed{.rows = rows, .columns = columns, .table = &Tables::rsReportHeader};

PaperRow enclosure(std::string_view number, std::string_view words) {
    return line({text(number), text(words)}, RowStyle::Indented);
}

std::vector<PaperRow> enclosures() {
    return {
        enclosure("1.", "Key Plan (Location) plan as mentioned in Regulation"),
        enclosure("2.", "Site Plan."),
        enclosure("3.", "Sub division/layout plan."),
        enclosure("4.", "Building Plan."),
        enclosure("5.",
                  "Particulars of Development in the Form as prescribed in Annexure 1 of Appendix-A of Regulations."),
        enclosure("6.", "Service Plan."),
        enclosure("7.", "Ownership title as mentioned in clauses (i), (ii) and (iii) of by Regulation 10."),
        enclosure("8.", "Attested Copy of receipt for payment of development permission fee."),
        enclosure("9.", "Clearance Certificate of Tax arrears"),
        enclosure("10.", "Appointment letter in favour of Licence Technical Person/Architect by the Owner"),
        enclosure("11.", "Acceptance letter from the Licensed Technical Person or Architect"),
        enclosure("12.",
                  "No objection cerificate from the various authorities as may be required under RegulationNo. 10."),
    };
}

PaperSection letter() {
    return {SectionKind::Letter,
            {
                line({text("Sir,")}),
                line({
                    text("I intend to carry out development in the site/to erect, to re-erect/to demolish/to make "
                         "material alteration in the building "),
                    text("No."),
                    field("BldgNo"),
                    text("in village"),
                    field("vilage"),
                    text("Sector No"),
                    field("Sector"),
                    text("Ward No"),
                    field("wardNO"),
                    text("situated at road/street...... "),
                    text("CTS NO."),
                    field("CTSNO"),
                    text("S.No./Plot No."),
                    field("plotno"),
                    text("F.P.No."),
                    field("FinalPlotNo"),
                    text("in accordance with the provision of the Maharashtra"),
                    text(" Regional and Town planning Act, 1966. I, therefore apply for permission under section "
                         "44/69 of the that Act."),
                }),
                line({
                    text("I forward here with the following plans and statments (items 1 to 6) Wherever "
                         "applicable, in quadruplicate signed by me and"),
                    field("archName"),
                    text(" the licenced to registered Architect / Engineer / Structural Engineer / Supervisor "
                         "Licence No"),
                    field("LicNo"),
                    text("who  has prepared the plans, designs and a copy of other statements / documents, as "
                         "applicable (items 7 to 10)."),
                }),
            }};
}

Paper paper() {
    return {
        .title = "Application for development permission",
        .body =
            {
                {SectionKind::Letter,
                 {
                     line({text("To,")}),
                     line({text("The Commissioner,")}),
                     line({text("Municipal Corporation of the City of Sindhavali,")}),
                 }},
                letter(),
                {SectionKind::Letter, enclosures()},
                {SectionKind::Letter,
                 {
                     line({text("I request that proposed development/construction may be approved and permission "
                                "accorded to me under the Maharashtra Regional and Town Planning Act, 1966 to execute "
                                "the work.")}),
                     line({text("Yours faithfully,")}, RowStyle::Right),
                     line({text("Signature of Owner")}, RowStyle::Right),
                 }},
                {SectionKind::Pairs,
                 {
                     pair("Name of Owner :", {field("NameOfApplcant")}),
                     pair("Address of Owner :", {field("AddOfApplcant")}),
                 }},
            },
    };
}

}  // namespace

Report rptReciept() {
    return {
        .name = "rptReciept",
        .feed = &feed,
        .procedure = "fillHeader",
        .shownBy = ShownBy::Button,
        .window = receiptWindow,
        .layout = paper,
    };
}

}  // namespace plandesk
