#include "contract/Words.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Answers.h"
#include "drc/frmDRCTransferCont.h"
#include "landrecords/ExtractForm.h"
#include "landrecords/ExtractFormKind.h"
#include "proposal/Grid.h"
#include "review/CarriedAnswers.h"
#include "review/Questions.h"
#include "ulc/frmScrutinyULC.h"

namespace plandesk::contract {

namespace {

struct GridOf {
    Tables::Member table;
    std::string_view form;
    std::string_view grid;
};

/// Tables that the review leaves out and a grid shows.
constexpr GridOf furtherGrids[] = {{&Tables::rsOwnership, "frmScrutinyULC", "dgdOwner"}};

GridOf gridOf(Tables::Member table) {
    for (const CarriedTable& carried : carriedTables())
        if (carried.table == table)
            return {table, carried.form, carried.grid};
    for (const GridOf& further : furtherGrids)
        if (further.table == table)
            return further;
    return {table, "", ""};
}

/// Heads of the grids' columns stand in brackets at times.
std::string plain(std::string_view caption) {
    std::string words(trim(caption));
    std::erase_if(words, [](char c) { return c == '[' || c == ']'; });
    return words;
}

/// The grids of the extracts have their heads only while they show one.
GridColumn heads(const Form& form, const GridOf& shown, int column) {
    const auto place = static_cast<std::size_t>(column);
    for (const ExtractWording* wording : {&wording712, &wordingPRC}) {
        if (shown.table == wording->family.extracts)
            return wording->infoColumns[place];
        if (shown.table == wording->family.owners)
            return wording->ownerColumns[place];
        if (shown.table == wording->family.holders)
            return holderColumns[place];
    }
    return form.at<Grid>(shown.grid).column(column);
}

Kind kindOf(ColumnKind kind) {
    switch (kind) {
    case ColumnKind::Integer:
        return Kind::Count;
    case ColumnKind::Date:
        return Kind::Date;
    case ColumnKind::Double:
        return Kind::Number;
    case ColumnKind::Boolean:
        return Kind::YesNo;
    default:
        return Kind::Text;
    }
}

}  // namespace

Words::Words() {
    machine.system.shell.press("mnuNew");
    proposal().is712Current = true;  // the form of the 7/12 extracts would wear the words of the property cards
    form(frmMain712::formName);
    proposal().forms.touch(frmScrutinyULC::formName)->run("cmbExtract_Click");  // gives its grids their heads
}

Proposal& Words::proposal() {
    return machine.system.proposal;
}

const Form& Words::form(std::string_view name) {
    if (Form* form = proposal().forms.touch(name))
        return *form;
    throw RuntimeError(ErrorNumber::ItemNotFound, "no form " + std::string(name));
}

namespace {

void ask(Value& value, const Form& form, const Control& control) {
    for (const Question& question : questionsOf(form)) {
        if (std::ranges::find(question.controls, &control) == question.controls.end())
            continue;
        value.question = trim(wordsOf(question));
        value.unit = trim(question.row->unit);
        const auto* frame = dynamic_cast<const Captioned*>(form.findKey(question.group->frame));
        value.group = trim(frame ? std::string_view(frame->caption()) : question.group->title);
    }
}

}  // namespace

std::string Words::typedIn(const Form& form, TextBox& box) {
    const auto passes = [&](char key) {
        const int left = form.keyPress(key);
        return left != 0 && (!box.keyPress || box.keyPress(left) != 0);
    };
    if (passes('a') || !passes('5'))
        return "";
    std::string typed = passes('.') ? "digits and points" : "digits";
    // What the box makes of a number when it is left.
    const std::string before = box.text();
    box.restoreText("7.5");
    proposal().screen.event([&] { box.fire("LostFocus"); });
    if (box.text() == "7.50")
        typed += ", two decimals when left";
    box.restoreText(before);
    return typed;
}

Value Words::of(std::string_view formName, std::string_view name) {
    const Form& owner = form(formName);
    Value value;
    value.form = owner.name();
    Control* control = owner.findKey(name);
    if (auto* option = dynamic_cast<OptionButton*>(control)) {
        for (const OptionButton* member : option->group().members)
            value.controls.push_back(member->key());
        value.kind = Kind::Code;
    } else if (control) {
        value.controls.push_back(control->key());
        if (control->kind() == ControlKind::DatePicker)
            value.kind = Kind::Date;
        if (control->kind() == ControlKind::CheckBox)
            value.kind = Kind::YesNo;
        if (auto* box = dynamic_cast<TextBox*>(control))
            value.typed = typedIn(owner, *box);
    } else {
        const YesNoOptions options = plandesk::question(owner, name);
        value.controls = {options.yes.key(), options.no.key()};
        value.kind = Kind::YesNo;
        control = &options.yes;
    }
    ask(value, owner, *control);
    return value;
}

Value Words::ofColumn(Tables::Member table, int column) {
    const auto definition = std::ranges::find(tableDefinitions(), table, &TableDefinition::table);
    const Column& known = definition->columns[static_cast<std::size_t>(column)];
    Value value;
    value.table = definition->name;
    value.column = known.name;
    value.kind = kindOf(known.kind);
    value.mayBeEmpty = value.kind != Kind::Text;
    if (const GridOf shown = gridOf(table); !shown.grid.empty()) {
        value.form = shown.form;
        value.controls = {std::string(shown.grid)};
        value.question = plain(heads(form(shown.form), shown, column).caption);
    }
    return value;
}

Value Words::ofText(std::string Proposal::*text) {
    auto& continuation = proposal().forms.get<frmDRCTransferCont>();
    for (Control* control : continuation.controls()) {
        const Date other{1999, 12, 31};
        std::string mark = "marked";
        if (auto* box = dynamic_cast<TextBox*>(control))
            box->setText(mark);
        else if (auto* picker = dynamic_cast<DatePicker*>(control)) {
            picker->setDate(other);
            mark = other.text();
        } else
            continue;
        (proposal().*text).clear();
        continuation.pressClose();
        if (proposal().*text == mark)
            return of(continuation.name(), control->key());
        if (auto* box = dynamic_cast<TextBox*>(control))
            box->setText("");
    }
    throw RuntimeError(ErrorNumber::ItemNotFound, "no control leaves a project-wide text");
}

std::vector<Code> Words::itemsOf(std::string_view formName, std::string_view list) {
    const auto& box = form(formName).at<ComboBox>(list);
    std::vector<Code> items;
    for (int item = 0; item < box.listCount(); ++item)
        items.push_back({std::to_string(item), std::string(trim(box.item(item)))});
    return items;
}

}  // namespace plandesk::contract
