// What New, saving and opening a full proposal cost. Opening is held against the bare parse of the same bytes and New,
// measured in turns with it.

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <libxml/parser.h>

#include "controls/FileStore.h"
#include "document/ProposalDocument.h"
#include "document/SaveProposal.h"
#include "particulars/frmAnnexureA.h"
#include "unit/ScratchFolder.h"
#include "unit/World.h"

namespace plandesk::test {

namespace {

constexpr std::string_view carriers[] = {"txtSectFourVal", "txtSecFiveVal", "txtDocChkList", "txtPayDetail",
                                         "txtPathNm"};

void answerEverything(Form& form, std::string_view text) {
    for (Control* control : form.controls()) {
        if (std::ranges::find(carriers, control->name()) != std::end(carriers))
            continue;
        if (auto* box = dynamic_cast<TextBox*>(control))
            box->setText(text);
        else if (auto* option = dynamic_cast<OptionButton*>(control))
            option->setValue(true);
        else if (auto* list = dynamic_cast<ComboBox*>(control))
            list->setListIndex(0);
    }
}

/// A system in which every question is answered.
void fill(World& world) {
    world.shell.press("mnuNew");
    answerEverything(*world.proposal.forms.touch("frmAnnexureA"), "1250.75");
    answerEverything(*world.proposal.forms.touch("AnnexureACont"), "Station Road, Khandri");
    answerEverything(*world.proposal.forms.touch("frmPayDetail"), "100.00");
    world.option("frmPayDetail", "OptCheque").setValue(true);
    for (const std::string_view form : {"frmDocCheckList", "frmDocCheckList1"})
        for (int page = 0; page < (form == "frmDocCheckList" ? 18 : 28); ++page)
            world.box(form, "txtDocPageNo(" + std::to_string(page) + ")").setText("12");
}

std::string fullProposal() {
    World world;
    fill(world);
    world.ports.dialogs.answers.emplace_back("/a.xml");
    world.shell.run("mnuSaveAs_Click");
    return world.ports.files.contents.at("/a.xml");
}

void startNew(benchmark::State& state) {
    World world;
    for (auto _ : state)
        world.shell.press("mnuNew");
}

void joinFullProposal(benchmark::State& state) {
    World world;
    fill(world);
    world.ports.dialogs.answers.emplace_back("/a.xml");
    world.shell.run("mnuSaveAs_Click");
    std::size_t size = 0;
    for (auto _ : state)
        size = joinDocument(world.proposal).size();
    state.counters["bytes"] = static_cast<double>(size);
}

void saveFullProposal(benchmark::State& state) {
    World world;
    fill(world);
    world.ports.dialogs.answers.emplace_back("/a.xml");
    world.shell.run("mnuSaveAs_Click");
    for (auto _ : state) {
        world.shell.press("mnuSave");
    }
}

/// As saveFullProposal, onto the disk.
void saveFullProposalToDisk(benchmark::State& state) {
    const ScratchFolder folder;
    World machine;
    FileStore disk;
    fill(machine);
    machine.ports.dialogs.answers.emplace_back("/a.xml");
    machine.shell.run("mnuSaveAs_Click");
    const std::string path = folder.path("a.xml");
    for (auto _ : state) {
        machine.shell.press("mnuSave");
        disk.writeWhole(path, machine.ports.files.contents.at("/a.xml"));
    }
}

void parseBare(const std::string& bytes) {
    xmlFreeDoc(xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                             XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
}

double microseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double>& times) {
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

void openFullProposal(benchmark::State& state) {
    const ScratchFolder folder;
    const std::string bytes = fullProposal();
    const std::string path = folder.write("a.xml", bytes);
    World reader;
    World starter;
    std::vector<double> openings, parses, news;
    for (auto _ : state) {
        reader.ports.dialogs.answers.push_back(path);
        const double opening = microseconds([&] { reader.shell.press("mnuOpen"); });
        state.SetIterationTime(opening / 1e6);
        openings.push_back(opening);
        parses.push_back(microseconds([&] { parseBare(bytes); }));
        news.push_back(microseconds([&] { starter.shell.press("mnuNew"); }));
    }
    if (!reader.ports.dialogs.messages.empty())
        state.SkipWithError("the opening showed a box");
    const double opening = median(openings);
    const double parse = median(parses);
    const double fresh = median(news);
    state.counters["open_us"] = opening;
    state.counters["parse_us"] = parse;
    state.counters["new_us"] = fresh;
    state.counters["of_limit"] = opening / (3 * parse + fresh);  // at most 1
}

BENCHMARK(startNew)->Unit(benchmark::kMicrosecond);
BENCHMARK(joinFullProposal)->Unit(benchmark::kMicrosecond);
BENCHMARK(saveFullProposal)->Unit(benchmark::kMicrosecond);
BENCHMARK(saveFullProposalToDisk)->Unit(benchmark::kMicrosecond);
BENCHMARK(openFullProposal)->UseManualTime()->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace plandesk::test
