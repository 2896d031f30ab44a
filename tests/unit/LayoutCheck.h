#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/Form.h"

namespace plandesk::test {

/// All names that the form's layout mentions, live question labels and frames among them.
inline std::vector<std::string> layoutNames(const Form& form) {
    std::vector<std::string> names;
    const auto take = [&names](std::string_view keys) {
        for (std::string& key : split(keys, " "))
            names.push_back(std::move(key));
    };
    const Layout& sheet = form.layout();
    const auto takeGroups = [&take](std::span<const LayoutGroup> groups) {
        for (const LayoutGroup& group : groups) {
            take(group.frame);
            for (const LayoutRow& row : group.rows) {
                take(row.label);
                take(row.controls);
            }
        }
    };
    take(sheet.head);
    takeGroups(sheet.top);
    take(sheet.tabs);
    for (const LayoutPage& page : sheet.pages)
        takeGroups(page.groups);
    take(sheet.buttons);
    return names;
}

/// The first row that `wanted` accepts; null without one.
template <class Wanted>
const LayoutRow* findRow(const Form& form, Wanted wanted) {
    for (const LayoutPage& page : form.layout().pages)
        for (const LayoutGroup& group : page.groups)
            for (const LayoutRow& row : group.rows)
                if (wanted(row))
                    return &row;
    return nullptr;
}

/// The row whose first control is that; null without one.
inline const LayoutRow* rowOf(const Form& form, std::string_view control) {
    return findRow(form, [control](const LayoutRow& row) {
        return (std::string(row.controls) + " ").starts_with(std::string(control) + " ");
    });
}

/// What is wrong with the layout: names that the form does not have, names that stand twice, and visible controls that
/// have no place. Empty when the layout is whole.
inline std::vector<std::string> layoutFaults(const Form& form) {
    std::vector<std::string> faults;
    std::set<const Control*> placed;
    for (const std::string& name : layoutNames(form)) {
        const Control* control = form.findKey(name);
        if (!control)
            faults.push_back("no control: " + name);
        else if (!placed.insert(control).second)
            faults.push_back("twice: " + name);
    }
    for (const Control* control : form.controls())
        if (control->visible() && !placed.contains(control))
            faults.push_back("no place: " + control->key());
    return faults;
}

}  // namespace plandesk::test
