#pragma once

// The changes by which a fuzz target makes one proposal file into another: elements changed, dropped, doubled and
// swapped, so that the file stays well-formed more often than not. For one source of a target.

#include <algorithm>
#include <array>
#include <cstring>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

constexpr std::array values = std::to_array<std::string_view>(
    {"", "0", "1", "2", "01", "1#0", "#", "##########", "@", "||", "~", "-", "0-0-0", "32768", "-1", "1e400", "abc",
     "[", "\\", "31/02/2025", "01/01/0100", "&amp;", " ", "CASH",
     // of the land records and orders
     "^#^", "@->", "$-$", "^", "3", "17", "#######", "-0", "1#", "Signed", "16", "True"});

/// An element that holds text alone.
struct Leaf {
    std::size_t begin;  // of the open tag
    std::size_t content;
    std::size_t close;  // of the text
    std::size_t end;
};

std::vector<Leaf> leaves(std::string_view xml) {
    std::vector<Leaf> found;
    for (std::size_t open = xml.find('<'); open != std::string_view::npos;) {
        const std::size_t content = xml.find('>', open);
        const std::size_t close = xml.find('<', open + 1);
        if (content == std::string_view::npos || close == std::string_view::npos)
            break;
        const std::size_t end = xml.find('>', close);
        if (end != std::string_view::npos && xml[close + 1] == '/' && content < close && xml[open + 1] != '/')
            found.push_back({open, content + 1, close, end + 1});
        open = close;
    }
    return found;
}

std::string changed(std::string xml, std::mt19937& random) {
    const std::vector<Leaf> all = leaves(xml);
    if (all.empty())
        return xml;
    const auto any = [&random](std::size_t count) { return random() % count; };
    const Leaf leaf = all[any(all.size())];
    switch (any(5)) {
    case 0:  // another value
        return xml.replace(leaf.content, leaf.close - leaf.content, values[any(values.size())]);
    case 1:  // a value more
        return xml.insert(leaf.content + any(leaf.close - leaf.content + 1), values[any(values.size())]);
    case 2:  // dropped
        return xml.erase(leaf.begin, leaf.end - leaf.begin);
    case 3:  // doubled
        return xml.insert(leaf.end, xml.substr(leaf.begin, leaf.end - leaf.begin));
    default: {  // the value of another element
        const Leaf other = all[any(all.size())];
        const std::string value = xml.substr(other.content, other.close - other.content);
        return xml.replace(leaf.content, leaf.close - leaf.content, value);
    }
    }
}

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maxSize,
                                               unsigned int seed) {
    std::mt19937 random(seed);
    if (random() % 8 == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    const std::string xml = changed(std::string(reinterpret_cast<const char*>(data), size), random);
    const std::size_t length = std::min(xml.size(), maxSize);
    std::memcpy(data, xml.data(), length);
    return length;
}
