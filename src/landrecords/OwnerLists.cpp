#include "landrecords/OwnerLists.h"

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "landrecords/Encumbrances.h"
#include "proposal/LandRecordColumns.h"

namespace plandesk {

namespace {

constexpr std::array statuses = std::to_array<std::string_view>({"---- Select ----", "Signed", "PAH Given"});
constexpr std::array types =
    std::to_array<std::string_view>({"------ Select------  ", "H - Holder", "L - Lease", "E - Easement"});

void addItems(ComboBox& list, std::span<const std::string_view> items) {
    for (const std::string_view item : items)
        list.addItem(item);
}

}  // namespace

OwnerLists::OwnerLists(Grid& owners, ComboBox& status, ComboBox& encumbrance, ComboBox& type, bool typeFollows)
    : owners(owners),
      lists{{{status, OwnerColumn::SingingStatus, true},
             {encumbrance, OwnerColumn::Encumbrances, true},
             {type, OwnerColumn::OwnerType, typeFollows}}} {
    addItems(status, statuses);
    encumbrance.addItem(noEncumbrance);
    addItems(encumbrance, encumbrances);
    addItems(type, types);
    for (const List& list : lists)
        list.choices.lostFocus = [this, &list] { leave(list); };
}

void OwnerLists::setVisible(bool on) {
    for (const List& list : lists)
        list.choices.setVisible(on);
}

void OwnerLists::open(int column) {
    const auto list = std::ranges::find(lists, column, &List::column);
    if (list == lists.end() || owners.currentRow() < 0)
        return;
    choose(*list);
    owners.place(list->choices, column);
    list->choices.setFocus();
}

ComboBox* OwnerLists::of(int column) {
    const auto list = std::ranges::find(lists, column, &List::column);
    return list == lists.end() ? nullptr : &list->choices;
}

void OwnerLists::cellChanged(bool place) {
    for (const List& list : lists) {
        const bool own = list.column == owners.currentColumn();
        if (!own)
            list.choices.setVisible(false);
        if (!place || !list.follows)
            continue;
        choose(list);
        if (own)
            owners.place(list.choices, list.column);
    }
}

/// Chooses the item that the cell of the current row names. A text that the list does not have leaves the choice as it
/// was, maybe from another row.
void OwnerLists::choose(const List& list) {
    const std::string text = owners.cellText(owners.currentRow(), list.column);
    const bool anyCase = list.column == OwnerColumn::Encumbrances;  // what was read from a document is in upper case
    for (int item = 0; item < list.choices.listCount(); ++item) {
        const std::string_view known = trim(list.choices.item(item));
        if (anyCase ? equalsIgnoringCase(known, trim(text)) : known == trim(text)) {
            list.choices.setListIndex(item);
            break;
        }
    }
}

void OwnerLists::leave(const List& list) {
    // The owner type alone is written without a look whether there is a row for it.
    if (list.column != OwnerColumn::OwnerType && owners.currentRow() < 0)
        return;
    if (!owners.table())
        throw RuntimeError(ErrorNumber::ObjectNotSet);
    owners.table()->set(list.column, std::string(trim(list.choices.text())));
    owners.table()->update();
    owners.refresh();
}

}  // namespace plandesk
