#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace plandesk {

/// First item of the list of encumbrances, and what an owner holds until one is chosen.
inline constexpr std::string_view noEncumbrance = "  ----------- Select----------  ";

/// The encumbrances by their number in the document, from 1, as the list shows them.
inline constexpr std::array encumbrances =
    std::to_array<std::string_view>({"Bank Loan", "Kulache Nav", "Wahiwat", "Family Member Mortgage",
                                     "For Govt. matter ", "fOR Govt EWS", "Lease Pendance", "Watan", "Easement"});

/// Number of the encumbrance, blanks around it and case aside; 0 for any other text.
std::int16_t encumbranceCode(std::string_view text);

/// Trimmed text of the encumbrance in upper case; any number but 1 to 9 gives "----------- Select----------".
std::string encumbranceName(std::int16_t number);

}  // namespace plandesk
