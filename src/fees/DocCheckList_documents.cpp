// The documents of the two checklists, and what the forms look like.

#include "fees/DocCheckList.h"

namespace plandesk {

namespace {

// Behind the saved rows each list carries documents that nothing reads. They stay off the screen.

constexpr std::string_view mandatoryFirst[] = {
    "Five copies of plans showing services",
    "Particulars of development",
    "Ownership title document (7/12 Extract/P.R.Card/Allotment letter)",
    "Actual demarcation Certificate",
    "Copy of receipt of paying Building Permit fee",
    "Tax Clerance Certificate from V.D.M.A. Tax Department",
    "Affidavit and Indemnity Bond/Order under U.L.C. Act",
    "NOC from drainage department Section",
    "NOC from water supply development section",
    "Chief fire controller NOC ",
    "NOC from Railways",
    "NOC from directorate of industries/water poll./dept of safety",
    "NOC from M.S.E.B.",
    "Water NOC (occupation)",
};

constexpr std::string_view conditionalFirst[] = {
    "Appointment letter of Architects/Licensed surveyor",
    "Appointment letter of structural/consulting engineer",
    "Property Register card/B-Form",
    "7/12 Extract/B-Form",
    "Mutation Entry",
    "TILR sketch measurement plan /city survey sheet",
    "Gut book sketch",
    "D.P. remark",
    "Demarcation Certificate showing Road Widening Line/ Reservation",
    "Demarcation Certificate showing Road Widening Line/ Reservation",
    "Power of Attorney",
    "Copy of Sanctioned Layout Plan",
    "NOC from MSEB",
    "NOC from M.I.D.C Office (leasedeed, Possession receipt  demarcation certificate,M.P.C.B.M.C.)",
};

constexpr std::string_view common[] = {
    "Drainage NOC",
    "Strom water dain/rain harvesting",
    "Reg.sale/ lease deed/ power of attorney",
    "Labour Commissioner NOC",
    "Tax clearance certificate.[Redevelopment,Reconstruction)",
    "NA order",
    "Development agreement",
    "Copy of right of way",
    "Affidavit (for ULC)",
    "Indemnity bond (for ULC)",
    "ULC order",
    "Society NOC (if plot area under society)",
    "Allotment letter of society",
    "B-form (if plot under T.P.scheme)",
    "Structural stability report(if existing structure retained)",
    "MHADA lease deed(if plot from MHADA layout)",
    "Land acquisition opinion",
    "Tenent NOC/occupier NOC",
    "Order under section 32g of BTAL Act",
    "NOC from khari land board",
    "NOC from forest Department",
    "Environment clearance from NOEF",
    "NOC from tourism Department",
    "NOC from dept of explosives",
    "NOC from collector",
    "NOC from Civil Aviation Dept.",
    "NOC from police",
    "N A tax receipt",
    "Water Tax receipt",
};

constexpr std::string_view mandatoryLast[] = {"NOC from water supply development section "};

constexpr LayoutRow documentRows[] = {
    {"", "", "Check1(0) txtDocPageNo(0) txtDocPageNo(1)"},    {"", "", "Check1(1) txtDocPageNo(2) txtDocPageNo(3)"},
    {"", "", "Check1(2) txtDocPageNo(4) txtDocPageNo(5)"},    {"", "", "Check1(3) txtDocPageNo(6) txtDocPageNo(7)"},
    {"", "", "Check1(4) txtDocPageNo(8) txtDocPageNo(9)"},    {"", "", "Check1(5) txtDocPageNo(10) txtDocPageNo(11)"},
    {"", "", "Check1(6) txtDocPageNo(12) txtDocPageNo(13)"},  {"", "", "Check1(7) txtDocPageNo(14) txtDocPageNo(15)"},
    {"", "", "Check1(8) txtDocPageNo(16) txtDocPageNo(17)"},  {"", "", "Check1(9) txtDocPageNo(18) txtDocPageNo(19)"},
    {"", "", "Check1(10) txtDocPageNo(20) txtDocPageNo(21)"}, {"", "", "Check1(11) txtDocPageNo(22) txtDocPageNo(23)"},
    {"", "", "Check1(12) txtDocPageNo(24) txtDocPageNo(25)"}, {"", "", "Check1(13) txtDocPageNo(26) txtDocPageNo(27)"},
};

constexpr int mandatorySaved = 9;
constexpr int conditionalSaved = 14;

constexpr LayoutRow doorRows[] = {
    {"", "7/12 extract", "Image1(0)"},
    {"", "PRC", "Image1(1)"},
    {"", "NA Order", "Image1(2)"},
    {"", "ULC Order", "Image1(3)"},
};

constexpr std::string_view heads[] = {"", "Page From", "Page To"};

constexpr LayoutGroup mandatoryGroups[] = {
    {"Mandatory Document", std::span(documentRows).first(mandatorySaved), heads},
    {"Plot area details", doorRows},
};

constexpr LayoutGroup conditionalGroups[] = {
    {"Conditional Mandatory Documents", std::span(documentRows).first(conditionalSaved), heads},
    {"Plot area details", doorRows},
};

constexpr LayoutPage mandatoryPages[] = {{mandatoryGroups}};
constexpr LayoutPage conditionalPages[] = {{conditionalGroups}};

constexpr std::string_view links = "lblAnnextureA lblAnnexureB lblPayment";
constexpr std::string_view buttons = "cmdPrevious cmdNext cmdSave cmdSaveALL Command5 cmdClose";

constexpr Layout mandatorySheet{.head = links, .pages = mandatoryPages, .buttons = buttons};
constexpr Layout conditionalSheet{.head = links, .pages = conditionalPages, .buttons = buttons};

}  // namespace

constinit const DocCheckListKind mandatoryDocuments{
    .caption = "Document checklist - Mandatory Documents",
    .documents = {mandatoryFirst, common, mandatoryLast},
    .savedRows = mandatorySaved,
    .list = &Proposal::mandatoryDocList,
    .listBehind = &Proposal::conditionalDocList,
    .layout = mandatorySheet,
};

constinit const DocCheckListKind conditionalDocuments{
    .caption = "Document checklist - Conditional Mandatory Documents",
    .documents = {conditionalFirst, common, std::span<const std::string_view>()},
    .savedRows = conditionalSaved,
    .list = &Proposal::conditionalDocList,
    .listBehind = nullptr,
    .layout = conditionalSheet,
};

}  // namespace plandesk
