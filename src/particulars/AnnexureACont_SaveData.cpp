// How the answers of Sections IV and V are packed for the document.

#include <array>
#include <string>

#include "controls/Answers.h"
#include "particulars/AnnexureACont.h"
#include "particulars/PackedSections.h"
#include "particulars/frmAnnexureA.h"

namespace plandesk {

namespace {

/// The answers of which the second counts only after a Yes to the first.
std::string secondAfterYes(const Form& form, std::string_view controls) {
    std::string digits = answers(form, controls);
    if (digits[0] != '1')
        digits[2] = '2';
    return digits;
}

/// Rooms lit from a chowk: by the answer of Opt22 (no, yes, neither) and that of Opt23 after a yes, of Opt24 after a
/// no. A yes without a yes of Opt23 lacks one "#".
constexpr std::string_view chowkAnswers[3][3] = {
    {"0#2#0", "0#2#1", "0#2#2"},
    {"1#01#2", "1#1#2", "1#21#2"},
    {"2#2#2", "2#2#2", "2#2#2"},
};

std::string chowk(const Form& form, std::string_view /*controls*/) {
    const auto& pages = dynamic_cast<const AnnexureACont&>(form);
    const YesNo& further = pages.Opt22.yes.value() ? pages.Opt23 : pages.Opt24;
    return std::string(chowkAnswers[pages.Opt22.code()][further.code()]);
}

/// Opt29 once more: the answer of Opt30 never reaches the document.
std::string opt29Again(const Form& form, std::string_view /*controls*/) {
    return answer(form, "Opt29");
}

constexpr std::array sectionFour = std::to_array<PackedRow>({
    {"ONETHREE-RAD", "Opt19"},
    {"ONETHREE-TEXT", "txtDistCentStreet"},
    {"ONEFOUR-RAD", "Opt20 Opt21", secondAfterYes},
    {"ONESIX-RAD", "Opt22 Opt23 Opt24", chowk},
    {"ONESIX-TEXT", "txtDiaInnerChowk txtDiaOuterChowk"},
    {"ONESEVEN-RAD", "Opt25 opt26", secondAfterYes},
    {"ONESEVEN-TEXT", "txtLiftTyp txtLiftPassCap txtNoLift txtDoorTyp txtFireDetail"},
    {"ONEEIGHT-RAD", "Opt27 Opt28", secondAfterYes},
    {"REMARK4", "txtRmk4"},
});

constexpr std::array sectionFive = std::to_array<PackedRow>({
    {"TWOZERO", "Opt29"},
    {"TWOONE-RAD", "Opt30", opt29Again},
    {"TWOONE-TEXT", "txtWidthMeanAccess txtRightWay txtAttachDoc txtClearHgt"},
    {"TWOTHREE-RAD", "Opt31"},
    {"TWOTHREE-TEXT", "txtHgtEnroch"},
    {"TWOFOUR-RAD", "Opt32 Opt33"},
    {"TWOFOUR-TEXT", "txtCompWallHgt"},
    {"TWOFIVE-RAD", "Opt34 Opt35 Opt36 Opt37", secondAfterYes},
    {"TWOSIX-TEXT", "txtProvAnteena"},
    {"TWOEIGHT-TEXT", "txtNotComply"},
    {"TWONINE-RAD", "Opt38 Opt39"},
    {"TWONINE-TEXT", "txtFillLevel txtLevelRoad txtPlinthHgtRoad"},
    {"THREEZERO-TEXT", "txtRoofs txtFloor txtWall txtColumns txtBeam txtOtherItem"},
    {"THREEONE-TEXT", "txtWaterCloset txtNoBath txtNoUrinal txtNoKitchen"},
    {"THREETWO-TEXT", "txtWaterSource"},
    {"THREETHREE-TEXT", "txtDistSwer"},
    {"THREEFOUR-TEXT", "txtMuncipalLand"},
    {"REMARK5", "txtRmk5"},
});

}  // namespace

constexpr std::span<const PackedRow> sectionFourRows = sectionFour;
constexpr std::span<const PackedRow> sectionFiveRows = sectionFive;

bool AnnexureACont::SaveData() {
    if (!validate())
        return false;
    auto& carriers = proposal.forms.get<frmAnnexureA>();
    carriers.txtSectFourVal.setText(packedText(*this, sectionFourRows));
    carriers.txtSecFiveVal.setText(packedText(*this, sectionFiveRows));
    return true;
}

}  // namespace plandesk
