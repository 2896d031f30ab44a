#include "particulars/AnnexureACont.h"

#include "base/Numbers.h"
#include "particulars/AnnexureACont_rules.h"
#include "particulars/frmAnnexureA.h"
#include "particulars/particulars.h"

namespace plandesk {

namespace {

constexpr TextBox AnnexureACont::*decimalBoxes[] = {
    &AnnexureACont::txtWidthOfFrontOpenSpace,
    &AnnexureACont::txtDistCentStreet,
    &AnnexureACont::txtWidthOfSideOpenSpace,
    &AnnexureACont::txtWidthOfRearOpenSpace,
    &AnnexureACont::txtDistanceBetweenBldg,
    &AnnexureACont::txtDiaInnerChowk,
    &AnnexureACont::txtDiaOuterChowk,
    &AnnexureACont::txtMaxWidthOfBalcony,
    &AnnexureACont::txtTotalArea,
    &AnnexureACont::txtMaxWidthOtherProjection,
    &AnnexureACont::txtWidthMeanAccess,
    &AnnexureACont::txtClearHgt,
    &AnnexureACont::txtHgtEnroch,
    &AnnexureACont::txtCompWallHgt,
    &AnnexureACont::txtWaterCloset,
    &AnnexureACont::txtNoBath,
    &AnnexureACont::txtNoUrinal,
    &AnnexureACont::txtNoKitchen,
    &AnnexureACont::txtNoOfWaterClosetProposed,
    &AnnexureACont::txtNoOfBathsClosetProposed,
    &AnnexureACont::txtNoOfUrinalsClosetProposed,
    &AnnexureACont::txtNoOfKitchenClosetProposed,
};

constexpr TextBox AnnexureACont::*longTexts[] = {
    &AnnexureACont::txtFireDetail,     &AnnexureACont::txtRmk4, &AnnexureACont::txtNotComply,
    &AnnexureACont::txtSectionRemark4, &AnnexureACont::txtRmk5,
};

}  // namespace

AnnexureACont::AnnexureACont(Proposal& proposal)
    : DataForm(proposal, formName, "Particulars of Development"), links(*this, proposal) {
    cmdNavPrev.toolTip = "Previous page";
    cmdNavNext.toolTip = "Next page";
    cmdSave.toolTip = keepsAnswersTip;
    cmdSaveALL.toolTip = savesAllTip;
    Command5.toolTip = printsTip;
    Command9.toolTip = "Closes the Particulars; what was typed stays";
    cmdClose.toolTip = closesProgramTip;
    for (TextBox AnnexureACont::*box : longTexts)
        (this->*box).multiLine = true;
    txtRightWay.restoreText("2");
    txtAttachDoc.restoreText("2");

    wireKeyFilters();
    wireButtons();
    opt21bi.onClick([this] { opt21bi_Click(); });
    opt21bii.onClick([this] { txtAttachDoc.setText(std::to_string(opt21bii.code())); });
    txtAttachDoc.change = [this] { txtAttachDoc_Change(); };
    wireCrossFieldRules(*this, annexureAContRules);

    procedure("SaveData", [this] { SaveData(); });
    procedure("validate", [this] { validate(); });
}

void AnnexureACont::wireKeyFilters() {
    for (TextBox AnnexureACont::*box : decimalBoxes)
        (this->*box).keyPress = keyFilterDecimal;
    txtNoLift.keyPress = keyFilterNumeric;
}

void AnnexureACont::wireButtons() {
    const auto firstForm = [this]() -> frmAnnexureA& { return proposal.forms.get<frmAnnexureA>(); };
    cmdFormNo.onClick([firstForm](int page) { firstForm().cmdFormNo_Click(page); });
    cmdNavNext.click = [firstForm] { firstForm().cmdNavNext_Click(); };
    cmdNavPrev.click = [firstForm] { firstForm().cmdNavPrev_Click(); };
    SectFourDet.click = [this] { paintPageButtons(); };
    cmdNext.click = [this] { cmdNext_Click(); };
    cmdPrevious.click = [this] { cmdPrevious_Click(); };
    cmdSave.click = [this] { cmdSave_Click(); };
    cmdSaveALL.click = [this] { proposal.commands.saveProposal(); };
    Command5.click = [this] { proposal.commands.print("rptAnnexutreA"); };
    Command9.click = [this] { hideParticulars(proposal); };
    cmdClose.click = [this] { closeAllForms(proposal); };
}

void AnnexureACont::load() {
    paintPageButtons();
    paintLinks();
    setFormColors(*this, proposal);
}

void AnnexureACont::paintPageButtons() {
    cmdFormNo.paint(proposal, PageButtons::firstOfSectionFour + SectFourDet.tab());
}

void AnnexureACont::paintLinks() {
    links.lblPayment.setForeColor(red);
    links.lblAnnexureB.setForeColor(blue);
    links.lblAnnextureA.setForeColor(blue);
}

void AnnexureACont::opt21bi_Click() {
    txtRightWay.setText(std::to_string(opt21bi.code()));
    Frame5.setVisible(opt21bi.yes.value());
    if (!opt21bi.yes.value())
        opt21bii.clear();  // its digit stays: clearing is no click
}

void AnnexureACont::txtAttachDoc_Change() {
    if (txtAttachDoc.text().empty())
        return txtAttachDoc.setText("2");
    int answer = 0;
    try {
        answer = toInteger16(txtAttachDoc.text());
    } catch (const RuntimeError&) {
        return;  // a text that is no number leaves the answer as it is
    }
    if (answer == 1)
        opt21bii.yes.setValue(true);
    else if (answer == 0)
        opt21bii.no.setValue(true);
    else
        opt21bii.clear();
}

void AnnexureACont::cmdSave_Click() {
    if (SaveData())
        proposal.forms.get<frmAnnexureA>().bringToFront();
}

void AnnexureACont::cmdNext_Click() {
    // The checklists follow the third page; only the page buttons and the tabs lead to the fourth and fifth.
    if (SectFourDet.tab() < lastTabBeforeChecklists)
        SectFourDet.setTab(SectFourDet.tab() + 1);
    else
        proposal.commands.open("frmDocCheckList");
}

void AnnexureACont::cmdPrevious_Click() {
    if (SectFourDet.tab() > 0)
        return SectFourDet.setTab(SectFourDet.tab() - 1);
    auto& form = proposal.forms.get<frmAnnexureA>();
    form.goToTab(PageButtons::firstOfSectionFour - 1);
    form.show();
}

}  // namespace plandesk
