// What feeds the six pages of the Particulars of Development.

#include <map>
#include <string>

#include "controls/Controls.h"
#include "proposal/Proposal.h"
#include "reports/papers/Particulars.h"

namespace plandesk {

namespace {

constexpr std::string_view sheet = "frmAnnexureA";
constexpr std::string_view cont = "AnnexureACont";
constexpr std::string_view firstStreet = "txtFstStreetWidth";  // closed unless the plot abuts on a second street

/// The control of the column's own name.
constexpr FeedRow text(std::string_view form, std::string_view column) {
    return {column, 250, FeedRule::Text, column, form};
}

constexpr FeedRow answer(std::string_view form, std::string_view column, std::string_view question) {
    return {column, 250, FeedRule::YesNo, question, form};
}

/// The option, or option array, of the column's own name.
constexpr FeedRow walked(std::string_view form, std::string_view column) {
    return {column, 250, FeedRule::OptionsWalk, column, form};
}

// In the order of the table. The columns in "NEW" are there because the walk spoils those without.
constexpr std::array rows = std::to_array<FeedRow>({
    {"NameOfApplcant", 200, FeedRule::Text, "txtApplicantNm", sheet},
    {"AddOfApplcant", 250, FeedRule::Text, "txtApplicantAddr", sheet},
    text(sheet, "txtArchNm"),
    text(sheet, "txtRegNm"),
    {"ValidUpto", 250, FeedRule::Fixed, "asd"},
    walked(sheet, "IsAffectRoadReservation"),
    answer(sheet, "IsAffectRoadReservationNEW", "IsAffectRoadReservation"),
    text(sheet, "txtPltArea"),
    walked(sheet, "Opt1Y"),
    text(sheet, "txtActualArea"),
    walked(sheet, "IsAnyDeductOfRoadLine"),
    walked(sheet, "Opt2Y"),
    text(sheet, "txtAreaAllowed"),
    walked(sheet, "Opt3Y"),
    walked(sheet, "Opt4Y"),
    text(sheet, "txtSanctionNo"),
    {"DTPicker2", 250, FeedRule::Date, "DTPicker2", sheet},
    text(sheet, "cboZone"),
    text(sheet, "txtPermissibleFSIZone"),
    text(sheet, "txtNoOfTenamentsPerAcre"),
    walked(sheet, "IsUseOfEveryRoomMarked"),
    walked(sheet, "IsInAccordanceRegulation"),
    answer(sheet, "IsInAccordanceRegulationNEW", "IsInAccordanceRegulation"),
    walked(sheet, "Opt5Y"),
    walked(sheet, "Opt6Y"),
    walked(sheet, "Opt7Y"),
    walked(sheet, "Opt8Y"),
    walked(sheet, "Opt9Y"),
    text(sheet, "txtAverage"),
    text(sheet, "txtPescribWidth"),
    text(sheet, "txtExistingWidthStreet"),
    {"txtFstStreetWidth", 250, FeedRule::Text, "txtFstStreetWidth", sheet, firstStreet},
    {"txtFstExistingWidth", 250, FeedRule::Text, "txtFstExistingWidth", sheet, firstStreet},
    {"txtStreet1", 250, FeedRule::Fixed, "1. Street :", sheet, firstStreet},
    {"txtStreet2", 250, FeedRule::Fixed, "2. Street", sheet, firstStreet},
    {"txtHeightOfBuilding", 250, FeedRule::Nothing},
    text(sheet, "txtAbvCentStreet"),
    text(sheet, "txtAboveAverageGrndLevel"),
    walked(sheet, "IsComplyWith83Regulation"),
    answer(sheet, "IsComplyWith83RegulationNEW", "IsComplyWith83Regulation"),
    walked(sheet, "IsAnyStructureOnPlot"),
    text(sheet, "txtNoTeneExist"),
    text(sheet, "txtPlinthAreaOfStructureRet"),
    text(sheet, "txtTenePropose"),
    text(sheet, "txtPlinthArea"),
    text(sheet, "txtAnnexBPlinthArea"),
    text(sheet, "txtFloorArea"),
    text(sheet, "txtAnnexBFloorArea"),
    walked(sheet, "Opt18Y"),
    text(sheet, "txtDevRights"),
    text(sheet, "txtOverAllFloorArea"),
    walked(sheet, "IsConsumeFullFloor"),
    walked(sheet, "IsBldgSetbacksonUpFloors"),
    text(sheet, "txtTotTene"),
    text(sheet, "txtTotalNoOfTenements"),
    text(cont, "txtWidthOfFrontOpenSpace"),
    walked(cont, "IsAbutsTwoMoreStreets"),
    walked(cont, "ApplicableProvInAppendixN"),
    answer(cont, "ApplicableProvInAppendixNNEW", "ApplicableProvInAppendixN"),
    {"cboSector", 250, FeedRule::Trimmed, "cboSector", sheet},
    walked(cont, "IsComplyWithRegul74"),
    text(sheet, "txtTotalAreaRoadDeduction"),
    text(sheet, "txtNetArea"),
    text(sheet, "txtMainProcess"),
    text(sheet, "txtWorkmen"),
    text(sheet, "txtHPEmp"),
    text(sheet, "txtInstClass"),
    text(sheet, "txtReferalLaw"),
    text(sheet, "txtInstNm"),
    text(sheet, "txtInstAddr"),
    answer(sheet, "Opt10Y", "Opt10"),
    answer(sheet, "Opt14Y", "Opt14"),
    answer(sheet, "Opt15Y", "Opt15"),
    answer(sheet, "Opt16Y", "Opt16"),
    answer(sheet, "Opt17Y", "Opt17"),
    text(sheet, "txtWaste"),
    answer(sheet, "Opt77Y", "Opt77"),
    answer(sheet, "IsCorrectlyMarkedOnSitePlanNEW", "IsCorrectlyMarkedOnSitePlan"),
    answer(sheet, "IsDemolishMarkedYellow", "IsDemolishMarkedYellow"),
    text(sheet, "txtPlinthTotFloorArea"),
    answer(cont, "Opt23Y", "Opt23"),
    answer(cont, "opt26Y", "opt26"),
    text(cont, "txtLiftTyp"),
    text(cont, "txtLiftPassCap"),
    text(cont, "txtNoLift"),
    text(cont, "txtDoorTyp"),
    text(cont, "txtRequirement"),
    text(cont, "txtPurposeAccessoryBldg"),
    answer(cont, "IsNaturalWaterCoursePassNEW", "IsNaturalWaterCoursePass"),
    text(sheet, "txtTikaNo"),
    text(cont, "txtDistCentStreet"),
    walked(cont, "Opt19Y"),
    text(cont, "txtWidthOfSideOpenSpace"),
    text(cont, "txtWidthOfRearOpenSpace"),
    text(cont, "txtDistanceBetweenBldg"),
    walked(cont, "IsComplyWithRegul75"),
    walked(cont, "IsPlotNarrow"),
    text(cont, "txtDiaInnerChowk"),
    text(cont, "txtDiaOuterChowk"),
    walked(cont, "Opt22Y"),
    walked(cont, "Opt24Y"),
    walked(cont, "Opt25Y"),
    text(cont, "txtFireDetail"),
    walked(cont, "Opt27Y"),
    walked(cont, "Opt28Y"),
    text(cont, "txtRequirmentForParking"),
    text(cont, "txtParkingSpaceProposed"),
    text(cont, "txtLockUpGaragesProposed"),
    walked(cont, "IsLoadingUnloadinUnRegulat86"),
    text(cont, "txtProposedSpaceForLoadUnLoading"),
    text(cont, "txtMaxWidthOfBalcony"),
    walked(cont, "IsReduceOpenSpace"),
    walked(cont, "Opt29Y"),
    text(cont, "txtTotalArea"),
    text(cont, "txtMaxWidthOtherProjection"),
    walked(cont, "IsCanopiesProposed"),
    walked(cont, "IsComplyWithRegula80"),
    text(cont, "txtWidthMeanAccess"),
    text(cont, "txtRightWay"),
    text(cont, "txtAttachDoc"),
    text(cont, "txtClearHgt"),
    walked(cont, "Opt30Y"),
    walked(cont, "IsAmenityUnRegula54"),
    walked(cont, "IsAnyAccessoryBldgProposed"),
    text(cont, "txtHgtEnroch"),
    walked(cont, "IsAwayFrom75Or15"),
    walked(cont, "Opt31Y"),
    text(cont, "txtCompWallHgt"),
    walked(cont, "Opt32Y"),
    walked(cont, "Opt33Y"),
    walked(cont, "Opt34Y"),
    walked(cont, "Opt35Y"),
    walked(cont, "Opt36Y"),
    walked(cont, "Opt37Y"),
    text(cont, "txtProvAnteena"),
    walked(cont, "IsNaturalWaterCoursePass"),
    walked(cont, "IsSetbackProvideRegula43"),
    text(cont, "txtNotComply"),
    walked(cont, "Opt38Y"),
    walked(cont, "Opt39Y"),
    text(cont, "txtFillLevel"),
    text(cont, "txtLevelRoad"),
    text(cont, "txtPlinthHgtRoad"),
    text(cont, "txtRoofs"),
    text(cont, "txtFloor"),
    text(cont, "txtWall"),
    text(cont, "txtColumns"),
    text(cont, "txtBeam"),
    text(cont, "txtOtherItem"),
    text(cont, "txtWaterCloset"),
    text(cont, "txtNoOfWaterClosetProposed"),
    text(cont, "txtNoBath"),
    text(cont, "txtNoOfBathsClosetProposed"),
    text(cont, "txtNoUrinal"),
    text(cont, "txtNoOfUrinalsClosetProposed"),
    text(cont, "txtNoKitchen"),
    text(cont, "txtNoOfKitchenClosetProposed"),
    text(cont, "txtWaterSource"),
    text(cont, "txtDistSwer"),
    text(cont, "txtMuncipalLand"),
    text(cont, "txtHowManyTrees"),
    text(cont, "txtNoOfTreesAffected"),
});
constexpr auto columns = columnsOf(rows);

/// Whether any option button of that name is on.
using OptionsOn = std::map<std::string_view, bool, IgnoringCase>;

OptionsOn optionsOf(const Form& form) {
    OptionsOn on;
    form.forEach<OptionButton>([&](const OptionButton& option) { on[option.name()] |= option.value(); });
    return on;
}

/// Every column with options of its name: "YES" when one of them is on, then "NO" when one of the name that ends in "N"
/// instead is. That is right for a Y button and its N button. Of an option array it sees both members under one name,
/// so that any answer reads "YES", and "NO" where the name itself ends in "N": the paper has always said so.
void walkOptions(const Form& form, Recordset& table) {
    const OptionsOn on = optionsOf(form);
    for (int column = 0; const FeedRow& row : rows) {
        if (const auto options = on.find(row.column); options != on.end()) {
            std::string no(row.column);
            no.back() = 'N';
            const auto noOption = on.find(no);
            const bool isNo = noOption != on.end() && noOption->second;
            table.set(column, std::string(isNo ? "NO" : options->second ? "YES" : "--"));
        }
        ++column;
    }
}

// A pass before these, which reads the arrays of the first form rightly, leaves nothing that the next one does not
// overwrite.
void walkBothForms(Proposal& proposal, Recordset& table) {
    for (const std::string_view form : {sheet, cont})
        walkOptions(*proposal.forms.touch(form), table);
}

}  // namespace

const Feed feedParticulars{
    .rows = rows, .columns = columns, .table = &Tables::rsReportParticulars, .walk = walkBothForms};

}  // namespace plandesk
