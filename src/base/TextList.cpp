#include "base/TextList.h"

#include <limits>

#include "base/RuntimeError.h"

namespace plandesk {

std::string_view TextList::operator[](std::size_t place) const {
    const std::size_t start = place == 0 ? 0 : ends[place - 1];
    return std::string_view(bytes).substr(start, ends[place] - start);
}

void TextList::add(std::string_view text) {
    if (text.size() > std::numeric_limits<std::uint32_t>::max() - bytes.size())
        throw RuntimeError(ErrorNumber::OutOfMemory);
    bytes += text;
    ends.push_back(static_cast<std::uint32_t>(bytes.size()));
}

void TextList::clear() {
    *this = {};
}

}  // namespace plandesk
