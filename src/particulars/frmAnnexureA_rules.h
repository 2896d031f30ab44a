#pragma once

#include <array>

#include "particulars/CrossFieldRules.h"

namespace plandesk {

inline constexpr std::string_view industryBoxes =
    "txtMainProcess txtWorkmen txtHPEmp txtInstClass txtReferalLaw txtWaste";
inline constexpr std::string_view industryPairs =
    "Opt10Y Opt10N Opt11Y Opt11N Opt12Y Opt12N Opt13Y Opt13N Opt14Y Opt14N Opt15Y Opt15N Opt16Y Opt16N Opt17Y Opt17N";
inline constexpr std::string_view industryFirstPairs =
    "Opt10Y Opt10N Opt11Y Opt11N Opt12Y Opt12N Opt14Y Opt14N Opt15Y Opt15N";
inline constexpr std::string_view streetControls =
    "txtFstExistingWidth txtFstStreetWidth lblStreet(0) lblStreet(1) lblStreet(2) lblStreet(3)";

/// Which answer of Sections I to III opens and closes what.
inline constexpr auto frmAnnexureARules = std::to_array<CrossFieldRule>({
    {"", Effect::Hide, "txtSectFourVal txtSecFiveVal txtDocChkList txtPayDetail txtPathNm"},
    {"", Effect::Close, "txtAreaAllowed"},

    {"", Effect::Hide, "txtTotalAreaRoadDeduction txtNetArea"},
    {"IsAnyDeductOfRoadLine(1)", Effect::Show, "txtTotalAreaRoadDeduction txtNetArea"},
    {"IsAnyDeductOfRoadLine(0)", Effect::Hide, "txtTotalAreaRoadDeduction txtNetArea"},
    {"IsAnyDeductOfRoadLine(0)", Effect::Empty, "txtTotalAreaRoadDeduction txtNetArea"},

    {"", Effect::Hide, "Opt6Y Opt6N Opt7Y Opt7N Opt8Y Opt8N"},
    {"Opt5Y", Effect::Show, "Opt6Y Opt6N Opt7Y Opt7N Opt8Y Opt8N"},
    {"Opt5N", Effect::Hide, "Opt6Y Opt6N Opt7Y Opt7N Opt8Y Opt8N"},

    // A No hides the further questions for good: a later Yes enables them and does not show them again.
    {"", Effect::Close, industryBoxes},
    {"", Effect::Disable, industryFirstPairs},
    {"Opt9Y", Effect::Open, industryBoxes},
    {"Opt9Y", Effect::Enable, industryFirstPairs},
    {"Opt9N", Effect::EmptyAndClose, industryBoxes},
    {"Opt9N", Effect::Grey, "txtInstNm txtInstAddr"},
    {"Opt9N", Effect::Hide, industryPairs},
    {"Opt9N", Effect::Clear, industryPairs},

    {"", Effect::Close, "txtInstNm txtInstAddr"},
    {"Opt10Y", Effect::Open, "txtInstNm txtInstAddr"},
    {"Opt10N", Effect::EmptyAndClose, "txtInstNm txtInstAddr"},

    {"", Effect::Hide, "Opt13Y Opt13N"},
    {"Opt12Y", Effect::Show, "Opt13Y Opt13N"},
    {"Opt12N", Effect::Hide, "Opt13Y Opt13N"},

    {"", Effect::Hide, "Opt16Y Opt16N Opt17Y Opt17N"},
    {"Opt15Y", Effect::Show, "Opt16Y Opt16N Opt17Y Opt17N"},
    {"Opt15N", Effect::Hide, "Opt16Y Opt16N Opt17Y Opt17N"},

    {"", Effect::Hide, streetControls},
    {"Opt77Y", Effect::Show, streetControls},
    {"Opt77N", Effect::Hide, streetControls},
    {"Opt77N", Effect::Empty, "txtFstExistingWidth txtFstStreetWidth"},

    {"", Effect::Close, "txtDevRights"},
    {"Opt18Y", Effect::Open, "txtDevRights"},
    {"Opt18N", Effect::EmptyAndClose, "txtDevRights"},

    {"IsConsumeFullFloor(1)", Effect::Empty, "txtWhyNot"},
    {"IsConsumeFullFloor(0)", Effect::Empty, "txtWhyNot"},
});

}  // namespace plandesk
