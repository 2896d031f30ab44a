#include "gui/RandomHands.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>
#include <algorithm>
#include <array>

#include "desktop/QtText.h"
#include "gui/LandRecords.h"

namespace plandesk::test {

namespace {

constexpr std::array keys = {
    Qt::Key_Return, Qt::Key_Enter,    Qt::Key_Tab,    Qt::Key_Backtab,   Qt::Key_Escape, Qt::Key_F2,    Qt::Key_F3,
    Qt::Key_F4,     Qt::Key_Left,     Qt::Key_Right,  Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Home,  Qt::Key_End,
    Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Insert, Qt::Key_Space, Qt::Key_Menu,
    Qt::Key_F1,     Qt::Key_F6,       Qt::Key_F8,     Qt::Key_F9,        Qt::Key_F10,    Qt::Key_F,     Qt::Key_A,
    Qt::Key_N,      Qt::Key_O,        Qt::Key_S,      Qt::Key_V,         Qt::Key_X,      Qt::Key_Y,     Qt::Key_Z,
    Qt::Key_1,      Qt::Key_2,        Qt::Key_9};
constexpr std::array modifiers = std::to_array<Qt::KeyboardModifiers::Int>(
    {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
     Qt::ControlModifier | Qt::ShiftModifier, Qt::ControlModifier | Qt::AltModifier});
constexpr std::array mouseButtons =
    std::to_array<Qt::MouseButton>({Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::LeftButton, Qt::LeftButton,
                                    Qt::LeftButton, Qt::RightButton, Qt::MiddleButton});

/// Does something within an event, as all happens that a user does. The test library's clicks alone would not count as
/// one, and a nested loop would delete at once what is to be deleted after the click.
class Doer : public QObject {
public:
    explicit Doer(std::function<void()> what) : what(std::move(what)) {}
    bool event(QEvent* /*event*/) override {
        what();
        return true;
    }

private:
    std::function<void()> what;
};

}  // namespace

void RandomDialogs::showMessage(const Message& message) {
    messages.push_back(message);
    if (!dice.oneIn(4))
        return;
    answerSoon();
    QtDialogs::showMessage(message);
}

bool RandomDialogs::askYesNo(const Message& question) {
    messages.push_back(question);
    if (!dice.oneIn(3))
        return dice.oneIn(2);
    answerSoon();
    return QtDialogs::askYesNo(question);
}

std::string RandomDialogs::openFile(const FileDialog& dialog) {
    if (!dice.oneIn(10))
        return path(dialog);
    answerSoon();
    return QtDialogs::openFile(dialog);
}

std::string RandomDialogs::saveFile(const FileDialog& dialog) {
    if (!dice.oneIn(10))
        return path(dialog);
    answerSoon();
    return QtDialogs::saveFile(dialog);
}

std::string RandomDialogs::chooseFolder(const std::string& title) {
    if (!dice.oneIn(10))
        return dice.oneIn(4) ? std::string() : folder.string();
    answerSoon();
    return QtDialogs::chooseFolder(title);
}

std::string RandomDialogs::path(const FileDialog& dialog) {
    return dice.oneIn(4) ? dialog.fileName : (folder / ("proposal-" + std::to_string(dice.below(4)) + ".xml")).string();
}

void RandomDialogs::answerSoon() {
    QTimer::singleShot(0, qApp, [this] { answer(); });
}

void RandomDialogs::answer() {
    QWidget* box = QApplication::activeModalWidget();
    if (!box)
        return;
    answerSoon();  // until one has closed it
    if (auto* chooser = qobject_cast<QFileDialog*>(box)) {
        if (dice.oneIn(2))
            return chooser->reject();
        chooser->selectFile(QString::fromStdString(path({})));
        return static_cast<QDialog*>(chooser)->done(QDialog::Accepted);
    }
    const QList<QPushButton*> buttons = box->findChildren<QPushButton*>();
    if (!buttons.isEmpty() && dice.oneIn(2))
        QTest::mouseClick(dice.of(buttons), Qt::LeftButton);
    else if (dice.oneIn(8))
        box->close();
    else
        QTest::keyClick(box, dice.of(keys));
}

RandomHands::RandomHands(Dice& dice, const std::filesystem::path& folder) : dice(dice), dialogs(program, dice, folder) {
    dialogs.parent = &window;
    window.furnish();
    window.resize(1024, 700);
    window.show();
    begin();
    settle();
}

/// Most begin with a new proposal, half of those with land records whose grids have rows.
void RandomHands::begin() {
    if (dice.oneIn(8))
        return;
    const auto press = [this](std::string_view entry) {
        window.forms().act(Qt::OtherFocusReason, [&] { shell.press(entry); });
    };
    press("mnuNew");
    if (dice.oneIn(2))
        QTest::keyClick(&window, Qt::Key_F9);
    if (dice.oneIn(2))
        return;
    press("mnuPlotExtRelationShip");
    auto& relation = proposal.forms.get<frmPlotExtractRelation>();
    user::type(relation.txtNoOfPlot712, "2");
    user::editCell(relation.dgd712ExtractRelation, 0, 3, "2");
    user::editCell(relation.dgd712ExtractRelation, 1, 3, "1");
    user::click(relation.cmdSave712Relation);
    press("mnu712Ext");
    land::enter(proposal.forms.get<frmMain712>(), 0,
                {{"117/3", "1A", "4470", "3480.75"}, {{"Ramesh Kulkarni", 1, 1}, {"Lata Kulkarni", 2, 4}}, {"Anil"}});
}

std::string RandomHands::act() {
    struct Act {
        const char* name;
        int weight;
        std::function<void(QWidget&)> what;
    };
    const std::array<Act, 13> acts = {{
        {"click", 30, [this](QWidget& widget) { click(widget); }},
        {"key", 30, [this](QWidget& widget) { key(widget); }},
        {"text", 12, [this](QWidget& widget) { text(widget); }},
        {"drag", 3, [this](QWidget& widget) { drag(widget); }},
        {"wheel", 4, [this](QWidget& widget) { wheel(widget); }},
        {"drop", 2, [this](QWidget& widget) { drop(widget); }},
        {"compose", 2, [this](QWidget& widget) { compose(widget); }},
        {"tip", 2, [this](QWidget& widget) { tip(widget); }},
        {"menu entry", 4, [this](QWidget&) { menuEntry(); }},
        {"resize", 1, [this](QWidget&) { resize(); }},
        {"desktop", 1, [this](QWidget& widget) { desktopEvent(widget); }},
        {"let time pass", 12, [](QWidget&) { QCoreApplication::processEvents(); }},
        {"tick", 1, [](QWidget&) { QTest::qWait(1); }},
    }};
    int total = 0;
    for (const Act& each : acts)
        total += each.weight;
    int number = dice.below(total);
    const Act* chosen = acts.data();
    while (number >= chosen->weight)
        number -= chosen++->weight;
    QWidget* widget = target();
    const std::string on = widget->objectName().toStdString() + " " + widget->metaObject()->className();
    const std::string doing = chosen->name + (" " + on);
    before(doing);
    Doer doer([&] { chosen->what(*widget); });
    QEvent happens(QEvent::User);
    QCoreApplication::sendEvent(&doer, &happens);
    return doing;
}

/// What pops up has the mouse and the keys; otherwise an answer of the front form, whatever stands at some place, or
/// what has the keyboard.
QWidget* RandomHands::target() {
    QWidget* widget = QApplication::activePopupWidget();
    if (widget && dice.oneIn(6))
        widget->close();
    if (QWidget* popup = QApplication::activePopupWidget()) {
        QWidget* part = popup->childAt(placeIn(*popup));
        return part && dice.oneIn(2) ? part : popup;
    }
    switch (dice.below(4)) {
    case 0:
        widget = window.childAt(placeIn(window));
        break;
    case 1:
        widget = window.focusWidget();
        break;
    default:
        widget = controlOfAForm();
    }
    return widget && widget->isVisible() ? widget : &window;
}

QWidget* RandomHands::controlOfAForm() {
    const Form* front = proposal.screen.frontForm();
    desktop::FormView* view = front ? window.forms().viewOf(*front) : nullptr;
    if (!view)
        return nullptr;
    QWidget* widget = view->widgetOf(*dice.of(front->controls()));
    auto* area = widget ? qobject_cast<QAbstractScrollArea*>(widget) : nullptr;
    return area && dice.oneIn(2) ? area->viewport() : widget;
}

QPoint RandomHands::placeIn(const QWidget& widget) {
    // An editor that floats over a cell of no width may have less than none.
    return {dice.below(std::max(widget.width(), 0) + 1), dice.below(std::max(widget.height(), 0) + 1)};
}

/// The button of a menu bar that is too narrow waits for a choice that nobody makes.
static bool waitsForChoice(const QWidget& widget) {
    const auto* button = qobject_cast<const QToolButton*>(&widget);
    return button && button->popupMode() == QToolButton::InstantPopup;
}

void RandomHands::click(QWidget& widget) {
    if (waitsForChoice(widget))
        return;
    const QPoint place = placeIn(widget);
    const Qt::MouseButton button = dice.of(mouseButtons);
    const Qt::KeyboardModifiers held = dice.oneIn(10) ? Qt::ShiftModifier : Qt::NoModifier;
    const bool again = dice.oneIn(4);
    QPointer<QWidget> there = &widget;
    QTest::mouseClick(&widget, button, held, place);
    if (again && there)
        QTest::mouseDClick(there, button, held, place);
}

void RandomHands::drag(QWidget& widget) {
    if (waitsForChoice(widget))
        return;
    QPointer<QWidget> there = &widget;
    QTest::mousePress(&widget, Qt::LeftButton, {}, placeIn(widget));
    for (int move = dice.below(4); move > 0 && there; --move)
        QTest::mouseMove(there, placeIn(*there));
    if (there)
        QTest::mouseRelease(there, Qt::LeftButton, {}, placeIn(*there));
}

void RandomHands::key(QWidget& widget) {
    QWidget* keyboard = QApplication::activePopupWidget() || dice.oneIn(8) ? &widget : window.focusWidget();
    QTest::keyClick(keyboard ? keyboard : &window, dice.of(keys), Qt::KeyboardModifiers(dice.of(modifiers)));
}

QString RandomHands::someText() {
    static const std::array texts = {QString("1"),
                                     QString("12.5"),
                                     QString("99999"),
                                     QString("-3"),
                                     QString("a@#b"),
                                     QString("31/12/2024"),
                                     QString(" "),
                                     QString("Yes"),
                                     QString("\u0917\u0941"),
                                     QString("\U0001F3E0"),
                                     QString("two\r\nlines\n"),
                                     QString(""),
                                     QString("1e9"),
                                     QString(300, 'w'),
                                     QString("40000"),
                                     QString("<b>&amp;")};
    return dice.of(texts);
}

void RandomHands::text(QWidget& widget) {
    QPointer<QWidget> there = window.focusWidget() ? window.focusWidget() : &widget;
    for (const QChar unit : someText())
        if (there && unit.unicode() >= ' ' && unit.unicode() < 0x7F)
            QTest::keyClick(there, unit.toLatin1());
}

void RandomHands::wheel(QWidget& widget) {
    const QPoint place = placeIn(widget);
    constexpr int notch = 120;
    QWheelEvent turn(place, widget.mapToGlobal(place), {}, {0, dice.oneIn(2) ? notch : -notch}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &turn);
}

void RandomHands::drop(QWidget& widget) {
    QMimeData data;
    data.setText(someText());
    if (dice.oneIn(2)) {
        QGuiApplication::clipboard()->setText(data.text(),
                                              dice.oneIn(2) ? QClipboard::Clipboard : QClipboard::Selection);
        return;
    }
    if (!widget.acceptDrops())
        return;
    const QPoint place = placeIn(widget);
    QDragEnterEvent enters(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QPointer<QWidget> there = &widget;
    QCoreApplication::sendEvent(&widget, &enters);
    QDropEvent drops(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    if (there && enters.isAccepted())
        QCoreApplication::sendEvent(there, &drops);
}

void RandomHands::compose(QWidget& widget) {
    QWidget* keyboard = window.focusWidget() ? window.focusWidget() : &widget;
    QInputMethodEvent event(dice.oneIn(2) ? someText() : QString(), {});
    if (dice.oneIn(2))
        event.setCommitString(someText());
    QCoreApplication::sendEvent(keyboard, &event);
}

void RandomHands::tip(QWidget& widget) {
    const QPoint place = placeIn(widget);
    QHelpEvent asks(QEvent::ToolTip, place, widget.mapToGlobal(place));
    QCoreApplication::sendEvent(&widget, &asks);
}

void RandomHands::resize() {
    window.resize(200 + dice.below(1200), 150 + dice.below(900));
}

void RandomHands::menuEntry() {
    const MenuEntry& entry = dice.of(mainMenu());
    if (QAction* action = window.entry(entry.name); action && action->isEnabled() && entry.kind != EntryKind::Submenu)
        action->trigger();
}

/// What the desktop does to windows.
void RandomHands::desktopEvent(QWidget& widget) {
    switch (dice.below(5)) {
    case 0: {
        QEvent away(QEvent::WindowDeactivate);
        QCoreApplication::sendEvent(&window, &away);
        break;
    }
    case 1:
        window.activateWindow();
        break;
    case 2:
        window.close();
        break;
    case 3:
        widget.setFocus(dice.oneIn(2) ? Qt::OtherFocusReason : Qt::TabFocusReason);
        break;
    default:
        QCoreApplication::postEvent(&widget, new QEvent(QEvent::FontChange));
    }
}

void RandomHands::settle() {
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

}  // namespace plandesk::test
