#include "landrecords/ExtractFormKind.h"

#include <array>

#include "landrecords/ExtractForm.h"
#include "proposal/InPlace.h"
#include "proposal/LandRecordColumns.h"

namespace plandesk {

namespace {

constexpr std::array dropped712 =
    std::to_array<Tables::Member>({&Tables::rsExtract712, &Tables::rsOwner712, &Tables::rsPAH712});
constexpr std::array droppedPRC =
    std::to_array<Tables::Member>({&Tables::rsPAHPRC, &Tables::rsOwnerPRC});  // the PRCs stay

constexpr GridColumn hidden = {.caption = "", .width = 0};

constexpr auto infoColumns712 = inPlace<ExtractColumn, GridColumn>({
    {ExtractColumn::ExtNo, hidden},
    {ExtractColumn::SurveyNo, {.caption = "Survey No", .width = 1400}},
    {ExtractColumn::HissaNo, {.caption = "Hissa No", .width = 1400}},
    {ExtractColumn::DateOf712, {.caption = "Date of 7/12", .width = 1500, .button = true}},
    {ExtractColumn::FerFarNo, {.caption = "Ferfar No", .width = 1600}},
    {ExtractColumn::NoOfOwners, {.caption = "No of Owners", .width = 1300}},
    {ExtractColumn::CumulativeArea, {.caption = "Cumulative 7/12 Area in Sq.Mt", .width = 2600}},
    {ExtractColumn::NoOfPAHs, {.caption = "No Of PAHs", .width = 1200}},
});

constexpr auto infoColumnsPRC = inPlace<ExtractColumn, GridColumn>({
    {ExtractColumn::ExtNo, hidden},
    {ExtractColumn::SurveyNo, {.caption = "City Survey No", .width = 1600}},
    {ExtractColumn::HissaNo, {.caption = "Tika Sheet No ", .width = 1600}},
    {ExtractColumn::DateOf712, {.caption = "PRC Date", .width = 1500, .button = true}},
    {ExtractColumn::FerFarNo, {.caption = "Ferfar No", .width = 0}},
    {ExtractColumn::NoOfOwners, {.caption = "No of Owners", .width = 1300}},
    {ExtractColumn::CumulativeArea, {.caption = "Cumulative PRC Area", .width = 2200}},
    {ExtractColumn::NoOfPAHs, {.caption = "No Of PAHs", .width = 1200}},
});

constexpr auto ownerColumns712 = inPlace<OwnerColumn, GridColumn>({
    {OwnerColumn::ExtNo, hidden},
    {OwnerColumn::OwnNo, {.caption = "Sr No", .width = 700}},
    {OwnerColumn::Name, {.caption = "Name Of Owner", .width = 4200}},
    {OwnerColumn::SingingStatus, {.caption = "Owner Signing Status ", .width = 2100, .button = true}},
    {OwnerColumn::Encumbrances, {.caption = "Encumbrances", .width = 2600, .button = true}},
    {OwnerColumn::OwnerType, {.caption = "Owner Type", .width = 0}},
});

constexpr auto ownerColumnsPRC = inPlace<OwnerColumn, GridColumn>({
    {OwnerColumn::ExtNo, hidden},
    {OwnerColumn::OwnNo, {.caption = "Sr No", .width = 700}},
    {OwnerColumn::Name, {.caption = "Name Of Owner", .width = 3600}},
    {OwnerColumn::SingingStatus, {.caption = "Owner Signing Status ", .width = 2100}},
    {OwnerColumn::Encumbrances, {.caption = "Encumbrances", .width = 2600}},
    {OwnerColumn::OwnerType, {.caption = "Owner Type", .width = 2100}},
});

constexpr auto columnsOfHolders = inPlace<HolderColumn, GridColumn>({
    {HolderColumn::ExtNo, hidden},
    {HolderColumn::PAHNo, {.caption = "SrNo", .width = 700}},
    {HolderColumn::Name, {.caption = "Holder Name", .width = 4200}},
    {HolderColumn::PAHSing, {.caption = "PAH Sign", .width = 1000, .locked = true, .button = true, .yesNo = true}},
});

}  // namespace

constexpr std::span<const GridColumn> holderColumns = columnsOfHolders;

constexpr ExtractFormKind form712 = {
    .family = family712,
    .formName = frmMain712::formName,
    .caption = "Scrutiny Of 7/12 Extract",
    .head = " Scrutiny Of 7/12 Extract",
    .saveCaption = "Save 7/12 Scrutiny Data",
    .resetCaption = "Reset 7/12 Information ",
    .droppedByReset = dropped712,
    .savesWithCountOnly = true,
    .saveUnbindsOwners = true,
    .saveMakesPRCsTheSubject = false,
};

constexpr ExtractFormKind formPRC = {
    .family = familyPRC,
    .formName = frmPRCEXT::formName,
    .caption = "PRC Extract Scruitny ",
    .head = " Scrutiny Of PRC Extract",
    .saveCaption = "Save PRC Scrutiny Information",
    .resetCaption = "Reset",
    .droppedByReset = droppedPRC,
    .savesWithCountOnly = false,
    .saveUnbindsOwners = false,
    .saveMakesPRCsTheSubject = true,
};

constexpr ExtractWording wording712 = {
    .family = family712,
    .firstInfo = " Information For Extract No :- 1",
    .info = " Information For Extract No :- ",
    .frame = "Extract Details",
    .count = " No of 7/12 Extracts",
    .select = "Select 7/12 Extract For Details",
    .remark = "7/12 Remarks",
    .infoColumns = infoColumns712,
    .ownerColumns = ownerColumns712,
};

constexpr ExtractWording wordingPRC = {
    .family = familyPRC,
    .firstInfo = "Information For PRC No :- 1",
    .info = " Information For PRC No :- ",
    .frame = "PRC Details",
    .count = "No of PRC",
    .select = "Select PRC for details",
    .remark = "PRC Remark",
    .infoColumns = infoColumnsPRC,
    .ownerColumns = ownerColumnsPRC,
};

}  // namespace plandesk
