#include "particulars/frmAnnexureA.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "controls/Meaning.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA_rules.h"
#include "particulars/particulars.h"
#include "proposal/ReferenceLists.h"

namespace plandesk {

namespace {

constexpr int lastTab = PageButtons::firstOfSectionFour - 1;

constexpr TextBox frmAnnexureA::*decimalBoxes[] = {
    &frmAnnexureA::txtPltArea,
    &frmAnnexureA::txtActualArea,
    &frmAnnexureA::txtTikaNo,
    &frmAnnexureA::txtTotalAreaRoadDeduction,
    &frmAnnexureA::txtNetArea,
    &frmAnnexureA::txtSanctionNo,
    &frmAnnexureA::txtPermissibleFSIZone,
    &frmAnnexureA::txtWorkmen,
    &frmAnnexureA::txtAnnexBPlinthArea,
    &frmAnnexureA::txtAnnexBFloorArea,
    &frmAnnexureA::txtFloorArea,
    &frmAnnexureA::txtPlinthArea,
    &frmAnnexureA::txtPlinthAreaOfStructureRet,
    &frmAnnexureA::txtPlinthTotFloorArea,
    &frmAnnexureA::txtOverAllFloorArea,
    &frmAnnexureA::txtTotTene,
    &frmAnnexureA::txtNoTeneExist,
    &frmAnnexureA::txtTenePropose,
    &frmAnnexureA::txtAverage,
    &frmAnnexureA::txtPescribWidth,
    &frmAnnexureA::txtExistingWidthStreet,
    &frmAnnexureA::txtFstStreetWidth,
    &frmAnnexureA::txtFstExistingWidth,
    &frmAnnexureA::txtBuildingHgt,
    &frmAnnexureA::txtAbvCentStreet,
    &frmAnnexureA::txtAboveAverageGrndLevel,
};

constexpr TextBox frmAnnexureA::*wholeNumberBoxes[] = {
    &frmAnnexureA::txtNoOfTenamentsPerAcre,
    &frmAnnexureA::txtTotalNoOfTenements,
};

constexpr TextBox frmAnnexureA::*longTexts[] = {
    &frmAnnexureA::txtApplicantAddr, &frmAnnexureA::txtRmk1,  &frmAnnexureA::txtMainProcess,
    &frmAnnexureA::txtInstAddr,      &frmAnnexureA::txtWaste, &frmAnnexureA::txtWhyNot,
    &frmAnnexureA::txtRmk2,          &frmAnnexureA::txtRmk3,
};

}  // namespace

frmAnnexureA::frmAnnexureA(Proposal& proposal) : DataForm(proposal, formName, "Particulars of Development") {
    cmdNavPrev.toolTip = "Previous page";
    cmdNavNext.toolTip = "Next page";
    cmdSave.toolTip = "Writes the proposal's file; other forms go along as they were last saved";
    cmdSaveALL.toolTip = savesAllTip;
    cmdPrint.toolTip = printsTip;
    cmdPlotRelation.toolTip = "The plots, with the number of 7/12 extracts and property cards of each";
    cmdUS84.toolTip = "Shows the receipt";
    Command1.toolTip = "Reads a proposal's file into the forms; File, Open begins afresh with one";
    cmdClose.toolTip = "Closes the Particulars; what was typed stays";
    for (const std::string_view use : plotUses)
        cboProposalTyp.addItem(use);
    for (const CodedText& zone : zones)
        cboZone.addItem(zone.text);
    for (TextBox frmAnnexureA::*box : longTexts)
        (this->*box).multiLine = true;

    wireKeyFilters();
    wireFirstPageTests();
    wireButtons();
    Opt2.yes.click = [this] { Opt2Y_Click(); };
    Opt2.no.click = [this] { Opt2N_Click(); };
    PropTab.click = [this] { PropTab_Click(); };
    cboCaseType.click = [this] { cboCaseType_Click(); };
    OptArch.click = [this] { lblArch.setCaption("Architect "); };
    OptLE.click = [this] { lblArch.setCaption(OptLE.caption()); };
    OptSE.click = [this] { lblArch.setCaption(OptSE.caption()); };
    txtPathNm.change = [this] { this->proposal.screen.setCaption(txtPathNm.text()); };

    wireCrossFieldRules(*this, frmAnnexureARules);
    procedure("SaveData", [this] { SaveData(); });
    procedure("CreateXMLFIle", [this] { this->proposal.commands.CreateXMLFIle(); });
    procedure("validate", [this] { validate(); });
    procedure("validateAnnexureFirstPage", [this] { validateAnnexureFirstPage(); });
    procedure("setComboValues", [this] { setComboValues(); });
}

void frmAnnexureA::wireKeyFilters() {
    for (TextBox frmAnnexureA::*box : decimalBoxes)
        (this->*box).keyPress = keyFilterDecimal;
    for (TextBox frmAnnexureA::*box : wholeNumberBoxes)
        (this->*box).keyPress = keyFilterNumeric;
}

void frmAnnexureA::wireButtons() {
    cmdFormNo.onClick([this](int page) { cmdFormNo_Click(page); });
    cmdNavNext.click = [this] { cmdNavNext_Click(); };
    cmdNavPrev.click = [this] { cmdNavPrev_Click(); };
    cmdNext.click = [this] { cmdNext_Click(); };
    cmdPrevious.click = [this] { cmdPrevious_Click(); };
    cmdSave.click = [this] { cmdSave_Click(); };
    cmdSaveALL.click = [this] { proposal.commands.saveProposal(); };
    cmdClose.click = [this] { cmdClose_Click(); };
    Command1.click = [this] { Command1_Click(); };
    cmdPrint.click = [this] {
        proposal.noReportReturn = false;
        proposal.commands.print("rptAnnexutreA");
    };
    cmdUS84.click = [this] { proposal.commands.print("rptReciept"); };
    cmdPlotRelation.click = [this] { proposal.commands.open("frmPlotExtractRelation"); };
}

void frmAnnexureA::load() {
    setAllDatesToToday(*this);
    OptArch.setValue(true);
    PropTab.setTab(0);
    PropTab_Click();
    setComboValues();
    setFormColors(*this, proposal);
    showFileAndRevision(false);
}

void frmAnnexureA::setComboValues() {
    cboCaseType.clear();
    for (const CaseType& type : caseTypes)
        if (type.offered)
            cboCaseType.addItem(type.text);
    cboProposProj.clear();
    for (const CodedText& project : projects)
        cboProposProj.addItem(project.text);
    cboSector.clear();
    villageCodes.clear();
    const Ports& ports = proposal.screen.ports;
    const std::string villages = ports.program.folder() + "/VILLAGENAMES.txt";
    const Meaning meant(proposal.screen, villages + " cannot be read, or has a line that is no village.");
    ports.files.readLines(villages, [this](std::string_view line) {
        const std::size_t first = line.find('#');
        const std::size_t second = first == line.npos ? first : line.find('#', first + 1);
        if (second == line.npos)
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        cboSector.addItem(line.substr(0, first), toInteger32(line.substr(first + 1, second - first - 1)));
        const std::string_view rest = line.substr(second + 1);
        villageCodes.add(rest.substr(0, rest.find('#')));
    });
}

void frmAnnexureA::cboCaseType_Click() {
    const auto type = std::ranges::find(caseTypes, trim(cboCaseType.text()), &CaseType::text);
    if (type == caseTypes.end())
        return;
    const bool numbered = !type->revisionCaption.empty();
    showFileAndRevision(numbered);
    if (numbered)
        lblRevNo.setCaption(type->revisionCaption);
}

void frmAnnexureA::showFileAndRevision(bool on) {
    lblFileNo.setVisible(on);
    lblRevNo.setVisible(on);
    txtFileNo.setVisible(on);
    txtRevNo.setVisible(on);
}

void frmAnnexureA::enterPressed() {
    rewriteInProperCase(*this);
}

void frmAnnexureA::cmdFormNo_Click(int index) {
    if (index != 0 &&
        !validateAnnexureFirstPage("Page " + std::to_string(index + 1) + " opens when page 1 is complete."))
        return;
    Form* form = this;
    if (index < PageButtons::firstOfSectionFour) {
        goToTab(index);
    } else {
        auto& continuation = proposal.forms.get<AnnexureACont>();
        continuation.SectFourDet.setTab(index - PageButtons::firstOfSectionFour);
        continuation.paintPageButtons();
        form = &continuation;
    }
    form->show();
    if (index != 0)
        focusFirstOfPage(*form);
    proposal.currentFormNo = static_cast<std::int16_t>(index);
}

void frmAnnexureA::goToTab(int tab) {
    PropTab.setTab(tab);
    cmdNext.setEnabled(true);
    cmdFormNo.paint(proposal, tab);
}

void frmAnnexureA::PropTab_Click() {
    cmdPrevious.setEnabled(PropTab.tab() > 0);
    cmdNext.setEnabled(PropTab.tab() < lastTab);
    cmdFormNo.paint(proposal, PropTab.tab());
}

void frmAnnexureA::cmdNext_Click() {
    if (PropTab.tab() < lastTab)
        goToTab(PropTab.tab() + 1);
    else
        proposal.forms.get<AnnexureACont>().show();
    cmdPrevious.setEnabled(true);
}

void frmAnnexureA::cmdPrevious_Click() {
    if (PropTab.tab() > 0)
        goToTab(PropTab.tab() - 1);
    if (PropTab.tab() == 0)
        cmdPrevious.setEnabled(false);
    cmdNext.setEnabled(true);
}

void frmAnnexureA::cmdNavNext_Click() {
    // Stops one short of the last page, which its own button alone reaches.
    if (proposal.currentFormNo < PageButtons::count - 2)
        cmdFormNo_Click(proposal.currentFormNo + 1);
}

void frmAnnexureA::cmdNavPrev_Click() {
    if (proposal.currentFormNo > 0)
        cmdFormNo_Click(proposal.currentFormNo - 1);
}

void frmAnnexureA::SaveData() {
    proposal.commands.SaveData();
}

void frmAnnexureA::cmdSave_Click() {
    SaveData();
}

void frmAnnexureA::cmdClose_Click() {
    hideParticulars(proposal);
}

void frmAnnexureA::Command1_Click() {
    proposal.screen.message(std::string("File Open = ") + (proposal.isProposalOpen ? "True" : "False"), "");
    proposal.commands.readXml();
}

}  // namespace plandesk
