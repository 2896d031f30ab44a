// What writing and opening whole proposals of up to 10,000 extracts costs, each extract with 5 owners and an order with
// 2 plots. All is held against libxml2's bare parse of the same bytes, in processor time, measured in turns.
//
// Counters: `open_parse` is to be at most 3, `save_open` and `blocks_parse` at most 1, the powers (how time grows from
// a tenth of the size) below 1.2.

#include <algorithm>
#include <cmath>
#include <ctime>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <benchmark/benchmark.h>
#include <libxml/parser.h>

#include "document/DocumentBlocks.h"
#include "document/ProposalDocument.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/OwnerLists.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"
#include "unit/ScratchFolder.h"
#include "unit/World.h"

namespace plandesk::test {

namespace {

constexpr std::string_view relationForm = "frmPlotExtractRelation";
constexpr int ownersOfExtract = 5;
constexpr int plotsOfOrder = 2;
constexpr int extractsOfPlot = 10;

double processorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

/// Milliseconds of the processor that each act takes, in turns, and their medians.
class Turns {
public:
    void time(std::string_view act, const std::function<void()>& work) {
        const double start = processorSeconds();
        work();
        times[act].push_back((processorSeconds() - start) * 1e3);
    }

    double median(std::string_view act) const {
        std::vector<double> sorted = times.at(act);
        const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
        std::nth_element(sorted.begin(), middle, sorted.end());
        return *middle;
    }

    /// Tells the median of each act, and by which power it grew since the proposal of a tenth of the size.
    void tell(benchmark::State& state) const {
        static std::map<std::pair<std::string_view, std::int64_t>, double> all;
        for (const auto& [act, each] : times) {
            const double now = median(act);
            const std::string name(act);
            all[{act, state.range(0)}] = now;
            state.counters[name + "_ms"] = now;
            if (const auto before = all.find({act, state.range(0) / 10}); before != all.end())
                state.counters[name + "_power"] = std::log10(now / before->second);
        }
    }

private:
    std::map<std::string_view, std::vector<double>> times;
};

/// What every proposal has, and the plots: a save of the relation gives each extract a row in every table.
void fillForms(World& world, int extracts) {
    world.shell.press("mnuNew");
    world.fillFirstPage();
    for (const std::string_view form : {"AnnexureACont", "frmPayDetail", "frmDocCheckList", "frmDocCheckList1"})
        world.proposal.forms.touch(form);
    world.option("frmPayDetail", "OptCash").setValue(true);
    for (const std::string_view form : {"frmDocCheckList", "frmDocCheckList1"})
        for (int page = 0; page < (form == "frmDocCheckList" ? 18 : 28); ++page)
            world.box(form, "txtDocPageNo(" + std::to_string(page) + ")").setText("12");
    world.shell.press("mnuPlotExtRelationShip");
    const int plots = extracts / extractsOfPlot;
    world.box(relationForm, "txtNoOfPlot712").setText(std::to_string(plots));
    Recordset& rows = world.proposal.tables.ensure(&Tables::rsPlot712);
    for (rows.moveFirst(); !rows.eof(); rows.moveNext())
        rows.set(PlotColumn::NoOfPRC, extractsOfPlot);
    user::editCell(world.grid(relationForm, "dgd712ExtractRelation"), plots - 1, PlotColumn::NoOfPRC,
                   std::to_string(extractsOfPlot));
    world.button(relationForm, "cmdSave712Relation").click();
    world.ports.dialogs.take();
}

void setRow(Recordset& table, std::initializer_list<std::pair<int, Value>> values) {
    table.addNew();
    for (const auto& [column, value] : values)
        table.set(column, value);
    table.update();
}

void fillLandRecords(Tables& tables, int extracts) {
    Recordset& land = tables.ensure(&Tables::rsExtract712);
    land.setFilter("");
    for (land.moveFirst(); !land.eof(); land.moveNext()) {
        land.set(ExtractColumn::SurveyNo, "117/2A");
        land.set(ExtractColumn::HissaNo, "4");
        land.set(ExtractColumn::FerFarNo, "1877");
        land.set(ExtractColumn::NoOfOwners, ownersOfExtract);
        land.set(ExtractColumn::CumulativeArea, 1250.75);
        land.set(ExtractColumn::NoOfPAHs, 0);
    }
    tables.create(ownerTables);
    tables.create(holderTables);
    Recordset& owners = tables.ensure(&Tables::rsOwner712);
    for (int extract = 1; extract <= extracts; ++extract)
        for (int owner = 1; owner <= ownersOfExtract; ++owner)
            setRow(owners, {{OwnerColumn::ExtNo, extract},
                            {OwnerColumn::OwnNo, owner},
                            {OwnerColumn::Name, "Sham Ganpat Patil"},
                            {OwnerColumn::SingingStatus, "Signed"},
                            {OwnerColumn::Encumbrances, "Bank Loan"},
                            {OwnerColumn::OwnerType, std::string(noOwnerType)}});
}

void fillOrders(Tables& tables, int extracts) {
    Recordset& orders = tables.ensure(&Tables::rsULCOrder);
    orders.setFilter("");
    for (orders.moveFirst(); !orders.eof(); orders.moveNext()) {
        orders.set(ULCOrderColumn::ULCOrderSelection, "1");
        orders.set(ULCOrderColumn::OrderNo, "ULC/TN/6-1/SR-120");
        orders.set(ULCOrderColumn::Remarks, "seen");
    }
    Recordset& us84 = tables.ensure(&Tables::rsULCOrderUS84);
    us84.setFilter("");
    for (us84.moveFirst(); !us84.eof(); us84.moveNext())
        for (int column = 0; column < US84OrderColumn::ExtNo; ++column)
            us84.set(column, column == US84OrderColumn::NoOfPlots ? "2" : "1250.75");
    tables.create(&Tables::rsUS84Plots);
    Recordset& plots = tables.ensure(&Tables::rsUS84Plots);
    for (int extract = 1; extract <= extracts; ++extract) {
        for (int plot = 1; plot <= plotsOfOrder; ++plot) {
            plots.addNew();
            plots.set(US84PlotColumn::No, std::to_string(plot));
            for (int column = US84PlotColumn::Village; column <= US84PlotColumn::Surplus; ++column)
                plots.set(column, column < US84PlotColumn::TotalArea ? "Khandri" : "150.50");
            plots.set(US84PlotColumn::ExtNo, extract);
            plots.update();
        }
    }
}

/// A whole proposal with "7/12" as the controlling document.
void fill(World& world, int extracts) {
    fillForms(world, extracts);
    fillLandRecords(world.proposal.tables, extracts);
    world.proposal.is712Current = true;
    world.proposal.forms.get<frmMain712>().cmdSave_Click();
    fillOrders(world.proposal.tables, extracts);
    world.proposal.ownershipRelationSaved = true;
    world.option("frmScrutinyULC", "optDocCtrlOwn(0)").setValue(true);
}

void buildAndJoin(Proposal& proposal) {
    for (const DocumentBlock& block : documentBlocks())
        if (block.build)
            block.build(proposal);
    benchmark::DoNotOptimize(joinDocument(proposal));
}

void parseBare(const std::string& bytes) {
    xmlFreeDoc(xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                             XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_HUGE));
}

void growthOfProposals(benchmark::State& state) {
    const int extracts = static_cast<int>(state.range(0));
    const ScratchFolder folder;
    World writer;
    fill(writer, extracts);
    writer.saveTo("/a.xml");
    const std::string bytes = writer.ports.files.contents["/a.xml"];
    const std::string path = folder.write("a.xml", bytes);
    World reader;
    Turns turns;
    for (auto round : state) {
        reader.ports.dialogs.answers.push_back(path);
        turns.time("open", [&] { reader.shell.press("mnuOpen"); });
        turns.time("parse", [&] { parseBare(bytes); });
        turns.time("save", [&] { writer.shell.press("mnuSave"); });
        turns.time("blocks", [&] { buildAndJoin(writer.proposal); });
    }
    for (const Message& message : reader.ports.dialogs.take())
        state.SkipWithError(message.text.c_str());
    const Tables& read = reader.proposal.tables;
    if (read.rsOwner712->rowCount() != extracts * ownersOfExtract ||
        read.rsUS84Plots->rowCount() != extracts * plotsOfOrder || reader.proposal.extractOwnerXML.empty())
        state.SkipWithError("not all was read");
    if (writer.ports.files.contents["/a.xml"] != bytes || bytes.size() < static_cast<std::size_t>(extracts) * 500)
        state.SkipWithError("not all was written");
    turns.tell(state);
    state.counters["bytes"] = static_cast<double>(bytes.size());
    state.counters["open_parse"] = turns.median("open") / turns.median("parse");
    state.counters["save_open"] = turns.median("save") / turns.median("open");
    state.counters["blocks_parse"] = turns.median("blocks") / turns.median("parse");
}

/// Does not grow with their number.
void chooseExtractInTheScrutiny(benchmark::State& state) {
    const int extracts = static_cast<int>(state.range(0));
    World world;
    fill(world, extracts);
    ComboBox& list = world.list("frmScrutinyULC", "cmbExtract");
    if (list.listCount() != extracts)
        state.SkipWithError("not all are listed");
    int chosen = 0;
    for (auto round : state) {
        chosen = (chosen + 1) % extracts;
        list.setListIndex(chosen);
    }
    if (world.proposal.tables.rsULCOrder->recordCount() != 1)
        state.SkipWithError("not one extract is shown");
}

BENCHMARK(chooseExtractInTheScrutiny)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(growthOfProposals)->RangeMultiplier(10)->Range(10, 10000)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace plandesk::test
