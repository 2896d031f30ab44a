#include "document/SectionTables.h"

#include <array>
#include <vector>

#include "base/Date.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "document/Pieces.h"
#include "fees/PackedFees.h"
#include "fees/frmPayDetail.h"
#include "particulars/AnnexureACont.h"
#include "particulars/PackedSections.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/ReferenceLists.h"

namespace plandesk {

namespace {

frmAnnexureA& annexure(Form& form) {
    return static_cast<frmAnnexureA&>(form);
}

// "REV" lands on the position of "CHG"; the codes of positions that the list does not have are an error.
void readCaseType(Form& form, std::string_view code) {
    annexure(form).cboCaseType.setListIndex(ReadComboValues(code, 0));
}

void readProject(Form& form, std::string_view code) {
    annexure(form).cboProposProj.setListIndex(ReadComboValues(code, 1));
}

void readProposalType(Form& form, std::string_view text) {
    // An empty type clears the case type read just before and leaves the type itself.
    if (trim(text).empty())
        return annexure(form).cboCaseType.setListIndex(-1);
    if (const int position = plotUsePosition(text); position >= 0)
        annexure(form).cboProposalTyp.setListIndex(position);
}

void readSector(Form& form, std::string_view text) {
    ComboBox& list = annexure(form).cboSector;
    if (trim(text).empty())
        return list.setListIndex(-1);
    for (int position = 0; position < list.listCount(); ++position)  // the last match stays
        if (list.itemData(position) == toDouble(text))
            list.setListIndex(position);
}

void readApplicant(Form& form, std::string_view text) {
    annexure(form).txtApplicantNm.setText(text.substr(0, text.find('~')));  // the rest of the name is lost
}

void readProfessional(Form& form, std::string_view text) {
    frmAnnexureA& sheet = annexure(form);
    const std::string_view code = trim(text);
    if (code == "ARCH")
        sheet.OptArch.setValue(true);
    else if (code == "LE")
        sheet.OptLE.setValue(true);
    else if (code == "SE")
        sheet.OptSE.setValue(true);
}

// The one field whose backslashes are halved again.
void readRegistration(Form& form, std::string_view text) {
    annexure(form).txtRegNm.setText(replaceAll(text, R"(\\)", R"(\)"));
}

void readZone(Form& form, std::string_view code) {
    ComboBox& list = annexure(form).cboZone;
    if (code.empty())
        list.setListIndex(-1);
    else
        list.setText(zoneCaption(code));
}

constexpr FieldRow::Condition ifCleared{15, 1};

constexpr std::array sectionOne = std::to_array<FieldRow>({
    {0, "TITLE", FieldRow::whole, "txtTitle"},
    {1, "CASETYPE", FieldRow::whole, "cboCaseType", Decode::Special, readCaseType},
    {2, "PROPOSALTYPE", FieldRow::whole, "cboProposalTyp", Decode::Special, readProposalType},
    {3, "PROPOSEDPROJECT", FieldRow::whole, "cboProposProj", Decode::Special, readProject},
    {4, "PROPOSALDATE", FieldRow::whole, "DTPicker1"},
    {5, "SECTOR", FieldRow::whole, "cboSector", Decode::Special, readSector},
    {6, "PLOTNO", FieldRow::whole, "txtpltno"},
    {7, "FPNO", FieldRow::whole, "txtFPNo"},
    {8, "HISSANO", FieldRow::whole, "txtHissaNo"},
    {9, "CTSNO", FieldRow::whole, "txtCTSNo"},
    // 10, TIKANO, is never read: the proposed F.A.R comes from TOTALFSI.
    {11, "GUTNO", FieldRow::whole, "txtGutNo"},
    {12, "APPLICANTNM", FieldRow::whole, "txtApplicantNm", Decode::Special, readApplicant},
    {13, "APPLICANTADDR", FieldRow::whole, "txtApplicantAddr"},
    {14, "ARCHINFO", 0, "OptArch", Decode::Special, readProfessional},
    {14, "ARCHINFO", 1, "txtArchNm"},
    {14, "ARCHINFO", 2, "txtArchFirstName"},
    {14, "ARCHINFO", 3, "txtArchMiddName"},
    {14, "ARCHINFO", 4, "txtRegNm", Decode::Special, readRegistration},
    {15, "THREE-RAD", 0, "Opt1", Decode::YesNoStrict},
    {16, "THREE-TEXT", 0, "txtPltArea"},
    {16, "THREE-TEXT", 1, "txtActualArea"},
    {16, "THREE-TEXT", 2, "txtAreaAllowed", Decode::Plain, nullptr, ifCleared},
    {17, "REMARK1", FieldRow::whole, "txtRmk1"},
    {18, "FILENO", FieldRow::whole, "txtFileNo"},
    {19, "REVNO", FieldRow::whole, "txtRevNo"},
    {20, "ReservationType", FieldRow::whole, "txtReservationType"},
    {15, "THREE-RAD", 1, "Opt2", Decode::YesNoStrict},  // after the areas: its Yes works the allowed area out anew
    {21, "TOTALFSI", FieldRow::whole, "txtTikaNo"},
});

constexpr std::array sectionTwo = std::to_array<FieldRow>({
    {0, "FOUR-RAD", FieldRow::whole, "Opt3"},
    {1, "FIVE-RAD", FieldRow::whole, "Opt4"},
    {2, "FIVE-TEXT", 0, "txtSanctionNo"},
    {2, "FIVE-TEXT", 1, "DTPicker2"},
    {3, "SIX-A", FieldRow::whole, "cboZone", Decode::Special, readZone},
    {4, "SEVEN-RAD", 0, "Opt5"},
    {4, "SEVEN-RAD", 1, "Opt6"},
    {4, "SEVEN-RAD", 2, "Opt7"},
    {4, "SEVEN-RAD", 3, "Opt8"},
    {5, "EIGHT-RAD", 0, "Opt9"},
    {5, "EIGHT-RAD", 1, "Opt10"},
    {5, "EIGHT-RAD", 2, "Opt11"},
    {5, "EIGHT-RAD", 3, "Opt12"},
    {5, "EIGHT-RAD", 4, "Opt13"},
    {5, "EIGHT-RAD", 5, "Opt14"},
    {5, "EIGHT-RAD", 6, "Opt15"},
    {5, "EIGHT-RAD", 7, "Opt16"},
    {5, "EIGHT-RAD", 8, "Opt17"},
    {6, "EIGHT-TEXT", 0, "txtMainProcess"},
    {6, "EIGHT-TEXT", 1, "txtWorkmen"},
    {6, "EIGHT-TEXT", 2, "txtHPEmp"},
    {6, "EIGHT-TEXT", 3, "txtInstClass"},
    {6, "EIGHT-TEXT", 4, "txtReferalLaw"},
    {6, "EIGHT-TEXT", 5, "txtInstNm"},
    {6, "EIGHT-TEXT", 6, "txtInstAddr"},
    {6, "EIGHT-TEXT", 7, "txtWaste"},
    {7, "NINE-TEXT", 0, "txtAverage"},
    {7, "NINE-TEXT", 1, "txtPescribWidth"},
    {7, "NINE-TEXT", 2, "txtBuildingHgt"},
    {7, "NINE-TEXT", 3, "txtAbvCentStreet"},
    {8, "TEN-TEXT", 0, "txtNoTeneExist"},
    {8, "TEN-TEXT", 1, "txtTenePropose"},
    {9, "REMARK2", FieldRow::whole, "txtRmk2"},
});

constexpr std::array sectionThree = std::to_array<FieldRow>({
    {0, "ELEVEN-RAD", FieldRow::whole, "Opt18"},
    {1, "ELEVEN-TEXT", 0, "txtPlinthArea"},
    {1, "ELEVEN-TEXT", 1, "txtFloorArea"},
    {1, "ELEVEN-TEXT", 2, "txtDevRights"},
    {1, "ELEVEN-TEXT", 3, "txtTotTene"},
    {2, "REMARK3", FieldRow::whole, "txtRmk3"},
});

/// Packed values come back as they went: each part to its control, in the order of the document.
std::vector<FieldRow> packedFields(std::span<const PackedRow> rows, int firstField = 0) {
    std::vector<FieldRow> fields;
    for (const PackedRow& row : rows) {
        const Pieces controls = firstPieces(row.controls, " ", row.controls.size());
        const int field = firstField + static_cast<int>(&row - rows.data());
        for (std::size_t part = 0; part < controls.size(); ++part)
            fields.push_back(
                {field, row.element, controls.size() == 1 ? FieldRow::whole : static_cast<int>(part), controls[part]});
    }
    return fields;
}

}  // namespace

std::span<const SectionTable> sectionTables() {
    static const std::vector<FieldRow> sectionFour = packedFields(sectionFourRows);
    static const std::vector<FieldRow> sectionFive = packedFields(sectionFiveRows);
    static const std::array tables = std::to_array<SectionTable>({
        {frmAnnexureA::formName, sectionOne},
        {frmAnnexureA::formName, sectionTwo},
        {frmAnnexureA::formName, sectionThree},
        {AnnexureACont::formName, sectionFour},
        {AnnexureACont::formName, sectionFive},
    });
    return tables;
}

const FeeTables& feeTables() {
    static const std::vector<FieldRow> fees = packedFields(paymentRows.first(paymentMode));
    static const std::vector<FieldRow> bankDetails =
        packedFields(paymentRows.subspan(paymentMode + 1), static_cast<int>(paymentMode) + 1);
    static const std::vector<FieldRow> second = packedFields(secondScrutinyRows, static_cast<int>(paymentRows.size()));
    static const FeeTables tables = {frmPayDetail::formName, fees, static_cast<int>(paymentMode), bankDetails, second};
    return tables;
}

}  // namespace plandesk
