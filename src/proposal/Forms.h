#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Form.h"

namespace plandesk {

class Proposal;

/// The forms of the open proposal. Touching a form loads it: constructs it and runs its load reaction. Hiding keeps it,
/// unloading destroys it with all it holds.
/// A form class says its name as `static constexpr std::string_view formName` and is constructed from a Proposal.
class Forms {
public:
    explicit Forms(Proposal& proposal) : proposal(proposal) {}

    /// Makes the form known by name, so that menus and scripts can touch it.
    template <class T>
    void declare() {
        makers[std::string(T::formName)] = [](Proposal& owner) { return std::make_unique<T>(owner); };
    }

    /// Touches the form; one that was not declared yet is declared first.
    template <class T>
    T& get() {
        if (!known(T::formName))
            declare<T>();
        return static_cast<T&>(*touch(T::formName));
    }

    /// Touches the form of that name in any case; null when no such form is known.
    Form* touch(std::string_view name);
    /// The form of that name in any case when it is loaded, else null. Loads nothing.
    Form* loaded(std::string_view name) const;
    bool known(std::string_view name) const;
    /// Names of all known forms, loaded or not, in alphabetical order.
    std::vector<std::string> names() const;
    /// Destroys the form when it is loaded. Its contents are gone; the next touch makes it afresh.
    void unload(std::string_view name);

    /// The loaded forms by name.
    const std::map<std::string, std::unique_ptr<Form>, IgnoringCase>& all() const { return live; }

private:
    Proposal& proposal;
    std::map<std::string, std::function<std::unique_ptr<Form>(Proposal&)>, IgnoringCase> makers;
    std::map<std::string, std::unique_ptr<Form>, IgnoringCase> live;
};

}  // namespace plandesk
