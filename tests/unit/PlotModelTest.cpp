#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "TestPorts.h"
#include "controls/User.h"
#include "document/DocumentBlocks.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/Proposal.h"

// The renumbering by changed plots against a second, slow one that takes every step at its word.

namespace plandesk::test {

namespace {

using Numbers = std::vector<int>;
using Rows = std::vector<std::vector<Value>>;

struct SlowPlot {
    int number;
    int count;
};

/// A snapshot of the plots with the filter that a save leaves on it.
struct SlowSnapshot {
    std::vector<SlowPlot> rows;
    Numbers leftOut;

    std::vector<SlowPlot> visible() const {
        std::vector<SlowPlot> seen;
        for (const SlowPlot& plot : rows)
            if (std::ranges::find(leftOut, plot.number) == leftOut.end())
                seen.push_back(plot);
        return seen;
    }
};

struct SlowFamily {
    std::vector<SlowPlot> plots;
    SlowSnapshot saved;
    std::string numberOfPlots;
    std::string total;
    bool bound = false;
    bool shrinks = false;

    int sum() const { return sumUpTo(1 << 30); }
    int sumUpTo(int last) const {
        int sum = 0;
        for (const SlowPlot& plot : plots)
            if (plot.number <= last)
                sum += plot.count;
        return sum;
    }

    void enterNumber(const std::string& text) {
        numberOfPlots = text;
        if (text.empty())
            return;
        const int number = std::stoi(text);
        for (int i = 1; i <= number; ++i)
            if (std::ranges::find(plots, i, &SlowPlot::number) == plots.end())
                plots.push_back({i, 0});
        if (shrinks)
            std::erase_if(plots, [number](const SlowPlot& plot) { return plot.number > number; });
        bound = true;
        total = std::to_string(sum());
    }

    std::string relation() {
        if (total.empty())
            total = "0";
        if (numberOfPlots.empty())
            enterNumber("0");
        std::string text = numberOfPlots + "^#^" + total + "^#^";
        for (const SlowPlot& plot : plots)
            text += std::to_string(plot.number) + "$-$$-$" + std::to_string(plot.count) + "@->";
        return text;
    }

    void compare(Numbers& addList, Numbers& deleteList) {
        int before = 0;
        int grown = 0;
        Numbers remembered;
        const std::vector<SlowPlot> old = saved.visible();
        for (const SlowPlot& was : old) {
            for (const SlowPlot& is : plots) {
                if (is.number != was.number || is.count == was.count)
                    continue;
                if (is.count > was.count) {
                    grown = is.count - was.count;
                    for (int i = 1; i <= grown; ++i)
                        addList.push_back(sumUpTo(was.number - 1) + was.count + i);
                } else {
                    for (int i = was.count - is.count; i >= 1; --i)
                        deleteList.push_back(before + was.count - i + 1);
                }
            }
            before += was.count;
            remembered.push_back(was.number);
        }
        if (old.size() < plots.size()) {
            for (const SlowPlot& fresh : plots) {
                if (std::ranges::find(remembered, fresh.number) != remembered.end())
                    continue;
                for (int i = 1; i <= fresh.count; ++i)
                    addList.push_back(i + before + grown);
                grown += fresh.count;
            }
        }
        if (old.size() > plots.size()) {
            saved.leftOut.clear();
            for (const SlowPlot& plot : plots)
                saved.leftOut.push_back(plot.number);
            for (const SlowPlot& gone : saved.visible())
                for (int i = 1; i <= gone.count; ++i)
                    deleteList.push_back(sumUpTo(gone.number) + i);
        }
    }
};

struct SlowTable {
    std::string_view name;
    std::shared_ptr<Recordset> Tables::*real;
    int kind;
    Rows rows{};
    std::size_t key = 0;
    std::size_t extra = 0;  ///< column of the date or status that a new row gets

    int numberOf(const std::vector<Value>& row) const { return std::get<std::int32_t>(row[key]); }

    void openGap(int number, Date today, std::size_t width) {
        for (std::vector<Value>& row : rows)
            if (numberOf(row) >= number)
                row[key] = numberOf(row) + 1;
        std::vector<Value> fresh(width);
        if (kind == 1)
            fresh[extra] = today;
        if (kind == 2)
            fresh[extra] = std::string("0");
        fresh[key] = number;
        rows.push_back(std::move(fresh));
    }

    void closeGap(int number) {
        std::erase_if(rows, [&](const std::vector<Value>& row) { return numberOf(row) == number; });
        for (std::vector<Value>& row : rows)
            if (numberOf(row) > number)
                row[key] = numberOf(row) - 1;
    }
};

class PlotModel : public testing::Test {
protected:
    static constexpr unsigned seed = 20240315;
    static constexpr int sequences = 5000;
    static constexpr int acts = 9;

    TestPorts ports;
    std::mt19937 random{seed};

    int upTo(int last) { return static_cast<int>(random() % static_cast<unsigned>(last + 1)); }

    void runSequence();
};

constexpr Tables::Member orderTablesInTurn[] = {
    &Tables::rsOwnership,      &Tables::rsULCOrder,    &Tables::rsSchemeGrid,
    &Tables::rsULCOrderUS22,   &Tables::rsUS84Plots,   &Tables::rsULCOrderUS84,
    &Tables::rsULCOrderUS20a1, &Tables::rsSchemeBuilt, &Tables::rsSchemeSold};

/// All tables keyed by `ExtNo`, each filled with marked rows of random numbers, and what the slow way makes of them.
struct SlowTables {
    std::vector<SlowTable> land = {{"rsExtract712", &Tables::rsExtract712, 1},
                                   {"rsOwner712", &Tables::rsOwner712, -1},
                                   {"rsPAH712", &Tables::rsPAH712, -1}};
    std::vector<SlowTable> cards = {{"rsExtractPRC", &Tables::rsExtractPRC, 1},
                                    {"rsOwnerPRC", &Tables::rsOwnerPRC, -1},
                                    {"rsPAHPRC", &Tables::rsPAHPRC, -1}};
    std::vector<SlowTable> orders;

    explicit SlowTables(Tables& tables, std::mt19937& random) {
        for (const Tables::Member member : orderTablesInTurn)
            orders.push_back({"order table", member, member == &Tables::rsOwnership ? 2 : -1});
        int mark = 0;
        for (auto* group : {&land, &cards, &orders}) {
            for (SlowTable& table : *group) {
                Recordset& real = *(tables.*table.real);
                const auto columns = real.columns();
                const auto place = [&](std::string_view name) {
                    return static_cast<std::size_t>(std::ranges::find(columns, name, &Column::name) - columns.begin());
                };
                table.key = place("ExtNo");
                table.extra = place(table.kind == 1 ? "DateOf712" : "DocStatus");
                const auto text = static_cast<std::size_t>(std::ranges::find(columns, ColumnKind::Text, &Column::kind) -
                                                           columns.begin());
                for (unsigned rows = random() % 6; rows > 0; --rows) {
                    std::vector<Value> row(columns.size());
                    row[table.key] = static_cast<std::int32_t>(random() % 6 + 1);
                    row[text] = "row " + std::to_string(++mark);
                    real.addNew();
                    for (std::size_t column = 0; column < row.size(); ++column)
                        real.set(static_cast<int>(column), row[column]);
                    real.update();
                    table.rows.push_back(std::move(row));
                }
            }
        }
    }

    void apply(const Tables& tables, std::vector<SlowTable>& own, const Numbers& add, const Numbers& del, int shift,
               Date today) {
        const auto each = [&](int number, auto act) {
            if (number <= 0)
                return;
            for (SlowTable& table : own)
                act(table, number);
            for (SlowTable& table : orders)
                act(table, number + shift);
        };
        for (const int number : add)
            each(number,
                 [&](SlowTable& table, int n) { table.openGap(n, today, (tables.*table.real)->columns().size()); });
        for (const int number : del)
            each(number, [](SlowTable& table, int n) { table.closeGap(n); });
    }

    void expectEqual(const Tables& tables) const {
        for (const auto* group : {&land, &cards, &orders}) {
            for (const SlowTable& table : *group) {
                Rows real;
                for (const std::span<const Value> row : (tables.*table.real)->allRows())
                    real.emplace_back(row.begin(), row.end());
                EXPECT_EQ(real.size(), table.rows.size()) << table.name;
                EXPECT_TRUE(real == table.rows) << table.name;
            }
        }
    }
};

void PlotModel::runSequence() {
    Proposal proposal(ports);
    proposal.commands.buildBlock = [&](Commands::Fragment text) { buildBlock(proposal, text); };
    proposal.tables.createAllTables();
    SlowTables slow(proposal.tables, random);
    auto& form = proposal.forms.get<frmPlotExtractRelation>();
    SlowFamily land;
    SlowFamily cards;
    cards.shrinks = true;
    int tab = 0;

    const auto open = [&] {
        form.open();
        tab = 0;
        land.bound = true;
        land.saved = {land.plots, {}};
        cards.saved = {};
    };
    const auto showTab = [&](int to) {
        user::showTab(form.SSTab1, to);
        if (to == 1 && tab == 0) {
            cards.bound = true;
            cards.saved = {cards.plots, {}};
        }
        tab = to;
    };
    const auto save = [&](bool prc) {
        if (random() % 2 == 0)
            user::click(prc ? form.cmdSave : form.cmdSave712Relation);
        else {
            showTab(prc ? 1 : 0);
            user::pressForm(form, "F2");
        }
        const std::string relation712 = land.relation();
        const std::string relationPrc = cards.relation();
        EXPECT_EQ(proposal.plotRelXML, relation712);
        EXPECT_EQ(proposal.plotPrcDetailsXML, relationPrc);
        Numbers add;
        Numbers del;
        SlowFamily& family = prc ? cards : land;
        family.compare(add, del);
        family.bound = true;
        slow.apply(proposal.tables, prc ? slow.cards : slow.land, add, del, prc ? land.sum() : 0, ports.clock.day);
        slow.expectEqual(proposal.tables);
    };

    open();
    for (int act = 0; act < acts && !HasFailure(); ++act) {
        const bool prc = random() % 2 == 0;
        SlowFamily& family = prc ? cards : land;
        Grid& grid = prc ? form.dgdPRCPlotRel : form.dgd712ExtractRelation;
        TextBox& number = prc ? form.txtNoOfPlot : form.txtNoOfPlot712;
        switch (upTo(10)) {
        case 0:
            open();
            break;
        case 1:
            showTab(prc ? 1 : 0);
            break;
        case 2: {
            const std::string text = std::to_string(upTo(4));
            user::type(number, text);
            family.enterNumber(text);
            break;
        }
        case 3:
            user::click(prc ? form.cmdAddPlotPRC : form.cmdAddPlot);
            family.enterNumber(
                std::to_string((family.numberOfPlots.empty() ? 0 : std::stoi(family.numberOfPlots)) + 1));
            break;
        case 4:
            ports.dialogs.answers = {"yes"};
            if (!prc && family.bound && !family.plots.empty()) {
                const int row = upTo(static_cast<int>(family.plots.size()) - 1);
                EXPECT_TRUE(user::deleteRow(grid, row));
                family.plots.erase(family.plots.begin() + row);
                family.total = std::to_string(family.sum());
            }
            break;
        case 5:
            if (prc) {
                user::clear(form.txtNoOfPlot);
                cards.numberOfPlots.clear();
            } else if (random() % 4 == 0) {
                user::click(form.cmdRefereshExtract);
                land.plots.clear();
                land.numberOfPlots = land.total = "";
                land.bound = false;
            }
            break;
        case 6:
        case 7:
            save(prc);
            break;
        default:
            EXPECT_EQ(grid.rowCount(), family.bound ? static_cast<int>(family.plots.size()) : 0);
            if (family.bound && !family.plots.empty()) {
                const int row = upTo(static_cast<int>(family.plots.size()) - 1);
                const int count = upTo(4);
                EXPECT_TRUE(user::editCell(grid, row, PlotColumn::NoOfPRC, std::to_string(count)));
                family.plots[static_cast<std::size_t>(row)].count = count;
                family.total = std::to_string(family.sum());
            }
        }
        EXPECT_EQ(form.txtNoOfExtract712.text(), land.total);
        EXPECT_EQ(form.txtNoOfPrc.text(), cards.total);
    }
    save(false);
    save(true);
}

TEST_F(PlotModel, RandomEditsAndSavesOfPlotsRenumberEveryTableAsTheSlowWayDoes) {
    RecordProperty("seed", static_cast<int>(seed));
    for (int sequence = 0; sequence < sequences && !HasFailure(); ++sequence) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", sequence " + std::to_string(sequence));
        runSequence();
    }
}

}  // namespace
}  // namespace plandesk::test
