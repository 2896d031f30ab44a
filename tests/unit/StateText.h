#pragma once

#include <string>

#include "controls/Controls.h"
#include "proposal/Grid.h"
#include "reports/ReportDesk.h"
#include "shell/mdiInterface.h"

namespace plandesk::test {

// All that can be asked of a running system from outside, as text: what a dump shows, and what it leaves out.

inline void stateOf(std::string& text, const Grid& grid, const Tables& tables) {
    std::string_view bound = grid.table() ? "a table of its own" : "none";
    for (const auto& [name, table] : tables.byName())
        if (table && table == grid.table())
            bound = name;
    text.append(" table=").append(bound);
    text += " at=" + std::to_string(grid.currentRow()) + "," + std::to_string(grid.currentColumn());
    text += " rows=" + std::to_string(grid.rowCount()) + (grid.allowDelete ? "" : " locked");
    if (grid.editing())
        text += " typed=" + grid.editText();
    for (const Grid::Floating& floating : grid.floatingEditors())
        text += " " + floating.editor->key() + (&floating.editor->form() == &grid.form() ? "" : " of another form") +
                "@" + std::to_string(floating.row) + "," + std::to_string(floating.column);
    for (int row = 0; row < grid.rowCount(); ++row)
        for (int column = 0; column < grid.columnCount(); ++column)
            text += "|" + grid.cellText(row, column);
    for (int column = 0; column < grid.columnCount(); ++column)
        text.append("/").append(grid.column(column).caption) += std::to_string(grid.column(column).width);
}

inline void stateOf(std::string& text, const Control& control, const Tables& tables) {
    text += "  " + control.key() + (control.visible() ? "" : " hidden") + (control.enabled() ? "" : " disabled") + " " +
            control.backColor().text() + " " + control.toolTip;
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
        text += " text=" + box->text() + " caret=" + std::to_string(box->caret());
        text += std::string(box->locked ? " locked" : "") + (box->multiLine ? " lines" : "") +
                (box->rightAligned ? " right" : "");
    }
    if (const auto* captioned = dynamic_cast<const Captioned*>(&control))
        text += " caption=" + captioned->caption() + " " + captioned->foreColor().text();
    if (const auto* option = dynamic_cast<const OptionButton*>(&control))
        text += option->value() ? " on" : " off";
    if (const auto* check = dynamic_cast<const CheckBox*>(&control))
        text += " value=" + std::to_string(check->value());
    if (const auto* list = dynamic_cast<const ComboBox*>(&control)) {
        text += " index=" + std::to_string(list->listIndex()) + " text=" + list->text();
        for (int item = 0; item < list->listCount(); ++item)
            text.append("|").append(list->item(item)) += std::to_string(list->itemData(item));
    }
    if (const auto* picker = dynamic_cast<const DatePicker*>(&control))
        text += " date=" + picker->date().text();
    if (const auto* strip = dynamic_cast<const TabStrip*>(&control))
        text += " tab=" + std::to_string(strip->tab());
    if (const auto* grid = dynamic_cast<const Grid*>(&control))
        stateOf(text, *grid, tables);
    text += '\n';
}

inline void stateOf(std::string& text, Recordset& table) {
    text += " filter=" + table.filter() + " sort=" + table.sort() + " at=" + std::to_string(table.absolutePosition()) +
            (table.eof() ? " end" : "") + '\n';
    for (int row = 1; row <= table.recordCount(); ++row)
        text += "  visible " + valueText(table.valueAt(row, 0));
    for (const std::span<const Value> row : table.allRows()) {
        text += "\n  ";
        for (const Value& value : row)
            text += (isNull(value) ? "null" : std::to_string(value.index()) + valueText(value)) + "|";
    }
    text += '\n';
}

inline void stateOf(std::string& text, const Form& form, const Tables& tables) {
    text += form.name() + " " + form.caption() + " " + form.backColor().text() + (form.visible() ? "" : " hidden");
    text += " active=" + (form.activeControl() ? form.activeControl()->key() : "") + '\n';
    for (const Control* control : form.controls())
        stateOf(text, *control, tables);
}

inline std::string stateOf(const Proposal& proposal, const mdiInterface& shell) {
    std::string text = proposal.screen.caption() + '\n';
    for (const MenuEntry& entry : mainMenu())
        text += shell.available(entry.name) ? '1' : '0';
    text += shell.backColor().text() + (shell.timer2Enabled() ? " timer" : "") + "\nforms in front:";
    for (const Form* form : proposal.screen.visibleForms())
        text += " " + form->name();
    if (const Form* modal = proposal.screen.modalForm())
        text += " modal " + modal->name();
    if (const Control* focused = proposal.screen.focused())
        text += " focus " + focused->form().name() + "." + focused->key();
    text += std::string(proposal.screen.ended() ? " ended" : "") + '\n';
    for (const auto& flag : Proposal::flags)
        text += proposal.*flag.flag ? '1' : '0';
    for (const auto& number : Proposal::numbers)
        text += " " + std::to_string(proposal.*number.number);
    for (const auto& fragment : Proposal::fragments)
        text.append("\n").append(fragment.name).append("=").append(proposal.*fragment.text);
    text += "\n" + proposal.proposalText + "\n" + proposal.remark712 + "|" + proposal.remarkPRC + "|" +
            proposal.drcNameAddress + "|" + proposal.drcFullAddress + '\n';
    for (const auto& [name, form] : proposal.forms.all())
        stateOf(text, *form, proposal.tables);
    for (const auto& [name, table] : proposal.tables.byName()) {
        text.append(name).append(table ? "" : " is not there\n");
        if (table)
            stateOf(text, *table);
    }
    for (const Preview* preview : shell.reports().previews()) {
        text.append("report ").append(preview->name);
        for (const auto& row : preview->data.rows)
            for (const auto& cell : row)
                text.append("|").append(cell);
        text += '\n';
    }
    return text;
}

}  // namespace plandesk::test
