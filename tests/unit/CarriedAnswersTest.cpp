// Every answer of the Particulars and the payment changes the document, but for those that are told here.

#include <set>

#include <gtest/gtest.h>

#include "document/ProposalDocument.h"
#include "particulars/AnnexureACont.h"
#include "unit/World.h"

namespace plandesk::test {
namespace {

struct Carried : World {
    Carried() { shell.press("mnuNew"); }

    std::string document() {
        proposal.secondScrutinyFees.clear();
        proposal.forms.touch("frmPayDetail")->call("SaveData");
        proposal.forms.get<AnnexureACont>().SaveData();
        proposal.commands.buildBlock(&Proposal::annexureBXML);
        return joinDocument(proposal);
    }
};

constexpr std::string_view forms[] = {"frmAnnexureA", "AnnexureACont", "frmPayDetail"};

TEST(CarriedAnswers, EachTextReachesTheDocument) {
    // The allowed area is written after a Yes to Opt2 alone; the next three are stored nowhere; the rest are no
    // answers.
    const std::set<std::string_view> lost = {"txtAreaAllowed",
                                             "txtReservationArea",
                                             "txtExistingTotalFloorArea",
                                             "txtProposedTotalFloorArea",
                                             "txtSectFourVal",
                                             "txtSecFiveVal",
                                             "txtPayDetail",
                                             "txtPathNm"};
    Carried world;
    for (const std::string_view form : forms) {
        world.proposal.forms.touch(form)->forEach<TextBox>([&](TextBox& box) {
            const std::string earlier = box.text();
            box.restoreText("98765");
            EXPECT_EQ(world.document().find("98765") == std::string::npos, lost.contains(box.name()))
                << form << "." << box.key();
            box.restoreText(earlier);
        });
    }
}

bool isYes(const OptionButton& option) {
    return option.index() == 1 || option.name().ends_with('Y');
}

/// Every question answered with Yes, so that those count that depend on a Yes.
struct AllYes : Carried {
    AllYes() {
        for (const std::string_view form : forms)
            proposal.forms.touch(form)->forEach<OptionButton>([](OptionButton& option) {
                if (isYes(option))
                    option.setValue(true);
            });
    }
};

TEST(CarriedAnswers, EachAnswerToAQuestionChangesTheDocument) {
    // Opt29 is written in place of Opt30; Opt24 counts only after a No to Opt22.
    const std::set<std::string_view> lost = {"Opt24N", "Opt30N"};
    AllYes first;
    const std::string allYes = first.document();
    int answers = 0;
    for (const std::string_view form : forms) {
        first.proposal.forms.touch(form)->forEach<OptionButton>([&](const OptionButton& option) {
            if (isYes(option) || option.value())
                return;
            AllYes world;
            world.option(form, option.key()).setValue(true);
            EXPECT_EQ(world.document() == allYes, lost.contains(option.key())) << form << "." << option.key();
            ++answers;
        });
    }
    EXPECT_GE(answers, 60);
}

}  // namespace
}  // namespace plandesk::test
