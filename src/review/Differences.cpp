#include <algorithm>
#include <map>
#include <utility>

#include "controls/Controls.h"
#include "review/CarriedAnswers.h"

namespace plandesk {

namespace {

using Row = std::span<const Value>;

/// The answers of the form's questions that are carried, in their order; blank where the form is not loaded.
void compareForms(const CarriedForm& carried, const Proposal& first, const Proposal& second, const Proposal* instead,
                  std::vector<Difference>& differences) {
    const Form* form = first.forms.loaded(carried.name);
    if (!form && instead && !carried.unloaded)
        form = instead->forms.loaded(carried.name);
    const Form* const other = second.forms.loaded(carried.name);
    if (!form && !carried.unloaded)
        return;
    if (carried.unloaded) {
        const auto text = [&](const Proposal& proposal, const Form* loaded) -> const std::string& {
            return loaded ? loaded->at<TextBox>(carried.only).text() : proposal.*carried.unloaded;
        };
        if (!sameAnswer(text(first, form), text(second, other)))
            differences.push_back(
                {{std::string(carried.name), std::string(carried.only), -1, -1, "", text(first, form)},
                 text(second, other)});
        return;
    }
    // Two forms of one class have the same questions.
    const std::vector<Question> questions = questionsOf(*form);
    const std::vector<Question> others = other ? questionsOf(*other) : std::vector<Question>();
    for (std::size_t place = 0; place < questions.size(); ++place) {
        std::string text = answerOf(questions[place]);
        std::string there = place < others.size() ? answerOf(others[place]) : "";
        if (sameAnswer(text, there))
            continue;
        if (std::string key = questions[place].control().key(); carried.carries(key))
            differences.push_back({{form->name(), std::move(key), -1, -1, "", std::move(text)}, std::move(there)});
    }
}

/// The rows of a table that count, each with what it is known by and its place.
struct CountedRows {
    CountedRows(const CarriedTable& carried, const Recordset& table) : table(table), keys(rowKeysOf(table)) {
        int place = 0;
        for (const Row row : table.allRows()) {
            if (!carried.isNone(table, row)) {
                keys[rows.size()] = keys[static_cast<std::size_t>(place)];
                rows.push_back(row);
                places.push_back(place);
            }
            ++place;
        }
        keys.resize(rows.size());
    }

    const Recordset& table;
    std::vector<RowKey> keys;
    std::vector<Row> rows;
    std::vector<int> places;
};

/// One table in two proposals.
class TablePair {
public:
    TablePair(int place, const Recordset& first, const Recordset& second)
        : place(place),
          carried(carriedTables()[static_cast<std::size_t>(place)]),
          first(carried, first),
          second(carried, second),
          key(keyColumnOf(first)) {}

    void compare(std::vector<Difference>& differences) const {
        if (first.keys == second.keys) {
            for (std::size_t row = 0; row < first.rows.size(); ++row)
                compareRow(row, second.rows[row], differences);
            return;
        }
        std::map<RowKey, std::size_t> others;
        for (std::size_t row = 0; row < second.keys.size(); ++row)
            others.emplace(second.keys[row], row);
        for (std::size_t row = 0; row < first.rows.size(); ++row) {
            const auto found = others.find(first.keys[row]);
            if (found == others.end()) {
                differences.push_back(wholeRow(first, row, Difference::Row::FirstOnly));
                continue;
            }
            compareRow(row, second.rows[found->second], differences);
            others.erase(found);
        }
        for (std::size_t row = 0; row < second.keys.size(); ++row)
            if (others.contains(second.keys[row]))
                differences.push_back(wholeRow(second, row, Difference::Row::SecondOnly));
    }

private:
    Answered answered(const CountedRows& side, std::size_t row, std::size_t column, std::string text) const {
        return {std::string(carried.form),
                std::string(carried.controlOf(column)),
                side.places[row],
                static_cast<int>(column),
                side.keys[row].text(),
                std::move(text),
                place};
    }

    void compareRow(std::size_t row, Row other, std::vector<Difference>& differences) const {
        const Row cells = first.rows[row];
        for (std::size_t column = 0; column < other.size(); ++column) {
            if (cells[column] == other[column] || !carried.carries(column, key))
                continue;
            std::string text = carried.text(first.table, column, cells[column]);
            std::string there = carried.text(second.table, column, other[column]);
            const bool numbered = carried.numbers(column) && text.empty();
            if (!numbered && !sameAnswer(text, there))
                differences.push_back({answered(first, row, column, std::move(text)), std::move(there)});
        }
    }

    /// At its first column that is typed.
    Difference wholeRow(const CountedRows& side, std::size_t row, Difference::Row which) const {
        std::size_t column = 0;
        while (!carried.carries(column, key) || carried.numbers(column))
            ++column;
        const std::string text = carried.text(side.table, column, side.rows[row][column]);
        return {answered(side, row, column, text), which == Difference::Row::SecondOnly ? text : "", which};
    }

    int place;
    const CarriedTable& carried;
    CountedRows first;
    CountedRows second;
    std::size_t key;
};

}  // namespace

std::vector<Difference> differencesOf(const Proposal& first, const Proposal& second, const Proposal* instead) {
    std::vector<Difference> differences;
    for (const CarriedForm& carried : carriedForms())
        compareForms(carried, first, second, instead, differences);
    int place = 0;
    for (const CarriedTable& carried : carriedTables()) {
        const Recordset* const one = (first.tables.*carried.table).get();
        const Recordset* const other = (second.tables.*carried.table).get();
        if (one || other) {
            const Recordset none((one ? one : other)->columns());
            TablePair(place, one ? *one : none, other ? *other : none).compare(differences);
        }
        ++place;
    }
    return differences;
}

}  // namespace plandesk
