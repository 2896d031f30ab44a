#include "review/GoTo.h"

#include <algorithm>

#include "base/Numbers.h"
#include "controls/User.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"
#include "proposal/Grid.h"
#include "proposal/LandRecordColumns.h"
#include "review/AnswerCounts.h"
#include "review/Questions.h"

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
        const auto placeNow = [&] { return grid && grid->table() ? visiblePlace(*grid->table(), row) : -1; };
        int place = placeNow();
        if (grid && (place < 0 || grid->table()->filter().empty())) {
            chooseExtract(*sheet, *grid, row);
            place = placeNow();
        }
        if (place >= 0)
            grid->moveTo(place, std::max(column, 0));
        if (wanted->takesFocus())
            wanted->setFocus();
    });
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
