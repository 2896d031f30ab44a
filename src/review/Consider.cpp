// What is worth a second look.

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "base/Text.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"
#include "reports/letters/LetterForm.h"
#include "review/Checks.h"

namespace plandesk {

namespace {

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

/// A column of dates, as dates or as texts.
struct DateColumn {
    Tables::Member table;
    int column;
};
constexpr std::array dateColumns = std::to_array<DateColumn>({
    {&Tables::rsExtract712, ExtractColumn::DateOf712},
    {&Tables::rsExtractPRC, ExtractColumn::DateOf712},
    {&Tables::rsULCOrderUS84, US84OrderColumn::ResultDate},
    {&Tables::rsULCOrderUS20a1, US20a1OrderColumn::ii},
});

template <class Tell>
void forEachDate(const Proposal& proposal, const DateColumn& dates, const Tell& tell) {
    const Recordset* table = (proposal.tables.*dates.table).get();
    if (!table)
        return;
    int place = 0;
    for (const std::span<const Value> row : table->allRows()) {
        const Value& value = row[static_cast<std::size_t>(dates.column)];
        const auto* text = std::get_if<std::string>(&value);
        const auto* date = std::get_if<Date>(&value);
        if (const auto parsed = text ? Date::parse(*text) : date ? std::optional(*date) : std::nullopt)
            tell(place, *parsed);
        ++place;
    }
}

void cellDates(const Proposal& proposal, Words& words, Findings& findings) {
    const Date today = proposal.screen.ports.clock.today();
    for (const DateColumn& dates : dateColumns)
        forEachDate(proposal, dates, [&](int place, const Date& date) {
            const auto tell = [&](std::string sentence) {
                findings.push_back(words.finding(FindingKind::Consider, words.cell(dates.table, place, dates.column),
                                                 std::move(sentence)));
            };
            if (today < date)
                tell(date.text() + " lies in the future.");
            else if (dates.table == &Tables::rsULCOrderUS20a1 && date < today)
                tell(
                    "The picker of an order that was read stands at the present day, and the next save of its form "
                    "writes that for " +
                    date.text() + ".");
        });
}

/// What is asked for and has no place in the document.
struct NotCarried {
    std::string_view form;
    std::string_view controls;
};
constexpr std::array notCarriedAnswers = std::to_array<NotCarried>({
    {"frmAnnexureA", "txtReservationArea txtExistingTotalFloorArea txtProposedTotalFloorArea"},
    {"frmScrutinyULC", "txtProposalNo txtArea"},
});

void notCarried(const Proposal& proposal, Findings& findings) {
    for (const NotCarried& each : notCarriedAnswers)
        if (const Form* form = proposal.forms.loaded(each.form))
            for (const Question& question : questionsOf(*form)) {
                const std::vector<std::string> keys = split(each.controls, " ");
                if (std::ranges::find(keys, question.control().key()) != keys.end() &&
                    !trim(answerOf(question)).empty())
                    consider(findings, question, "The document has no place for this answer; it is on no file.");
            }
}

/// The blanks of a letter are kept by no file.
void letters(const Proposal& proposal, Findings& findings) {
    for (const auto& [name, form] : proposal.forms.all()) {
        const auto* letter = dynamic_cast<const LetterForm*>(form.get());
        if (!letter)
            continue;
        const auto filled =
            std::ranges::find_if(letter->blanks.boxes, [](const TextBox& box) { return !trim(box.text()).empty(); });
        if (filled != letter->blanks.boxes.end())
            findings.push_back({FindingKind::Consider, letter->name(), filled->key(), -1, -1, letter->caption(),
                                "No file keeps the letters: this one is lost with New, Open and the program's end."});
    }
}

/// A block that nothing reads back: a file that is opened and saved again loses it.
struct UnreadBlock {
    std::string Proposal::*fragment;
    std::string_view form;
    std::string_view save;  ///< procedure of the form that builds it
    std::string_view words;
};
constexpr std::array unreadBlocks = std::to_array<UnreadBlock>({
    {&Proposal::drcIssueXML, "frmIssuOfDRc", "SaveIssueOfDRC", "The application for a certificate"},
    {&Proposal::drcTransferXML, "frmDRCTransfer", "SaveDRCTransfer", "The transfer of a certificate"},
    {&Proposal::drcUtilisationXML, "frmDRCUtilisationForm", "SaveUtilisationDRC", "The utilisation of a certificate"},
});

void blocks(const Proposal& proposal, Findings& findings) {
    for (const UnreadBlock& block : unreadBlocks)
        if (!(proposal.*block.fragment).empty())
            findings.push_back({FindingKind::Consider, std::string(block.form), "", -1, -1, std::string(block.words),
                                std::string(block.words) +
                                    " is in the next file, and lost when that is opened and saved again after a new "
                                    "start."});
}

bool begun(const Form& form) {
    bool typed = false;
    form.forEach<TextBox>([&typed](const TextBox& box) { typed = typed || !trim(box.text()).empty(); });
    return form.visible() || typed;
}

/// Extracts that have no order are read with a row in every table of orders.
void extractsWithoutOrder(const Proposal& proposal, Findings& findings) {
    const Recordset* ownership = proposal.tables.rsOwnership.get();
    if (!ownership)
        return;
    int without = 0;
    for (const std::span<const Value> row : ownership->allRows()) {
        const auto* extract = std::get_if<std::int32_t>(&row[OwnershipColumn::ExtNo]);
        const auto has = [&](const Tables::Reference& table) {
            return extract && table && !table->rowsOfKey(*extract).empty();
        };
        const Tables& tables = proposal.tables;
        without += has(tables.rsULCOrderUS84) && has(tables.rsULCOrderUS20a1) && has(tables.rsULCOrderUS22) ? 0 : 1;
    }
    if (without > 0)
        findings.push_back({FindingKind::Consider, "frmScrutinyULC", "", -1, -1, "",
                            std::to_string(without) +
                                " extracts lack an order of some kind; once the file was opened they are written with "
                                "empty ones."});
}

}  // namespace

void findDoubtful(const Proposal& copy, Words& words, Findings& findings) {
    datesToCome(copy, findings);
    cellDates(copy, words, findings);
    findFigures(copy, words, findings);
    notCarried(copy, findings);
    letters(copy, findings);
    blocks(copy, findings);
    extractsWithoutOrder(copy, findings);
}

void findUnsaved(SilentSystem& copy, Findings& findings) {
    Proposal& proposal = copy.proposal;
    for (const UnreadBlock& block : unreadBlocks) {
        Form* form = proposal.forms.loaded(block.form);
        if (!form || !begun(*form))
            continue;
        const std::string before = proposal.*block.fragment;
        proposal.screen.event([&] { form->call(block.save); });
        if (proposal.*block.fragment == before)
            continue;
        findings.push_back({FindingKind::Consider, form->name(), "", -1, -1, form->caption(),
                            std::string(block.words) +
                                (before.empty() ? " is not in the file until its own Save was pressed."
                                                : " is written as it was when its own Save was last pressed; what was "
                                                  "typed since is not.")});
    }
}

}  // namespace plandesk
