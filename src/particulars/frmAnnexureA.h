#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Controls.h"
#include "particulars/PageButtons.h"
#include "proposal/DataForm.h"

namespace plandesk {

/// Particulars of Development, Sections I to III, on four pages. It also carries, in boxes that the user never sees,
/// the answers of other forms and the path of the open proposal. Closed by hiding; only New and Open unload it.
class frmAnnexureA : public DataForm {
public:
    static constexpr std::string_view formName = "frmAnnexureA";

    explicit frmAnnexureA(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;
    /// Rewrites the active text box in proper case.
    void enterPressed() override;

    /// Shows page 0 to 8; any page but the first asks validateAnnexureFirstPage, and nothing happens when that is
    /// false.
    void cmdFormNo_Click(int index);
    void cmdNext_Click();
    void cmdPrevious_Click();
    void cmdNavNext_Click();
    void cmdNavPrev_Click();
    void cmdSave_Click();
    void cmdClose_Click();
    void Command1_Click();

    /// Turns to tab 0 to 3 by program code. A tab turned to by hand closes cmdNext on the last one; this leaves it
    /// usable.
    void goToTab(int tab);

    /// Joins the document and writes it.
    void SaveData();
    /// True always: the document writer asks it, and nothing beyond the first page is checked.
    bool validate() const { return true; }
    /// Whether the first page is complete. The first of the fifteen tests that fails is told in a message; its field
    /// gets the focus, on the first tab. `held` is a sentence of what the failure keeps from happening, which the
    /// message's second line tells.
    bool validateAnnexureFirstPage(std::string_view held = {});
    /// A test of the first page that fails now.
    struct FirstPageFault {
        Control* field;
        std::string text;
    };
    /// All of them, in their order. Tells and moves nothing.
    std::vector<FirstPageFault> firstPageFaults() const;
    /// Fills the lists of case types, projects and villages. RuntimeError 53 without a village file, 9 for a line of it
    /// with too few fields, 13 for a village number that is none.
    void setComboValues();

    /// Third fields of the village file, by line.
    TextList villageCodes;

    // Head
    Button cmdNavPrev{*this, "cmdNavPrev", "<<"};
    PageButtons cmdFormNo{*this};
    Button cmdNavNext{*this, "cmdNavNext", ">>"};
    Button cmdPlotRelation{*this, "cmdPlotRelation", "Plot extract relationship"};
    Button cmdUS84{*this, "cmdUS84", "Particular Of Proposal "};
    TabStrip PropTab{*this, "PropTab", PageButtons::firstOfSectionFour};

    // Page 1: Section I
    TextBox txtTitle{*this, "txtTitle"};
    ComboBox cboCaseType{*this, "cboCaseType"};
    Label lblFileNo{*this, "lblFileNo", "File No."};
    TextBox txtFileNo{*this, "txtFileNo"};
    Label lblRevNo{*this, "lblRevNo", "Revision No."};
    TextBox txtRevNo{*this, "txtRevNo"};
    ComboBox cboProposalTyp{*this, "cboProposalTyp"};
    ComboBox cboProposProj{*this, "cboProposProj"};
    DatePicker DTPicker1{*this, "DTPicker1"};
    ComboBox cboSector{*this, "cboSector"};
    TextBox txtpltno{*this, "txtpltno"};
    TextBox txtFPNo{*this, "txtFPNo"};
    TextBox txtHissaNo{*this, "txtHissaNo"};
    TextBox txtCTSNo{*this, "txtCTSNo"};
    TextBox txtGutNo{*this, "txtGutNo"};
    TextBox txtTikaNo{*this, "txtTikaNo"};
    TextBox txtApplicantNm{*this, "txtApplicantNm"};
    TextBox txtApplicantAddr{*this, "txtApplicantAddr"};
    OptionGroup professional;
    OptionButton OptArch{*this, professional, "OptArch", "Architect"};
    OptionButton OptLE{*this, professional, "OptLE", "Licence Engineer"};
    OptionButton OptSE{*this, professional, "OptSE", "Structural Engineer"};
    Label lblArch{*this, "lblArch", "Architect "};
    TextBox txtArchNm{*this, "txtArchNm"};
    Label lblfName{*this, "lblfName", "First Name"};
    TextBox txtArchFirstName{*this, "txtArchFirstName"};
    TextBox txtArchMiddName{*this, "txtArchMiddName"};
    TextBox txtRegNm{*this, "txtRegNm"};
    YesNo IsAffectRoadReservation{*this, "IsAffectRoadReservation"};
    TextBox txtPltArea{*this, "txtPltArea"};
    YesNo Opt1{*this, "Opt1Y", "Opt1N"};
    TextBox txtActualArea{*this, "txtActualArea"};

    // Page 2: plot details
    YesNo IsAnyDeductOfRoadLine{*this, "IsAnyDeductOfRoadLine"};
    TextBox txtTotalAreaRoadDeduction{*this, "txtTotalAreaRoadDeduction"};
    TextBox txtNetArea{*this, "txtNetArea"};
    YesNo Opt2{*this, "Opt2Y", "Opt2N"};
    TextBox txtAreaAllowed{*this, "txtAreaAllowed"};
    TextBox txtReservationType{*this, "txtReservationType"};
    TextBox txtReservationArea{*this, "txtReservationArea"};
    TextBox txtRmk1{*this, "txtRmk1"};
    YesNo Opt3{*this, "Opt3Y", "Opt3N"};
    YesNo Opt4{*this, "Opt4Y", "Opt4N"};
    TextBox txtSanctionNo{*this, "txtSanctionNo"};
    DatePicker DTPicker2{*this, "DTPicker2"};
    ComboBox cboZone{*this, "cboZone"};
    TextBox txtPermissibleFSIZone{*this, "txtPermissibleFSIZone"};
    TextBox txtNoOfTenamentsPerAcre{*this, "txtNoOfTenamentsPerAcre"};
    YesNo IsUseOfEveryRoomMarked{*this, "IsUseOfEveryRoomMarked"};
    YesNo IsInAccordanceRegulation{*this, "IsInAccordanceRegulation"};
    YesNo Opt5{*this, "Opt5Y", "Opt5N"};
    YesNo Opt6{*this, "Opt6Y", "Opt6N"};
    YesNo Opt7{*this, "Opt7Y", "Opt7N"};
    YesNo Opt8{*this, "Opt8Y", "Opt8N"};

    // Page 3: industry and streets
    YesNo Opt9{*this, "Opt9Y", "Opt9N"};
    TextBox txtMainProcess{*this, "txtMainProcess"};
    TextBox txtWorkmen{*this, "txtWorkmen"};
    TextBox txtHPEmp{*this, "txtHPEmp"};
    TextBox txtInstClass{*this, "txtInstClass"};
    TextBox txtReferalLaw{*this, "txtReferalLaw"};
    YesNo Opt10{*this, "Opt10Y", "Opt10N"};
    TextBox txtInstNm{*this, "txtInstNm"};
    TextBox txtInstAddr{*this, "txtInstAddr"};
    YesNo Opt11{*this, "Opt11Y", "Opt11N"};
    YesNo Opt12{*this, "Opt12Y", "Opt12N"};
    YesNo Opt13{*this, "Opt13Y", "Opt13N"};
    YesNo Opt14{*this, "Opt14Y", "Opt14N"};
    YesNo Opt15{*this, "Opt15Y", "Opt15N"};
    YesNo Opt16{*this, "Opt16Y", "Opt16N"};
    YesNo Opt17{*this, "Opt17Y", "Opt17N"};
    TextBox txtWaste{*this, "txtWaste"};
    YesNo Opt77{*this, "Opt77Y", "Opt77N"};
    TextBox txtAverage{*this, "txtAverage"};
    /// Street names beside the prescribed widths (0, 1) and the existing ones (2, 3).
    std::array<Label, 4> lblStreet{{
        {*this, "lblStreet", "1. Street ", 0},
        {*this, "lblStreet", "2.Street", 1},
        {*this, "lblStreet", "1. Street", 2},
        {*this, "lblStreet", "2.Street", 3},
    }};
    TextBox txtFstStreetWidth{*this, "txtFstStreetWidth"};
    TextBox txtPescribWidth{*this, "txtPescribWidth"};
    TextBox txtFstExistingWidth{*this, "txtFstExistingWidth"};
    TextBox txtExistingWidthStreet{*this, "txtExistingWidthStreet"};
    TextBox txtBuildingHgt{*this, "txtBuildingHgt"};
    TextBox txtAbvCentStreet{*this, "txtAbvCentStreet"};
    TextBox txtAboveAverageGrndLevel{*this, "txtAboveAverageGrndLevel"};
    YesNo IsComplyWith83Regulation{*this, "IsComplyWith83Regulation"};

    // Page 4: Section III
    YesNo IsAnyStructureOnPlot{*this, "IsAnyStructureOnPlot"};
    YesNo IsCorrectlyMarkedOnSitePlan{*this, "IsCorrectlyMarkedOnSitePlan"};
    YesNo IsDemolishMarkedYellow{*this, "IsDemolishMarkedYellow"};
    TextBox txtPlinthAreaOfStructureRet{*this, "txtPlinthAreaOfStructureRet"};
    TextBox txtNoTeneExist{*this, "txtNoTeneExist"};
    TextBox txtPlinthTotFloorArea{*this, "txtPlinthTotFloorArea"};
    TextBox txtTenePropose{*this, "txtTenePropose"};
    TextBox txtRmk2{*this, "txtRmk2"};
    TextBox txtPlinthArea{*this, "txtPlinthArea"};
    TextBox txtFloorArea{*this, "txtFloorArea"};
    TextBox txtExistingTotalFloorArea{*this, "txtExistingTotalFloorArea"};
    TextBox txtAnnexBPlinthArea{*this, "txtAnnexBPlinthArea"};
    TextBox txtAnnexBFloorArea{*this, "txtAnnexBFloorArea"};
    TextBox txtProposedTotalFloorArea{*this, "txtProposedTotalFloorArea"};
    YesNo Opt18{*this, "Opt18Y", "Opt18N"};
    TextBox txtDevRights{*this, "txtDevRights"};
    TextBox txtOverAllFloorArea{*this, "txtOverAllFloorArea"};
    TextBox txtTotTene{*this, "txtTotTene"};
    YesNo IsConsumeFullFloor{*this, "IsConsumeFullFloor"};
    TextBox txtWhyNot{*this, "txtWhyNot"};
    YesNo IsBldgSetbacksonUpFloors{*this, "IsBldgSetbacksonUpFloors"};
    TextBox txtTotalNoOfTenements{*this, "txtTotalNoOfTenements"};
    TextBox txtRmk3{*this, "txtRmk3"};

    // Foot
    Button cmdPrevious{*this, "cmdPrevious", "Previous"};
    Button cmdNext{*this, "cmdNext", "Next"};
    Button cmdSave{*this, "cmdSave", "Save"};
    Button cmdSaveALL{*this, "cmdSaveALL", "Save Proposal Information"};
    Button cmdPrint{*this, "cmdPrint", "Print Particulars of Development"};
    Button Command1{*this, "Command1", "Read XML"};
    Button cmdClose{*this, "cmdClose", "Close"};

    // Carriers, never shown
    TextBox txtSectFourVal{*this, "txtSectFourVal"};
    TextBox txtSecFiveVal{*this, "txtSecFiveVal"};
    TextBox txtDocChkList{*this, "txtDocChkList"};
    TextBox txtPayDetail{*this, "txtPayDetail"};
    TextBox txtPathNm{*this, "txtPathNm"};  ///< path of the open proposal; the main window's caption follows it

private:
    void wireKeyFilters();
    void wireFirstPageTests();
    void wireButtons();
    void PropTab_Click();
    void cboCaseType_Click();
    void showFileAndRevision(bool on);
    void Opt2Y_Click();
    void Opt2N_Click();
    bool refuseLetters(TextBox& area);
    bool refuseEmpty(TextBox& area, std::string_view text, std::string_view title);
};

}  // namespace plandesk
