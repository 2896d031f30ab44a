// What frmULC20aDetails looks like.

#include "ulc/frmULC20aDetails.h"

namespace plandesk {

namespace {

constexpr LayoutRow headRows[] = {
    {"", "Type Of Schemes :", "cmbSchemaType"},
    {"", "", "txtDetails", "", "", "lblDetails"},
    {"", "Whether ULC order under Section 8 (4) submitted ? :", "IsUlCUS84Submitted(1) IsUlCUS84Submitted(0)"},
};

// The date of a loaded order shows in its box alone; the picker keeps its own.
constexpr LayoutRow commonRows[] = {
    {"i.", "Inward Number", "txtCommonScheme(0)"},
    {"ii.", "Date Of Application", "DTPAppllication txtCommonScheme(1)"},
    {"iii.", "Village", "txtCommonScheme(2)"},
    {"iv.", "S. No.", "txtCommonScheme(3)"},
    {"v.", "Total Surplus Area in sq. mtr", "txtCommonScheme(4)"},
    {"vi.", "Land to be detained as per circular dated 11.0.1989", "txtCommonScheme(5)"},
    {"vii.", "Total land under scheme", "txtCommonScheme(6)"},
    {"viii.", "Area under reservation, if any", "txtCommonScheme(7)"},
    {"ix.", "Land to be handed over to govt. with frontage && access roads commencement of scheme(30% / 50%)",
     "txtCommonScheme(8)"},
    {"x.", "Area of land to be exempted", "txtCommonScheme(9)"},
    {"xi.", "Area under internal road && open space in the scheme", "txtCommonScheme(10)"},
    {"xii.", "Net Area available for the scheme", "txtCommonScheme(11)"},
    {"xiii.", "Condition regarding handling over reservation free of cost to SMC",
     "IsReservationCondition(1) IsReservationCondition(0)"},
};

constexpr LayoutRow schemeRows[] = {
    {.controls = "dgdSchemeDetails", .lines = 7},
};

constexpr LayoutRow closingRows[] = {
    {"", "", "txtSpeDisScheme", "", "", "lblSpecDispScheme"},
};

constexpr LayoutGroup groups[] = {
    {"", headRows, {}, "fraUS20a1"},
    {"", commonRows, {}, "frmCommonSchema"},
    {"", schemeRows, {}, "fraTableForDispenseScheme"},
    {"", closingRows},
};
constexpr LayoutPage pages[] = {{groups}};
constexpr Layout sheet{.questionWidth = 46, .pages = pages, .buttons = "cmdSave cmdReferesh cmdClose"};

}  // namespace

const Layout& frmULC20aDetails::layout() const {
    return sheet;
}

}  // namespace plandesk
