// How long papers take: from the click to the first preview, from one page to the next, and to a file.

#include <QApplication>
#include <chrono>
#include <memory>

#include <benchmark/benchmark.h>

#include "bench/BenchApplication.h"
#include "desktop/PaperPages.h"
#include "desktop/PaperPdf.h"
#include "desktop/PreviewPage.h"
#include "desktop/PreviewWindow.h"
#include "gui/Session.h"
#include "reports/ReportCatalogue.h"
#include "reports/ReportDesk.h"

namespace {

using namespace plandesk;
using test::Session;

/// What the print button of the particulars does, in a system that has shown no report yet.
void firstPreview(benchmark::State& state) {
    bench::needApplication();
    for (auto round : state) {
        Session session;
        session.press("mnuNew");
        const auto start = std::chrono::steady_clock::now();
        session.window.forms().act(Qt::OtherFocusReason, [&] { session.proposal.commands.print("rptAnnexutreA"); });
        session.settle();
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        if (session.window.previews().windows().empty())
            state.SkipWithError("no preview opened");
    }
}
BENCHMARK(firstPreview)->UseManualTime()->Unit(benchmark::kMillisecond);

void turnPage(benchmark::State& state) {
    bench::needApplication();
    Session session;
    session.window.forms().act(Qt::OtherFocusReason, [&] { session.shell.reports().show("rptDocChecklist"); });
    session.settle();
    desktop::PreviewPage& page = session.window.previews().windowOf("rptDocChecklist")->page();
    for (auto round : state) {
        page.turnTo(1 - page.page());
        session.settle();
    }
}
BENCHMARK(turnPage)->Unit(benchmark::kMillisecond);

void layOutAllPapers(benchmark::State& state) {
    bench::needApplication();
    for (auto round : state)
        for (const Paper& paper : reportLayouts())
            benchmark::DoNotOptimize(desktop::PaperPages(paper).count());
}
BENCHMARK(layOutAllPapers)->Unit(benchmark::kMillisecond);

void allPapersAsPdf(benchmark::State& state) {
    bench::needApplication();
    for (auto round : state)
        for (const Paper& paper : reportLayouts())
            benchmark::DoNotOptimize(desktop::pdfOf(paper).size());
}
BENCHMARK(allPapersAsPdf)->Unit(benchmark::kMillisecond);

}  // namespace
