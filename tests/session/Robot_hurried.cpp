// What a robot does that presses no key more than needed.

#include <QThread>
#include <stdexcept>

#include "controls/Controls.h"
#include "controls/Form.h"
#include "desktop/QtText.h"
#include "session/Hands.h"
#include "session/Robot.h"

namespace plandesk::session {

using desktop::toQt;

/// Tells the counter what the keys of this line are pressed for.
void Robot::count(const Words& words) {
    const std::string& command = words[0].text;
    const std::string what = words.size() > 1 ? words[1].text : command;
    if (command == "expect-message")
        return;
    if (command == "tab" || isPageButton(words))
        return keyCount.begin(KeyCount::Part::PageTurn, command + " " + words.back().text);
    if (command == "menu" || command == "pressform" || command == "close" || command == "click")
        return keyCount.begin(KeyCount::Part::Way, command + " " + what);
    const Control& answered = control(words.at(1));
    if (answered.kind() == ControlKind::Button)  // it is passed on the way from one answer to the next
        return;
    std::string answer = command == "cell" ? what + " " + words.at(2).text + " " + words.at(3).text : what;
    if (const auto* option = dynamic_cast<const OptionButton*>(&answered))
        answer = option->form().name() + "." + option->group().members.front()->key();
    keyCount.begin(KeyCount::Part::Answer, answer);
}

bool Robot::isPageButton(const Words& words) {
    return words[0].text == "click" && words.at(1).text.find(".cmdFormNo(") != std::string::npos;
}

std::string Robot::summary() {
    return hurried ? keyCount.summary() : "";
}

void Robot::tab(const Words& words) {
    const auto& strip = dynamic_cast<TabStrip&>(control(words.at(1)));
    const int wanted = driver::countingNumber(words.at(2).text);
    int present = 0;
    Hands::inWindow([&] { present = strip.tab(); });
    turnPage(wanted > present, [&] { return strip.tab() == wanted; });
}

void Robot::turnPage(bool forwards, const std::function<bool()>& turned) {
    key(forwards ? "ctrl+Next" : "ctrl+Prior");
    Hands::waitUntil(turned, "the page is turned");
}

void Robot::pickByLetter(ComboBox& list, const std::string& item) {
    takeFocus(list);
    key(toQt(item.substr(0, 1)).toLower());
    Hands::waitUntil([&] { return list.text() == item; }, "the letter picks the item");
}

void Robot::tabToCell(const Grid& grid, int row, int column) {
    constexpr int most = 3;
    for (int turn = 0; turn < most; ++turn) {
        if (Hands::holds([&] { return grid.currentRow() == row && grid.currentColumn() == column; }))
            return;
        key("Tab");
        QThread::msleep(20);
    }
    throw std::runtime_error("Enter and Tab lead to another cell");
}

}  // namespace plandesk::session
