#include "review/AnswerCounts.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "proposal/Grid.h"
#include "review/Questions.h"

namespace plandesk {

namespace {

constexpr std::array formsInOrder = std::to_array<std::string_view>({
    "frmAnnexureA",
    "AnnexureACont",
    "frmPayDetail",
    "frmDocCheckList",
    "frmDocCheckList1",
    "frmPlotExtractRelation",
    "frmMain712",
    "frmPRCEXT",
    "frmNaOrder",
    "frmScrutinyULC",
    "frmUS84",
    "frmULC20aDetails",
    "frmUS22",
    "frmDiscretionNewCase",
    "frmDiscretionrevisedCase",
});
constexpr std::size_t neededForms = 5;  // the first ones of them

bool within(std::span<const LayoutGroup> groups, const LayoutGroup& group) {
    return std::ranges::any_of(groups, [&](const LayoutGroup& each) { return &each == &group; });
}

bool names(std::span<const LayoutGroup> groups, std::string_view key) {
    for (const LayoutGroup& group : groups)
        for (const LayoutRow& row : group.rows)
            for (const std::string& each : split(row.controls, " "))
                if (each == key)
                    return true;
    return false;
}

/// A group goes with its frame.
bool shown(const Form& form, const Question& question) {
    const Control* frame = form.findKey(question.group->frame);
    return question.shown() && (!frame || frame->visible());
}

void countCells(PageCount& count, const Grid& grid) {
    if (!grid.table() || !grid.takesFocus())
        return;
    for (const std::span<const Value> row : grid.table()->allRows())
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (grid.column(static_cast<int>(column)).width == 0)
                continue;
            ++count.shown;
            count.answered += trim(valueText(row[column])).empty() ? 0 : 1;
        }
    if (count.first.empty())
        count.first = grid.key();
}

PageCount countPage(const Form& form, const std::vector<Question>& questions, int page, bool paged) {
    PageCount count{form.name(), page, paged};
    const auto pages = form.layout().pages;
    const auto here = [&](const Question& question) {
        return !paged || within(pages[static_cast<std::size_t>(page)].groups, *question.group) ||
               (page == 0 && within(form.layout().top, *question.group));
    };
    for (const Question& question : questions) {
        if (!here(question) || !shown(form, question))
            continue;
        ++count.shown;
        count.answered += trim(answerOf(question)).empty() ? 0 : 1;
        if (count.first.empty())
            count.first = question.control().key();
    }
    form.forEach<Grid>([&](const Grid& grid) {
        if (!paged || pageOf(form, grid.key()) == page)
            countCells(count, grid);
    });
    return count;
}

}  // namespace

std::vector<PageCount> countAnswers(const Proposal& proposal) {
    std::vector<PageCount> counts;
    for (const std::string_view name : formsInOrder) {
        const Form* form = proposal.forms.loaded(name);
        if (!form)
            continue;
        const std::vector<Question> questions = questionsOf(*form);
        const bool paged = form->findKey(form->layout().tabs) && form->layout().pages.size() > 1;
        const int pages = paged ? static_cast<int>(form->layout().pages.size()) : 1;
        for (int page = 0; page < pages; ++page)
            counts.push_back(countPage(*form, questions, page, paged));
    }
    return counts;
}

void openNeededForms(Proposal& proposal) {
    for (const std::string_view form : std::span(formsInOrder).first(neededForms))
        proposal.forms.touch(form);
}

bool comesBefore(std::string_view form, std::string_view other) {
    return std::ranges::find(formsInOrder, form) < std::ranges::find(formsInOrder, other);
}

int pageOf(const Form& form, std::string_view key) {
    const auto pages = form.layout().pages;
    for (std::size_t page = 0; page < pages.size(); ++page)
        if (names(pages[page].groups, key))
            return static_cast<int>(page);
    return -1;
}

}  // namespace plandesk
