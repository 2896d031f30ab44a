// What a review of a proposal costs, and a copy of it, with land records of many extracts.

#include <memory>
#include <string>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include "controls/User.h"
#include "proposal/LandRecordColumns.h"
#include "review/Review.h"
#include "review/SilentSystem.h"
#include "unit/World.h"

namespace plandesk::test {

namespace {

/// A proposal with its first page and that many 7/12 extracts of one owner.
void fill(World& world, int extracts) {
    world.shell.press("mnuNew");
    world.fillFirstPage();
    for (const std::string_view form : {"AnnexureACont", "frmPayDetail", "frmDocCheckList", "frmDocCheckList1"})
        world.proposal.forms.touch(form);
    if (extracts == 0)
        return;
    world.shell.press("mnuPlotExtRelationShip");
    world.box("frmPlotExtractRelation", "txtNoOfPlot712").setText("1");
    user::editCell(world.grid("frmPlotExtractRelation", "dgd712ExtractRelation"), 0, PlotColumn::NoOfPRC,
                   std::to_string(extracts));
    user::click(world.button("frmPlotExtractRelation", "cmdSave712Relation"));
    world.shell.press("mnu712Ext");
    user::click(world.button("frmMain712", "cmdSave"));
    world.ports.dialogs.take();
}

void copyProposal(benchmark::State& state) {
    World world;
    fill(world, static_cast<int>(state.range(0)));
    for (auto _ : state) {
        const SilentSystem copy(world.shell);
        benchmark::DoNotOptimize(&copy);
    }
}

void reviewProposal(benchmark::State& state) {
    World world;
    fill(world, static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(review(world.shell));
}

/// What a key costs in a grid whose rows a copy shares: they are copied at the first change.
void typeAfterACopy(benchmark::State& state) {
    World world;
    fill(world, static_cast<int>(state.range(0)));
    Recordset& extracts = *world.proposal.tables.rsExtract712;
    int number = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto copy = std::make_unique<SilentSystem>(world.shell);
        state.ResumeTiming();
        extracts.replace(0, ExtractColumn::SurveyNo, std::to_string(++number));
        state.PauseTiming();
        copy.reset();
        state.ResumeTiming();
    }
}

/// Memory of a proposal and of its copy: what is allocated and still there, in KB.
void copyMemory(benchmark::State& state) {
    const auto inUse = [] { return static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd) / 1024; };
    const double before = inUse();
    auto world = std::make_unique<World>();
    fill(*world, static_cast<int>(state.range(0)));
    const double filled = inUse();
    const SilentSystem copy(world->shell);
    const double copied = inUse();
    for (auto _ : state)
        benchmark::DoNotOptimize(&copy);
    state.counters["proposalKB"] = filled - before;
    state.counters["copyKB"] = copied - filled;
}

BENCHMARK(typeAfterACopy)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond)->Iterations(100);
BENCHMARK(copyMemory)->Arg(0)->Arg(1000)->Arg(10000)->Iterations(1);
BENCHMARK(copyProposal)->Arg(0)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(reviewProposal)->Arg(0)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace plandesk::test
