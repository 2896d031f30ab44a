#include "ulc/Schemes.h"

namespace plandesk {

namespace {

constexpr SchemeRow plottingRows[] = {
    {"i", "Up to 100 sq. mts."},
    {"ii", "Up to 250 sq. mts."},
    {"iii", "Up to 500 sq. mts."},
};

constexpr SchemeRow componentARows[] = {
    {"i", "Site & Services"},
    {"ii", "Core Houses"},
    {"iii", "One room tenements"},
    {"iv", "Tenements upto 25.0 sq. mts."},
    {"v", "Tenements upto 40.0 sq. mts."},
    {"vi", "Tenements upto 50.0 sq. mts."},
    {"vii", "Tenements upto 80.0 sq. mts."},
};

constexpr SchemeRow componentBRows[] = {
    {"i", "Tenements upto 25.0 sq. mts. (0-25.0)"},
    {"ii", "Tenements upto 40.0 sq. mts. (25.1-40.0)"},
    {"iii", "Tenements upto 50.0 sq. mts. (40.1-50.0)"},
    {"iv", "Tenements upto 80.0 sq. mts. (50.1-80.0)"},
};

constexpr SchemeRow specialDispenseRows[] = {
    {"i", "Tenement upto 25.0 sq. mts. (0-25.0)"},
    {"ii", "Tenement upto 40.0 sq. mts. (25.1-40.0)"},
    {"iii", "Tenement upto 50.0 sq. mts. (40.1-50.0)"},
    {"iv", "Tenement upto 80.0 sq. mts. (50.1-80.0)"},
};

constexpr std::array rowsByScheme =
    std::to_array<std::span<const SchemeRow>>({{}, plottingRows, componentARows, componentBRows, specialDispenseRows});

}  // namespace

std::span<const SchemeRow> schemeRows(int scheme) {
    const auto place = static_cast<std::size_t>(scheme);
    return scheme >= 0 && place < rowsByScheme.size() ? rowsByScheme[place] : std::span<const SchemeRow>();
}

}  // namespace plandesk
