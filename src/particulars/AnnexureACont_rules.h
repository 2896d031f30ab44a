#pragma once

#include <array>

#include "particulars/CrossFieldRules.h"

namespace plandesk {

inline constexpr std::string_view liftBoxes = "txtLiftTyp txtLiftPassCap txtNoLift txtDoorTyp txtFireDetail";
inline constexpr std::string_view loadingBoxes = "txtRequirement txtProposedSpaceForLoadUnLoading";
inline constexpr std::string_view accessoryControls =
    "txtPurposeAccessoryBldg txtHgtEnroch fraIsAwayFrom75Or15 fraOpt31";
inline constexpr std::string_view accessoryAnswers = "IsAwayFrom75Or15(1) IsAwayFrom75Or15(0) Opt31Y Opt31N";

/// Which answer of Sections IV and V opens and closes what.
inline constexpr auto annexureAContRules = std::to_array<CrossFieldRule>({
    {"", Effect::Hide, "txtRightWay txtAttachDoc"},

    {"", Effect::Hide, "Opt21Y Opt21N"},
    {"Opt20Y", Effect::Show, "Opt21Y Opt21N"},
    {"Opt20N", Effect::Hide, "Opt21Y Opt21N"},

    // The other way round than the saved answers read: a Yes is saved with Opt23, a No with Opt24.
    {"", Effect::Hide, "Opt23Y Opt23N Opt24Y Opt24N"},
    {"Opt22Y", Effect::Hide, "Opt23Y Opt23N"},
    {"Opt22Y", Effect::Show, "Opt24Y Opt24N"},
    {"Opt22N", Effect::Show, "Opt23Y Opt23N"},
    {"Opt22N", Effect::Hide, "Opt24Y Opt24N"},

    {"", Effect::Hide, "opt26Y Opt26N"},
    {"", Effect::Close, liftBoxes},
    {"Opt25Y", Effect::Show, "opt26Y Opt26N"},
    {"Opt25N", Effect::Hide, "opt26Y Opt26N"},
    {"Opt25N", Effect::Clear, "opt26Y Opt26N"},
    {"Opt25N", Effect::Empty, liftBoxes},
    {"Opt25N", Effect::Grey, liftBoxes},  // grey alone: boxes that were open stay so
    {"opt26Y", Effect::Open, liftBoxes},
    {"Opt26N", Effect::EmptyAndClose, liftBoxes},

    {"", Effect::Hide, "Opt28Y Opt28N"},
    {"Opt27Y", Effect::Show, "Opt28Y Opt28N"},
    {"Opt27N", Effect::Hide, "Opt28Y Opt28N"},

    {"", Effect::Hide, "Opt35Y Opt35N"},
    {"Opt34Y", Effect::Show, "Opt35Y Opt35N"},
    {"Opt34N", Effect::Hide, "Opt35Y Opt35N"},

    {"", Effect::Close, "txtFillLevel"},
    {"Opt39Y", Effect::Open, "txtFillLevel"},
    {"Opt39N", Effect::EmptyAndClose, "txtFillLevel"},

    {"", Effect::Hide, "Frame5"},

    {"IsAbutsTwoMoreStreets(1)", Effect::Clear, "IsComplyWithRegul74(1) IsComplyWithRegul74(0)"},
    // Nothing shows it again until the form is loaded anew.
    {"IsAbutsTwoMoreStreets(1)", Effect::Hide, "IsComplyWithRegul74(1) IsComplyWithRegul74(0)"},
    {"IsAbutsTwoMoreStreets(0)", Effect::Clear, "IsComplyWithRegul74(1) IsComplyWithRegul74(0)"},

    {"", Effect::Hide, loadingBoxes},
    {"IsLoadingUnloadinUnRegulat86(1)", Effect::Empty, "txtRequirement"},
    {"IsLoadingUnloadinUnRegulat86(1)", Effect::Show, loadingBoxes},
    {"IsLoadingUnloadinUnRegulat86(0)", Effect::Empty, "txtRequirement"},
    {"IsLoadingUnloadinUnRegulat86(0)", Effect::Hide, loadingBoxes},

    {"", Effect::Hide, accessoryControls},
    {"IsAnyAccessoryBldgProposed(1)", Effect::Empty, "txtPurposeAccessoryBldg"},
    {"IsAnyAccessoryBldgProposed(1)", Effect::Show, accessoryControls},
    {"IsAnyAccessoryBldgProposed(0)", Effect::Empty, "txtPurposeAccessoryBldg"},
    {"IsAnyAccessoryBldgProposed(0)", Effect::Hide, accessoryControls},
    {"IsAnyAccessoryBldgProposed(0)", Effect::Clear, accessoryAnswers},
});

}  // namespace plandesk
