#include "review/GoTo.h"

#include <algorithm>

#include "base/Text.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/Grid.h"

namespace plandesk {

namespace {

bool names(const LayoutRow& row, std::string_view key) {
    return std::ranges::any_of(split(row.controls, " "), [key](const std::string& each) { return each == key; });
}

/// The page of the form that the control stands on; -1 when it stands on none.
int pageOf(const Form& form, std::string_view key) {
    const auto pages = form.layout().pages;
    for (std::size_t page = 0; page < pages.size(); ++page)
        for (const LayoutGroup& group : pages[page].groups)
            if (std::ranges::any_of(group.rows, [key](const LayoutRow& row) { return names(row, key); }))
                return static_cast<int>(page);
    return -1;
}

bool closed(const Proposal& proposal, const Form& form, int page) {
    if (form.name() != AnnexureACont::formName && (form.name() != frmAnnexureA::formName || page <= 0))
        return false;
    const auto* first = static_cast<const frmAnnexureA*>(proposal.forms.loaded(frmAnnexureA::formName));
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

}  // namespace

bool goTo(Proposal& proposal, std::string_view form, std::string_view control, int row, int column) {
    Form* const sheet = proposal.forms.touch(form);
    Control* const wanted = sheet ? sheet->findKey(control) : nullptr;
    if (!wanted || !proposal.screen.inReach(*sheet))
        return false;
    const int page = pageOf(*sheet, wanted->key());
    if (closed(proposal, *sheet, page))
        return false;
    proposal.screen.event([&] {
        sheet->show();
        auto* const strip = dynamic_cast<TabStrip*>(sheet->findKey(sheet->layout().tabs));
        if (strip && page >= 0)
            strip->setTab(page);
        auto* const grid = dynamic_cast<Grid*>(wanted);
        const int place = grid && grid->table() ? visiblePlace(*grid->table(), row) : -1;
        if (place >= 0)
            grid->moveTo(place, std::max(column, 0));
        if (wanted->takesFocus())
            wanted->setFocus();
    });
    return true;
}

}  // namespace plandesk
