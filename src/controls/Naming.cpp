#include "controls/Naming.h"

#include <algorithm>
#include <span>
#include <string_view>

#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/Form.h"

namespace plandesk {

namespace {

std::string joined(std::string_view first, std::string_view separator, std::string_view second) {
    if (first.empty() || second.empty())
        return std::string(first.empty() ? second : first);
    return std::string(first).append(separator).append(second);
}

std::string captionOf(const Control* control) {
    const auto* captioned = dynamic_cast<const Captioned*>(control);
    return captioned ? std::string(trim(captioned->caption())) : "";
}

bool isLabel(const Control* control) {
    return control->kind() == ControlKind::Label;
}

bool carriesOwnWords(const Control* control) {
    return control->kind() == ControlKind::OptionButton || control->kind() == ControlKind::CheckBox ||
           control->kind() == ControlKind::Button;
}

std::vector<const Control*> controlsOf(const Form& form, const LayoutRow& row) {
    std::vector<const Control*> controls;
    for (const std::string& key : split(row.controls, " "))
        if (const Control* control = form.findKey(key))
            controls.push_back(control);
    return controls;
}

std::string titleOf(const Form& form, const LayoutGroup& group) {
    const std::string frame = captionOf(form.findKey(group.frame));
    return frame.empty() ? std::string(trim(group.title)) : frame;
}

std::string questionOf(const Form& form, const LayoutGroup& group, const LayoutRow& row,
                       const std::vector<const Control*>& controls) {
    if (!row.spoken.empty())
        return std::string(row.spoken);
    const std::string live = captionOf(form.findKey(row.label));
    std::string question = live.empty() ? std::string(trim(row.question)) : live;
    if (!question.empty() || controls.empty())
        return question;
    // A check box that begins a row asks for what stands behind it, too.
    if (controls.size() > 1 && controls.front()->kind() == ControlKind::CheckBox)
        return captionOf(controls.front());
    const ControlKind kind = controls.front()->kind();
    if (kind != ControlKind::Grid && kind != ControlKind::OptionButton)
        return "";
    const std::string title = titleOf(form, group);
    return title.empty() ? std::string(trim(form.caption())) : title;
}

std::string descriptionOf(const LayoutRow& row, std::string_view unit) {
    const std::string_view must = row.mark == "*" ? "mandatory" : row.mark.empty() ? "" : "one of these is mandatory";
    return joined(unit.empty() ? "" : "in " + std::string(unit), ", ", must);
}

}  // namespace

RowNaming nameRow(const Form& form, const LayoutGroup& group, const LayoutRow& row) {
    const std::vector<const Control*> controls = controlsOf(form, row);
    const bool leads = row.question.empty() && row.label.empty() && controls.size() > 1 &&
                       controls.front()->kind() == ControlKind::CheckBox;
    RowNaming names{questionOf(form, group, row, controls), descriptionOf(row, trim(row.unit)), {}};
    std::string before;  // a label of the row before the next control
    std::size_t column = leads ? 0 : 1;
    for (std::size_t place = 0; place < controls.size(); ++place, ++column) {
        const Control* control = controls[place];
        if (isLabel(control)) {
            before = captionOf(control);
            names.controls.push_back({control, before, ""});
            continue;
        }
        std::string name = names.question;
        std::string_view head = column > 0 && column < group.heads.size() ? trim(group.heads[column]) : "";
        if (!head.empty() && !leads)
            name = joined(titleOf(form, group), ": ", name);
        name = joined(joined(name, ": ", head), ": ", before);
        if (place > 0 && controls[place - 1]->kind() == ControlKind::OptionButton)
            name = joined(name, ": ", "details");
        if (carriesOwnWords(control))
            name = captionOf(control);
        else if (control->kind() == ControlKind::Image)
            name = joined(name, ": ", control->toolTip);
        // A label behind the last box is its unit.
        const bool unitBehind = place + 2 == controls.size() && isLabel(controls.back());
        const std::string unit = unitBehind ? captionOf(controls.back()) : std::string(trim(row.unit));
        const bool inGroup = control->kind() == ControlKind::OptionButton;
        names.controls.push_back({control, name.empty() ? std::string(trim(form.caption())) : name,
                                  inGroup ? "" : descriptionOf(row, unit)});
        before.clear();
    }
    return names;
}

std::string placeOf(const Control& control) {
    const Form& form = control.form();
    const auto holds = [&](const LayoutRow& row) {
        const std::vector<const Control*> controls = controlsOf(form, row);
        return std::ranges::find(controls, &control) != controls.end();
    };
    if (isLabel(&control) || control.kind() == ControlKind::Button || control.kind() == ControlKind::Image)
        return "";
    const auto placeIn = [&](std::span<const LayoutGroup> groups) -> std::string {
        for (const LayoutGroup& group : groups) {
            const auto row = std::ranges::find_if(group.rows, holds);
            if (row == group.rows.end())
                continue;
            const RowNaming names = nameRow(form, group, *row);
            const bool option = control.kind() == ControlKind::OptionButton;
            return joined(
                trim(form.caption()), ": ",
                option ? names.question : std::ranges::find(names.controls, &control, &Naming::control)->name);
        }
        return "";
    };
    std::string place = placeIn(form.layout().top);
    for (const LayoutPage& page : form.layout().pages)
        if (place.empty())
            place = placeIn(page.groups);
    return place;
}

}  // namespace plandesk
