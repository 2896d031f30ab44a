// How long the window takes: to show a page for the first time, and from a key press to its repaint. The frame of a
// display is 16 milliseconds.

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <array>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <benchmark/benchmark.h>

#include "bench/BenchApplication.h"
#include "drc/frmDRCUtilisationForm.h"
#include "gui/GridForm.h"
#include "gui/SampleForm.h"
#include "gui/Session.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"

namespace {

using namespace plandesk;
using test::Session;

constexpr int pageCount = 9;
constexpr std::array menuForms = {"mnuMandatoryDocument", "mnuOptionalMandatoryDoc", "mnuContent", "mnuAbout"};

/// A session with a new proposal whose first page passes its checks.
std::unique_ptr<Session> newProposal() {
    bench::needApplication();
    auto session = std::make_unique<Session>();
    session->press("mnuNew");
    auto& form = session->form<frmAnnexureA>();
    for (TextBox* box :
         {&form.txtTitle, &form.txtpltno, &form.txtFPNo, &form.txtTikaNo, &form.txtApplicantNm, &form.txtApplicantAddr,
          &form.txtArchNm, &form.txtArchFirstName, &form.txtRegNm, &form.txtPltArea, &form.txtActualArea})
        box->setText("1");
    for (ComboBox* list : {&form.cboCaseType, &form.cboProposalTyp, &form.cboProposProj, &form.cboSector})
        list->setListIndex(0);
    session->settle();
    return session;
}

void showPage(Session& session, int page) {
    session.window.forms().act(Qt::OtherFocusReason, [&] { session.form<frmAnnexureA>().cmdFormNo_Click(page); });
    session.settle();
}

/// Times `show` alone, each time in a session of its own.
void timeFirstShowing(benchmark::State& state, const std::function<std::unique_ptr<Session>()>& prepare,
                      const std::function<void(Session&)>& show) {
    for (auto round : state) {
        const std::unique_ptr<Session> session = prepare();
        const auto start = std::chrono::steady_clock::now();
        show(*session);
        state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

std::unique_ptr<Session> emptyWindow() {
    bench::needApplication();
    return std::make_unique<Session>();
}

void firstShowingOfPage(benchmark::State& state) {
    const int page = static_cast<int>(state.range(0));
    state.SetLabel("page " + std::to_string(page + 1) + " of the Particulars");
    if (page == 0)
        timeFirstShowing(state, emptyWindow, [](Session& session) { session.press("mnuNew"); });
    else
        timeFirstShowing(state, newProposal, [page](Session& session) { showPage(session, page); });
}
BENCHMARK(firstShowingOfPage)->DenseRange(0, pageCount - 1)->UseManualTime()->Unit(benchmark::kMillisecond);

void firstShowingOfForm(benchmark::State& state) {
    const char* entry = menuForms.at(static_cast<std::size_t>(state.range(0)));
    state.SetLabel(entry);
    timeFirstShowing(state, newProposal, [entry](Session& session) { session.press(entry); });
}
BENCHMARK(firstShowingOfForm)
    ->DenseRange(0, static_cast<int>(menuForms.size()) - 1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

void firstShowingOfPayment(benchmark::State& state) {
    timeFirstShowing(state, newProposal, [](Session& session) {
        session.window.forms().act(Qt::OtherFocusReason, [&] { session.proposal.commands.open("frmPayDetail"); });
        session.settle();
    });
}
BENCHMARK(firstShowingOfPayment)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A text box of each page.
TextBox& boxOf(Session& session, int page) {
    auto& first = session.form<frmAnnexureA>();
    auto& second = session.form<AnnexureACont>();
    const std::array<TextBox*, pageCount> boxes = {&first.txtTitle,
                                                   &first.txtReservationType,
                                                   &first.txtInstClass,
                                                   &first.txtDevRights,
                                                   &second.txtDistCentStreet,
                                                   &second.txtRmk4,
                                                   &second.txtRequirmentForParking,
                                                   &second.txtNotComply,
                                                   &second.txtRoofs};
    return *boxes.at(static_cast<std::size_t>(page));
}

/// Counts what is painted.
class PaintCounter : public QObject {
public:
    PaintCounter() { qApp->installEventFilter(this); }
    int paints = 0;
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

void keyPressToRepaint(benchmark::State& state) {
    const int page = static_cast<int>(state.range(0));
    const std::unique_ptr<Session> session = newProposal();
    showPage(*session, page);
    TextBox& box = boxOf(*session, page);
    box.setEnabled(true);
    session->window.forms().act(Qt::OtherFocusReason, [&] { box.setFocus(); });
    session->settle();
    QWidget& widget = session->widget(box);
    const PaintCounter counter;
    int keys = 0;
    for (auto round : state) {
        QTest::keyClick(&widget, keys % 2 == 0 ? Qt::Key_1 : Qt::Key_Backspace);
        QCoreApplication::processEvents();
        ++keys;
    }
    if (counter.paints < keys)
        state.SkipWithError("not every key was painted");
    state.SetLabel("page " + std::to_string(page + 1) + ", " + box.name());
}
BENCHMARK(keyPressToRepaint)->DenseRange(0, pageCount - 1)->Unit(benchmark::kMillisecond);

/// A key in a figure of a development-rights form, whose words are written anew.
void keyPressInAFigureToItsWords(benchmark::State& state) {
    bench::needApplication();
    Session session;
    session.press("mnuDCRUtilization");
    auto& form = session.form<frmDRCUtilisationForm>();
    form.txtConsiderationRs.setText("98,76,54,321.5");
    session.window.forms().act(Qt::OtherFocusReason, [&] { form.txtConsiderationRs.setFocus(); });
    session.settle();
    QWidget& figure = session.widget(form.txtConsiderationRs);
    QTest::keyClick(&figure, Qt::Key_End);  // the figure was selected, and the first key would replace it
    const PaintCounter counter;
    int keys = 0;
    for (auto round : state) {
        const std::string before = form.txtConsiderationRsWord.text();
        QTest::keyClick(&figure, keys % 2 == 0 ? Qt::Key_7 : Qt::Key_Backspace);
        QCoreApplication::processEvents();
        if (form.txtConsiderationRsWord.text() == before)
            state.SkipWithError("the words stayed");
        ++keys;
    }
    if (counter.paints < 2 * keys)
        state.SkipWithError("figure and words were not painted at every key");
}
BENCHMARK(keyPressInAFigureToItsWords)->Unit(benchmark::kMillisecond);

/// An answer that opens three rows or hides them, so that the page is laid out anew.
void answerThatMovesThePageToRepaint(benchmark::State& state) {
    const std::unique_ptr<Session> session = newProposal();
    showPage(*session, 1);
    auto& form = session->form<frmAnnexureA>();
    const PaintCounter counter;
    int answers = 0;
    for (auto round : state) {
        QWidget& option = session->widget(answers % 2 == 0 ? form.Opt5.yes : form.Opt5.no);
        QTest::mouseClick(&option, Qt::LeftButton, {}, QPoint(8, option.height() / 2));
        QCoreApplication::processEvents();
        ++answers;
    }
    if (counter.paints < answers)
        state.SkipWithError("not every answer was painted");
}
BENCHMARK(answerThatMovesThePageToRepaint)->Unit(benchmark::kMillisecond);

// A grid on the screen, of few rows and of many: what the many cost is seen beside the few.
constexpr std::array gridRows = std::to_array<std::int64_t>({100, 50'000});

void timeGrid(benchmark::State& state, const std::function<void(test::GridStage&, int round)>& act) {
    bench::needApplication();
    test::GridStage stage(static_cast<int>(state.range(0)));
    stage.table->setAbsolutePosition(static_cast<int>(state.range(0)) / 2);
    stage.form().grid.moveTo(stage.form().grid.currentRow(), test::GridForm::Name);
    stage.form().grid.setFocus();
    stage.settle();
    const PaintCounter counter;
    int rounds = 0;
    for (auto round : state) {
        act(stage, rounds);
        stage.settle();
        ++rounds;
    }
    if (counter.paints < rounds)
        state.SkipWithError("not every round was painted");
    state.SetLabel(std::to_string(state.range(0)) + " rows");
}

void gridBoundToAFilteredTable(benchmark::State& state) {
    timeGrid(state, [](test::GridStage& stage, int) {
        stage.table->setFilter("No >= 0");
        stage.form().grid.bind(stage.table);
    });
}
BENCHMARK(gridBoundToAFilteredTable)->ArgsProduct({{gridRows.begin(), gridRows.end()}})->Unit(benchmark::kMillisecond);

void pageKeyInAGridToRepaint(benchmark::State& state) {
    timeGrid(state, [](test::GridStage& stage, int round) {
        QTest::keyClick(&stage.keyboard(), round % 2 == 0 ? Qt::Key_PageDown : Qt::Key_PageUp);
    });
}
BENCHMARK(pageKeyInAGridToRepaint)->ArgsProduct({{gridRows.begin(), gridRows.end()}})->Unit(benchmark::kMillisecond);

void dragOfAGridsBarToRepaint(benchmark::State& state) {
    timeGrid(state, [](test::GridStage& stage, int round) {
        QScrollBar& bar = *stage.shown().verticalScrollBar();
        constexpr int stride = 37;
        bar.setValue((round + 1) * stride % bar.maximum());
    });
}
BENCHMARK(dragOfAGridsBarToRepaint)->ArgsProduct({{gridRows.begin(), gridRows.end()}})->Unit(benchmark::kMillisecond);

void keyInACellToRepaint(benchmark::State& state) {
    timeGrid(state, [](test::GridStage& stage, int round) {
        QTest::keyClick(&stage.keyboard(), round % 2 == 0 ? Qt::Key_1 : Qt::Key_Backspace);
    });
}
BENCHMARK(keyInACellToRepaint)->ArgsProduct({{gridRows.begin(), gridRows.end()}})->Unit(benchmark::kMillisecond);

// One word of ten megabytes.
constexpr std::size_t longWord = 10'000'000;

void keyInALongWordToRepaint(benchmark::State& state) {
    bench::needApplication();
    test::Stage stage;
    TextBox& box = state.range(0) == 0 ? stage.form().title : stage.form().notes;
    box.setText(std::string(longWord, 'w'));
    box.setFocus();
    stage.settle();
    QWidget& widget = stage.widget(box);
    for (auto round : state) {
        QTest::keyClick(&widget, Qt::Key_Backspace);
        widget.repaint();
        stage.settle();
    }
    if (box.text().size() + static_cast<std::size_t>(state.iterations()) != longWord)
        state.SkipWithError("not every key was taken");
    state.SetLabel(state.range(0) == 0 ? "one line" : "several lines");
}
BENCHMARK(keyInALongWordToRepaint)->DenseRange(0, 1)->Unit(benchmark::kMillisecond);

void cellsWithLongWordsToRepaint(benchmark::State& state) {
    bench::needApplication();
    test::GridStage stage(4);
    for (int row = 0; row < 4; ++row) {
        stage.table->setAbsolutePosition(row + 1);
        stage.table->set(test::GridForm::Name, std::string(longWord, 'w'));
    }
    stage.form().grid.refresh();
    stage.settle();
    for (auto round : state)
        stage.shown().viewport()->repaint();
}
BENCHMARK(cellsWithLongWordsToRepaint)->Unit(benchmark::kMillisecond);

}  // namespace
