#include "proposal/Forms.h"

#include "proposal/Proposal.h"

namespace plandesk {

Form* Forms::touch(std::string_view name) {
    if (Form* form = loaded(name))
        return form;
    const auto maker = makers.find(name);
    if (maker == makers.end())
        return nullptr;
    Form& form = *(live[maker->first] = maker->second(proposal));
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
    return makers.contains(name);
}

std::vector<std::string> Forms::names() const {
    std::vector<std::string> names;
    for (const auto& [name, maker] : makers)
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

}  // namespace plandesk
