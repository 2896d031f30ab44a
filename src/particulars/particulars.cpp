#include "particulars/particulars.h"

#include <string_view>

#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"

namespace plandesk {

void showAnnexureFirstPage(Proposal& proposal) {
    auto& form = proposal.forms.get<frmAnnexureA>();
    form.show();
    form.PropTab.setTab(0);
    form.cmdPrevious_Click();
}

void showSectionFourPage(Proposal& proposal) {
    auto& form = proposal.forms.get<AnnexureACont>();
    form.show();
    form.SectFourDet.setTab(0);
    form.paintLinks();
}

void hideParticulars(Proposal& proposal) {
    for (const std::string_view name :
         {frmAnnexureA::formName, AnnexureACont::formName, std::string_view("frmDiscretionNewCase"),
          std::string_view("frmDiscretionrevisedCase")})
        if (Form* form = proposal.forms.loaded(name))
            form->hide();
}

}  // namespace plandesk
