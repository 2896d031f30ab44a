#include "shell/FormCatalogue.h"

#include <algorithm>
#include <array>

#include "drc/frmDRCTransfer.h"
#include "drc/frmDRCTransferCont.h"
#include "drc/frmDRCUtilisationForm.h"
#include "drc/frmIssuOfDRc.h"
#include "fees/frmDiscretionNewCase.h"
#include "fees/frmDiscretionrevisedCase.h"
#include "fees/frmDocCheckList.h"
#include "fees/frmDocCheckList1.h"
#include "fees/frmPayDetail.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/frmNaOrder.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"
#include "reports/frmPrint.h"
#include "reports/frmReportNav.h"
#include "reports/letters/StatutoryLetters.h"
#include "shell/frmAbout.h"
#include "shell/frmHelp.h"
#include "ulc/frmScrutinyULC.h"
#include "ulc/frmULC20aDetails.h"
#include "ulc/frmUS22.h"
#include "ulc/frmUS84.h"

namespace plandesk {

namespace {

constexpr bool dropped = true;
constexpr bool kept = false;

void openPlotRelation(Proposal& proposal) {
    proposal.forms.get<frmPlotExtractRelation>().open();
}

constexpr std::array catalogue = std::to_array<FormRow>({
    formRow<AnnexureACont>(dropped),
    formRow<frmAnnexureA>(dropped),
    formRow<frmbuildingcompletioncertificate>(dropped),
    formRow<frmcompletionuptoplinthlevel>(dropped),
    formRow<frmDocCheckList>(dropped),
    formRow<frmforpartoccupancycertificate>(dropped),
    formRow<frmMain712>(dropped),
    formRow<frmNaOrder>(dropped),
    formRow<frmnoticeofcommencementofwork>(dropped),
    formRow<frmofsupervision>(dropped),
    formRow<frmPayDetail>(dropped, showPayment),
    formRow<frmPlotExtractRelation>(dropped, openPlotRelation),
    formRow<frmPRCEXT>(dropped),
    formRow<frmScrutinyULC>(dropped),
    formRow<frmtdrfortransferringownership>(dropped),
    formRow<frmULC20aDetails>(dropped),
    formRow<frmUS22>(dropped),
    formRow<frmUS84>(dropped),

    // These keep their contents across New and Open.
    formRow<frmDocCheckList1>(kept),
    formRow<frmDiscretionNewCase>(kept),
    formRow<frmDiscretionrevisedCase>(kept),
    formRow<frmIssuOfDRc>(kept),
    formRow<frmDRCTransfer>(kept),
    formRow<frmDRCTransferCont>(kept),
    formRow<frmDRCUtilisationForm>(kept),
    formRow<frmReportNav>(kept, openNavigator),
    formRow<frmPrint>(kept),
    formRow<frmHelp>(kept),
    formRow<frmAbout>(kept),
});

// A form with a member that cannot be assigned could not be copied with its proposal: see controls/Fixed.h.
static_assert(std::ranges::all_of(catalogue, [](const FormRow& row) { return row.make && row.assign; }));

}  // namespace

std::span<const FormRow> formCatalogue() {
    return catalogue;
}

}  // namespace plandesk
