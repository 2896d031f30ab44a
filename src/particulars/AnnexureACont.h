#pragma once

#include <string>
#include <string_view>

#include "controls/Controls.h"
#include "particulars/PageButtons.h"
#include "particulars/StepLinks.h"
#include "proposal/DataForm.h"

namespace plandesk {

/// Particulars of Development, Sections IV and V, on five pages. Its save leaves the answers as two packed texts in the
/// carriers of frmAnnexureA.
class AnnexureACont : public DataForm {
public:
    static constexpr std::string_view formName = "AnnexureACont";

    /// The checklists follow this tab; only the page buttons and the tabs lead to those behind it.
    static constexpr int lastTabBeforeChecklists = 2;

    explicit AnnexureACont(Proposal& proposal);
    void load() override;
    const Layout& layout() const override;

    /// Packs the answers into txtSectFourVal and txtSecFiveVal of frmAnnexureA. True when that was done.
    bool SaveData();
    /// True always: nothing here is checked.
    bool validate() const { return true; }
    /// Saves, then brings frmAnnexureA to the front.
    void cmdSave_Click();
    void cmdNext_Click();
    void cmdPrevious_Click();

    /// The link to the payment in red, those to the Sections in blue.
    void paintLinks();
    void paintPageButtons();

    // Head
    StepLinks links;
    Button cmdNavPrev{*this, "cmdNavPrev", "<<"};
    PageButtons cmdFormNo{*this};
    Button cmdNavNext{*this, "cmdNavNext", ">>"};
    TabStrip SectFourDet{*this, "SectFourDet", PageButtons::count - PageButtons::firstOfSectionFour};

    // Page 5: open spaces
    TextBox txtWidthOfFrontOpenSpace{*this, "txtWidthOfFrontOpenSpace"};
    YesNo IsAbutsTwoMoreStreets{*this, "IsAbutsTwoMoreStreets"};
    YesNo IsComplyWithRegul74{*this, "IsComplyWithRegul74"};
    YesNo ApplicableProvInAppendixN{*this, "ApplicableProvInAppendixN"};
    TextBox txtDistCentStreet{*this, "txtDistCentStreet"};
    YesNo Opt19{*this, "Opt19Y", "Opt19N"};
    TextBox txtWidthOfSideOpenSpace{*this, "txtWidthOfSideOpenSpace"};
    TextBox txtWidthOfRearOpenSpace{*this, "txtWidthOfRearOpenSpace"};
    TextBox txtDistanceBetweenBldg{*this, "txtDistanceBetweenBldg"};
    YesNo IsComplyWithRegul75{*this, "IsComplyWithRegul75"};
    YesNo IsPlotNarrow{*this, "IsPlotNarrow"};
    YesNo Opt20{*this, "Opt20Y", "Opt20N"};
    YesNo Opt21{*this, "Opt21Y", "Opt21N"};

    // Page 6: chowks, lifts, fire protection
    TextBox txtDiaInnerChowk{*this, "txtDiaInnerChowk"};
    TextBox txtDiaOuterChowk{*this, "txtDiaOuterChowk"};
    YesNo Opt22{*this, "Opt22Y", "Opt22N"};
    YesNo Opt23{*this, "Opt23Y", "Opt23N"};
    YesNo Opt24{*this, "Opt24Y", "Opt24N"};
    YesNo Opt25{*this, "Opt25Y", "Opt25N"};
    YesNo opt26{*this, "opt26Y", "Opt26N"};
    TextBox txtLiftTyp{*this, "txtLiftTyp"};
    TextBox txtLiftPassCap{*this, "txtLiftPassCap"};
    TextBox txtNoLift{*this, "txtNoLift"};
    TextBox txtDoorTyp{*this, "txtDoorTyp"};
    TextBox txtFireDetail{*this, "txtFireDetail"};
    YesNo Opt27{*this, "Opt27Y", "Opt27N"};
    YesNo Opt28{*this, "Opt28Y", "Opt28N"};
    TextBox txtRmk4{*this, "txtRmk4"};

    // Page 7: parking, balconies
    TextBox txtRequirmentForParking{*this, "txtRequirmentForParking"};
    TextBox txtParkingSpaceProposed{*this, "txtParkingSpaceProposed"};
    TextBox txtLockUpGaragesProposed{*this, "txtLockUpGaragesProposed"};
    YesNo IsLoadingUnloadinUnRegulat86{*this, "IsLoadingUnloadinUnRegulat86"};
    TextBox txtRequirement{*this, "txtRequirement"};
    TextBox txtProposedSpaceForLoadUnLoading{*this, "txtProposedSpaceForLoadUnLoading"};
    TextBox txtMaxWidthOfBalcony{*this, "txtMaxWidthOfBalcony"};
    YesNo IsReduceOpenSpace{*this, "IsReduceOpenSpace"};
    YesNo Opt29{*this, "Opt29Y", "Opt29N"};
    TextBox txtTotalArea{*this, "txtTotalArea"};
    TextBox txtMaxWidthOtherProjection{*this, "txtMaxWidthOtherProjection"};
    YesNo IsCanopiesProposed{*this, "IsCanopiesProposed"};
    YesNo IsComplyWithRegula80{*this, "IsComplyWithRegula80"};

    // Page 8: access, accessory buildings, walls, restricted zones, plinth
    TextBox txtWidthMeanAccess{*this, "txtWidthMeanAccess"};
    YesNo opt21bi{*this, "opt21bi"};
    TextBox txtRightWay{*this, "txtRightWay"};  ///< answer of opt21bi as a digit, never shown
    Frame Frame5{*this, "Frame5", ""};
    YesNo opt21bii{*this, "opt21bii"};
    TextBox txtAttachDoc{*this, "txtAttachDoc"};  ///< answer of opt21bii as a digit, never shown
    TextBox txtClearHgt{*this, "txtClearHgt"};
    YesNo Opt30{*this, "Opt30Y", "Opt30N"};
    YesNo IsAmenityUnRegula54{*this, "IsAmenityUnRegula54"};
    YesNo IsAnyAccessoryBldgProposed{*this, "IsAnyAccessoryBldgProposed"};
    TextBox txtPurposeAccessoryBldg{*this, "txtPurposeAccessoryBldg"};
    TextBox txtHgtEnroch{*this, "txtHgtEnroch"};
    Frame fraIsAwayFrom75Or15{*this, "fraIsAwayFrom75Or15", ""};
    YesNo IsAwayFrom75Or15{*this, "IsAwayFrom75Or15"};
    Frame fraOpt31{*this, "fraOpt31", ""};
    YesNo Opt31{*this, "Opt31Y", "Opt31N"};
    TextBox txtCompWallHgt{*this, "txtCompWallHgt"};
    YesNo Opt32{*this, "Opt32Y", "Opt32N"};
    YesNo Opt33{*this, "Opt33Y", "Opt33N"};
    YesNo Opt36{*this, "Opt36Y", "Opt36N"};
    YesNo Opt37{*this, "Opt37Y", "Opt37N"};
    TextBox txtProvAnteena{*this, "txtProvAnteena"};
    YesNo Opt34{*this, "Opt34Y", "Opt34N"};
    YesNo Opt35{*this, "Opt35Y", "Opt35N"};
    YesNo IsNaturalWaterCoursePass{*this, "IsNaturalWaterCoursePass"};
    YesNo IsSetbackProvideRegula43{*this, "IsSetbackProvideRegula43"};
    TextBox txtNotComply{*this, "txtNotComply"};
    YesNo Opt38{*this, "Opt38Y", "Opt38N"};
    YesNo Opt39{*this, "Opt39Y", "Opt39N"};
    TextBox txtFillLevel{*this, "txtFillLevel"};
    TextBox txtLevelRoad{*this, "txtLevelRoad"};
    TextBox txtPlinthHgtRoad{*this, "txtPlinthHgtRoad"};

    // Page 9: materials, closets, water, trees
    TextBox txtRoofs{*this, "txtRoofs"};
    TextBox txtFloor{*this, "txtFloor"};
    TextBox txtWall{*this, "txtWall"};
    TextBox txtColumns{*this, "txtColumns"};
    TextBox txtBeam{*this, "txtBeam"};
    TextBox txtOtherItem{*this, "txtOtherItem"};
    TextBox txtWaterCloset{*this, "txtWaterCloset"};
    TextBox txtNoBath{*this, "txtNoBath"};
    TextBox txtNoUrinal{*this, "txtNoUrinal"};
    TextBox txtNoKitchen{*this, "txtNoKitchen"};
    TextBox txtNoOfWaterClosetProposed{*this, "txtNoOfWaterClosetProposed"};
    TextBox txtNoOfBathsClosetProposed{*this, "txtNoOfBathsClosetProposed"};
    TextBox txtNoOfUrinalsClosetProposed{*this, "txtNoOfUrinalsClosetProposed"};
    TextBox txtNoOfKitchenClosetProposed{*this, "txtNoOfKitchenClosetProposed"};
    TextBox txtSectionRemark4{*this, "txtSectionRemark4"};
    TextBox txtWaterSource{*this, "txtWaterSource"};
    TextBox txtDistSwer{*this, "txtDistSwer"};
    TextBox txtMuncipalLand{*this, "txtMuncipalLand"};
    TextBox txtRmk5{*this, "txtRmk5"};
    TextBox txtHowManyTrees{*this, "txtHowManyTrees"};
    TextBox txtNoOfTreesAffected{*this, "txtNoOfTreesAffected"};

    // Foot
    Button cmdPrevious{*this, "cmdPrevious", "Previous"};
    Button cmdNext{*this, "cmdNext", "Next"};
    Button cmdSave{*this, "cmdSave", "Save"};
    Button cmdSaveALL{*this, "cmdSaveALL", "Save Proposal Information"};
    Button Command5{*this, "Command5", "Print Particulars of Development"};
    Button Command9{*this, "Command9", "Close"};
    Button cmdClose{*this, "cmdClose", "Exit"};

private:
    void wireKeyFilters();
    void wireButtons();
    void opt21bi_Click();
    void txtAttachDoc_Change();
};

}  // namespace plandesk
