// What Sections I to III are written from; SectionTables.cpp tells what they are read into.

#include "document/SectionRows.h"

#include <array>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "base/Text.h"
#include "controls/Answers.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/ReferenceLists.h"

namespace plandesk {

namespace {

using Text = std::string;

const frmAnnexureA& annexure(const Form& form) {
    return static_cast<const frmAnnexureA&>(form);
}

/// The first question's digit and those of the questions that it opens: "2" for each unless it was answered Yes.
Text opened(const Form& form, std::string_view questions) {
    const std::vector<Text> names = split(questions, " ");
    Text digits = answer(form, names.front());
    const bool yes = digits == "1";
    for (std::size_t i = 1; i < names.size(); ++i)
        digits.append("#").append(yes ? answer(form, names[i]) : "2");
    return digits;
}

Text industry(const Form& form, std::string_view /*questions*/) {
    if (!annexure(form).Opt9.yes.value())
        return answer(form, "Opt9") + "#2#2#2#2#2#2#2#2";
    return "1#" + answers(form, "Opt10 Opt11") + "#" + opened(form, "Opt12 Opt13") + "#" + answer(form, "Opt14") + "#" +
           opened(form, "Opt15 Opt16 Opt17");
}

Text caseType(const Form& form, std::string_view list) {
    return Text(caseTypeCode(answer(form, list)));
}

Text project(const Form& form, std::string_view list) {
    return projectCode(answer(form, list));
}

Text zone(const Form& form, std::string_view list) {
    return Text(GetZoneNm(answer(form, list)));
}

Text sector(const Form& form, std::string_view /*list*/) {
    const ComboBox& list = annexure(form).cboSector;
    return list.listIndex() < 0 ? "" : std::to_string(list.itemData(list.listIndex()));
}

Text professional(const Form& form, std::string_view /*controls*/) {
    const frmAnnexureA& sheet = annexure(form);
    const Text code = sheet.OptArch.value() ? "ARCH" : sheet.OptLE.value() ? "LE" : "SE";
    return code + "#" + Text(trim(sheet.txtArchNm.text())) + "#" + sheet.txtArchFirstName.text() + "#" +
           sheet.txtArchMiddName.text() + "#" + Text(trim(sheet.txtRegNm.text()));
}

/// The area allowed only where the question of Opt2 asks for it.
Text areas(const Form& form, std::string_view controls) {
    return answers(form, annexure(form).Opt2.yes.value() ? controls : controls.substr(0, controls.rfind(' ')));
}

Text plainNumber(const Form& form, std::string_view box) {
    return numberText(leadingNumber(answer(form, box)));
}

constexpr std::array sectionOne = std::to_array<SectionRow>({
    {{"TITLE", "txtTitle"}, Escape::Yes},
    {{"CASETYPE", "cboCaseType", caseType}, Escape::No},
    {{"PROPOSALTYPE", "cboProposalTyp", asTyped}, Escape::No},
    {{"PROPOSEDPROJECT", "cboProposProj", project}, Escape::No},
    {{"PROPOSALDATE", "DTPicker1"}, Escape::No},
    {{"SECTOR", "cboSector", sector}, Escape::No},
    {{"PLOTNO", "txtpltno"}, Escape::Yes},
    {{"FPNO", "txtFPNo"}, Escape::Yes},
    {{"HISSANO", "txtHissaNo"}, Escape::Yes},
    {{"CTSNO", "txtCTSNo"}, Escape::Yes},
    {{"TIKANO", ""}, Escape::No},  // always empty: the proposed F.A.R goes to TOTALFSI
    {{"GUTNO", "txtGutNo"}, Escape::Yes},
    {{"APPLICANTNM", "txtApplicantNm"}, Escape::Yes},
    {{"APPLICANTADDR", "txtApplicantAddr"}, Escape::Yes},
    {{"ARCHINFO", "OptArch txtArchNm txtArchFirstName txtArchMiddName txtRegNm", professional}, Escape::Yes},
    {{"THREE-RAD", "Opt1 Opt2"}, Escape::No},
    {{"THREE-TEXT", "txtPltArea txtActualArea txtAreaAllowed", areas}, Escape::No},
    {{"REMARK1", "txtRmk1"}, Escape::Yes},
    {{"FILENO", "txtFileNo"}, Escape::Yes},
    {{"REVNO", "txtRevNo"}, Escape::Yes},
    {{"ReservationType", "txtReservationType"}, Escape::Yes},
    {{"TOTALFSI", "txtTikaNo", plainNumber}, Escape::No},
});

constexpr std::array sectionTwo = std::to_array<SectionRow>({
    {{"FOUR-RAD", "Opt3"}, Escape::Yes},
    {{"FIVE-RAD", "Opt4"}, Escape::Yes},
    {{"FIVE-TEXT", "txtSanctionNo DTPicker2"}, Escape::Yes},
    {{"SIX-A", "cboZone", zone}, Escape::Yes},
    {{"SEVEN-RAD", "Opt5 Opt6 Opt7 Opt8", opened}, Escape::Yes},
    {{"EIGHT-RAD", "Opt9 Opt10 Opt11 Opt12 Opt13 Opt14 Opt15 Opt16 Opt17", industry}, Escape::Yes},
    {{"EIGHT-TEXT", "txtMainProcess txtWorkmen txtHPEmp txtInstClass txtReferalLaw txtInstNm txtInstAddr txtWaste"},
     Escape::Yes},
    {{"NINE-TEXT", "txtAverage txtPescribWidth txtBuildingHgt txtAbvCentStreet"}, Escape::Yes},
    {{"TEN-TEXT", "txtNoTeneExist txtTenePropose"}, Escape::Yes},
    {{"REMARK2", "txtRmk2"}, Escape::Yes},
});

constexpr std::array sectionThree = std::to_array<SectionRow>({
    {{"ELEVEN-RAD", "Opt18"}, Escape::No},
    {{"ELEVEN-TEXT", "txtPlinthArea txtFloorArea txtDevRights txtTotTene"}, Escape::Yes},
    {{"REMARK3", "txtRmk3"}, Escape::Yes},
});

constexpr std::array sections = std::to_array<WrittenSection>({
    {"SECTION-I", sectionOne},
    {"SECTION-II", sectionTwo},
    {"SECTION-III", sectionThree},
});

}  // namespace

std::span<const WrittenSection> writtenSections() {
    return sections;
}

}  // namespace plandesk
