// How the answers of Sections IV and V are packed for the document: values joined by "$$", parts of one value by "#".

#include <array>
#include <initializer_list>
#include <string>
#include <vector>

#include "base/Text.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"

namespace plandesk {

namespace {

std::string text(const TextBox& box) {
    return std::string(trim(box.text()));
}

std::string texts(std::initializer_list<const TextBox*> boxes) {
    std::vector<std::string> parts;
    for (const TextBox* box : boxes)
        parts.push_back(text(*box));
    return join(parts, "#");
}

std::string answer(const YesNo& question) {
    return std::to_string(question.code());
}

/// A question and the one that depends on its Yes.
std::string answers(const YesNo& question, const YesNo& further) {
    return question.yes.value() ? "1#" + answer(further) : answer(question) + "#2";
}

/// Rooms lit from a chowk: by the answer of Opt22 (no, yes, neither) and that of Opt23 after a yes, of Opt24 after a
/// no. A yes without a yes of Opt23 lacks one "#".
constexpr std::string_view chowkAnswers[3][3] = {
    {"0#2#0", "0#2#1", "0#2#2"},
    {"1#01#2", "1#1#2", "1#21#2"},
    {"2#2#2", "2#2#2", "2#2#2"},
};

}  // namespace

bool AnnexureACont::SaveData() {
    if (!validate())
        return false;
    auto& carriers = proposal.forms.get<frmAnnexureA>();
    carriers.txtSectFourVal.setText(sectionFourValue());
    carriers.txtSecFiveVal.setText(sectionFiveValue());
    return true;
}

std::string AnnexureACont::sectionFourValue() const {
    const YesNo& chowkFurther = Opt22.yes.value() ? Opt23 : Opt24;
    const std::array<std::string, 9> values = {
        answer(Opt19),
        text(txtDistCentStreet),
        answers(Opt20, Opt21),
        std::string(chowkAnswers[Opt22.code()][chowkFurther.code()]),
        texts({&txtDiaInnerChowk, &txtDiaOuterChowk}),
        answers(Opt25, opt26),
        texts({&txtLiftTyp, &txtLiftPassCap, &txtNoLift, &txtDoorTyp, &txtFireDetail}),
        answers(Opt27, Opt28),
        text(txtRmk4),
    };
    return join(values, "$$");
}

std::string AnnexureACont::sectionFiveValue() const {
    const std::array<std::string, 18> values = {
        answer(Opt29),
        answer(Opt29),  // Opt29 once more: the answer of Opt30 never reaches the document
        texts({&txtWidthMeanAccess, &txtRightWay, &txtAttachDoc, &txtClearHgt}),
        answer(Opt31),
        text(txtHgtEnroch),
        answer(Opt32) + "#" + answer(Opt33),
        text(txtCompWallHgt),
        answers(Opt34, Opt35) + "#" + answer(Opt36) + "#" + answer(Opt37),
        text(txtProvAnteena),
        text(txtNotComply),
        answer(Opt38) + "#" + answer(Opt39),
        texts({&txtFillLevel, &txtLevelRoad, &txtPlinthHgtRoad}),
        texts({&txtRoofs, &txtFloor, &txtWall, &txtColumns, &txtBeam, &txtOtherItem}),
        texts({&txtWaterCloset, &txtNoBath, &txtNoUrinal, &txtNoKitchen}),
        text(txtWaterSource),
        text(txtDistSwer),
        text(txtMuncipalLand),
        text(txtRmk5),
    };
    return join(values, "$$");
}

}  // namespace plandesk
