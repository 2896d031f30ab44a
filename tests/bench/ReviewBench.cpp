// What a review of a proposal costs, and a copy of it, with land records of many extracts.

#include <string>

#include <benchmark/benchmark.h>

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

BENCHMARK(copyProposal)->Arg(0)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(reviewProposal)->Arg(0)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace plandesk::test
