#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "controls/Control.h"
#include "driver/Session.h"

namespace plandesk::driver {

using PropertyValue = std::variant<bool, int, std::string>;

/// As the grammar writes it: true, false, a number, or the text itself.
std::string textOf(const PropertyValue& value);

/// The control that FORM.CONTROL or FORM.CONTROL(INDEX) names; its form is loaded. ScriptError when there is none.
Control& findControl(Session& session, const Word& reference);

/// The same, and of that kind.
template <class Kind>
Kind& findControl(Session& session, const Word& reference) {
    Control& control = findControl(session, reference);
    if (auto* wanted = dynamic_cast<Kind*>(&control))
        return *wanted;
    throw ScriptError(reference.text + " is a " + std::string(kindName(control.kind())));
}

/// Value of FORM.CONTROL, FORM.CONTROL.PROPERTY or FORM.PROPERTY. The form is loaded except by FORM.loaded.
/// ScriptError for a form, control or property that there is not; RuntimeError for a place that a list or grid lacks.
PropertyValue valueOf(Session& session, const Word& reference);

/// Names of the properties that are the control's own value.
std::vector<std::string_view> ownProperties(const Control& control);

/// Nothing when the control has no such property.
std::optional<PropertyValue> property(const Control& control, std::string_view name,
                                      const std::vector<int>& arguments = {});

}  // namespace plandesk::driver
