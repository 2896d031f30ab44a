#include "proposal/Forms.h"

#include "base/RuntimeError.h"
#include "proposal/Proposal.h"

namespace plandesk {

void Forms::declare(std::span<const FormRow> all) {
    catalogue = all;
    for (const FormRow& row : catalogue)
        add(row);
}

void Forms::add(const FormRow& row) {
    rows[std::string(row.name)] = row;
}

Form* Forms::touch(std::string_view name) {
    if (Form* form = loaded(name))
        return form;
    const auto found = rows.find(name);
    if (found == rows.end())
        return nullptr;
    Form& form = *(live[found->first] = found->second.make(proposal));
    // A load reaction is an event of its own: what fails in it is told in its message, and the form stands as far as it
    // came.
    proposal.screen.event([&form] { form.load(); });
    return &form;
}

Form* Forms::loaded(std::string_view name) const {
    const auto form = live.find(name);
    return form == live.end() ? nullptr : form->second.get();
}

bool Forms::known(std::string_view name) const {
    return rows.contains(name);
}

bool Forms::open(std::string_view name) {
    const auto found = rows.find(name);
    if (found == rows.end())
        return false;
    if (found->second.open)
        found->second.open(proposal);
    else
        touch(name)->show();
    return true;
}

std::vector<std::string> Forms::names() const {
    std::vector<std::string> names;
    for (const auto& [name, row] : rows)
        names.push_back(name);
    return names;
}

void Forms::unload(std::string_view name) {
    const auto form = live.find(name);
    if (form == live.end())
        return;
    std::unique_ptr<Form> gone = std::move(form->second);
    live.erase(form);
    proposal.screen.unload(std::move(gone));
}

void Forms::unloadDropped() {
    for (const FormRow& row : catalogue)
        if (row.droppedByNew)
            unload(row.name);
}

void Forms::copyFrom(const Forms& original) {
    catalogue = original.catalogue;
    rows = original.rows;
    live.clear();
    for (const auto& [name, form] : original.live) {
        const FormRow& row = rows.at(name);
        if (!row.assign)
            throw RuntimeError(ErrorNumber::InvalidProcedureCall, name + " cannot be copied");
        row.assign(*(live[name] = row.make(proposal)), *form);
    }
}

}  // namespace plandesk
