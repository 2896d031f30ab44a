#pragma once

#include <span>
#include <string_view>

namespace plandesk {

class Form;

/// What a rule does to each control it names.
enum class Effect {
    Show,
    Hide,
    Enable,
    Disable,
    Open,           ///< box: enabled and white
    Close,          ///< box: disabled and grey, its text kept
    EmptyAndClose,  ///< box: emptied, disabled and grey
    Empty,          ///< box
    Grey,           ///< box: grey, and nothing else
    Clear,          ///< option: off
};

/// One effect of the click of one option. The controls are named as layouts name them: NAME or NAME(INDEX), separated
/// by blanks. A rule without an option tells how the form starts.
struct CrossFieldRule {
    std::string_view option;
    Effect effect;
    std::string_view controls;
};

/// Puts the form in its start state and gives each option of the rules the reaction that carries out its rules, in the
/// order of the table. The rules outlive the form. Called when all other reactions are set: RuntimeError 5 for an
/// option that has one already, 3265 for a control that the form lacks.
void wireCrossFieldRules(Form& form, std::span<const CrossFieldRule> rules);

}  // namespace plandesk
