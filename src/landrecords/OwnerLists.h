#pragma once

#include <array>
#include <string_view>

#include "controls/Controls.h"
#include "proposal/Grid.h"

namespace plandesk {

// What an owner has whose lists were not touched.
inline constexpr std::string_view noStatus = " -- Select -- ";  // no item of its list
inline constexpr std::string_view noOwnerType = "  ------ Select------  ";

/// The three lists that float over the cells of the owners' grid: signing status, encumbrance and owner type. One that
/// the user opens takes the focus, and its text goes into the cell when it is left, empty while nothing is chosen in
/// it.
class OwnerLists {
public:
    /// `typeFollows`: the list of owner types too is placed by a mere move of the current cell.
    OwnerLists(Grid& owners, ComboBox& status, ComboBox& encumbrance, ComboBox& type, bool typeFollows);

    void setVisible(bool on);
    /// The user pressed the button of a cell or clicked it: its list comes over it and takes the focus. Nothing happens
    /// in a column without a list.
    void open(int column);
    /// Another cell became current: the lists of other columns go. With `place` the lists take the items of its row,
    /// and that of its own column comes over it.
    void cellChanged(bool place);
    /// The list of a column; null for one without.
    ComboBox* of(int column);

private:
    struct List {
        ComboBox& choices;
        int column;
        bool follows;
    };

    void choose(const List& list);
    void leave(const List& list);

    Grid& owners;
    std::array<List, 3> lists;
};

}  // namespace plandesk
