#include "document/ProposalDocument.h"

#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "controls/Answers.h"
#include "document/DocumentBlocks.h"
#include "fees/PackedFees.h"
#include "particulars/PackedSections.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/Element.h"
#include "proposal/Proposal.h"
#include "proposal/ReferenceLists.h"
#include "proposal/mdlProject.h"

namespace plandesk {

namespace {

enum class Escape { No, Yes };

/// One element of Sections I to III. Its value is what `special` makes of the form, else the trimmed answers of the
/// controls joined by "#".
struct Row {
    std::string_view element;
    Escape escape;
    std::string_view controls;
    std::string (*special)(const frmAnnexureA& form) = nullptr;
};

std::string digit(const YesNo& question) {
    return std::to_string(question.code());
}

/// The digits of questions that a parent question opens: "2" for each unless the parent was answered Yes.
std::string opened(const YesNo& parent, std::initializer_list<const YesNo*> questions) {
    std::string digits = digit(parent);
    for (const YesNo* question : questions)
        digits += parent.yes.value() ? "#" + digit(*question) : "#2";
    return digits;
}

std::string sector(const frmAnnexureA& form) {
    const int chosen = form.cboSector.listIndex();
    return chosen < 0 ? "" : std::to_string(form.cboSector.itemData(chosen));
}

std::string professional(const frmAnnexureA& form) {
    const std::string code = form.OptArch.value() ? "ARCH" : form.OptLE.value() ? "LE" : "SE";
    return code + "#" + std::string(trim(form.txtArchNm.text())) + "#" + form.txtArchFirstName.text() + "#" +
           form.txtArchMiddName.text() + "#" + std::string(trim(form.txtRegNm.text()));
}

std::string areas(const frmAnnexureA& form) {
    return answers(form,
                   form.Opt2.yes.value() ? "txtPltArea txtActualArea txtAreaAllowed" : "txtPltArea txtActualArea");
}

std::string industry(const frmAnnexureA& form) {
    if (!form.Opt9.yes.value())
        return digit(form.Opt9) + "#2#2#2#2#2#2#2#2";
    return "1#" + digit(form.Opt10) + "#" + digit(form.Opt11) + "#" + opened(form.Opt12, {&form.Opt13}) + "#" +
           digit(form.Opt14) + "#" + opened(form.Opt15, {&form.Opt16, &form.Opt17});
}

constexpr std::array sectionOne = std::to_array<Row>({
    {"TITLE", Escape::Yes, "txtTitle"},
    {"CASETYPE", Escape::No, "",
     [](const frmAnnexureA& form) { return std::string(caseTypeCode(form.cboCaseType.text())); }},
    {"PROPOSALTYPE", Escape::No, "", [](const frmAnnexureA& form) { return form.cboProposalTyp.text(); }},
    {"PROPOSEDPROJECT", Escape::No, "",
     [](const frmAnnexureA& form) { return std::string(projectCode(form.cboProposProj.text())); }},
    {"PROPOSALDATE", Escape::No, "DTPicker1"},
    {"SECTOR", Escape::No, "", sector},
    {"PLOTNO", Escape::Yes, "txtpltno"},
    {"FPNO", Escape::Yes, "txtFPNo"},
    {"HISSANO", Escape::Yes, "txtHissaNo"},
    {"CTSNO", Escape::Yes, "txtCTSNo"},
    {"TIKANO", Escape::No, ""},  // always empty: the proposed F.A.R goes to TOTALFSI
    {"GUTNO", Escape::Yes, "txtGutNo"},
    {"APPLICANTNM", Escape::Yes, "txtApplicantNm"},
    {"APPLICANTADDR", Escape::Yes, "txtApplicantAddr"},
    {"ARCHINFO", Escape::Yes, "", professional},
    {"THREE-RAD", Escape::No, "Opt1 Opt2"},
    {"THREE-TEXT", Escape::No, "", areas},
    {"REMARK1", Escape::Yes, "txtRmk1"},
    {"FILENO", Escape::Yes, "txtFileNo"},
    {"REVNO", Escape::Yes, "txtRevNo"},
    {"ReservationType", Escape::Yes, "txtReservationType"},
    {"TOTALFSI", Escape::No, "",
     [](const frmAnnexureA& form) { return numberText(leadingNumber(form.txtTikaNo.text())); }},
});

constexpr std::array sectionTwo = std::to_array<Row>({
    {"FOUR-RAD", Escape::Yes, "Opt3"},
    {"FIVE-RAD", Escape::Yes, "Opt4"},
    {"FIVE-TEXT", Escape::Yes, "txtSanctionNo DTPicker2"},
    {"SIX-A", Escape::Yes, "", [](const frmAnnexureA& form) { return std::string(GetZoneNm(form.cboZone.text())); }},
    {"SEVEN-RAD", Escape::Yes, "",
     [](const frmAnnexureA& form) {
         return opened(form.Opt5, {&form.Opt6, &form.Opt7, &form.Opt8});
     }},
    {"EIGHT-RAD", Escape::Yes, "", industry},
    {"EIGHT-TEXT", Escape::Yes,
     "txtMainProcess txtWorkmen txtHPEmp txtInstClass txtReferalLaw txtInstNm txtInstAddr txtWaste"},
    {"NINE-TEXT", Escape::Yes, "txtAverage txtPescribWidth txtBuildingHgt txtAbvCentStreet"},
    {"TEN-TEXT", Escape::Yes, "txtNoTeneExist txtTenePropose"},
    {"REMARK2", Escape::Yes, "txtRmk2"},
});

constexpr std::array sectionThree = std::to_array<Row>({
    {"ELEVEN-RAD", Escape::No, "Opt18"},
    {"ELEVEN-TEXT", Escape::Yes, "txtPlinthArea txtFloorArea txtDevRights txtTotTene"},
    {"REMARK3", Escape::Yes, "txtRmk3"},
});

void appendSection(std::string& xml, const frmAnnexureA& form, std::span<const Row> rows) {
    for (const Row& row : rows) {
        const std::string value = row.special ? row.special(form) : answers(form, row.controls);
        appendElement(xml, row.element, row.escape == Escape::Yes ? EscapeXML(value) : value);
    }
}

/// One element for each row, with the packed values from `start` on; a value that is not there gives an empty element.
void appendPacked(std::string& xml, std::span<const PackedRow> rows, std::string_view packed, std::size_t start = 0) {
    const std::vector<std::string> values = split(packed, "$$");
    for (std::size_t i = 0; i < rows.size(); ++i)
        appendElement(xml, rows[i].element, start + i < values.size() ? values[start + i] : "");
}

void appendBlocks(std::string& xml, const Proposal& proposal, BlockPlace place) {
    for (const DocumentBlock& block : documentBlocks()) {
        if (block.place != place)
            continue;
        if (block.bare)
            appendElement(xml, block.element, proposal.*block.fragment);
        else
            xml += proposal.*block.fragment;
    }
}

}  // namespace

std::string joinDocument(Proposal& proposal) {
    const auto& form = proposal.forms.get<frmAnnexureA>();
    std::string xml;
    std::size_t size = 64 * 1024;
    for (const DocumentBlock& block : documentBlocks())
        size += (proposal.*block.fragment).size();
    xml.reserve(size);
    xml += "<?xml version = '1.0' ?><INWARDINFO DEPARTMENT='BP'><SECTION-I>";
    appendSection(xml, form, sectionOne);
    xml += "</SECTION-I><SECTION-II>";
    appendSection(xml, form, sectionTwo);
    xml += "</SECTION-II><SECTION-III>";
    appendSection(xml, form, sectionThree);
    xml += "</SECTION-III><SECTION-IV>";
    appendPacked(xml, sectionFourRows, EscapeXML(form.txtSectFourVal.text()));
    xml += "</SECTION-IV><SECTION-V>";
    appendPacked(xml, sectionFiveRows, EscapeXML(form.txtSecFiveVal.text()));
    xml += "</SECTION-V>";
    appendElement(xml, "DOCCHKLIST", EscapeXML(form.txtDocChkList.text()));
    xml += "<PAYMENTDETAIL>";
    appendPacked(xml, paymentRows, EscapeXML(form.txtPayDetail.text()));
    appendPacked(xml, secondScrutinyRows, proposal.secondScrutinyFees,
                 1);  // each value stands behind a "$$": the first piece is empty
    xml += "</PAYMENTDETAIL>";
    appendBlocks(xml, proposal, BlockPlace::BehindSections);
    xml += "<NTS>";
    appendBlocks(xml, proposal, BlockPlace::LandRecords);
    xml += "</NTS>";
    appendBlocks(xml, proposal, BlockPlace::BehindLandRecords);
    xml += "</INWARDINFO>";
    return xml;
}

}  // namespace plandesk
