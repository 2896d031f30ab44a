// Tables of up to 10,000 extracts with 5 owners each. What touches a fixed number of rows is to cost the same at every
// size, what touches all rows to grow with their number and no faster.

#include <string>

#include <benchmark/benchmark.h>

#include "proposal/ExtractGaps.h"

namespace plandesk {
namespace {

constexpr int ownersOfExtract = 5;
const Date today{2024, 3, 9};

void addOwners(Recordset& owners, int extract) {
    for (int number = 1; number <= ownersOfExtract; ++number) {
        owners.addNew();
        owners.set("ExtNo", extract);
        owners.set("OwnNo", number);
        owners.set("Name", "A name of the usual length");
        owners.update();
    }
}

struct Owners {
    explicit Owners(const benchmark::State& state) : extracts(static_cast<int>(state.range(0))) {
        for (int extract = 1; extract <= extracts; ++extract)
            addOwners(table, extract);
        // As any opened gap leaves it.
        table.setSort("ExtNo");
    }

    int walk(int extract) {
        int rows = 0;
        table.setFilter("");
        for (table.setFilter("ExtNo = " + std::to_string(extract)); !table.eof(); table.moveNext()) {
            benchmark::DoNotOptimize(table.get("Name"));
            ++rows;
        }
        return rows;
    }

    int extracts;
    Tables tables;
    Recordset& table = tables.ensure(&Tables::rsOwner712);
};

void chooseOneExtract(benchmark::State& state) {
    Owners owners(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(owners.walk(owners.extracts / 2));
}

void walkTheOwnersOfEveryExtract(benchmark::State& state) {
    Owners owners(state);
    for (auto _ : state)
        for (int extract = 1; extract <= owners.extracts; ++extract)
            benchmark::DoNotOptimize(owners.walk(extract));
}

void replaceTheOwnersOfOneExtract(benchmark::State& state) {
    Owners owners(state);
    const int extract = owners.extracts / 2;
    for (auto _ : state) {
        for (owners.table.setFilter("ExtNo = " + std::to_string(extract)); !owners.table.eof(); owners.table.moveNext())
            owners.table.deleteRow();
        addOwners(owners.table, extract);
    }
}

void openAndCloseGap(benchmark::State& state, bool atFront) {
    Owners owners(state);
    const int number = atFront ? 1 : owners.extracts + 1;
    for (auto _ : state) {
        renumber(owners.table, Renumbering({.added = {number}, .deleted = {}}), GapKind::NumberOnly, today);
        renumber(owners.table, Renumbering({.added = {}, .deleted = {number}}), GapKind::NumberOnly, today);
    }
}

void gapBehindTheLastExtract(benchmark::State& state) {
    openAndCloseGap(state, false);
}

void gapBeforeTheFirstExtract(benchmark::State& state) {
    openAndCloseGap(state, true);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Range(10, 10000);
}

// No row or the five of one extract touched.
BENCHMARK(chooseOneExtract)->Apply(sizes);
BENCHMARK(replaceTheOwnersOfOneExtract)->Apply(sizes);
BENCHMARK(gapBehindTheLastExtract)->Apply(sizes);
// Every row touched.
BENCHMARK(walkTheOwnersOfEveryExtract)->Apply(sizes);
BENCHMARK(gapBeforeTheFirstExtract)->Apply(sizes);

}  // namespace
}  // namespace plandesk
