#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "contract/Contract.h"
#include "contract/Words.h"

// What no table of the code says, in one place. A note whose element or value does not exist is an error, and so is a
// value that does not come back and has no sentence here.

namespace plandesk::contract {

/// Of an element as a whole.
struct ElementNote {
    std::string_view path;
    std::string_view sentence;
    std::vector<std::string> alternatives{};  ///< further patterns of its text; "{t}": a text without separators
    std::string_view reading{};               ///< of each of its values
    std::string_view text{};                  ///< pattern of a text in it
    std::vector<std::string> looser{};        ///< as those of an element
    int fewest = 0;                           ///< as that of an element
};
std::span<const ElementNote> elementNotes();

/// Of one value: its rule, its words, or what reading makes of it.
struct ValueNote {
    std::string_view path;
    int value;     ///< among the values of the element, from 1
    int last = 0;  ///< of several alike
    std::string_view reading{};
    std::optional<Kind> kind{};
    std::vector<Code> codes{};  ///< not empty: the value is one of these
    bool open = false;          ///< as that of a value
    bool mayBeEmpty = false;
    std::string question{};
    std::optional<std::string_view> example{};
};
std::vector<ValueNote> valueNotes(Words& words);

/// The controls of the form that keeps an order in a table without a grid: one for each value of the element.
struct OrderControls {
    std::string_view path;
    std::string_view form;
    std::string_view loads;  ///< procedure of the form that shows the order
    std::string_view controls;
};
std::span<const OrderControls> orderControls();

}  // namespace plandesk::contract
