#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "reports/ReportCatalogue.h"

namespace plandesk::test {

/// A question of the Particulars on paper.
struct Asked {
    std::string marks;  ///< number, letter and small number
    std::string words;
    std::vector<std::string> fields;  ///< what answers it; a fixed text in quotation marks
};

inline const Paper& pageOf(std::string_view name) {
    const Paper* const paper = findLayout(name);
    if (!paper)
        throw std::invalid_argument(std::string(name));
    return *paper;
}

inline std::vector<Asked> questionsOf(const Paper& paper) {
    std::vector<Asked> asked;
    for (const PaperSection& section : paper.body) {
        if (section.kind != SectionKind::Questions)
            continue;
        for (const PaperRow& row : section.rows) {
            Asked& question = asked.emplace_back();
            for (std::size_t column = 0; column < 3; ++column)
                for (const PaperItem& mark : row.cells[column])
                    question.marks += (question.marks.empty() ? "" : " ") + std::string(mark.text);
            for (const PaperItem& item : row.cells[3])
                question.words += item.text;
            for (const PaperItem& item : row.cells[4])
                question.fields.push_back(item.isField() ? std::string(item.field)
                                                         : "\"" + std::string(item.text) + "\"");
        }
    }
    return asked;
}

}  // namespace plandesk::test
