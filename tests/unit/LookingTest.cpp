// Who opens a full proposal, looks at every form of it and saves loses nothing but what its file does not bring back.

#include <fstream>
#include <map>

#include "DriverFixture.h"
#include "unit/roundtrip/Texts.h"

namespace plandesk::driver::test {
namespace {

/// The texts of the elements that hold no others, by the names that lead to them.
using Leaves = std::map<std::string, std::string>;

void collect(const plandesk::test::Element& element, const std::string& path, Leaves& leaves) {
    bool holdsElements = false;
    for (const plandesk::test::Element& child : element.children) {
        if (child.name == "#text")
            continue;
        holdsElements = true;
        collect(child, path + "/" + child.name, leaves);
    }
    if (!holdsElements)
        leaves[path] = element.text;
}

Leaves leavesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    Leaves leaves;
    const auto root = plandesk::test::rootOf(std::string(std::istreambuf_iterator<char>(file), {}));
    EXPECT_TRUE(root);
    if (root)
        collect(*root, "", leaves);
    return leaves;
}

/// "PATH: BEFORE -> AFTER" for each leaf that is another.
std::vector<std::string> changes(const Leaves& before, const Leaves& after) {
    std::vector<std::string> lines;
    const auto textOf = [](const Leaves& leaves, const std::string& path) {
        const auto leaf = leaves.find(path);
        return leaf == leaves.end() ? "(none)" : leaf->second;
    };
    Leaves all = before;
    all.insert(after.begin(), after.end());
    for (const auto& [path, text] : all)
        if (textOf(before, path) != textOf(after, path))
            lines.push_back(path + ": " + textOf(before, path) + " -> " + textOf(after, path));
    return lines;
}

/// The sample proposal with rows of both discretion forms.
constexpr std::string_view making = R"(set frmDiscretionNewCase.txtRule(0) "Front margin"
set frmDiscretionNewCase.txtRule(14) Lobby
set frmDiscretionrevisedCase.txtRule(0) 10.00
set frmDiscretionrevisedCase.txtRuleC(0) 9.00
set frmDiscretionrevisedCase.txtRuleD(18) more
include )" PLANDESK_SOURCES R"(/data/sample-proposal.txt
)";

/// Until the plots are saved their extracts cannot be looked at; a save of the proposal saves them too.
constexpr std::string_view opening = R"(today 13/03/2026
answer sample-proposal.xml
menu mnuOpen
expect-no-message
menu mnu712Ext
expect-message "" "Please Enter Relationship Details  for 7/12 Extract !" information
menu mnuSave
expect-message "Proposal Information Path " "Proposal has been created [ sample-proposal.xml ]. " information
)";

constexpr std::string_view looking = R"(menu mnuAnnexure
click frmAnnexureA.cmdFormNo(1)
click frmAnnexureA.cmdFormNo(2)
click frmAnnexureA.cmdFormNo(3)
click frmAnnexureA.cmdFormNo(4)
click AnnexureACont.cmdFormNo(5)
click AnnexureACont.cmdFormNo(6)
click AnnexureACont.cmdFormNo(7)
click AnnexureACont.cmdFormNo(8)
click AnnexureACont.lblPayment
menu mnuMandatoryDocument
menu mnuOptionalMandatoryDoc
menu mnuPlotExtRelationShip
tab frmPlotExtractRelation.SSTab1 1
pressform frmPlotExtractRelation Esc
menu mnu712Ext
pick frmMain712.cmbExtract 0
expect frmMain712.dgdOwner.cell(1,2) "Meena Sunil Karkhanis"
pick frmMain712.cmbExtract 1
pick frmMain712.cmbExtract 2
cellclick frmMain712.dgdInfoOfExtract 0 4
click frmMain712.cmdClose
menu mnuPrc
expect frmPRCEXT.dgdOwner.cell(0,5) "H - Holder"
click frmPRCEXT.cmdClose
menu mnuNaOrder
expect frmNaOrder.txtArea2 300
click frmNaOrder.cmdClose
menu mnuUlcOrder
pick frmScrutinyULC.cmbExtract 0
click frmScrutinyULC.cmdDetails
expect frmUS84.dgdTableAB.rowcount 2
click frmUS84.cmdClose
pick frmScrutinyULC.cmbExtract 1
click frmScrutinyULC.cmdDetails
expect frmUS22.txtLandAppurantArea 214.10
click frmUS22.cmdClose
pick frmScrutinyULC.cmbExtract 2
pick frmScrutinyULC.cmbExtract 3
click frmScrutinyULC.cmdDetails
expect frmULC20aDetails.dgdSchemeDetails.cell(4,2) 8
click frmULC20aDetails.cmdClose
click frmScrutinyULC.cmdClose
touch frmDiscretionNewCase
touch frmDiscretionrevisedCase
menu mnuIssDCR
click frmIssuOfDRc.cmdClose
menu mnuDcrTransForm
click frmDRCTransfer.cmdClose
menu mnuDCRUtilization
pressform frmDRCUtilisationForm Esc
menu mnuContent
close frmHelp
menu mnuAbout
close frmAbout
expect-no-message
menu mnuSave
expect-message "Proposal Information Path " "Proposal has been created [ sample-proposal.xml ]. " information
)";

using Looking = DriverInAFolder;

TEST_F(Looking, losesWhatTheFileDoesNotBringBackAlone) {
    expectHeld(std::string(making));
    const Leaves first = leavesOf("sample-proposal.xml");
    EXPECT_GT(first.size(), 230U);
    expectHeld(std::string(opening) + std::string(looking));
    const Leaves last = leavesOf("sample-proposal.xml");
    std::vector<std::string> told = changes(first, last);
    for (std::string& line : told)
        if (line.ends_with(" -> (none)"))
            line = line.substr(0, line.find(':')) + " is gone";
    EXPECT_EQ(told,
              (std::vector<std::string>{
                  // The conditional rows behind the first come back at the wrong places.
                  "/DOCCHKLIST: 1-1-5#1-6-14#1-15-22#1-23-23#1-24-24#1-25-26#1-27-30#1-31-31#1-32-32"
                  "1-33-33#1-34-34#0-0-0#1-35-37#0-0-0#0-0-0#0-0-0#1-38-38#0-0-0#0-0-0#0-0-0#1-39-41#0-0-0#0-0-0"
                  " -> 1-1-5#1-6-14#1-15-22#1-23-23#1-24-24#1-25-26#1-27-30#1-31-31#1-32-32"
                  "10-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#0-0-0#1-34-34#0-0-0#1-35-37#0-0-0#0-0-0",
                  // No form reads these.
                  "/ISSUEOFDRC is gone",
                  // Looking at an extract without an order chooses that it has none.
                  "/NTS/ULCORDER-SCRUTINY/EXTRACT-3/ULCORDER: Vasant Karkhanis HUF### -> Vasant Karkhanis HUF#0##",
                  "/TRANSFERDRC is gone",
                  "/UTILIZATIONDRC is gone",
              }));
}

}  // namespace
}  // namespace plandesk::driver::test
