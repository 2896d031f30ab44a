#include "session/Robot.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTableView>
#include <QThread>
#include <QToolButton>
#include <algorithm>
#include <atomic>
#include <stdexcept>

#include "controls/Controls.h"
#include "controls/Form.h"
#include "desktop/ChildWindow.h"
#include "desktop/FormView.h"
#include "desktop/QtText.h"
#include "session/Hands.h"

namespace plandesk::session {

namespace {

using desktop::fromQt;
using desktop::toQt;

/// Counts the mouse's releases that arrived from the display.
class ReleaseCounter : public QObject {
public:
    std::atomic<int> releases = 0;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease && event->spontaneous() && watched->isWidgetType())
            ++releases;
        return false;
    }
};

ReleaseCounter& releaseCounter() {
    static ReleaseCounter counter;
    return counter;
}

void clickAndWait(QPoint place) {
    const int before = releaseCounter().releases;
    Hands::click(place);
    Hands::waitUntil([before] { return releaseCounter().releases > before; }, "a click arrives");
}

std::string field(const std::string& text, char separator, int number) {
    std::size_t start = 0;
    for (int passed = 0; passed < number; ++passed)
        start = text.find(separator, start) + 1;
    return text.substr(start, text.find(separator, start) - start);
}

Icon iconOf(const QMessageBox& box) {
    switch (box.icon()) {
    case QMessageBox::Information:
        return Icon::Information;
    case QMessageBox::Question:
        return Icon::Question;
    case QMessageBox::Critical:
        return Icon::Critical;
    default:
        return Icon::None;
    }
}

Icon iconNamed(std::string_view name) {
    return name == "information" ? Icon::Information
           : name == "question"  ? Icon::Question
           : name == "critical"  ? Icon::Critical
                                 : Icon::None;
}

const std::map<std::string, QString>& keyNames() {
    static const std::map<std::string, QString> names = {{"Enter", "Return"},       {"Tab", "Tab"}, {"Esc", "Escape"},
                                                         {"Space", "space"},        {"F2", "F2"},   {"F3", "F3"},
                                                         {"Backspace", "BackSpace"}};
    return names;
}

QWidget* openDialog() {
    QWidget* dialog = QApplication::activeModalWidget();
    return dialog && dialog->isVisible() && dialog->isActiveWindow() ? dialog : nullptr;
}

}  // namespace

Robot::Robot(Proposal& proposal, desktop::MainWindow& window, QString pictureFolder, Manner manner)
    : proposal(proposal),
      window(window),
      pictures(std::move(pictureFolder)),
      keyboardAlone(manner != Manner::MouseAndKeyboard),
      hurried(manner == Manner::Hurried),
      commands{{"menu", &Robot::menu},
               {"type", &Robot::type},
               {"press", &Robot::press},
               {"pressform", &Robot::pressForm},
               {"click", &Robot::click},
               {"pick", &Robot::pick},
               {"date", &Robot::date},
               {"cell", &Robot::cell},
               {"cellbutton", &Robot::openCell},
               {"tab", &Robot::tab},
               {"cellclick", &Robot::openCell},
               {"close", &Robot::closeForm},
               {"expect-message", &Robot::expectMessage}} {
    Hands::inWindow([] { qApp->installEventFilter(&releaseCounter()); });
}

/// What a window manager does when a window has appeared or a dialog has gone; the display has none.
void Robot::activate() {
    Hands::inWindow([&] { window.activateWindow(); });
    Hands::waitUntil([&] { return window.isActiveWindow(); }, "the window is active");
}

void Robot::run(std::istream& script) {
    activate();
    int number = 0;
    for (std::string line; std::getline(script, line);) {
        ++number;
        try {
            runLine(line);
        } catch (const std::exception& error) {
            takePicture("failed");
            throw std::runtime_error("line " + std::to_string(number) + ": " + line + ": " + error.what());
        }
    }
}

void Robot::runLine(const std::string& line) {
    constexpr std::string_view picture = "# screenshot ";
    if (line.starts_with(picture))
        return takePicture(toQt(line.substr(picture.size())));
    const Words words = driver::splitWords(line);
    if (words.empty())
        return;
    if (words[0].text == "answer") {
        answers.push_back(words.at(1).text);
        return;
    }
    const auto command = commands.find(words[0].text);
    if (command == commands.end())
        throw std::runtime_error("no such command here");
    if (hurried)
        count(words);
    (this->*command->second)(words);
    // A box that an answer brings up is a failure of a hurried run; it looks for one only where it expects it.
    if (words[0].text == "menu" || words[0].text.starts_with(hurried ? "pressform" : "press"))
        attendDialogs();
}

void Robot::key(const QString& name) {
    keyCount.pressed();
    Hands::key(name);
}

QWidget* Robot::widgetOf(const Control& control) const {
    const desktop::FormView* view = window.forms().viewOf(control.form());
    return view ? view->widgetOf(control) : nullptr;
}

Control& Robot::control(const driver::Word& reference) {
    Control* found = nullptr;
    Hands::waitUntil(
        [&] {
            Form* form = proposal.forms.loaded(field(reference.text, '.', 0));
            found = form ? form->findKey(field(reference.text, '.', 1)) : nullptr;
            const QWidget* widget = found ? widgetOf(*found) : nullptr;
            return widget && widget->isVisible() && found->form().front();
        },
        toQt(reference.text) + " is on the screen");
    return *found;
}

void Robot::scrollTo(const Control& control) {
    constexpr int most = 400;
    for (int turn = 0; turn < most; ++turn) {
        QPoint place;
        int distance = 0;
        Hands::inWindow([&] {
            QWidget* widget = widgetOf(control);
            for (QWidget* parent = widget; parent; parent = parent->parentWidget()) {
                auto* area = qobject_cast<QScrollArea*>(parent);
                if (!area)
                    continue;
                const QWidget* view = area->viewport();
                const QRect part(widget->mapTo(view, QPoint(0, 0)), widget->size());
                distance = part.top() < 0 ? -1 : part.bottom() >= view->height() ? 1 : 0;
                place = view->mapToGlobal(view->rect().bottomRight() - QPoint(4, 4));
            }
        });
        if (distance == 0)
            return;
        Hands::turnWheel(place, distance > 0);
        QThread::msleep(20);
    }
    throw std::runtime_error("scrolling does not bring it onto the screen");
}

void Robot::clickOn(const Control& control) {
    scrollTo(control);
    QPoint place;
    Hands::inWindow([&] {
        const QWidget* widget = widgetOf(control);
        place = widget->mapToGlobal(QPoint(std::min(10, widget->width() / 2), widget->height() / 2));
    });
    clickAndWait(place);
}

void Robot::tabTo(const Control& control) {
    constexpr int most = 300;
    const auto* option = dynamic_cast<const OptionButton*>(&control);
    for (int turn = 0; turn < most; ++turn) {
        if (Hands::holds([&] { return control.focused(); }))
            return;
        // A group of options is one stop; arrows lead on in it.
        const bool inGroup = option && Hands::holds([&] {
                                 return std::ranges::any_of(option->group().members, &OptionButton::focused);
                             });
        key(inGroup ? "Right" : "Tab");
        QThread::msleep(20);
    }
    throw std::runtime_error("no Tab leads to it");
}

void Robot::takeFocus(Control& control) {
    if (keyboardAlone)
        tabTo(control);
    else if (!Hands::holds([&] { return control.focused(); }))
        clickOn(control);
    Hands::waitUntil(
        [&] {
            const QWidget* widget = widgetOf(control);
            const QWidget* focus = QApplication::focusWidget();
            return control.focused() && (focus == widget || widget->isAncestorOf(focus));
        },
        toQt(control.key()) + " has the focus");
}

/// The menus that lead to the entry, the one of the menu bar first.
static std::vector<QAction*> pathTo(const QList<QAction*>& actions, QAction& entry) {
    for (QAction* action : actions) {
        if (action == &entry)
            return {action};
        if (!action->menu())
            continue;
        std::vector<QAction*> path = pathTo(action->menu()->actions(), entry);
        if (path.empty())
            continue;
        path.insert(path.begin(), action);
        return path;
    }
    return {};
}

void Robot::menuByKeyboard(QAction& entry) {
    std::vector<QAction*> path;
    QString mnemonic;
    Hands::inWindow([&] {
        path = pathTo(window.menuBar()->actions(), entry);
        const QString title = path.front()->text();
        mnemonic = title.mid(title.indexOf('&') + 1, 1).toLower();
    });
    key("alt+" + mnemonic);
    for (std::size_t depth = 1; depth < path.size(); ++depth) {
        const QMenu* menu = path[depth - 1]->menu();
        Hands::waitUntil([&] { return menu->isVisible(); }, "the menu opens");
        constexpr int most = 50;
        for (int turn = 0; turn < most && !Hands::holds([&] { return menu->activeAction() == path[depth]; }); ++turn) {
            key("Down");
            QThread::msleep(10);
        }
        key("Return");
    }
    const QMenu* last = path[path.size() - 2]->menu();
    Hands::waitUntil([&] { return !last->isVisible(); }, "the menu closes");
}

void Robot::menu(const Words& words) {
    QAction* entry = window.entry(words.at(1).text);
    if (keyboardAlone)
        return menuByKeyboard(*entry);
    QPoint top;
    QMenu* submenu = nullptr;
    Hands::inWindow([&] {
        for (QAction* action : window.menuBar()->actions()) {
            if (!action->menu()->actions().contains(entry))
                continue;
            submenu = action->menu();
            top = window.menuBar()->mapToGlobal(window.menuBar()->actionGeometry(action).center());
        }
    });
    clickAndWait(top);
    Hands::waitUntil([&] { return submenu->isVisible(); }, "the menu opens");
    QPoint place;
    Hands::inWindow([&] { place = submenu->mapToGlobal(submenu->actionGeometry(entry).center()); });
    clickAndWait(place);
    Hands::waitUntil([&] { return !submenu->isVisible(); }, "the menu closes");
}

void Robot::type(const Words& words) {
    auto& box = dynamic_cast<TextBox&>(control(words.at(1)));
    takeFocus(box);
    // A hurried user relies on it that what stands there is selected on arrival.
    if (!hurried)
        key("ctrl+a");
    Hands::type(toQt(words.at(2).text));
    Hands::waitUntil([&] { return box.text() == words.at(2).text; }, "the text has arrived");
}

void Robot::press(const Words& words) {
    Control& pressed = control(words.at(1));
    takeFocus(pressed);
    const std::string& name = words.at(2).text;
    const auto known = keyNames().find(name);
    key(known == keyNames().end() ? toQt(name) : known->second);
    if (name == "Enter" || name == "Tab")
        Hands::waitUntil([&] { return !pressed.focused() || QApplication::activeModalWidget(); }, "the focus moves on");
}

void Robot::pressForm(const Words& words) {
    key(keyNames().at(words.at(2).text));
}

void Robot::click(const Words& words) {
    Control& clicked = control(words.at(1));
    if (hurried && isPageButton(words)) {
        const Form& form = clicked.form();
        return turnPage(true, [&] { return !form.front(); });
    }
    if (keyboardAlone) {
        takeFocus(clicked);
        key("space");
    } else {
        clickOn(clicked);
    }
    if (auto* option = dynamic_cast<OptionButton*>(&clicked))
        Hands::waitUntil([&] { return option->value(); }, "the option is on");
    else
        attendDialogs();
}

void Robot::pick(const Words& words) {
    auto& list = dynamic_cast<ComboBox&>(control(words.at(1)));
    if (hurried)
        return pickByLetter(list, words.at(2).text);
    if (keyboardAlone)
        return pickByKeyboard(list, words.at(2));
    clickOn(list);
    auto* box = static_cast<QComboBox*>(widgetOf(list));
    int item = -1;
    Hands::waitUntil([&] { return box->view()->isVisible(); }, "the list opens");
    Hands::inWindow([&] {
        item = words.at(2).quoted ? box->findText(toQt(words[2].text), Qt::MatchExactly)
                                  : driver::countingNumber(words[2].text);
        box->view()->scrollTo(box->model()->index(item, 0));
    });
    QThread::msleep(50);
    QPoint place;
    Hands::inWindow([&] {
        const QRect line = box->view()->visualRect(box->model()->index(item, 0));
        place = box->view()->viewport()->mapToGlobal(QPoint(line.left() + 10, line.center().y()));
    });
    // A list that has just opened takes no click for a moment.
    QThread::msleep(static_cast<unsigned long>(QApplication::doubleClickInterval()));
    clickAndWait(place);
    Hands::waitUntil([&] { return list.listIndex() == item && !box->view()->isVisible(); }, "the item is picked");
}

void Robot::pickByKeyboard(ComboBox& list, const driver::Word& item) {
    takeFocus(list);
    int wanted = -1;
    Hands::inWindow([&] {
        for (int place = 0; item.quoted && place < list.listCount(); ++place)
            if (list.item(place) == item.text)
                wanted = place;
    });
    if (!item.quoted)
        wanted = driver::countingNumber(item.text);
    const auto* box = static_cast<QComboBox*>(widgetOf(list));
    key("alt+Down");
    Hands::waitUntil([&] { return box->view()->isVisible(); }, "the list opens");
    key("Home");
    for (int step = 0; step < wanted; ++step)
        key("Down");
    key("Return");
    Hands::waitUntil([&] { return list.listIndex() == wanted && !box->view()->isVisible(); }, "the item is picked");
}

void Robot::clickOnCell(const Grid& grid, int row, int column, bool onButton) {
    scrollTo(grid);
    QPoint place;
    bool covered = false;
    Hands::inWindow([&] {
        auto* table = static_cast<QTableView*>(widgetOf(grid));
        const QModelIndex cell = table->model()->index(row, column);
        table->scrollTo(cell);
        const QRect rect = table->visualRect(cell);
        // The button stands at the right end of its cell.
        place = table->viewport()->mapToGlobal(onButton ? QPoint(rect.right() - rect.height() / 2, rect.center().y())
                                                        : rect.topLeft() + QPoint(8, rect.height() / 2));
        covered = QApplication::widgetAt(place) != table->viewport();
    });
    if (covered)  // the editor that a click would bring is there already
        return;
    clickAndWait(place);
    Hands::waitUntil([&] { return grid.currentRow() == row && grid.currentColumn() == column; }, "the cell is current");
}

Grid& Robot::goToCell(const Words& words) {
    auto& grid = dynamic_cast<Grid&>(control(words.at(1)));
    const int row = driver::countingNumber(words.at(2).text);
    const int column = driver::countingNumber(words.at(3).text);
    if (!keyboardAlone) {
        clickOnCell(grid, row, column, false);
        return grid;
    }
    takeFocus(grid);
    if (hurried) {
        tabToCell(grid, row, column);
        return grid;
    }
    constexpr int most = 300;
    for (int turn = 0; turn < most; ++turn) {
        QString arrow;
        Hands::inWindow([&] {
            arrow = grid.currentRow() < row         ? "Down"
                    : grid.currentRow() > row       ? "Up"
                    : grid.currentColumn() < column ? "Right"
                    : grid.currentColumn() > column ? "Left"
                                                    : "";
        });
        if (arrow.isEmpty())
            return grid;
        key(arrow);
        QThread::msleep(10);
    }
    throw std::runtime_error("no arrow key leads to the cell");
}

void Robot::cell(const Words& words) {
    goToCell(words);
    Hands::type(toQt(words.at(4).text));
    key("Tab");
}

void Robot::openCell(const Words& words) {
    if (keyboardAlone) {
        goToCell(words);
        key("alt+Down");
    } else {
        clickOnCell(dynamic_cast<Grid&>(control(words.at(1))), driver::countingNumber(words.at(2).text),
                    driver::countingNumber(words.at(3).text), words[0].text == "cellbutton");
    }
}

void Robot::date(const Words& words) {
    auto& picker = dynamic_cast<DatePicker&>(control(words.at(1)));
    if (keyboardAlone)
        takeFocus(picker);
    else
        clickOn(picker);
    const std::string& date = words.at(2).text;
    for (const int part : {0, 1, 2})
        Hands::type(toQt(field(date, '/', part)));
    Hands::waitUntil([&] { return picker.date().text() == date; }, "the date has arrived");
}

void Robot::closeForm(const Words& words) {
    QPoint place;
    const std::string& name = words.at(1).text;
    Hands::inWindow([&] {
        const QWidget* box = window.forms().windowOf(*proposal.forms.loaded(name))->findChild<QToolButton*>("closeBox");
        place = box->mapToGlobal(box->rect().center());
    });
    clickAndWait(place);
    const auto closed = [&] {
        const Form* form = proposal.forms.loaded(name);
        return !form || !form->visible();
    };
    Hands::waitUntil(closed, "the form is closed");
}

void Robot::expectMessage(const Words& words) {
    if (messages.empty())
        throw std::runtime_error("there was no message");
    const Message found = messages.front();
    messages.pop_front();
    // The real path of the file stands where the driver's is relative, and a box without a title has the program's.
    const std::string& title = words.at(1).text;
    const bool titled = found.title == (title.empty() ? proposal.screen.ports.program.title() : title);
    const bool same = titled && found.icon == iconNamed(words.at(3).text);
    if (!same)
        throw std::runtime_error("found \"" + found.text + "\" titled \"" + found.title + "\"");
}

void Robot::attendDialogs() {
    constexpr unsigned long pause = 20;
    constexpr int quietLooks = 5;
    for (int quiet = 0; quiet < quietLooks;) {
        QWidget* dialog = nullptr;
        bool modal = false;
        Hands::inWindow([&] {
            dialog = openDialog();
            modal = QApplication::activeModalWidget();
        });
        if (dialog) {
            answerDialog(*dialog);
            if (!Hands::holds([] { return QApplication::activeModalWidget(); }))
                activate();
        }
        quiet = modal ? 0 : quiet + 1;
        QThread::msleep(pause);
    }
}

void Robot::answerDialog(QWidget& dialog) {
    Message message;
    bool isFile = false;
    bool isQuestion = false;
    Hands::inWindow([&] {
        isFile = qobject_cast<QFileDialog*>(&dialog);
        if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
            message = {fromQt(box->windowTitle()), fromQt(box->text()), iconOf(*box)};
            isQuestion = box->standardButtons() != QMessageBox::Ok;
        }
    });
    std::string answer = isFile ? "cancel" : isQuestion ? "no" : "ok";
    if ((isFile || isQuestion) && !answers.empty()) {
        answer = answers.front();
        answers.pop_front();
    }
    takePicture(isFile ? "dialog-file" : "dialog-" + QString::number(messages.size()));
    if (isFile && answer != "cancel")
        Hands::type(toQt(answer));
    if (!isFile)
        messages.push_back(message);
    key(answer == "cancel" ? "Escape" : answer == "yes" ? "alt+y" : answer == "no" ? "alt+n" : "Return");
    Hands::waitUntil([&] { return QApplication::activeModalWidget() != &dialog; }, "the dialog closes");
}

void Robot::takePicture(const QString& name) const {
    QThread::msleep(150);
    Hands::inWindow([&] { window.screen()->grabWindow().save(pictures + '/' + name + ".png"); });
}

}  // namespace plandesk::session
