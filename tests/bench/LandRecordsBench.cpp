// The forms and blocks of the land records with up to 10,000 extracts of 5 owners each. What concerns one extract is to
// cost the same at every size, what concerns all to grow with their number and no faster. The counter `rows` tells how
// many rows a round touches; `ns_row` is what each of them costs.

#include <string>

#include <benchmark/benchmark.h>

#include "proposal/LandRecordColumns.h"
#include "unit/World.h"

namespace plandesk::test {

namespace {

constexpr std::string_view relationForm = "frmPlotExtractRelation";
constexpr std::string_view extractForm = "frmMain712";
constexpr int ownersOfExtract = 5;
constexpr int ulcTables = 9;  // with the ownership

/// Two plots of half the extracts each, saved, every extract with its owners.
struct Records {
    explicit Records(int extracts) : extracts(extracts) {
        world.shell.press("mnuNew");
        world.shell.press("mnuPlotExtRelationShip");
        world.box(relationForm, "txtNoOfPlot712").setText("2");
        setCount(0, extracts / 2);
        setCount(1, extracts - extracts / 2);
        saveRelation();
        Recordset& owners = world.proposal.tables.ensure(&Tables::rsOwner712);
        owners.setFilter("");
        for (int extract = 1; extract <= extracts; ++extract) {
            for (int owner = 2; owner <= ownersOfExtract; ++owner) {  // the first came with the relation
                owners.addNew();
                owners.set("ExtNo", extract);
                owners.set("OwnNo", owner);
                owners.set("Name", "A name of the usual length");
                owners.set("SingingStatus", "Signed");
                owners.update();
            }
        }
        openRelation();
        world.proposal.is712Current = true;
    }

    void setCount(int plot, int count) {
        user::editCell(world.grid(relationForm, "dgd712ExtractRelation"), plot, PlotColumn::NoOfPRC,
                       std::to_string(count));
    }
    void saveRelation() {
        world.button(relationForm, "cmdSave712Relation").click();
        world.ports.dialogs.take();
    }
    void openRelation() { world.shell.press("mnuPlotExtRelationShip"); }

    World world;
    int extracts;
};

void countRows(benchmark::State& state, double rows) {
    state.counters["rows"] = rows;
    state.counters["ns_row"] =
        benchmark::Counter(rows, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

/// Raises the count of one plot by one and lowers it again, with a save and an opening after each.
void addAndDeleteExtract(benchmark::State& state, int plot, double rows) {
    Records records(static_cast<int>(state.range(0)));
    const int count = plot == 0 ? records.extracts / 2 : records.extracts - records.extracts / 2;
    for (auto _ : state) {
        for (const int change : {count + 1, count}) {
            records.setCount(plot, change);
            records.saveRelation();
            records.openRelation();
        }
    }
    countRows(state, 2 * rows);
}

void addAndDeleteLastExtract(benchmark::State& state) {
    addAndDeleteExtract(state, 1, 3 + ulcTables);
}

/// The extract behind the first plot's: half of all rows move up and down again.
void addAndDeleteMiddleExtract(benchmark::State& state) {
    addAndDeleteExtract(state, 0, static_cast<double>(state.range(0)) / 2 * (ownersOfExtract + 2 + ulcTables));
}

/// As many new extracts as there are, before half of them, and away again: each numbers all behind it anew.
void addAndDeleteAsManyExtracts(benchmark::State& state) {
    Records records(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        for (const int count : {records.extracts / 2 + records.extracts, records.extracts / 2}) {
            records.setCount(0, count);
            records.saveRelation();
            records.openRelation();
        }
    }
    countRows(state, static_cast<double>(state.range(0)) * (ownersOfExtract + 2 + 3 * ulcTables));
}

void saveFirstRelation(benchmark::State& state) {
    World world;
    for (auto _ : state) {
        state.PauseTiming();
        world.shell.press("mnuNew");
        world.shell.press("mnuPlotExtRelationShip");
        world.box(relationForm, "txtNoOfPlot712").setText("1");
        user::editCell(world.grid(relationForm, "dgd712ExtractRelation"), 0, PlotColumn::NoOfPRC,
                       std::to_string(state.range(0)));
        state.ResumeTiming();
        world.button(relationForm, "cmdSave712Relation").click();
        world.ports.dialogs.take();
    }
    countRows(state, static_cast<double>(state.range(0)) * (3 + ulcTables));
}

void chooseExtract(benchmark::State& state) {
    Records records(static_cast<int>(state.range(0)));
    ComboBox& list = records.world.list(extractForm, "cmbExtract");
    int extract = 0;
    for (auto _ : state) {
        extract = (extract + 1) % records.extracts;
        list.setListIndex(extract);
    }
    countRows(state, 2 + ownersOfExtract);
}

void changeNumberOfOwners(benchmark::State& state) {
    Records records(static_cast<int>(state.range(0)));
    records.world.list(extractForm, "cmbExtract").setListIndex(records.extracts / 2);
    Grid& info = records.world.grid(extractForm, "dgdInfoOfExtract");
    records.world.proposal.forms.touch(extractForm)->show();
    for (auto _ : state)
        user::editCell(info, 0, ExtractColumn::NoOfOwners, std::to_string(ownersOfExtract));
    countRows(state, 2 * ownersOfExtract);
}

void loadExtractForm(benchmark::State& state) {
    Records records(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        records.world.proposal.forms.unload(extractForm);
        records.world.proposal.forms.touch(extractForm);
    }
    countRows(state, static_cast<double>(state.range(0)));
}

/// Both the block and the ownership rows.
void saveExtracts(benchmark::State& state) {
    Records records(static_cast<int>(state.range(0)));
    Button& save = records.world.button(extractForm, "cmdSave");
    for (auto _ : state)
        save.click();
    countRows(state, static_cast<double>(state.range(0)) * (ownersOfExtract + 3));
    state.counters["bytes"] = static_cast<double>(records.world.proposal.extractOwnerXML.size());
}

void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMicrosecond);
}

// A few rows touched.
BENCHMARK(chooseExtract)->Apply(sizes);
BENCHMARK(changeNumberOfOwners)->Apply(sizes);
BENCHMARK(addAndDeleteLastExtract)->Apply(sizes);
// A share of all rows touched.
BENCHMARK(addAndDeleteMiddleExtract)->Apply(sizes);
BENCHMARK(addAndDeleteAsManyExtracts)->Apply(sizes);
BENCHMARK(saveFirstRelation)->Apply(sizes);
BENCHMARK(loadExtractForm)->Apply(sizes);
BENCHMARK(saveExtracts)->Apply(sizes);

}  // namespace

}  // namespace plandesk::test
