// What is worth a second look.

#include <array>
#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "document/DocumentBlocks.h"
#include "particulars/frmAnnexureA.h"
#include "review/CarriedAnswers.h"
#include "review/Checks.h"
#include "review/Questions.h"

namespace plandesk {

namespace {

using Findings = std::vector<Finding>;

void consider(Findings& findings, const Question& question, std::string sentence) {
    const Control& control = question.control();
    findings.push_back(
        {FindingKind::Consider, control.form().name(), control.key(), -1, -1, wordsOf(question), std::move(sentence)});
}

void datesToCome(const Proposal& proposal, Findings& findings) {
    const Date today = proposal.screen.ports.clock.today();
    for (const std::string_view name : {"frmAnnexureA", "frmPayDetail", "frmNaOrder"})
        if (const Form* form = proposal.forms.loaded(name))
            for (const Question& question : questionsOf(*form))
                if (const auto* picker = dynamic_cast<const DatePicker*>(&question.control());
                    picker && picker->visible() && today < picker->date())
                    consider(findings, question, picker->date().text() + " lies in the future.");
}

/// What is asked for and has no place in the document.
void notCarried(const Proposal& proposal, Findings& findings) {
    const auto* form = static_cast<const frmAnnexureA*>(proposal.forms.loaded(frmAnnexureA::formName));
    if (!form)
        return;
    for (const Question& question : questionsOf(*form))
        if (&question.control() == &form->txtReservationArea && !trim(answerOf(question)).empty())
            consider(findings, question, "The document has no place for this answer; it is on no file.");
}

const Question* questionAt(const std::vector<Question>& questions, const Control& control) {
    for (const Question& question : questions)
        if (&question.control() == &control)
            return &question;
    return nullptr;
}

/// The plot less its deductions is the net area, where all three are told.
void netArea(const Proposal& proposal, Findings& findings) {
    const auto* form = static_cast<const frmAnnexureA*>(proposal.forms.loaded(frmAnnexureA::formName));
    if (!form)
        return;
    const TextBox& plot = form->txtPltArea;
    const TextBox& less = form->txtTotalAreaRoadDeduction;
    const TextBox& net = form->txtNetArea;
    if (!net.visible() || !isNumeric(plot.text()) || !isNumeric(less.text()) || !isNumeric(net.text()))
        return;
    const double left = leadingNumber(plot.text()) - leadingNumber(less.text());
    const std::vector<Question> questions = questionsOf(*form);
    const Question* question = questionAt(questions, net);
    if (question && formatAmount(left) != formatAmount(leadingNumber(net.text())))
        consider(findings, *question,
                 "The plot area less its deductions is " + formatAmount(left) + ", and not " + net.text() + ".");
}

/// A block that nothing reads back: a file that is opened and saved again loses it.
struct UnreadBlock {
    std::string Proposal::*fragment;
    std::string_view form;
    std::string_view words;
};
constexpr std::array unreadBlocks = std::to_array<UnreadBlock>({
    {&Proposal::drcIssueXML, "frmIssuOfDRc", "The application for a certificate"},
    {&Proposal::drcTransferXML, "frmDRCTransfer", "The transfer of a certificate"},
    {&Proposal::drcUtilisationXML, "frmDRCUtilisationForm", "The utilisation of a certificate"},
});

void blocks(const Proposal& proposal, Findings& findings) {
    for (const UnreadBlock& block : unreadBlocks) {
        const Form* form = proposal.forms.loaded(block.form);
        const bool written = !(proposal.*block.fragment).empty();
        if (form && form->visible() && !written)
            findings.push_back({FindingKind::Consider, form->name(), "", -1, -1, form->caption(),
                                std::string(block.words) + " is not in the file until its own Save was pressed."});
        if (written)
            findings.push_back({FindingKind::Consider, std::string(block.form), "", -1, -1, "",
                                std::string(block.words) +
                                    " is in the next file, and lost when that is opened and saved again after a new "
                                    "start."});
    }
    const Recordset* ownership = proposal.tables.rsOwnership.get();
    if (!proposal.ULCScrutinyXML.empty() && (!ownership || ownership->rowCount() == 0))
        findings.push_back({FindingKind::Consider, "frmScrutinyULC", "", -1, -1, "",
                            "The orders are written as they were saved earlier, since no ownership is listed now."});
}

}  // namespace

void findDoubtful(const Proposal& proposal, std::vector<Finding>& findings) {
    datesToCome(proposal, findings);
    netArea(proposal, findings);
    notCarried(proposal, findings);
    blocks(proposal, findings);
}

}  // namespace plandesk
