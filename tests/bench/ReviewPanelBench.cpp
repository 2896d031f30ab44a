// What the window's own thread has to do for the review's panel: a key press must not wait longer than a frame of the
// display, 16 milliseconds.

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <memory>
#include <string>

#include <benchmark/benchmark.h>

#include "FirstPage.h"
#include "bench/BenchApplication.h"
#include "desktop/ReviewLook.h"
#include "gui/LandRecords.h"
#include "gui/Session.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/LandRecordColumns.h"

namespace {

using namespace plandesk;
using test::Session;
using Clock = std::chrono::steady_clock;

double seconds(Clock::duration duration) {
    return std::chrono::duration<double>(duration).count();
}

/// A window with a proposal of so many 7/12 extracts, each of which lacks its survey number, and the panel open.
std::unique_ptr<Session> reviewed(int extracts) {
    bench::needApplication();
    auto session = std::make_unique<Session>(QSize(1366, 768));
    session->press("mnuNew");
    test::fillFirstPage(session->form<frmAnnexureA>());
    if (extracts > 0) {
        session->press("mnuPlotExtRelationShip");
        auto& plots = session->form<frmPlotExtractRelation>();
        user::type(plots.txtNoOfPlot712, "1");
        user::editCell(plots.dgd712ExtractRelation, 0, PlotColumn::NoOfPRC, std::to_string(extracts));
        user::click(plots.cmdSave712Relation);
        session->press("mnu712Ext");
        user::click(session->form<frmMain712>().cmdSave);
        session->press("mnuAnnexure");
    }
    QTest::keyClick(&session->window, Qt::Key_F9);
    const auto* counts = session->window.findChild<QLabel*>("reviewCounts");
    while (!counts->isVisible())
        QCoreApplication::processEvents();
    session->window.forms().act(Qt::OtherFocusReason, [&] { session->form<frmAnnexureA>().txtTitle.setFocus(); });
    session->settle();
    return session;
}

/// With the panel open, beside keyPressToRepaint.
void keyPressToRepaintBesideThePanel(benchmark::State& state) {
    const auto session = reviewed(static_cast<int>(state.range(0)));
    QWidget& box = session->widget(session->form<frmAnnexureA>().txtTitle);
    int keys = 0;
    for (auto round : state) {
        QTest::keyClick(&box, keys % 2 == 0 ? Qt::Key_1 : Qt::Key_Backspace);
        QCoreApplication::processEvents();
        ++keys;
    }
}
BENCHMARK(keyPressToRepaintBesideThePanel)->Arg(0)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

/// The longest time that the window's thread was busy with one thing while it looked again after a key: what a key that
/// comes at the worst moment waits for.
void longestWaitDuringALook(benchmark::State& state) {
    const auto session = reviewed(static_cast<int>(state.range(0)));
    QLabel& counts = *session->window.findChild<QLabel*>("reviewCounts");
    QWidget& box = session->widget(session->form<frmAnnexureA>().txtTitle);
    int keys = 0;
    for (auto round : state) {
        QTest::keyClick(&box, keys++ % 2 == 0 ? Qt::Key_1 : Qt::Key_Backspace);
        session->settle();
        counts.setText("old");
        Clock::duration longest{};
        while (counts.text() == "old") {
            QTest::qSleep(1);
            const auto start = Clock::now();
            QCoreApplication::processEvents();
            longest = std::max(longest, Clock::now() - start);
        }
        state.SetIterationTime(seconds(longest));
    }
}
BENCHMARK(longestWaitDuringALook)
    ->Arg(0)
    ->Arg(1000)
    ->Arg(10000)
    ->UseManualTime()
    ->Iterations(10)
    ->Unit(benchmark::kMillisecond);

}  // namespace
