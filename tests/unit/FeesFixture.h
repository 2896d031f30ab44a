#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "fees/frmDocCheckList.h"
#include "fees/frmDocCheckList1.h"
#include "fees/frmPayDetail.h"
#include "unit/ParticularsFixture.h"

namespace plandesk::test {

/// A proposal with the Particulars, the fee form and both checklists; what the forms ask of higher levels is written
/// down.
class FeesTest : public ParticularsTest {
protected:
    FeesTest() {
        proposal.formBackColor = fromBlueGreenRed(0xF2F8FF);
        proposal.forms.declare<frmPayDetail>();
        proposal.forms.declare<frmDocCheckList>();
        proposal.forms.declare<frmDocCheckList1>();
        proposal.commands.open = [this](std::string_view name) {
            if (name == frmPayDetail::formName)
                return showPayment(proposal);
            opened.emplace_back(name);
            if (Form* form = proposal.forms.touch(name))
                form->show();
        };
        proposal.commands.print = [this](std::string_view report) { printed.emplace_back(report); };
        proposal.commands.saveProposal = [this] { ++savedProposals; };
    }

    frmPayDetail& fees() { return proposal.forms.get<frmPayDetail>(); }
    frmDocCheckList& mandatory() { return proposal.forms.get<frmDocCheckList>(); }
    frmDocCheckList1& conditional() { return proposal.forms.get<frmDocCheckList1>(); }

    /// One run-time error has reached the user since the last call.
    void expectError(std::string_view description) { expectMessage(description, "", Icon::Critical); }

    std::vector<std::string> opened;
    std::vector<std::string> printed;
    int savedProposals = 0;
};

}  // namespace plandesk::test
