#include "desktop/MainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <algorithm>
#include <array>

#include "controls/User.h"
#include "desktop/Application.h"
#include "desktop/ChildWindow.h"
#include "desktop/LongText.h"
#include "desktop/Pictures.h"
#include "desktop/PreviewWindow.h"
#include "desktop/QtText.h"
#include "shell/mdiInterface.h"

namespace plandesk::desktop {

namespace {

constexpr QSize firstSize{1180, 820};
constexpr QMargins usualFrame{6, 38, 6, 6};  // before the window is there to be asked
constexpr int tick = 100;                    // milliseconds, both timers

/// Keys of menu entries. New and Open have none, since they throw away what is open without a question.
struct Shortcut {
    std::string_view entry;
    QKeySequence keys;
};

std::array<Shortcut, 3> shortcuts() {
    return {{
        {"mnuSave", QKeySequence::Save},
        {"mnuSaveAs", Qt::CTRL | Qt::SHIFT | Qt::Key_S},
        {"mnuContent", QKeySequence::HelpContents},
    }};
}

/// A caption as the toolkit takes it for a title, so that the user reads just the caption.
QString asTitle(std::string_view caption) {
    // An empty title would be replaced by the program's name.
    if (caption.empty())
        return QStringLiteral(" ");
    return beginning(caption).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

}  // namespace

QRect framedWithin(const QRect& available, const QMargins& frame, const QRect& wanted) {
    const QRect room = available.marginsRemoved(frame);
    QRect place(wanted.topLeft(), wanted.size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.left() + room.width() - place.width()));
    place.moveTop(std::clamp(place.top(), room.top(), room.top() + room.height() - place.height()));
    return place;
}

MainWindow::MainWindow(Proposal& proposal, mdiInterface& shell)
    : proposal(proposal),
      shell(shell),
      desk(new Desk(*this)),
      screenView(proposal.screen, *desk),
      previewWindows({proposal, shell.reports(), screenView, *desk,
                      [this](const Paper& paper, const PaperPages& pages, QWidget* window) {
                          printPreview(paper, pages, window);
                      }}) {
    setObjectName(QStringLiteral("mdiInterface"));
    setCentralWidget(desk);
    desk->resized = [this] {
        screenView.guarded([this] {
            screenView.fitWindows();
            previewWindows.fit();
            this->shell.resized();
            timer2.start(tick);
        });
    };
    // By a timer: it comes after the events that wait, so that the window answers to what the user did meanwhile.
    desk->painted = [this] { QTimer::singleShot(0, this, [this] { furnish(); }); };
    shell.paintBackground = [this] { desk->paintBackground(); };
    shell.minimised = [this] { return isMinimized(); };
    if (auto* application = dynamic_cast<Application*>(qApp))
        application->failed = [this] { screenView.failed(); };
    showFrame();
    ownSize = framedWithin(screen()->availableGeometry(), usualFrame, {{0, 0}, firstSize}).size();
    resize(ownSize);
}

void MainWindow::furnish() {
    desk->painted = [] {};
    if (review)
        return;
    makeMenu();
    makeStatusBar();
    review = std::make_unique<ReviewDesk>(ReviewDesk::Room{*this, proposal, shell, screenView}, entry("mnuHelp"));
    makeTimers();
    screenView.mainWindowTouched = [this] { showState(); };
    screenView.formsShown = [this] {
        previewWindows.sync();
        tellHowToBegin();
    };
    makeShortcuts();
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* /*before*/, const QWidget* now) {
        if (now && desk->isAncestorOf(now))
            focusWentTo(*now);
    });
    showState();
    screenView.refresh();
    QApplication::setWindowIcon(programIcon());
}

MainWindow::~MainWindow() {
    disconnect(qApp, nullptr, this, nullptr);  // the windows that end move the focus
    if (auto* application = dynamic_cast<Application*>(qApp))
        application->failed = Application::writeFailure;
    shell.paintBackground = [] {};
    shell.minimised = [] { return false; };
}

QAction* MainWindow::entry(std::string_view name) const {
    const auto found = entries.find(name);
    return found == entries.end() ? nullptr : found->second;
}

void MainWindow::makeMenu() {
    std::map<std::string_view, QMenu*> submenus;
    for (const MenuEntry& item : mainMenu()) {
        const auto parent = submenus.find(item.parent);
        const QString caption = toQt(item.caption);
        QAction* action = nullptr;
        if (item.kind == EntryKind::Submenu) {
            QMenu* menu = parent == submenus.end() ? menuBar()->addMenu(caption) : parent->second->addMenu(caption);
            submenus[item.name] = menu;
            action = menu->menuAction();
        } else {
            action = parent == submenus.end() ? menuBar()->addAction(caption) : parent->second->addAction(caption);
            connect(action, &QAction::triggered, this,
                    [this, name = item.name] { screenView.act(Qt::OtherFocusReason, [&] { shell.press(name); }); });
        }
        action->setObjectName(toQt(item.name));
        entries[std::string(item.name)] = action;
    }
    for (const Shortcut& shortcut : shortcuts())
        if (QAction* action = entry(shortcut.entry))
            action->setShortcut(shortcut.keys);
}

void MainWindow::makeStatusBar() {
    auto* panel = new QLabel(QStringLiteral("Powered by   Meridane Works"));
    panel->setObjectName(QStringLiteral("statusPanel"));
    statusBar()->addWidget(panel);
    openForms = new WindowRow(proposal.screen, screenView, previewWindows);
    statusBar()->addWidget(openForms, 1);
}

void MainWindow::makeShortcuts() {
    const auto on = [this](const QKeySequence& keys, const std::function<void()>& what) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, what);
    };
    const auto onFront = [this](const std::function<void(ChildFrame&)>& what) {
        const Form* front = proposal.screen.frontForm();
        if (ChildFrame* guest = screenView.guest())
            what(*guest);
        else if (ChildWindow* window = front ? screenView.windowOf(*front) : nullptr)
            what(*window);
    };
    on(Qt::CTRL | Qt::Key_F4, [onFront] { onFront([](ChildFrame& window) { window.closeWindow(); }); });
    on(Qt::CTRL | Qt::Key_PageDown, [onFront] { onFront([](ChildFrame& window) { window.turnPage(true); }); });
    on(Qt::CTRL | Qt::Key_PageUp, [onFront] { onFront([](ChildFrame& window) { window.turnPage(false); }); });
    on(Qt::CTRL | Qt::Key_Tab, [this] { openForms->step(false); });
    on(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, [this] { openForms->step(true); });
    // Prints the report in front; without one, a choice of all that can be printed.
    on(QKeySequence::Print, [this] {
        if (auto* preview = dynamic_cast<PreviewWindow*>(screenView.guest()))
            preview->print();
        else if (!proposal.screen.modalForm())
            screenView.act(Qt::ShortcutFocusReason,
                           [this] { proposal.screen.event([this] { proposal.commands.open("frmPrint"); }); });
    });
    // The keys that windows within a window have always had.
    on(Qt::CTRL | Qt::Key_F8, [onFront] { onFront([](ChildFrame& window) { window.beginSizing(); }); });
    on(Qt::CTRL | Qt::Key_F10, [onFront] { onFront([](ChildFrame& window) { window.toggleMaximised(); }); });
}

void MainWindow::makeTimers() {
    connect(&timer1, &QTimer::timeout, this, [this] {
        screenView.guarded([this] { shell.Timer1_Timer(); });
        screenView.refresh();
        closeIfAsked();
    });
    timer1.start(tick);
    connect(&timer2, &QTimer::timeout, this, [this] {
        screenView.guarded([this] { shell.Timer2_Timer(); });
        if (!shell.timer2Enabled())
            timer2.stop();
    });
}

void MainWindow::showFrame() {
    if (const QString title = asTitle(proposal.screen.caption()); windowTitle() != title)
        setWindowTitle(title);
    desk->setBackColor(toQt(shell.backColor()));
}

void MainWindow::showState() {
    showFrame();
    for (const auto& [name, action] : entries)
        action->setEnabled(shell.available(name));
    tellHowToBegin();
    openForms->sync();
    review->showState();
}

void MainWindow::tellHowToBegin() {
    QString hint;
    if (!shell.available("mnuSave"))
        hint = tr("File, New begins a proposal; File, Open goes on with a saved one.");
    else if (proposal.screen.visibleForms().empty())
        hint =
            tr("Nothing that was typed is lost: Application Form, Particulars of Development shows the pages again.");
    desk->setHint(hint);
}

void MainWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    // The desktop puts its frame around the window a little later, and tells nobody.
    if (event->spontaneous())
        return;
    QTimer::singleShot(tick, this, [this] { furnish(); });
    for (const int pause : {2 * tick, 10 * tick})
        QTimer::singleShot(pause, this, [this] { fitScreen(); });
}

void MainWindow::fitScreen() {
    const QRect available = screen()->availableGeometry();
    const QRect outside = frameGeometry();
    const QRect inside = geometry();
    if (size() != ownSize || available.contains(outside))
        return;
    const QMargins frame(inside.left() - outside.left(), inside.top() - outside.top(), outside.right() - inside.right(),
                         outside.bottom() - inside.bottom());
    const QRect place = framedWithin(available, frame, inside);
    ownSize = place.size();
    setGeometry(place);
}

void MainWindow::closeWhenIdle() {
    closeAsked = true;
    closeIfAsked();
}

void MainWindow::closeIfAsked() {
    // While a box or file dialog is open the window would refuse; the next tick asks again.
    if (closeAsked && !screenView.busy()) {
        closeAsked = false;
        close();
    }
}

void MainWindow::focusWentTo(const QWidget& widget) {
    PreviewWindow* owner = nullptr;
    for (PreviewWindow* preview : previewWindows.windows())
        if (preview == &widget || preview->isAncestorOf(&widget))
            owner = preview;
    if (owner && !owner->inReach())
        screenView.focusStrayed();
    else if (owner != screenView.guest())
        screenView.setGuest(owner);
}

void MainWindow::printPreview(const Paper& paper, const PaperPages& pages, QWidget* window) {
    if (printWithDialog)
        printWithDialog(paper, pages, window);
    else
        proposal.screen.ports.printer.print(paper);
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowUnblocked)
        screenView.dialogClosed();
    return QMainWindow::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!proposal.screen.ended())
        screenView.act(Qt::OtherFocusReason, [this] { shell.pressClose(); });
    event->setAccepted(proposal.screen.ended());
}

}  // namespace plandesk::desktop
