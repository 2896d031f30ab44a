#include "particulars/CrossFieldRules.h"

#include <algorithm>
#include <set>

#include "base/RuntimeError.h"
#include "controls/Controls.h"
#include "controls/Form.h"
#include "proposal/mdlProject.h"

namespace plandesk {

namespace {

void apply(Effect effect, const Form& form, std::string_view key) {
    switch (effect) {
    case Effect::Show:
        return form.at(key).setVisible(true);
    case Effect::Hide:
        return form.at(key).setVisible(false);
    case Effect::Enable:
        return form.at(key).setEnabled(true);
    case Effect::Disable:
        return form.at(key).setEnabled(false);
    case Effect::Open:
        return openBox(form.at<TextBox>(key));
    case Effect::Close:
        return closeBox(form.at<TextBox>(key));
    case Effect::EmptyAndClose:
        return emptyAndCloseBox(form.at<TextBox>(key));
    case Effect::Empty:
        return form.at<TextBox>(key).setText("");
    case Effect::Grey:
        return form.at(key).setBackColor(disabledGrey);
    case Effect::Clear:
        return form.at<OptionButton>(key).setValue(false);
    }
}

void apply(const CrossFieldRule& rule, const Form& form) {
    for (std::string_view keys = rule.controls; !keys.empty();) {
        const std::size_t end = std::min(keys.find(' '), keys.size());
        apply(rule.effect, form, keys.substr(0, end));
        keys.remove_prefix(std::min(end + 1, keys.size()));
    }
}

void applyRulesOf(std::string_view option, const Form& form, std::span<const CrossFieldRule> rules) {
    for (const CrossFieldRule& rule : rules)
        if (rule.option == option)
            apply(rule, form);
}

}  // namespace

void wireCrossFieldRules(Form& form, std::span<const CrossFieldRule> rules) {
    applyRulesOf("", form, rules);
    std::set<std::string_view> wired;
    for (const CrossFieldRule& rule : rules) {
        if (rule.option.empty() || !wired.insert(rule.option).second)
            continue;
        auto& option = form.at<OptionButton>(rule.option);
        if (option.click)
            throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                               form.name() + "." + option.key() + " has a reaction beside its rules");
        option.click = [key = rule.option, &form, rules] { applyRulesOf(key, form, rules); };
    }
}

}  // namespace plandesk
