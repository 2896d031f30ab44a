#pragma once

#include <string_view>

#include "controls/Controls.h"

namespace plandesk {

/// The members of a control array of that name, from index 0.
inline Series<TextBox> discretionBoxes(Form& form, std::string_view name, std::size_t count) {
    Series<TextBox> boxes;
    for (std::size_t index = 0; index < count; ++index)
        boxes.emplace_back(form, name, static_cast<int>(index));
    return boxes;
}

}  // namespace plandesk
