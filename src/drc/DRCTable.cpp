#include "drc/DRCTable.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "proposal/Element.h"

namespace plandesk {

namespace {

bool isOn(const Control* control) {
    if (const auto* option = dynamic_cast<const OptionButton*>(control))
        return option->value();
    const auto* check = dynamic_cast<const CheckBox*>(control);
    return check && check->value() != 0;
}

Value valueOf(const Proposal& proposal, const Form& form, const DRCSource& source) {
    if (source.text)
        return proposal.*source.text;
    if (source.control.empty())
        return {};
    const Control* single = form.find(source.control);
    const Control* zero = form.find(source.control, 0);
    if (!source.chosen.empty())
        return std::string(isOn(single ? single : zero) ? source.chosen : source.otherwise);
    if (const auto* box = dynamic_cast<const TextBox*>(single))
        return std::string(trim(box->text()));
    if (const auto* list = dynamic_cast<const ComboBox*>(single))
        return std::string(trim(list->text()));
    if (const auto* picker = dynamic_cast<const DatePicker*>(single))
        return picker->date().text();
    return std::to_string(yesNoCode(isOn(form.find(source.control, 1)), isOn(zero)));
}

}  // namespace

Recordset& fillDRCTable(Proposal& proposal, const Form& form, const DRCTable& description) {
    proposal.tables.create(description.table);
    Recordset& table = *(proposal.tables.*description.table);
    table.addNew();
    for (std::size_t column = 0; column < description.sources.size(); ++column)
        table.set(static_cast<int>(column), valueOf(proposal, form, description.sources[column]));
    table.update();
    return table;
}

std::string developmentRightsFragment(Recordset& table, std::string_view element, std::string_view lastColumn) {
    std::string values;
    int place = 0;
    for (const Column& column : table.columns()) {
        values += valueText(table.get(place++));
        if (!equalsIgnoringCase(column.name, lastColumn))
            values += "#";
    }
    std::string xml;
    appendElement(xml, element, values);
    return xml;
}

void buildDRCFragment(Proposal& proposal, const DRCTable& description) {
    proposal.*description.fragment =
        developmentRightsFragment(*(proposal.tables.*description.table), description.element, description.lastColumn);
}

}  // namespace plandesk
