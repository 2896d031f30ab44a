#include "landrecords/PlotNumbering.h"

#include <limits>
#include <span>
#include <string>
#include <vector>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "proposal/LandRecordColumns.h"

namespace plandesk {

namespace {

std::int32_t numberOf(Recordset& plots) {
    return toInteger32(valueNumber(plots.get(PlotColumn::SrNo)));
}

std::int16_t added16(std::int16_t sum, std::int16_t more) {
    const int total = sum + more;
    if (total > std::numeric_limits<std::int16_t>::max() || total < std::numeric_limits<std::int16_t>::min())
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<std::int16_t>(total);
}

struct Plot {
    std::int32_t number;
    std::int32_t count;
};

std::vector<Plot> visiblePlots(Recordset& plots) {
    std::vector<Plot> list;
    for (plots.moveFirst(); !plots.eof(); plots.moveNext())
        list.push_back({numberOf(plots), extractCount(plots)});
    return list;
}

/// Leaves only the rows of `table` whose plot is none of `plots`.
void filterToOthers(Recordset& table, const std::vector<Plot>& plots) {
    std::string expression;
    for (const Plot& plot : plots)
        expression += (expression.empty() ? "" : " AND ") + (" SrNo <> " + std::to_string(plot.number));
    table.setFilter(expression);
}

/// Counts extracts over all plots, whatever filter lies on the table. The first count clears it.
class ExtractCounter {
public:
    explicit ExtractCounter(Recordset& plots) : plots(plots), rows(plots.allRows()) {}

    /// Extracts of the plots numbered below `plot`, or up to it when `inclusive`. RuntimeError 6 beyond 16 bits.
    std::int16_t before(std::int32_t plot, bool inclusive) {
        clearFilter();
        std::int16_t sum = 0;
        for (const std::span<const Value> row : rows) {
            const auto* number = std::get_if<std::int32_t>(&row[PlotColumn::SrNo]);
            if (number && (*number < plot || (inclusive && *number == plot)))
                sum = added16(sum, toInteger16(valueNumber(row[PlotColumn::NoOfPRC])));
        }
        return sum;
    }

private:
    void clearFilter() {
        if (cleared)
            return;
        const Bookmark place = plots.bookmark();
        plots.setFilter("");
        plots.setBookmark(place);
        cleared = true;
    }

    Recordset& plots;
    std::vector<std::span<const Value>> rows;
    bool cleared = false;
};

}  // namespace

std::int16_t extractCount(Recordset& plots) {
    return toInteger16(valueNumber(plots.get(PlotColumn::NoOfPRC)));
}

std::int16_t sumOfExtracts(Recordset& plots) {
    std::int16_t sum = 0;
    for (plots.moveFirst(); !plots.eof(); plots.moveNext())
        sum = added16(sum, extractCount(plots));
    return sum;
}

void addExtracts(ComboBox& list, Recordset& plots, std::string_view word) {
    int number = 0;
    for (; !plots.eof(); plots.moveNext()) {
        const std::string entry =
            " " + std::string(trim(valueText(plots.get(PlotColumn::PlotName)))) + " --- " + std::string(word);
        for (std::int16_t left = extractCount(plots); left > 0; --left)
            list.addItem(entry + std::to_string(++number) + " ");
    }
}

NumberChanges comparePlots(Recordset& saved, Recordset& plots) {
    NumberChanges changes;
    const std::vector<Plot> before = visiblePlots(saved);
    const std::vector<Plot> now = visiblePlots(plots);
    ExtractCounter counter(plots);
    std::int32_t passed = 0;  // extracts of the old plots gone by
    std::int32_t grown = 0;
    for (const Plot& old : before) {
        for (const Plot& present : now) {
            if (present.number != old.number || present.count == old.count)
                continue;
            if (present.count > old.count) {
                grown = present.count - old.count;
                const std::int32_t last = counter.before(old.number, false) + old.count;
                for (std::int32_t i = 1; i <= grown; ++i)
                    changes.added.push_back(last + i);
            } else {
                for (std::int32_t i = old.count - present.count; i >= 1; --i)
                    changes.deleted.push_back(passed + old.count - i + 1);
            }
        }
        passed += old.count;
    }
    if (before.size() < now.size()) {
        filterToOthers(plots, before);
        // `grown` carries the growth of the last grown plot alone, not of all: saved proposals have been numbered so.
        for (const Plot& fresh : visiblePlots(plots)) {
            for (std::int32_t i = 1; i <= fresh.count; ++i)
                changes.added.push_back(i + passed + grown);
            grown += fresh.count;
        }
        plots.setFilter("");
    }
    if (before.size() > now.size()) {
        filterToOthers(saved, now);  // the filter stays
        for (const Plot& gone : visiblePlots(saved)) {
            const std::int32_t first = counter.before(gone.number, true);
            for (std::int32_t i = 1; i <= gone.count; ++i)
                changes.deleted.push_back(first + i);
        }
    }
    return changes;
}

}  // namespace plandesk
