#include <array>

#include "base/Date.h"
#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "controls/Controls.h"
#include "driver/Commands.h"
#include "driver/Reference.h"
#include "driver/Session.h"

namespace plandesk::driver {

namespace {

void today(Session& session, const Words& words) {
    const std::optional<Date> day = Date::parse(words[0].text);
    if (!day)
        throw ScriptError("no date " + quote(words[0].text));
    session.clock.set = day;
}

bool toBoolean(std::string_view text) {
    const bool on = equalsIgnoringCase(text, "true");
    if (!on && !equalsIgnoringCase(text, "false"))
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return on;
}

void assign(ComboBox& list, const Word& value) {
    const std::optional<int> position = wholeNumber(value.text);
    if (position && !value.quoted)
        list.setListIndex(*position);
    else
        list.setText(value.text);
}

void assign(Control& control, const Word& value) {
    if (auto* box = dynamic_cast<TextBox*>(&control))
        box->setText(value.text);
    else if (auto* option = dynamic_cast<OptionButton*>(&control))
        option->setValue(toBoolean(value.text));
    else if (auto* check = dynamic_cast<CheckBox*>(&control))
        check->setValue(toInteger16(value.text));
    else if (auto* list = dynamic_cast<ComboBox*>(&control))
        assign(*list, value);
    else if (auto* picker = dynamic_cast<DatePicker*>(&control))
        picker->setDate(toDate(value.text));
    else if (auto* strip = dynamic_cast<TabStrip*>(&control))
        strip->setTab(toInteger16(value.text));
    else if (auto* captioned = dynamic_cast<Captioned*>(&control))
        captioned->setCaption(value.text);
}

void set(Session& session, const Words& words) {
    Control& control = findControl(session, words[0]);
    if (control.kind() == ControlKind::Grid || control.kind() == ControlKind::RichText)
        throw ScriptError(quote(words[0].text) + " takes no value");
    session.proposal.screen.event([&] { assign(control, words[1]); });
}

void touch(Session& session, const Words& words) {
    if (!equalsIgnoringCase(words[0].text, "mdiInterface"))
        session.form(words[0].text);
}

/// Calls a procedure of the main window, a form or the whole system; false when there is none of that name.
bool call(Session& session, const std::string& name, Form* form) {
    const std::string procedure = name.substr(name.find('.') + 1);
    if (form)
        return form->run(procedure);
    if (const auto found = session.proposal.procedures.find(procedure); found != session.proposal.procedures.end()) {
        found->second();
        return true;
    }
    return session.shell.run(procedure);
}

void runProcedure(Session& session, const Words& words) {
    const std::string& name = words[0].text;
    const std::string owner = name.find('.') == name.npos ? "" : name.substr(0, name.find('.'));
    Form* form = owner.empty() || equalsIgnoringCase(owner, "mdiInterface") ? nullptr : &session.form(owner);
    bool known = true;
    session.proposal.screen.event([&] { known = call(session, name, form); });
    if (!known)
        throw ScriptError("unknown procedure " + quote(name));
}

void fail(Session& session, const Words& words) {
    const int step = countingNumber(words[1].text);
    if (words[0].text != "write" || step == 0)
        throw ScriptError("fail takes: write N, N from 1");
    session.files.failAtStep(step);
}

void include(Session& session, const Words& words) {
    session.include(words[0].text);
}

constexpr std::array commands = std::to_array<Command>({
    {"today", 1, 1, "dd/MM/yyyy", today},
    {"set", 2, 2, "REF VALUE", set},
    {"touch", 1, 1, "FORM", touch},
    {"run", 1, 1, "PROCEDURE", runProcedure},
    {"fail", 2, 2, "write N", fail},
    {"include", 1, 1, "FILE", include},
});

}  // namespace

std::span<const Command> machineCommands() {
    return commands;
}

}  // namespace plandesk::driver
