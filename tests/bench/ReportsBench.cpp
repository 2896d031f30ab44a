// What the reports cost before anything is drawn: feeding them from the live forms, and filling their papers.

#include <utility>

#include <benchmark/benchmark.h>

#include "proposal/Proposal.h"
#include "reports/ReportCatalogue.h"
#include "reports/ReportDesk.h"
#include "unit/World.h"

namespace plandesk {
namespace {

constexpr std::string_view last = "rptDiscretionRevCase";

/// Every feed once; one feeds the six pages, and one both payment reports.
void feedAll(Proposal& proposal) {
    const Feed* fed = nullptr;
    for (const Report& report : reportCatalogue())
        if (std::exchange(fed, report.feed) != report.feed)
            proposal.commands.feed(report.name);
}

void allReportsFed(benchmark::State& state) {
    test::World world;
    world.proposal.isDirectPrint = true;
    world.fillFirstPage();
    feedAll(world.proposal);  // loads the forms
    for (auto round : state)
        feedAll(world.proposal);
    benchmark::DoNotOptimize(world.shell.reports().filled(last).data);
}
BENCHMARK(allReportsFed)->Unit(benchmark::kMicrosecond);

void allPapersFilled(benchmark::State& state) {
    test::World world;
    world.proposal.isDirectPrint = true;
    world.fillFirstPage();
    feedAll(world.proposal);
    for (auto round : state)
        for (const Report& report : reportCatalogue())
            benchmark::DoNotOptimize(world.shell.reports().filled(report.name));
}
BENCHMARK(allPapersFilled)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace plandesk
