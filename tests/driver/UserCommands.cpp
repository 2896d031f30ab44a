#include <algorithm>
#include <array>

#include "base/Text.h"
#include "controls/Controls.h"
#include "controls/User.h"
#include "driver/Commands.h"
#include "driver/Reference.h"
#include "driver/Session.h"
#include "proposal/Grid.h"
#include "reports/ReportCatalogue.h"

namespace plandesk::driver {

namespace {

/// Lets the user act on what the word names, unless the program has ended, and tells when it was not there.
template <class Act>
void userAct(Session& session, const Word& what, Act act) {
    if (session.proposal.screen.ended() || !act())
        session.unavailable(what);
}

void menu(Session& session, const Words& words) {
    if (!findMenuEntry(words[0].text))
        throw ScriptError("unknown menu entry " + quote(words[0].text));
    userAct(session, words[0], [&] { return session.shell.press(words[0].text); });
}

template <bool (*act)(TextBox&, std::string_view)>
void typing(Session& session, const Words& words) {
    auto& box = findControl<TextBox>(session, words[0]);
    userAct(session, words[0], [&] { return act(box, words[1].text); });
}

void clear(Session& session, const Words& words) {
    auto& box = findControl<TextBox>(session, words[0]);
    userAct(session, words[0], [&] { return user::clear(box); });
}

/// The name of a key as the system knows it, or the one character.
std::string keyNamed(const Word& word) {
    for (const char* key : {"Enter", "Tab", "Esc", "Space", "Backspace", "F2", "F3"})
        if (equalsIgnoringCase(word.text, key))
            return key;
    if (codePoints(word.text).size() == 1)
        return word.text;
    throw ScriptError("unknown key " + quote(word.text));
}

void press(Session& session, const Words& words) {
    Control& control = findControl(session, words[0]);
    const std::string key = keyNamed(words[1]);
    const bool typed = key == "Space" || key == "Backspace" || codePoints(key).size() == 1;
    const auto* box = dynamic_cast<const TextBox*>(&control);
    const bool lockedOut = box && box->locked && typed;
    userAct(session, words[0], [&] { return !lockedOut && user::press(control, key); });
}

void pressForm(Session& session, const Words& words) {
    Form& form = session.form(words[0].text);
    const std::string key = keyNamed(words[1]);
    userAct(session, words[0], [&] { return user::pressForm(form, key); });
}

void click(Session& session, const Words& words) {
    Control& control = findControl(session, words[0]);
    userAct(session, words[0], [&] { return user::click(control); });
}

int positionOf(const ComboBox& list, const Word& item) {
    if (const std::optional<int> position = wholeNumber(item.text); position && !item.quoted)
        return *position;
    for (int position = 0; position < list.listCount(); ++position)
        if (list.item(position) == item.text)
            return position;
    return -1;
}

void pick(Session& session, const Words& words) {
    auto& list = findControl<ComboBox>(session, words[0]);
    userAct(session, words[0], [&] { return user::pick(list, positionOf(list, words[1])); });
}

void date(Session& session, const Words& words) {
    auto& picker = findControl<DatePicker>(session, words[0]);
    const std::optional<Date> day = Date::parse(words[1].text);
    if (!day)
        throw ScriptError("no date " + quote(words[1].text));
    userAct(session, words[0], [&] { return user::pickDate(picker, *day); });
}

void leave(Session& session, const Words& words) {
    Control& control = findControl(session, words[0]);
    userAct(session, words[0], [&] { return user::leave(control); });
}

void tab(Session& session, const Words& words) {
    auto& strip = findControl<TabStrip>(session, words[0]);
    const int place = countingNumber(words[1].text);
    userAct(session, words[0], [&] { return user::showTab(strip, place); });
}

void cell(Session& session, const Words& words) {
    auto& grid = findControl<Grid>(session, words[0]);
    const int row = countingNumber(words[1].text);
    const int column = countingNumber(words[2].text);
    userAct(session, words[0], [&] { return user::editCell(grid, row, column, words[3].text); });
}

template <bool (*act)(Grid&, int, int)>
void onCell(Session& session, const Words& words) {
    auto& grid = findControl<Grid>(session, words[0]);
    const int row = countingNumber(words[1].text);
    const int column = countingNumber(words[2].text);
    userAct(session, words[0], [&] { return act(grid, row, column); });
}

void deleteRow(Session& session, const Words& words) {
    auto& grid = findControl<Grid>(session, words[0]);
    const int row = countingNumber(words[1].text);
    userAct(session, words[0], [&] { return user::deleteRow(grid, row); });
}

void close(Session& session, const Words& words) {
    const std::string& name = words[0].text;
    const bool mainWindow = equalsIgnoringCase(name, "mdiInterface");
    const bool report = isReport(name);
    if (!mainWindow && !report && !session.proposal.forms.known(name))
        throw ScriptError("unknown form " + quote(name));
    userAct(session, words[0], [&] {
        if (report)
            return session.shell.reports().pressClose(name);
        if (mainWindow)
            return session.shell.pressClose();
        Form* form = session.proposal.forms.loaded(name);
        return form && user::close(*form);
    });
}

void answer(Session& session, const Words& words) {
    session.dialogs.answers.push_back(words[0].text);
}

constexpr std::array commands = std::to_array<Command>({
    {"menu", 1, 1, "NAME", menu},
    {"type", 2, 2, "REF TEXT", typing<user::type>},
    {"append", 2, 2, "REF TEXT", typing<user::append>},
    {"clear", 1, 1, "REF", clear},
    {"press", 2, 2, "REF KEY", press},
    {"pressform", 2, 2, "FORM KEY", pressForm},
    {"click", 1, 1, "REF", click},
    {"pick", 2, 2, "REF N or REF \"TEXT\"", pick},
    {"date", 2, 2, "REF dd/MM/yyyy", date},
    {"leave", 1, 1, "REF", leave},
    {"tab", 2, 2, "REF N", tab},
    {"cell", 4, 4, "REF ROW COLUMN VALUE", cell},
    {"cellclick", 3, 3, "REF ROW COLUMN", onCell<user::clickCell>},
    {"cellbutton", 3, 3, "REF ROW COLUMN", onCell<user::pressCellButton>},
    {"deleterow", 2, 2, "REF ROW", deleteRow},
    {"close", 1, 1, "FORM or REPORT", close},
    {"answer", 1, 1, "VALUE", answer},
});

}  // namespace

std::span<const Command> userCommands() {
    return commands;
}

}  // namespace plandesk::driver
