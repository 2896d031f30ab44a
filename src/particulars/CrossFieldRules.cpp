#include "particulars/CrossFieldRules.h"

#include <algorithm>

#include "controls/Controls.h"
#include "controls/Form.h"
#include "proposal/mdlProject.h"

namespace plandesk {

namespace {

void apply(Effect effect, Control& control) {
    const auto box = [&control]() -> TextBox& { return dynamic_cast<TextBox&>(control); };
    switch (effect) {
    case Effect::Show:
        return control.setVisible(true);
    case Effect::Hide:
        return control.setVisible(false);
    case Effect::Enable:
        return control.setEnabled(true);
    case Effect::Disable:
        return control.setEnabled(false);
    case Effect::Open:
        return openBox(box());
    case Effect::Close:
        return closeBox(box());
    case Effect::EmptyAndClose:
        return emptyAndCloseBox(box());
    case Effect::Empty:
        return box().setText("");
    case Effect::Grey:
        return control.setBackColor(disabledGrey);
    case Effect::Clear:
        return dynamic_cast<OptionButton&>(control).setValue(false);
    }
}

void apply(const CrossFieldRule& rule, Form& form) {
    for (std::string_view keys = rule.controls; !keys.empty();) {
        const std::size_t end = std::min(keys.find(' '), keys.size());
        apply(rule.effect, *form.findKey(keys.substr(0, end)));
        keys.remove_prefix(std::min(end + 1, keys.size()));
    }
}

void applyRulesOf(std::string_view option, Form& form, std::span<const CrossFieldRule> rules) {
    for (const CrossFieldRule& rule : rules)
        if (rule.option == option)
            apply(rule, form);
}

}  // namespace

void wireCrossFieldRules(Form& form, std::span<const CrossFieldRule> rules) {
    applyRulesOf("", form, rules);
    for (const CrossFieldRule& rule : rules)
        if (!rule.option.empty())
            dynamic_cast<OptionButton&>(*form.findKey(rule.option)).click = [option = rule.option, &form, rules] {
                applyRulesOf(option, form, rules);
            };
}

}  // namespace plandesk
