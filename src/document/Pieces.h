#pragma once

#include <cstddef>
#include <string_view>

#include "base/RuntimeError.h"

namespace plandesk {

/// The piece of that number, from 0, of the text split at the separator. An empty text has no pieces at all.
/// RuntimeError 9 when there is no such piece. A view into `text`: a value full of separators costs no memory.
inline std::string_view piece(std::string_view text, std::string_view separator, std::size_t number) {
    if (text.empty())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    for (; number > 0; --number) {
        const std::size_t found = text.find(separator);
        if (found == std::string_view::npos)
            throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        text.remove_prefix(found + separator.size());
    }
    return text.substr(0, text.find(separator));
}

}  // namespace plandesk
