#include "review/CarriedAnswers.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utility>

#include "base/Text.h"
#include "proposal/Grid.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"
#include "review/Questions.h"

namespace plandesk {

namespace {

struct CarriedForm {
    std::string_view name;
    std::string_view only{};     ///< the one control of the form that the document carries; empty: all its questions
    std::string_view without{};  ///< keys of questions that it does not carry, separated by blanks
};

constexpr std::array forms = std::to_array<CarriedForm>({
    {"frmAnnexureA", "", "txtReservationArea"},
    {"AnnexureACont"},
    {"frmDocCheckList"},
    {"frmDocCheckList1"},
    // The fees of the second scrutiny are written once and read by nothing.
    {"frmPayDetail", "",
     "txtScrutinyRArea2 txtScrutinyRRate2 txtScrutinyRAmount2 txtScrutinyCArea2 txtScrutinyCRate2 txtScrutinyCAmount2 "
     "txtScrutinyIndArea2 txtScrutinyINDRate2 txtScrutinyINDAmount2"},
    {"frmNaOrder"},
    {"frmMain712", "txtRemark"},
    {"frmPRCEXT", "txtRemark"},
    {"frmDiscretionrevisedCase"},
    {"frmDiscretionNewCase"},
});

constexpr std::array tables = std::to_array<CarriedTable>({
    {&Tables::rsPlot712, "frmPlotExtractRelation", "dgd712ExtractRelation"},
    {&Tables::rsPlotPRC, "frmPlotExtractRelation", "dgdPRCPlotRel"},
    {&Tables::rsExtract712, "frmMain712", "dgdInfoOfExtract"},
    {&Tables::rsOwner712, "frmMain712", "dgdOwner"},
    {&Tables::rsPAH712, "frmMain712", "dgdPAH"},
    {&Tables::rsExtractPRC, "frmPRCEXT", "dgdInfoOfExtract", ExtractColumn::FerFarNo},
    {&Tables::rsOwnerPRC, "frmPRCEXT", "dgdOwner"},
    {&Tables::rsPAHPRC, "frmPRCEXT", "dgdPAH"},
    {&Tables::rsULCOrder, "frmScrutinyULC", "dgdULCOrderDetails"},
    {&Tables::rsUS84Plots, "frmUS84", "dgdTableAB", US84PlotColumn::No},
});

bool named(std::string_view keys, std::string_view key) {
    for (const std::string& each : split(keys, " "))
        if (each == key)
            return true;
    return false;
}

void appendForm(std::vector<Answered>& answers, const CarriedForm& carried, const Form& form) {
    for (const Question& question : questionsOf(form)) {
        const std::string key = question.control().key();
        if ((carried.only.empty() || key == carried.only) && !named(carried.without, key))
            answers.push_back({form.name(), key, -1, -1, "", answerOf(question)});
    }
}

/// By the first integer column, as the filters of the table are.
std::size_t keyColumnOf(const Recordset& table) {
    const auto columns = table.columns();
    return static_cast<std::size_t>(std::ranges::find(columns, ColumnKind::Integer, &Column::kind) - columns.begin());
}

void appendTable(std::vector<Answered>& answers, const CarriedTable& carried, const Recordset& table) {
    const std::size_t key = keyColumnOf(table);
    std::map<std::string, int> ofKey;
    int number = 0;
    for (const std::span<const Value> row : table.allRows()) {
        std::string rowKey = key < row.size() ? valueText(row[key]) : "";
        rowKey += "/" + std::to_string(++ofKey[rowKey]);
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (static_cast<int>(column) == carried.without)
                continue;
            std::string text = valueText(row[column]);
            if (trim(text).starts_with("--"))  // the item of a list that means no choice
                text.clear();
            answers.push_back({std::string(carried.form), std::string(carried.grid), number, static_cast<int>(column),
                               rowKey, std::move(text)});
        }
        ++number;
    }
}

using Place = Answered::Place;

Place rowOf(const Answered& answered) {
    return {answered.form, answered.control, answered.rowKey, -1};
}

}  // namespace

std::span<const CarriedTable> carriedTables() {
    return tables;
}

std::vector<Answered> carriedAnswers(const Proposal& proposal) {
    std::vector<Answered> answers;
    for (const CarriedForm& carried : forms)
        if (const Form* form = proposal.forms.loaded(carried.name))
            appendForm(answers, carried, *form);
    for (const CarriedTable& carried : tables)
        if (const Recordset* table = (proposal.tables.*carried.table).get())
            appendTable(answers, carried, *table);
    return answers;
}

std::string questionOf(const Proposal& proposal, const Answered& answered) {
    const Form* form = proposal.forms.loaded(answered.form);
    const Control* control = form ? form->findKey(answered.control) : nullptr;
    if (answered.isCell()) {
        const auto* grid = dynamic_cast<const Grid*>(control);
        std::string head(grid ? trim(grid->column(answered.column).caption) : "");
        const auto carried = std::ranges::find_if(tables, [&](const CarriedTable& each) {
            return each.form == answered.form && each.grid == answered.control;
        });
        const Recordset* table = carried == tables.end() ? nullptr : (proposal.tables.*carried->table).get();
        if (head.empty() && table && answered.column >= 0)
            head = trim(table->columns()[static_cast<std::size_t>(answered.column)].name);
        const std::size_t slash = answered.rowKey.find('/');
        const std::string number = answered.rowKey.substr(0, slash);
        const std::string place = slash == std::string::npos ? "" : answered.rowKey.substr(slash + 1);
        return head + " (no. " + number + (place.empty() || place == "1" ? "" : ", row " + place) + ")";
    }
    if (form)
        for (const Question& question : questionsOf(*form))
            if (&question.control() == control)
                return wordsOf(question);
    return answered.control;
}

std::vector<Difference> differencesOf(const std::vector<Answered>& first, const std::vector<Answered>& second) {
    std::map<Place, const Answered*> found;
    std::set<Place> rows;
    for (const Answered& answered : second) {
        found.emplace(answered.place(), &answered);
        if (answered.isCell())
            rows.insert(rowOf(answered));
    }
    std::vector<Difference> differences;
    std::set<Place> known;
    for (const Answered& answered : first) {
        if (answered.isCell()) {
            const bool firstOfRow = known.insert(rowOf(answered)).second;
            if (!rows.contains(rowOf(answered))) {
                if (firstOfRow)
                    differences.push_back({answered, "", Difference::Row::FirstOnly});
                continue;
            }
        }
        const auto other = found.find(answered.place());
        if (other != found.end() && !sameAnswer(answered.text, other->second->text))
            differences.push_back({answered, other->second->text});
    }
    for (const Answered& answered : second)
        if (answered.isCell() && known.insert(rowOf(answered)).second)
            differences.push_back({answered, answered.text, Difference::Row::SecondOnly});
    return differences;
}

}  // namespace plandesk
