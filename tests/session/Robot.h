#pragma once

#include <QAction>
#include <QString>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "controls/Controls.h"
#include "controls/Ports.h"
#include "desktop/MainWindow.h"
#include "driver/Script.h"
#include "proposal/Grid.h"
#include "proposal/Proposal.h"
#include "session/KeyCount.h"

namespace plandesk::session {

/// Does what a script of the driver's grammar says, on the real window with keyboard and mouse. It knows the commands
/// that are a user's doing, `answer` and `expect-message`, and takes a picture of the screen at each
/// comment "# screenshot NAME".
class Robot {
public:
    enum class Manner {
        MouseAndKeyboard,
        KeyboardAlone,  ///< it never touches the mouse
        Hurried         ///< nor presses a key that is not needed: its keys are counted, and too many are a failure
    };
    Robot(Proposal& proposal, desktop::MainWindow& window, QString pictureFolder, Manner manner);

    /// Runs the script; throws at the first thing that does not come about.
    void run(std::istream& script);
    /// How many keys a hurried run took; throws when the last answer took too many.
    std::string summary();

private:
    using Words = std::vector<driver::Word>;

    void activate();
    void key(const QString& name);
    void count(const Words& words);
    static bool isPageButton(const Words& words);
    void runLine(const std::string& line);
    void menu(const Words& words);
    void type(const Words& words);
    void press(const Words& words);
    void pressForm(const Words& words);
    void click(const Words& words);
    void pick(const Words& words);
    void tab(const Words& words);
    void turnPage(bool forwards, const std::function<bool()>& turned);
    void date(const Words& words);
    void cell(const Words& words);
    void openCell(const Words& words);
    void closeForm(const Words& words);
    void expectMessage(const Words& words);
    void takePicture(const QString& name) const;

    /// The control, drawn and on the screen.
    Control& control(const driver::Word& reference);
    QWidget* widgetOf(const Control& control) const;
    void scrollTo(const Control& control);
    void clickOn(const Control& control);
    void tabTo(const Control& control);
    void takeFocus(Control& control);
    void clickOnCell(const Grid& grid, int row, int column, bool onButton);
    /// Makes the cell that the words name the current one, with the arrow keys or a click.
    Grid& goToCell(const Words& words);
    void menuByKeyboard(QAction& entry);
    void pickByLetter(ComboBox& list, const std::string& item);
    void tabToCell(const Grid& grid, int row, int column);
    void pickByKeyboard(ComboBox& list, const driver::Word& item);
    /// Answers the boxes and file dialogs that are open or about to open.
    void attendDialogs();
    void answerDialog(QWidget& dialog);

    Proposal& proposal;
    desktop::MainWindow& window;
    QString pictures;
    bool keyboardAlone;
    bool hurried;
    KeyCount keyCount;
    std::deque<std::string> answers;
    std::deque<Message> messages;
    std::map<std::string, void (Robot::*)(const Words&), std::less<>> commands;
};

}  // namespace plandesk::session
