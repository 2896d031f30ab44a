#include "reports/Feed.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Answers.h"
#include "proposal/Proposal.h"

namespace plandesk {

namespace {

constexpr std::string_view noAnswer = "--";

const Form& formOf(const FeedRow& row, Proposal& proposal) {
    if (const Form* form = proposal.forms.touch(row.form))
        return *form;
    throw RuntimeError(ErrorNumber::ItemNotFound, "There is no form " + std::string(row.form));
}

/// The control that the row names; of a control array that feeds several rows, its member.
const Control& controlOf(const FeedRow& row, const Form& form, int member) {
    if (const Control* control = member == Control::noIndex ? form.findKey(row.source) : form.find(row.source, member))
        return *control;
    form.missing(row.source);
}

const std::string& textOf(const FeedRow& row, const Form& form, int member) {
    const Control& control = controlOf(row, form, member);
    if (const auto* box = dynamic_cast<const TextBox*>(&control))
        return box->text();
    if (const auto* list = dynamic_cast<const ComboBox*>(&control))
        return list->text();
    if (const auto* label = dynamic_cast<const Label*>(&control))
        return label->caption();
    form.missing(row.source);
}

std::string yesOrNo(const Form& form, std::string_view name) {
    const auto [yes, no] = question(form, name);
    switch (yesNoCode(yes.value(), no.value())) {
    case 1:
        return "YES";
    case 0:
        return "NO";
    default:
        return std::string(noAnswer);
    }
}

/// What a rule that reads a form makes of it.
std::string readFrom(const Form& form, const FeedRow& row, int member) {
    switch (row.rule) {
    case FeedRule::Trimmed:
        return std::string(trim(textOf(row, form, member)));
    case FeedRule::Upper:
        return upperCase(trim(textOf(row, form, member)));
    case FeedRule::Page: {
        const std::string& page = textOf(row, form, member);
        return page.empty() ? std::string(noAnswer) : page;
    }
    case FeedRule::Date:
        return form.at<DatePicker>(row.source).date().text();
    case FeedRule::YesNo:
        return yesOrNo(form, row.source);
    default:
        return textOf(row, form, member);
    }
}

bool readsForm(FeedRule rule) {
    return rule != FeedRule::Fixed && rule != FeedRule::RowNumber && rule != FeedRule::Nothing;
}

Value valueOf(const FeedRow& row, Proposal& proposal, int member, int number) {
    if (row.rule == FeedRule::Nothing || row.rule == FeedRule::OptionsWalk)
        return {};
    if (row.rule == FeedRule::RowNumber)
        return std::to_string(number);
    if (!row.whileOpen.empty() && !formOf(row, proposal).at(row.whileOpen).enabled())
        return std::string();
    return row.rule == FeedRule::Fixed ? std::string(row.source) : readFrom(formOf(row, proposal), row, member);
}

/// An option that the walk over the form comes to for the row.
const OptionButton& optionOf(const FeedRow& row, Proposal& proposal) {
    const Form& form = formOf(row, proposal);
    for (const Control* control : form.controls())
        if (const auto* option = dynamic_cast<const OptionButton*>(control);
            option && equalsIgnoringCase(option->name(), row.source))
            return *option;
    form.missing(row.source);
}

std::string rowFault(const FeedRow& row, const Feed& feed, Proposal& proposal) {
    if (std::ranges::count_if(feed.rows,
                              [&](const FeedRow& other) { return equalsIgnoringCase(other.column, row.column); }) > 1)
        return "it is there twice";
    const bool reads = readsForm(row.rule);
    const bool named = reads || row.rule == FeedRule::Fixed;
    if (row.source.empty() == named)
        return named ? "nothing feeds it" : "it has a source that nothing reads";
    if (row.form.empty() == (reads || !row.whileOpen.empty()))
        return reads ? "its source is on no form" : "it has a form that nothing reads";
    if (row.rule == FeedRule::OptionsWalk && !feed.walk)
        return "nothing walks over it";
    try {
        if (row.rule == FeedRule::OptionsWalk)
            optionOf(row, proposal);
        for (int index = 0; index < feed.count; ++index)
            valueOf(row, proposal, feed.count == 1 ? Control::noIndex : index, index + 1);
    } catch (const RuntimeError& error) {
        return error.description;
    }
    return "";
}

}  // namespace

std::shared_ptr<Recordset> feedTable(const Feed& feed, Proposal& proposal) {
    auto table = std::make_shared<Recordset>(feed.columns);
    if (feed.table)
        proposal.tables.*feed.table = table;
    for (int index = 0; index < feed.count; ++index) {
        table->addNew();
        for (int column = 0; const FeedRow& row : feed.rows) {
            if (Value value = valueOf(row, proposal, feed.count == 1 ? Control::noIndex : index, index + 1);
                !isNull(value))
                table->set(column, std::move(value));
            ++column;
        }
        table->update();
    }
    if (feed.walk)
        feed.walk(proposal, *table);
    return table;
}

std::vector<std::string> feedFaults(const Feed& feed, Proposal& proposal) {
    std::vector<std::string> faults;
    for (const FeedRow& row : feed.rows)
        if (const std::string fault = rowFault(row, feed, proposal); !fault.empty())
            faults.push_back("column " + std::string(row.column) + ": " + fault);
    return faults;
}

}  // namespace plandesk
