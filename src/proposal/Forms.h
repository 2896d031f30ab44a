#pragma once

#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "controls/Form.h"

namespace plandesk {

class Proposal;

/// One form of the system, a row of the catalogue of forms.
struct FormRow {
    std::string_view name;
    std::unique_ptr<Form> (*make)(Proposal& proposal) = nullptr;
    bool droppedByNew = false;                   ///< New and Open unload it
    void (*open)(Proposal& proposal) = nullptr;  ///< how it is opened; null: touched and shown
    /// Assigns one form of the class to another. Null: the class cannot be assigned.
    void (*assign)(Form& copy, const Form& original) = nullptr;
};

template <class T>
constexpr decltype(FormRow::assign) assignment() {
    if constexpr (std::is_copy_assignable_v<T>)
        return [](Form& copy, const Form& original) { static_cast<T&>(copy) = static_cast<const T&>(original); };
    else
        return nullptr;
}

/// The row of a form, from its class.
template <class T>
constexpr FormRow formRow(bool droppedByNew, void (*open)(Proposal& proposal) = nullptr) {
    return {T::formName, [](Proposal& owner) -> std::unique_ptr<Form> { return std::make_unique<T>(owner); },
            droppedByNew, open, assignment<T>()};
}

/// The forms of the open proposal. Touching a form loads it: constructs it and runs its load reaction. Hiding keeps it,
/// unloading destroys it with all it holds.
/// A form class says its name as `static constexpr std::string_view formName` and is constructed from a Proposal.
class Forms {
public:
    explicit Forms(Proposal& proposal) : proposal(proposal) {}

    /// Makes the forms of the catalogue, which outlives this, known by name, so that menus and scripts can touch them.
    void declare(std::span<const FormRow> all);
    /// The same for one form, which New and Open keep.
    template <class T>
    void declare() {
        add(formRow<T>(false));
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
    /// Opens the form of that name in any case as its row tells. False when no such form is known.
    bool open(std::string_view name);
    /// Names of all known forms, loaded or not, in alphabetical order.
    std::vector<std::string> names() const;
    /// Destroys the form when it is loaded. Its contents are gone; the next touch makes it afresh.
    void unload(std::string_view name);
    /// Unloads the forms that New and Open drop, in the order of the catalogue.
    void unloadDropped();

    /// Makes the forms that are loaded there, without their load reactions, and assigns them their originals. The
    /// tables that their grids show are still those of the originals. RuntimeError 5 for a form that cannot be
    /// assigned.
    void copyFrom(const Forms& original);

    /// The loaded forms by name.
    const std::map<std::string, std::unique_ptr<Form>, IgnoringCase>& all() const { return live; }

private:
    void add(const FormRow& row);

    Proposal& proposal;
    std::span<const FormRow> catalogue;
    std::map<std::string, FormRow, IgnoringCase> rows;
    std::map<std::string, std::unique_ptr<Form>, IgnoringCase> live;
};

}  // namespace plandesk
