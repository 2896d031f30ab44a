#include <algorithm>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "driver/Script.h"
#include "reports/ReportCatalogue.h"

namespace plandesk::test {
namespace {

namespace fs = std::filesystem;

std::vector<PaperItem> itemsOf(const Paper& paper) {
    std::vector<PaperItem> items;
    for (const auto* part : {&paper.header, &paper.body, &paper.footer})
        for (const PaperSection& section : *part)
            for (const PaperRow& row : section.rows)
                for (const PaperCell& cell : row.cells)
                    items.insert(items.end(), cell.begin(), cell.end());
    return items;
}

std::vector<std::string> wordingOf(const Paper& paper) {
    std::vector<std::string> wording;
    for (const PaperItem& item : itemsOf(paper))
        wording.push_back(item.isField() ? "field " + std::string(item.field)
                                         : "label " + driver::quote(std::string(item.text)));
    std::ranges::sort(wording);
    return wording;
}

std::vector<std::string> linesOf(const fs::path& path) {
    std::vector<std::string> lines;
    std::ifstream in(path);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    std::ranges::sort(lines);
    return lines;
}

// The lists are written down apart from the layouts: each fixed text and field, as often as it is printed.
fs::path wordingFile(std::string_view report) {
    return fs::path(PLANDESK_SOURCES) / "tests/unit/wording" / (std::string(report) + ".txt");
}

TEST(Layouts, EachSaysExactlyWhatItsListOfWordsHolds) {
    for (const Paper& paper : reportLayouts())
        EXPECT_EQ(wordingOf(paper), linesOf(wordingFile(paper.name))) << paper.name;
}

TEST(Layouts, ItemsAreTextsOrFieldsAndHoldNoValueYet) {
    for (const Paper& paper : reportLayouts())
        for (const PaperItem& item : itemsOf(paper)) {
            EXPECT_NE(item.text.empty(), item.field.empty()) << paper.name;
            EXPECT_TRUE(item.value.empty()) << paper.name;
        }
}

TEST(Layouts, RowsHaveTheCellsThatTheirSectionWants) {
    for (const Paper& paper : reportLayouts())
        for (const auto* part : {&paper.header, &paper.body, &paper.footer})
            for (const PaperSection& section : *part) {
                const bool table = section.kind == SectionKind::Table;
                EXPECT_EQ(std::accumulate(section.widths.begin(), section.widths.end(), 0), table ? 100 : 0)
                    << paper.name;
                for (const PaperRow& row : section.rows) {
                    std::size_t cells = 1;
                    if (section.kind == SectionKind::Questions)
                        cells = 5;
                    else if (section.kind == SectionKind::Pairs)
                        cells = 2;
                    else if (table && row.style != RowStyle::Band)
                        cells = section.widths.size();
                    EXPECT_EQ(row.cells.size(), cells) << paper.name;
                }
            }
}

}  // namespace
}  // namespace plandesk::test
