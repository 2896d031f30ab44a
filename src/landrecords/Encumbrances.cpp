#include "landrecords/Encumbrances.h"

#include "base/Text.h"

namespace plandesk {

std::int16_t encumbranceCode(std::string_view text) {
    std::int16_t number = 1;
    for (const std::string_view known : encumbrances) {
        if (equalsIgnoringCase(trim(text), trim(known)))
            return number;
        ++number;
    }
    return 0;
}

std::string encumbranceName(std::int16_t number) {
    if (number < 1 || static_cast<std::size_t>(number) > encumbrances.size())
        return std::string(trim(noEncumbrance));
    return upperCase(trim(encumbrances[static_cast<std::size_t>(number) - 1]));
}

}  // namespace plandesk
