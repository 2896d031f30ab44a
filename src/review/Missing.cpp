// What a proposal still lacks.

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "fees/frmDocCheckList.h"
#include "fees/frmDocCheckList1.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/Grid.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"
#include "review/CarriedAnswers.h"
#include "review/Checks.h"
#include "review/Questions.h"

namespace plandesk {

namespace {

using Findings = std::vector<Finding>;

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

/// The letters are no part of the file, and nothing of them must be filled in.
void starredQuestions(Proposal& proposal, Findings& findings) {
    for (const std::string_view name : {"frmAnnexureA", "AnnexureACont", "frmPayDetail", "frmNaOrder"}) {
        const Form* form = proposal.forms.loaded(name);
        if (!form)
            continue;
        for (const Question& question : questionsOf(*form))
            if (question.mandatory() && question.shown() && trim(answerOf(question)).empty() &&
                !known(findings, question.control()))
                findings.push_back({FindingKind::Missing, form->name(), question.control().key(), -1, -1,
                                    wordsOf(question), "This question is marked with * and has no answer."});
    }
}

void checklists(Proposal& proposal, Findings& findings) {
    const auto look = [&](DocCheckList& list) {
        for (const DocCheckList::Fault& fault : list.faults())
            findings.push_back({FindingKind::Missing, list.name(), fault.box ? fault.box->key() : "", -1, -1,
                                fault.box ? wordsOf(*fault.box) : "", fault.text});
    };
    if (proposal.forms.loaded(frmDocCheckList::formName))
        look(proposal.forms.get<frmDocCheckList>());
    if (proposal.forms.loaded(frmDocCheckList1::formName))
        look(proposal.forms.get<frmDocCheckList1>());
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
    {&Tables::rsOwnerPRC, OwnerColumn::Name, "This owner has no name."},
    {&Tables::rsPAHPRC, HolderColumn::Name, "This holder has no name."},
});

void tables(const Proposal& proposal, Findings& findings) {
    for (const NeededCell& needed : neededCells) {
        const Recordset* table = (proposal.tables.*needed.table).get();
        if (!table)
            continue;
        const auto carried = std::ranges::find(carriedTables(), needed.table, &CarriedTable::table);
        int place = 0;
        for (const std::span<const Value> row : table->allRows()) {
            if (trim(valueText(row[static_cast<std::size_t>(needed.column)])).empty()) {
                const Answered cell{std::string(carried->form),
                                    std::string(carried->grid),
                                    place,
                                    needed.column,
                                    valueText(row[0]),
                                    ""};
                findings.push_back({FindingKind::Missing, cell.form, cell.control, cell.row, cell.column,
                                    questionOf(proposal, cell), std::string(needed.sentence)});
            }
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
    if (!details)
        return false;
    const auto columns = details->columns();
    const auto key = static_cast<std::size_t>(std::ranges::find(columns, "ExtNo", &Column::name) - columns.begin());
    for (const std::span<const Value> row : details->allRows()) {
        if (key >= row.size() || row[key] != extract)
            continue;
        for (std::size_t column = 0; column < row.size(); ++column)
            if (column != key && !trim(valueText(row[column])).empty())
                return true;
    }
    return false;
}

void orders(const Proposal& proposal, Findings& findings) {
    const Recordset* chosen = proposal.tables.rsULCOrder.get();
    if (!chosen)
        return;
    int place = 0;
    for (const std::span<const Value> row : chosen->allRows()) {
        const std::string number(trim(valueText(row[ULCOrderColumn::ULCOrderSelection])));
        const auto order = std::ranges::find(orderDetails, number, &OrderDetails::number);
        if (order != orderDetails.end() &&
            !hasDetails((proposal.tables.*order->details).get(), row[ULCOrderColumn::ExtNo]))
            findings.push_back({FindingKind::Missing, "frmScrutinyULC", "dgdULCOrderDetails", place,
                                ULCOrderColumn::ULCOrderSelection, "Order of extract " + valueText(row[0]),
                                "An order is chosen, and its details are not filled in."});
        ++place;
    }
}

}  // namespace

void findMissing(SilentSystem& copy, std::vector<Finding>& findings) {
    firstPage(copy.proposal, findings);
    starredQuestions(copy.proposal, findings);
    checklists(copy.proposal, findings);
    tables(copy.proposal, findings);
    orders(copy.proposal, findings);
}

}  // namespace plandesk
