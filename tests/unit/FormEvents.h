#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <set>
#include <span>
#include <string>
#include <string_view>

#include "controls/Controls.h"
#include "controls/User.h"
#include "proposal/Grid.h"
#include "proposal/LandRecordColumns.h"
#include "reports/ReportCatalogue.h"
#include "reports/ReportDesk.h"
#include "unit/World.h"

// Bytes as what a user does to the forms: whatever is typed, pressed, clicked and closed, in whatever order.

namespace plandesk::test {

/// Reads the input from the front; zeros behind its end.
class Bytes {
public:
    explicit Bytes(std::span<const std::uint8_t> bytes) : rest(bytes) {}

    bool empty() const { return rest.empty(); }
    std::uint8_t next() {
        if (rest.empty())
            return 0;
        const std::uint8_t byte = rest.front();
        rest = rest.subspan(1);
        return byte;
    }
    /// A number from 0 to `count` - 1.
    std::size_t below(std::size_t count) { return count == 0 ? 0 : next() % count; }
    /// A text of up to 255 bytes, its length first.
    std::string text() {
        std::string text;
        for (std::size_t left = next(); left > 0 && !empty(); --left)
            text += static_cast<char>(next());
        return text;
    }

private:
    std::span<const std::uint8_t> rest;
};

/// The whole system with the form and the control that the user is at.
struct FormEvents : World {
    Form* form = nullptr;
    Control* control = nullptr;

    void start(Bytes& bytes);
    void relatePlots();
    void orderExtracts();
    void choose(Bytes& bytes);
    void act(Bytes& bytes);
    void onTextBox(TextBox& box, Bytes& bytes);
    void onGrid(Grid& grid, Bytes& bytes);
    void onForm(Bytes& bytes);
    void onMainWindow(Bytes& bytes);
    void onReport(Bytes& bytes);
    void check();
    void checkReports();
};

[[noreturn]] inline void fail(std::string_view what) {
    std::cerr << "unsound: " << what << '\n';
    std::abort();
}

/// From the bare main window, from a new proposal that its first page lets be saved, or from one with land records.
inline void FormEvents::start(Bytes& bytes) {
    const std::size_t from = bytes.below(3);
    if (from == 0)
        return;
    shell.press("mnuNew");
    fillFirstPage();
    if (from == 2) {
        relatePlots();
        orderExtracts();
    }
}

/// Two plots with three extracts and as many property cards, each first one with two owners and holders.
inline void FormEvents::relatePlots() {
    struct Tab {
        std::string_view number, grid, save, entry, form;
    };
    constexpr std::array tabs = std::to_array<Tab>({
        {"txtNoOfPlot712", "dgd712ExtractRelation", "cmdSave712Relation", "mnu712Ext", "frmMain712"},
        {"txtNoOfPlot", "dgdPRCPlotRel", "cmdSave", "mnuPrc", "frmPRCEXT"},
    });
    constexpr std::string_view relation = "frmPlotExtractRelation";
    for (const Tab& tab : tabs) {
        shell.press("mnuPlotExtRelationShip");
        user::type(box(relation, tab.number), "2");
        user::editCell(grid(relation, tab.grid), 0, PlotColumn::NoOfPRC, "2");
        user::editCell(grid(relation, tab.grid), 1, PlotColumn::NoOfPRC, "1");
        user::click(button(relation, tab.save));
        shell.press(tab.entry);
        for (const int count : {5, 7})
            user::editCell(grid(tab.form, "dgdInfoOfExtract"), 0, count, "2");
    }
}

/// The land records saved, and the form of an order of each kind open for the first extract.
inline void FormEvents::orderExtracts() {
    constexpr std::string_view scrutiny = "frmScrutinyULC";
    for (const std::string_view extracts : {"frmMain712", "frmPRCEXT"})
        user::click(button(extracts, "cmdSave"));
    shell.press("mnuUlcOrder");
    user::click(option(scrutiny, "optDocCtrlOwn(0)"));
    user::pick(list(scrutiny, "cmbExtract"), 0);
    for (const int order : {1, 2, 3}) {
        user::pick(list(scrutiny, "cmbULCORDERDetails"), order);
        user::click(button(scrutiny, "cmdDetails"));
    }
    user::type(box("frmUS84", "txtNoOfPlotOwnedByApplicant"), "2");
    user::pick(list("frmULC20aDetails", "cmbSchemaType"), 2);
    user::click(option("frmULC20aDetails", "IsReservationCondition(1)"));
}

inline void FormEvents::choose(Bytes& bytes) {
    const std::vector<std::string> names = proposal.forms.names();
    form = proposal.forms.touch(names[bytes.below(names.size())]);
    control = form->controls()[bytes.below(form->controls().size())];
}

inline void FormEvents::onTextBox(TextBox& box, Bytes& bytes) {
    switch (bytes.below(5)) {
    case 0:
        user::type(box, bytes.text());
        break;
    case 1:
        user::append(box, bytes.text());
        break;
    case 2:
        user::edit(box, bytes.text());
        break;
    case 3:
        user::clear(box);
        break;
    default:
        proposal.screen.event([&] { box.setText(bytes.text()); });
    }
}

inline void FormEvents::onGrid(Grid& grid, Bytes& bytes) {
    const auto row = static_cast<int>(bytes.below(4));
    constexpr int usualColumns = 9;
    const auto column =
        static_cast<int>(bytes.below(static_cast<std::size_t>(std::max(usualColumns, grid.columnCount()))));
    switch (bytes.below(5)) {
    case 0:
        user::editCell(grid, row, column, bytes.text());
        break;
    case 1:
        user::pressCellButton(grid, row, column);
        break;
    case 2:
        user::deleteRow(grid, row);
        break;
    case 3:
        user::goToCell(grid, row, column);
        break;
    default:
        user::clickCell(grid, row, column);
    }
}

inline void FormEvents::onForm(Bytes& bytes) {
    const std::string name = form->name();
    switch (bytes.below(3)) {
    case 0:
        proposal.screen.event([this] { form->show(); });
        break;
    case 1:
        proposal.screen.event([this] { form->pressClose(); });
        break;
    default:
        proposal.screen.event([&] { proposal.forms.unload(name); });
    }
}

inline void FormEvents::onMainWindow(Bytes& bytes) {
    static constexpr std::array answers =
        std::to_array<std::string_view>({"yes", "no", "cancel", "/plans/proposal.xml"});
    switch (bytes.below(4)) {
    case 0:
        shell.press(mainMenu()[bytes.below(mainMenu().size())].name);
        break;
    case 1:
        shell.Timer1_Timer();
        break;
    case 2:
        return onReport(bytes);
    default:
        ports.dialogs.answers.emplace_back(answers[bytes.below(answers.size())]);
    }
}

inline void FormEvents::onReport(Bytes& bytes) {
    const std::string_view report = reportCatalogue()[bytes.below(reportCatalogue().size())].name;
    switch (bytes.below(5)) {
    case 0:
        shell.reports().pressClose(report);
        break;
    case 1:
        proposal.screen.event([this] { shell.closeReports(); });
        break;
    case 2:
        ports.printer.isReady = !ports.printer.isReady;
        break;
    case 3:
        ports.printer.failures.emplace(report, RuntimeError(ErrorNumber::PrinterError));
        break;
    default:
        proposal.screen.event([&] { proposal.commands.print(report); });
    }
}

inline void FormEvents::act(Bytes& bytes) {
    static constexpr std::array keys =
        std::to_array<std::string_view>({"Enter", "Tab", "Esc", "Space", "Backspace", "F2", "F3", "7", "\u0917"});
    choose(bytes);
    switch (bytes.below(8)) {
    case 0:
        user::press(*control, keys[bytes.below(keys.size())]);
        return;
    case 1:
        user::pressForm(*form, keys[bytes.below(keys.size())]);
        return;
    case 2:
        user::leave(*control);
        return;
    case 3:
        return onForm(bytes);
    case 4:
        return onMainWindow(bytes);
    default:
        break;
    }
    if (auto* box = dynamic_cast<TextBox*>(control))
        onTextBox(*box, bytes);
    else if (auto* list = dynamic_cast<ComboBox*>(control))
        user::pick(*list, static_cast<int>(bytes.next()) - 1);
    else if (auto* picker = dynamic_cast<DatePicker*>(control))
        user::pickDate(*picker, {2000 + bytes.next(), 1 + bytes.next() % 12, 1 + bytes.next() % 28});
    else if (auto* strip = dynamic_cast<TabStrip*>(control))
        user::showTab(*strip, bytes.next());
    else if (auto* grid = dynamic_cast<Grid*>(control))
        onGrid(*grid, bytes);
    else
        user::click(*control);
}

/// What holds after every event, whatever the user did.
inline void FormEvents::check() {
    static const std::set<std::string> descriptions = [] {
        std::set<std::string> known{"Out of stack space"};
        for (const ErrorNumber number :
             {ErrorNumber::InvalidProcedureCall, ErrorNumber::Overflow, ErrorNumber::SubscriptOutOfRange,
              ErrorNumber::TypeMismatch, ErrorNumber::FileNotFound, ErrorNumber::PathFileAccess,
              ErrorNumber::PathNotFound, ErrorNumber::ObjectNotSet, ErrorNumber::InvalidPropertyValue,
              ErrorNumber::InvalidPropertyArrayIndex, ErrorNumber::NoCurrentRecord, ErrorNumber::ItemNotFound})
            known.insert(RuntimeError(number).description);
        return known;
    }();
    for (const Message& box : ports.dialogs.take())
        if (box.icon == Icon::Critical && box.title.empty() && !descriptions.contains(box.text))
            fail("a failure that is no run-time error of the platform: " + box.text);
    const Control* focused = proposal.screen.focused();
    bool focusFound = focused == nullptr;
    for (const auto& [name, loaded] : proposal.forms.all()) {
        for (const Control* one : loaded->controls())
            focusFound = focusFound || one == focused;
        loaded->forEach<ComboBox>([](const ComboBox& list) {
            const int index = list.listIndex();
            if (index < -1 || index >= list.listCount() || (index >= 0 && list.item(index) != list.text()))
                fail("a list shows another text than its item");
        });
    }
    if (!focusFound)
        fail("the focus is on no loaded form");
    checkReports();
}

/// Each report is open once, with one row of data, or the rows of its feed, for all its columns.
inline void FormEvents::checkReports() {
    std::set<std::string_view> open;
    for (const Preview* preview : shell.reports().previews()) {
        const Feed& feed = *findReport(preview->name).feed;
        if (!open.insert(preview->name).second)
            fail("a report is open twice");
        if (!preview->data.rows.empty() && (preview->data.rows.size() != static_cast<std::size_t>(feed.count) ||
                                            preview->data.rows.front().size() != feed.rows.size()))
            fail("a report shows other data than its feed makes");
    }
    if (proposal.isDirectPrint)
        fail("documents are still being printed after the event");
}

}  // namespace plandesk::test
