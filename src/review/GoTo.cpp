#include "review/GoTo.h"

#include <algorithm>
#include <array>

#include "base/Numbers.h"
#include "controls/User.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/Grid.h"
#include "proposal/LandRecordColumns.h"
#include "proposal/OrderColumns.h"
#include "review/AnswerCounts.h"
#include "review/Questions.h"
#include "ulc/OrderForm.h"
#include "ulc/OrderRows.h"
#include "ulc/frmScrutinyULC.h"

namespace plandesk {

namespace {

bool behindFirstPage(std::string_view form, int page) {
    return form == AnnexureACont::formName || (form == frmAnnexureA::formName && page > 0);
}

const frmAnnexureA* firstPageOf(const Proposal& proposal) {
    return static_cast<const frmAnnexureA*>(proposal.forms.loaded(frmAnnexureA::formName));
}

bool closed(const Proposal& proposal, const Form& form, int page) {
    if (!behindFirstPage(form.name(), page))
        return false;
    const frmAnnexureA* first = firstPageOf(proposal);
    return !first || !first->firstPageFaults().empty();
}

/// The visible place of a row of the table; -1 when the filter hides it.
int visiblePlace(Recordset& table, int row) {
    const auto rows = table.allRows();
    if (row < 0 || static_cast<std::size_t>(row) >= rows.size())
        return -1;
    const Value* const wanted = rows[static_cast<std::size_t>(row)].data();
    for (int place = 1; place <= table.recordCount(); ++place)
        if (&table.valueAt(place, 0) == wanted)
            return place - 1;
    return -1;
}

/// The land records show the rows of one extract at a time: the one that the row belongs to is chosen. After a save and
/// an opening none is: the form then shows the rows of all extracts, and its owners hang on no table until one is.
void chooseExtract(const Form& sheet, const Grid& grid, int row) {
    const bool landRecord = sheet.name() == "frmMain712" || sheet.name() == "frmPRCEXT";
    auto* const list = landRecord ? dynamic_cast<ComboBox*>(sheet.findKey("cmbExtract")) : nullptr;
    if (!list || list->listCount() == 0)
        return;
    if (!grid.table())
        user::pick(*list, 0);
    if (!grid.table())
        return;
    const auto rows = grid.table()->allRows();
    if (row < 0 || static_cast<std::size_t>(row) >= rows.size())
        return;
    const double extract = leadingNumber(valueText(rows[static_cast<std::size_t>(row)][ExtractColumn::ExtNo]));
    if (extract >= 1 && extract <= list->listCount())
        user::pick(*list, static_cast<int>(extract) - 1);
}

void goToControl(Form& sheet, Control& wanted, int row, int column) {
    sheet.show();
    auto* const strip = dynamic_cast<TabStrip*>(sheet.findKey(sheet.layout().tabs));
    const int page = pageOf(sheet, wanted.key());
    if (strip && page >= 0)
        strip->setTab(page);
    auto* const grid = dynamic_cast<Grid*>(&wanted);
    const auto placeNow = [&] { return grid && grid->table() ? visiblePlace(*grid->table(), row) : -1; };
    int place = placeNow();
    if (grid && (place < 0 || grid->table()->filter().empty())) {
        chooseExtract(sheet, *grid, row);
        place = placeNow();
    }
    if (place >= 0)
        grid->moveTo(place, std::max(column, 0));
    if (wanted.takesFocus())
        wanted.setFocus();
}

/// The forms of the orders, by their place in the list of orders, from 1.
constexpr std::array orderForms = std::to_array<std::string_view>({"frmUS84", "frmULC20aDetails", "frmUS22"});

bool isOrderForm(std::string_view form) {
    return std::ranges::find(orderForms, form) != orderForms.end();
}

/// The order's own form while the user sees it.
OrderForm* openOrderForm(const Proposal& proposal, std::string_view form) {
    auto* const sheet = dynamic_cast<OrderForm*>(proposal.forms.loaded(form));
    return sheet && sheet->visible() ? sheet : nullptr;
}

/// The extract whose order the Save of an order's own form replaces; 0 when there is none.
int currentExtract(Proposal& proposal) {
    return proposal.tables.ensure(&Tables::rsULCOrder).eof() ? 0 : orderExtract(proposal);
}

/// The order's own form, when its Save writes the order that was opened in it, and that is the one wanted. In any other
/// state it would lead the user to replace one order by another, or by nothing.
OrderForm* boundForm(Proposal& proposal, std::string_view form, int extract) {
    OrderForm* const sheet = openOrderForm(proposal, form);
    if (!sheet || sheet->openedFor == 0 || sheet->openedFor != currentExtract(proposal))
        return nullptr;
    return extract == 0 || extract == sheet->openedFor ? sheet : nullptr;
}

/// Whether some order's own form is open for another extract: it would save its order as this one's, were this extract
/// chosen now.
bool otherIsOpen(const Proposal& proposal, int extract) {
    return std::ranges::any_of(orderForms, [&](std::string_view form) {
        const OrderForm* sheet = openOrderForm(proposal, form);
        return sheet && sheet->openedFor != extract;
    });
}

/// Opens the order of the extract that the list of orders shows, when it is an order of that form.
void openOrder(Proposal& proposal, frmScrutinyULC& list, std::string_view form, int extract) {
    const auto order = 1 + (std::ranges::find(orderForms, form) - orderForms.begin());
    if (currentExtract(proposal) == extract &&
        valueNumber(proposal.tables.rsULCOrder->get(ULCOrderColumn::ULCOrderSelection)) == static_cast<double>(order))
        list.cmdDetails.press();
}

/// To an answer of an order: in its own form while that is bound, or else as far as the list of orders leads.
void goToOrder(Proposal& proposal, frmScrutinyULC& list, std::string_view form, std::string_view control, int row,
               int column, int extract) {
    Form* sheet = boundForm(proposal, form, extract);
    if (!sheet) {
        list.show();
        if (extract > 0 && extract <= list.cmbExtract.listCount()) {
            if (otherIsOpen(proposal, extract))
                return goToControl(list, list.cmbExtract, -1, -1);
            user::pick(list.cmbExtract, extract - 1);
            if (isOrderForm(form))
                openOrder(proposal, list, form, extract);
        }
        sheet = isOrderForm(form) ? boundForm(proposal, form, extract) : static_cast<Form*>(&list);
    }
    if (Control* const wanted = sheet ? sheet->findKey(control) : nullptr)
        goToControl(*sheet, *wanted, row, column);
    else
        goToControl(list, list.dgdULCOrderDetails, -1, -1);
}

}  // namespace

bool goTo(Proposal& proposal, std::string_view form, std::string_view control, int row, int column, int extract) {
    if (isOrderForm(form) || (extract > 0 && form == frmScrutinyULC::formName)) {
        auto& list = proposal.forms.get<frmScrutinyULC>();
        if (!proposal.screen.inReach(list))
            return false;
        proposal.screen.event([&] { goToOrder(proposal, list, form, control, row, column, extract); });
        return true;
    }
    Form* const sheet = proposal.forms.touch(form);
    Control* const wanted = sheet ? sheet->findKey(control) : nullptr;
    if (!wanted || !proposal.screen.inReach(*sheet) || closed(proposal, *sheet, pageOf(*sheet, wanted->key())))
        return false;
    proposal.screen.event([&] { goToControl(*sheet, *wanted, row, column); });
    return true;
}

std::string whatOpens(const Proposal& proposal, std::string_view form, std::string_view control) {
    const frmAnnexureA* first = firstPageOf(proposal);
    const Form* sheet = proposal.forms.loaded(form);
    if (!first || !behindFirstPage(form, sheet ? pageOf(*sheet, control) : 0))
        return "";
    const auto faults = first->firstPageFaults();
    if (faults.empty())
        return "";
    for (const Question& question : questionsOf(*first))
        if (std::ranges::find(question.controls, faults.front().field) != question.controls.end())
            return wordsOf(question);
    return faults.front().field->key();
}

}  // namespace plandesk
