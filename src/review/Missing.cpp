// What a proposal still lacks.

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "fees/frmDocCheckList.h"
#include "fees/frmDocCheckList1.h"
#include "fees/frmPayDetail.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"
#include "reports/letters/LetterForm.h"
#include "review/Checks.h"

namespace plandesk {

namespace {

bool known(const Findings& findings, const Control& control) {
    return std::ranges::any_of(findings, [&](const Finding& finding) {
        return finding.form == control.form().name() && finding.control == control.key();
    });
}

std::string wordsOf(const Control& control) {
    for (const Question& question : questionsOf(control.form()))
        if (std::ranges::find(question.controls, &control) != question.controls.end())
            return wordsOf(question);
    return control.key();
}

void firstPage(Proposal& proposal, Findings& findings) {
    for (const auto& fault : proposal.forms.get<frmAnnexureA>().firstPageFaults())
        findings.push_back({FindingKind::Missing, fault.field->form().name(), fault.field->key(), -1, -1,
                            wordsOf(*fault.field), std::string(trim(fault.text))});
}

bool answered(const Question& question) {
    return question.control().kind() != ControlKind::DatePicker && !meant(answerOf(question)).empty();
}

/// The letters are no part of the file, and nothing of them must be filled in. Nor must a form that nobody has begun
/// and that is not on the screen, but for the first one.
void starredQuestions(const Proposal& proposal, Findings& findings) {
    for (const auto& [name, form] : proposal.forms.all()) {
        if (dynamic_cast<const LetterForm*>(form.get()))
            continue;
        const std::vector<Question> questions = questionsOf(*form);
        if (name != frmAnnexureA::formName && !form->visible() && std::ranges::none_of(questions, answered))
            continue;
        for (const Question& question : questions)
            if (question.mandatory() && question.shown() && meant(answerOf(question)).empty() &&
                !known(findings, question.control()))
                findings.push_back({FindingKind::Missing, form->name(), question.control().key(), -1, -1,
                                    wordsOf(question), "This question is marked with * and has no answer."});
    }
}

void checklists(Proposal& proposal, Findings& findings) {
    const auto look = [&](DocCheckList& list) {
        for (const DocCheckList::Fault& fault : list.faults()) {
            const Control* at = fault.box ? static_cast<const Control*>(fault.box) : fault.unticked;
            findings.push_back(
                {FindingKind::Missing, list.name(), at->key(), -1, -1, wordsOf(*at), std::string(trim(fault.text))});
        }
    };
    if (proposal.forms.loaded(frmDocCheckList::formName))
        look(proposal.forms.get<frmDocCheckList>());
    if (proposal.forms.loaded(frmDocCheckList1::formName))
        look(proposal.forms.get<frmDocCheckList1>());
}

/// The save fills them in by itself.
void bankDetails(const Proposal& proposal, Findings& findings) {
    const auto* payment = static_cast<const frmPayDetail*>(proposal.forms.loaded(frmPayDetail::formName));
    if (!payment || payment->OptCash.value())
        return;
    for (const TextBox* box : {&payment->txtChqDraftNo, &payment->txtBankNm, &payment->txtBranchNm})
        if (trim(box->text()).empty() || sameAnswer(box->text(), "0"))
            findings.push_back({FindingKind::Missing, payment->name(), box->key(), -1, -1, wordsOf(*box),
                                "A payment by pay order or draft needs it; left open it is saved as 0.00."});
}

/// A holder whom the extract does not count and of whom nothing is told: each new extract gets such a row.
bool uncounted(const Proposal& proposal, Tables::Member table, std::span<const Value> row) {
    const bool cards = table == &Tables::rsPAHPRC;
    const Recordset* extracts = (cards ? proposal.tables.rsExtractPRC : proposal.tables.rsExtract712).get();
    const auto* number = std::get_if<std::int32_t>(&row[HolderColumn::ExtNo]);
    if ((!cards && table != &Tables::rsPAH712) || !extracts || !number || !isNull(row[HolderColumn::PAHSing]))
        return false;
    const auto extract = extracts->rowsOfKey(*number);
    return !extract.empty() && valueNumber(extract.front()[ExtractColumn::NoOfPAHs]) == 0;
}

/// A cell that every row of a table should have.
struct NeededCell {
    Tables::Member table;
    int column;
    std::string_view sentence;
};

constexpr std::array neededCells = std::to_array<NeededCell>({
    {&Tables::rsExtract712, ExtractColumn::SurveyNo, "This extract has no survey number."},
    {&Tables::rsOwner712, OwnerColumn::Name, "This owner has no name."},
    {&Tables::rsPAH712, HolderColumn::Name, "This holder has no name."},
    {&Tables::rsExtractPRC, ExtractColumn::SurveyNo, "This property card has no survey number."},
    {&Tables::rsExtractPRC, ExtractColumn::DateOf712, "This property card has no date."},
    {&Tables::rsOwnerPRC, OwnerColumn::Name, "This owner has no name."},
    {&Tables::rsPAHPRC, HolderColumn::Name, "This holder has no name."},
});

void tables(const Proposal& proposal, Words& words, Findings& findings) {
    for (const NeededCell& needed : neededCells) {
        const Recordset* table = (proposal.tables.*needed.table).get();
        if (!table)
            continue;
        int place = 0;
        for (const std::span<const Value> row : table->allRows()) {
            const Value& value = row[static_cast<std::size_t>(needed.column)];
            const auto* text = std::get_if<std::string>(&value);
            if ((isNull(value) || (text && trim(*text).empty())) && !uncounted(proposal, needed.table, row))
                findings.push_back(words.finding(FindingKind::Missing, words.cell(needed.table, place, needed.column),
                                                 std::string(needed.sentence)));
            ++place;
        }
    }
}

/// Orders whose own form has nothing for the extract.
struct OrderDetails {
    std::string_view number;  ///< as the order's list has it
    Tables::Member details;
};
constexpr std::array orderDetails = std::to_array<OrderDetails>({
    {"1", &Tables::rsULCOrderUS84},
    {"2", &Tables::rsULCOrderUS20a1},
    {"3", &Tables::rsULCOrderUS22},
});

bool hasDetails(const Recordset* details, const Value& extract) {
    const auto* number = std::get_if<std::int32_t>(&extract);
    if (!details || !number)
        return false;
    const std::size_t key = keyColumnOf(*details);
    for (const std::span<const Value> row : details->rowsOfKey(*number))
        for (std::size_t column = 0; column < row.size(); ++column)
            if (column != key && !trim(valueText(row[column])).empty())
                return true;
    return false;
}

void orders(const Proposal& proposal, Words& words, Findings& findings) {
    const Recordset* chosen = proposal.tables.rsULCOrder.get();
    if (!chosen)
        return;
    int place = -1;
    for (const std::span<const Value> row : chosen->allRows()) {
        ++place;
        const Value& selection = row[ULCOrderColumn::ULCOrderSelection];
        if (isNull(selection))
            continue;
        const std::string number(trim(valueText(selection)));
        const auto order = std::ranges::find(orderDetails, number, &OrderDetails::number);
        if (order == orderDetails.end() ||
            hasDetails((proposal.tables.*order->details).get(), row[ULCOrderColumn::ExtNo]))
            continue;
        findings.push_back(words.finding(FindingKind::Missing,
                                         words.cell(&Tables::rsULCOrder, place, ULCOrderColumn::ULCOrderSelection),
                                         "An order is chosen, and its details are not filled in."));
    }
}

}  // namespace

void findMissing(SilentSystem& copy, Words& words, Findings& findings) {
    firstPage(copy.proposal, findings);
    starredQuestions(copy.proposal, findings);
    checklists(copy.proposal, findings);
    bankDetails(copy.proposal, findings);
    tables(copy.proposal, words, findings);
    orders(copy.proposal, words, findings);
}

}  // namespace plandesk
