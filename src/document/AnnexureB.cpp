#include "document/AnnexureB.h"

#include <array>
#include <string>
#include <vector>

#include "base/Text.h"
#include "controls/Answers.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/Element.h"
#include "proposal/InPlace.h"
#include "proposal/Proposal.h"
#include "proposal/mdlProject.h"

namespace plandesk {

namespace {

using Sheet = AnnexureRow::Sheet;
using ValueForm = AnnexureRow::ValueForm;

// Text is written as typed, so "&" or "<" in it makes the file ill-formed: which elements are escaped is the block's
// own.
constexpr std::array rows = std::to_array<AnnexureRow>({
    {"IsAffectRoadReservation", Sheet::First, ValueForm::YesNo},
    {"IsAnyDeductOfRoadLine", Sheet::First, ValueForm::YesNo},
    {"TotalAreaRoadDeduction", Sheet::First, ValueForm::Text},
    {"NetArea", Sheet::First, ValueForm::EscapedText},
    {"PermissibleFSIZone", Sheet::First, ValueForm::Text},
    {"NoOfTenamentsPerAcre", Sheet::First, ValueForm::Text},
    {"IsUseOfEveryRoomMarked", Sheet::First, ValueForm::YesNo},
    {"IsInAccordanceRegulation", Sheet::First, ValueForm::YesNo},
    {"Average", Sheet::First, ValueForm::Text},
    {"ExistingWidthStreet", Sheet::First, ValueForm::Text},
    {"AboveAverageGrndLevel", Sheet::First, ValueForm::Text},
    {"IsComplyWith83Regulation", Sheet::First, ValueForm::YesNo},
    {"IsAnyStructureOnPlot", Sheet::First, ValueForm::YesNo},
    {"IsCorrectlyMarkedOnSitePlan", Sheet::First, ValueForm::YesNo},
    {"IsDemolishMarkedYellow", Sheet::First, ValueForm::YesNo},
    {"PlinthAreaOfStructureRet", Sheet::First, ValueForm::Text},
    {"PlinthTotFloorArea", Sheet::First, ValueForm::Text},
    {"AnnexBPlinthArea", Sheet::First, ValueForm::Text},
    {"AnnexBFloorArea", Sheet::First, ValueForm::Text},
    {"OverAllFloorArea", Sheet::First, ValueForm::Text},
    {"IsConsumeFullFloor", Sheet::First, ValueForm::YesNo},
    {"WhyNot", Sheet::First, ValueForm::Text},
    {"IsBldgSetbacksonUpFloors", Sheet::First, ValueForm::YesNo},
    {"TotalNoOfTenements", Sheet::First, ValueForm::Text},
    {"WidthOfFrontOpenSpace", Sheet::Second, ValueForm::Text},
    {"IsAbutsTwoMoreStreets", Sheet::Second, ValueForm::YesNo},
    {"IsComplyWithRegul74", Sheet::Second, ValueForm::YesNo},
    {"ApplicableProvInAppendixN", Sheet::Second, ValueForm::YesNo},
    {"WidthOfSideOpenSpace", Sheet::Second, ValueForm::EscapedText},
    {"WidthOfRearOpenSpace", Sheet::Second, ValueForm::EscapedText},
    {"DistanceBetweenBldg", Sheet::Second, ValueForm::EscapedText},
    {"IsComplyWithRegul75", Sheet::Second, ValueForm::YesNo},
    {"IsPlotNarrow", Sheet::Second, ValueForm::YesNo},
    {"RequirmentForParking", Sheet::Second, ValueForm::EscapedText},
    {"ParkingSpaceProposed", Sheet::Second, ValueForm::EscapedText},
    {"LockUpGaragesProposed", Sheet::Second, ValueForm::EscapedText},
    {"IsLoadingUnloadinUnRegulat86", Sheet::Second, ValueForm::YesNo},
    {"Requirement", Sheet::Second, ValueForm::EscapedText},
    {"ProposedSpaceForLoadUnLoading", Sheet::Second, ValueForm::EscapedText},
    {"MaxWidthOfBalcony", Sheet::Second, ValueForm::EscapedText},
    {"IsReduceOpenSpace", Sheet::Second, ValueForm::YesNo},
    {"TotalArea", Sheet::Second, ValueForm::Text},
    {"MaxWidthOtherProjection", Sheet::Second, ValueForm::Text},
    {"IsCanopiesProposed", Sheet::Second, ValueForm::YesNo},
    {"IsComplyWithRegula80", Sheet::Second, ValueForm::YesNo},
    {"IsAmenityUnRegula54", Sheet::Second, ValueForm::YesNo},
    {"IsAnyAccessoryBldgProposed", Sheet::Second, ValueForm::YesNo},
    {"PurposeAccessoryBldg", Sheet::Second, ValueForm::EscapedText},
    {"IsAwayFrom75Or15", Sheet::Second, ValueForm::YesNo},
    {"IsNaturalWaterCoursePass", Sheet::Second, ValueForm::YesNo},
    {"IsSetbackProvideRegula43", Sheet::Second, ValueForm::YesNo},
    {"NoOfWaterClosetProposed", Sheet::Second, ValueForm::EscapedText},
    {"NoOfBathsClosetProposed", Sheet::Second, ValueForm::EscapedText},
    {"NoOfUrinalsClosetProposed", Sheet::Second, ValueForm::EscapedText},
    {"NoOfKitchenClosetProposed", Sheet::Second, ValueForm::EscapedText},
    {"SectionRemark4", Sheet::Second, ValueForm::Text},
});

constexpr auto streetsAndTreesParts = inPlace<StreetsAndTrees, StreetsAndTrees::Part>({
    {StreetsAndTrees::Abutting, {Sheet::First, "Opt77"}},
    {StreetsAndTrees::StreetWidth, {Sheet::First, "txtFstStreetWidth"}},
    {StreetsAndTrees::ExistingWidth, {Sheet::First, "txtFstExistingWidth"}},
    {StreetsAndTrees::Trees, {Sheet::Second, "txtHowManyTrees"}},
    {StreetsAndTrees::TreesAffected, {Sheet::Second, "txtNoOfTreesAffected"}},
});

std::string value(const Form& form, const AnnexureRow& row) {
    if (row.form == ValueForm::YesNo)
        return answer(form, row.element);
    const std::string text = answer(form, "txt" + std::string(row.element));
    return row.form == ValueForm::EscapedText ? EscapeXML(text) : text;
}

}  // namespace

std::span<const AnnexureRow> annexureRows() {
    return rows;
}

std::span<const StreetsAndTrees::Part> StreetsAndTrees::parts() {
    return streetsAndTreesParts;
}

void buildAnnexureB(Proposal& proposal) {
    const Form& first = proposal.forms.get<frmAnnexureA>();
    const Form& second = proposal.forms.get<AnnexureACont>();
    std::string block = "<ANNEXUREB>";
    for (const AnnexureRow& row : rows)
        appendElement(block, row.element, value(row.sheet == Sheet::First ? first : second, row));
    std::vector<std::string> parts;
    parts.reserve(streetsAndTreesParts.size());
    for (const StreetsAndTrees::Part& part : streetsAndTreesParts)
        parts.push_back(answer(part.sheet == Sheet::First ? first : second, part.control));
    appendElement(block, streetsAndTrees, join(parts, "#"));
    proposal.annexureBXML = block + "</ANNEXUREB>";
}

}  // namespace plandesk
