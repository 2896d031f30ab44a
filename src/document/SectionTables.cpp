#include "document/SectionTables.h"

#include <array>

#include "base/Date.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "controls/Controls.h"
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
    {0, "FOUR-RAD", FieldRow::whole, "Opt3", Decode::YesNo},
    {1, "FIVE-RAD", FieldRow::whole, "Opt4", Decode::YesNo},
    {2, "FIVE-TEXT", 0, "txtSanctionNo"},
    {2, "FIVE-TEXT", 1, "DTPicker2"},
    {3, "SIX-A", FieldRow::whole, "cboZone", Decode::Special, readZone},
    {4, "SEVEN-RAD", 0, "Opt5", Decode::YesNo},
    {4, "SEVEN-RAD", 1, "Opt6", Decode::YesNo},
    {4, "SEVEN-RAD", 2, "Opt7", Decode::YesNo},
    {4, "SEVEN-RAD", 3, "Opt8", Decode::YesNo},
    {5, "EIGHT-RAD", 0, "Opt9", Decode::YesNo},
    {5, "EIGHT-RAD", 1, "Opt10", Decode::YesNo},
    {5, "EIGHT-RAD", 2, "Opt11", Decode::YesNo},
    {5, "EIGHT-RAD", 3, "Opt12", Decode::YesNo},
    {5, "EIGHT-RAD", 4, "Opt13", Decode::YesNo},
    {5, "EIGHT-RAD", 5, "Opt14", Decode::YesNo},
    {5, "EIGHT-RAD", 6, "Opt15", Decode::YesNo},
    {5, "EIGHT-RAD", 7, "Opt16", Decode::YesNo},
    {5, "EIGHT-RAD", 8, "Opt17", Decode::YesNo},
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
    {0, "ELEVEN-RAD", FieldRow::whole, "Opt18", Decode::YesNo},
    {1, "ELEVEN-TEXT", 0, "txtPlinthArea"},
    {1, "ELEVEN-TEXT", 1, "txtFloorArea"},
    {1, "ELEVEN-TEXT", 2, "txtDevRights"},
    {1, "ELEVEN-TEXT", 3, "txtTotTene"},
    {2, "REMARK3", FieldRow::whole, "txtRmk3"},
});

constexpr std::array sectionFour = std::to_array<FieldRow>({
    {0, "ONETHREE-RAD", FieldRow::whole, "Opt19", Decode::YesNo},
    {1, "ONETHREE-TEXT", FieldRow::whole, "txtDistCentStreet"},
    {2, "ONEFOUR-RAD", 0, "Opt20", Decode::YesNo},
    {2, "ONEFOUR-RAD", 1, "Opt21", Decode::YesNo},
    {3, "ONESIX-RAD", 0, "Opt22", Decode::YesNo},
    {3, "ONESIX-RAD", 1, "Opt23", Decode::YesNo},
    {3, "ONESIX-RAD", 2, "Opt24", Decode::YesNo},
    {4, "ONESIX-TEXT", 0, "txtDiaInnerChowk"},
    {4, "ONESIX-TEXT", 1, "txtDiaOuterChowk"},
    {5, "ONESEVEN-RAD", 0, "Opt25", Decode::YesNo},
    {5, "ONESEVEN-RAD", 1, "opt26", Decode::YesNo},
    {6, "ONESEVEN-TEXT", 0, "txtLiftTyp"},
    {6, "ONESEVEN-TEXT", 1, "txtLiftPassCap"},
    {6, "ONESEVEN-TEXT", 2, "txtNoLift"},
    {6, "ONESEVEN-TEXT", 3, "txtDoorTyp"},
    {6, "ONESEVEN-TEXT", 4, "txtFireDetail"},
    {7, "ONEEIGHT-RAD", 0, "Opt27", Decode::YesNo},
    {7, "ONEEIGHT-RAD", 1, "Opt28", Decode::YesNo},
    {8, "REMARK4", FieldRow::whole, "txtRmk4"},
});

constexpr std::array sectionFive = std::to_array<FieldRow>({
    {0, "TWOZERO", FieldRow::whole, "Opt29", Decode::YesNo},
    {1, "TWOONE-RAD", FieldRow::whole, "Opt30", Decode::YesNo},
    {2, "TWOONE-TEXT", 0, "txtWidthMeanAccess"},
    {2, "TWOONE-TEXT", 1, "txtRightWay"},
    {2, "TWOONE-TEXT", 2, "txtAttachDoc"},
    {2, "TWOONE-TEXT", 3, "txtClearHgt"},
    {3, "TWOTHREE-RAD", FieldRow::whole, "Opt31", Decode::YesNo},
    {4, "TWOTHREE-TEXT", FieldRow::whole, "txtHgtEnroch"},
    {5, "TWOFOUR-RAD", 0, "Opt32", Decode::YesNo},
    {5, "TWOFOUR-RAD", 1, "Opt33", Decode::YesNo},
    {6, "TWOFOUR-TEXT", FieldRow::whole, "txtCompWallHgt"},
    {7, "TWOFIVE-RAD", 0, "Opt34", Decode::YesNo},
    {7, "TWOFIVE-RAD", 1, "Opt35", Decode::YesNo},
    {7, "TWOFIVE-RAD", 2, "Opt36", Decode::YesNo},
    {7, "TWOFIVE-RAD", 3, "Opt37", Decode::YesNo},
    {8, "TWOSIX-TEXT", FieldRow::whole, "txtProvAnteena"},
    {9, "TWOEIGHT-TEXT", FieldRow::whole, "txtNotComply"},
    {10, "TWONINE-RAD", 0, "Opt38", Decode::YesNo},
    {10, "TWONINE-RAD", 1, "Opt39", Decode::YesNo},
    {11, "TWONINE-TEXT", 0, "txtFillLevel"},
    {11, "TWONINE-TEXT", 1, "txtLevelRoad"},
    {11, "TWONINE-TEXT", 2, "txtPlinthHgtRoad"},
    {12, "THREEZERO-TEXT", 0, "txtRoofs"},
    {12, "THREEZERO-TEXT", 1, "txtFloor"},
    {12, "THREEZERO-TEXT", 2, "txtWall"},
    {12, "THREEZERO-TEXT", 3, "txtColumns"},
    {12, "THREEZERO-TEXT", 4, "txtBeam"},
    {12, "THREEZERO-TEXT", 5, "txtOtherItem"},
    {13, "THREEONE-TEXT", 0, "txtWaterCloset"},
    {13, "THREEONE-TEXT", 1, "txtNoBath"},
    {13, "THREEONE-TEXT", 2, "txtNoUrinal"},
    {13, "THREEONE-TEXT", 3, "txtNoKitchen"},
    {14, "THREETWO-TEXT", FieldRow::whole, "txtWaterSource"},
    {15, "THREETHREE-TEXT", FieldRow::whole, "txtDistSwer"},
    {16, "THREEFOUR-TEXT", FieldRow::whole, "txtMuncipalLand"},
    {17, "REMARK5", FieldRow::whole, "txtRmk5"},
});

constexpr std::array<SectionTable, 5> tables = {{
    {"frmAnnexureA", sectionOne},
    {"frmAnnexureA", sectionTwo},
    {"frmAnnexureA", sectionThree},
    {"AnnexureACont", sectionFour},
    {"AnnexureACont", sectionFive},
}};

}  // namespace

std::span<const SectionTable> sectionTables() {
    return tables;
}

}  // namespace plandesk
