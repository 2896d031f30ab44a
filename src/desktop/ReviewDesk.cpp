#include "desktop/ReviewDesk.h"

#include <QAction>
#include <QDesktopServices>
#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QUrl>
#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/Text.h"
#include "desktop/KeyHelp.h"
#include "desktop/LongText.h"
#include "desktop/QtText.h"
#include "desktop/ReviewComparison.h"
#include "desktop/ReviewPanel.h"
#include "desktop/ReviewPaper.h"
#include "desktop/ScreenView.h"
#include "particulars/frmAnnexureA.h"
#include "review/GoTo.h"
#include "review/ReviewCopy.h"
#include "shell/MainMenu.h"

namespace plandesk::desktop {

namespace {

constexpr int pauseLength = 300;  // milliseconds

/// The user guide, where one is installed: beside the program, or among the documents of its package. Empty without.
std::string guideFile(const std::filesystem::path& programFolder) {
    std::error_code unknown;
    for (const char* place : {"guide.html", "../../share/doc/plandesk/guide.html"})
        if (std::filesystem::is_regular_file(programFolder / place, unknown))
            return (programFolder / place).lexically_normal().string();
    return "";
}

}  // namespace

ReviewDesk::ReviewDesk(const Room& room, QAction* before)
    : room(room), counts(new QLabel(&room.window)), lookout(room.shell) {
    counts->setObjectName(QStringLiteral("reviewCounts"));
    constexpr int gap = 12;
    counts->setContentsMargins(gap, 0, gap, 0);
    counts->hide();
    room.window.statusBar()->insertWidget(1, counts);
    makeMenu(before);
    pause.setSingleShot(true);
    pause.setInterval(pauseLength);
    connect(&pause, &QTimer::timeout, this, [this] { this->room.forms.guarded([this] { look(); }); });
    lookout.done = [this](std::unique_ptr<ReviewResult> result) {
        this->room.forms.guarded([&] { looked(std::move(result)); });
    };
    room.forms.acted = [this] { changed(); };
    room.forms.keyboardElsewhere = [this] { return panel && panel->hasKeys(); };
}

ReviewDesk::~ReviewDesk() {
    room.forms.acted = [] {};
    room.forms.keyboardElsewhere = [] { return false; };
    if (panel)
        disconnect(panel, nullptr, this, nullptr);
}

ReviewPanel& ReviewDesk::madePanel() {
    if (panel)
        return *panel;
    panel = new ReviewPanel(room.window);
    panel->hide();
    room.window.addDockWidget(Qt::RightDockWidgetArea, panel);
    room.window.resizeDocks({panel}, {panel->usualWidth()}, Qt::Horizontal);
    panel->go = [this](const ReviewTarget& target) { room.forms.guarded([&] { go(target); }); };
    panel->goToPage = [this](const ReviewPage& page) { room.forms.guarded([&] { goToPage(page); }); };
    panel->find = [this](const QString& words) { return room.forms.guarded([&] { return find(words); }); };
    panel->left = [this] { room.forms.takeKeysBack(); };
    connect(panel, &QDockWidget::visibilityChanged, this, [this] { room.forms.guarded([this] { openedOrClosed(); }); });
    return *panel;
}

QAction* ReviewDesk::add(QMenu& into, const char* name, const QString& text, const QKeySequence& keys,
                         const std::function<void()>& command) {
    QAction* action = into.addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(keys);
    connect(action, &QAction::triggered, this, [this, command] { room.forms.guarded(command); });
    return action;
}

void ReviewDesk::makeMenu(QAction* before) {
    menu = new QMenu(tr("&Review"), &room.window);
    menu->setObjectName(QStringLiteral("reviewMenu"));
    room.window.menuBar()->insertMenu(before, menu);
    add(*menu, "reviewPanelEntry", tr("&Panel"), Qt::Key_F9, [this] { setOpen(!open()); })->setCheckable(true);
    add(*menu, "reviewSwitch", tr("&Keyboard to the panel and back"), Qt::Key_F6, [this] {
        if (!open())
            setOpen(true);
        else if (panel->hasKeys())
            panel->left();
        else
            panel->takeKeys();
    });
    menu->addSeparator();
    add(*menu, "reviewNext", tr("&Next finding"), Qt::Key_F8, [this] { step(false); });
    add(*menu, "reviewPrevious", tr("P&revious finding"), Qt::SHIFT | Qt::Key_F8, [this] { step(true); });
    menu->addSeparator();
    add(*menu, "reviewFind", tr("&Find a question..."), QKeySequence::Find, [this] {
        setOpen(true);
        panel->beginSearch();
    });
    add(*menu, "reviewCompare", tr("&Compare with a file..."), {}, [this] { compare(); });
    add(*menu, "reviewSave", tr("&Save the list..."), {}, [this] { saveList(); });
    menu->addSeparator();
    if (const std::string guide = guideFile(room.proposal.screen.ports.program.folder()); !guide.empty())
        add(*menu, "reviewGuide", tr("&User guide"), {}, [this, guide] { openGuide(guide); });
    // The menu Help is the system's own and stays as it is.
    add(*menu, "keyHelp", tr("S&heet of keys"), {}, [this] { showKeyHelp(room.window); });
}

void ReviewDesk::openGuide(const std::string& file) {
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(toQt(file))))
        return;
    room.forms.act(Qt::OtherFocusReason, [&] {
        room.proposal.screen.event([&] {
            room.proposal.screen.message("This machine has no program that shows the guide. It is the file " + file,
                                         "User guide");
        });
    });
}

QAction* ReviewDesk::entry(const QString& name) const {
    return menu->findChild<QAction*>(name);
}

bool ReviewDesk::open() const {
    return panel && !panel->isHidden();
}

bool ReviewDesk::begun() const {
    return room.proposal.isNewProposal || room.proposal.isProposalOpen;
}

void ReviewDesk::showState() {
    // While a modal form is open all else is out of reach.
    const bool reachable = !room.proposal.screen.modalForm();
    menu->menuAction()->setEnabled(reachable);
    for (QAction* action : menu->actions())
        action->setEnabled(reachable);
}

void ReviewDesk::setOpen(bool on) {
    madePanel().setVisible(on);
    if (on)
        panel->takeKeys();
}

void ReviewDesk::openedOrClosed() {
    entry(QStringLiteral("reviewPanelEntry"))->setChecked(open());
    if (std::exchange(wasOpen, open()) == open())
        return;  // the window as a whole was hidden or shown
    lookout.outdate();
    searched.reset();
    makeRoom(open());
    if (open())
        return look();
    pause.stop();
    counts->hide();
    stepWhenLooked = false;
    room.forms.takeKeysBack();
}

void ReviewDesk::makeRoom(bool forPanel) {
    QMainWindow& window = room.window;
    if (!forPanel) {
        if (const int narrower = std::exchange(wider, 0); narrower > 0 && window.size() == widerSize)
            window.resize(widerSize.width() - narrower, widerSize.height());
        return;
    }
    const QRect available = window.screen()->availableGeometry();
    const QRect frame = window.frameGeometry();
    wider = std::min(panel->usualWidth(), available.width() - frame.width());
    if (window.isMaximized() || window.isFullScreen() || wider <= 0) {
        wider = 0;
        return;
    }
    window.resize(window.width() + wider, window.height());
    if (frame.right() + wider > available.right())
        window.move(std::max(available.left(), available.right() + 1 - frame.width() - wider), window.y());
    widerSize = window.size();
}

void ReviewDesk::changed() {
    searched.reset();
    if (!open())
        return;
    lookout.outdate();
    pause.start();
}

void ReviewDesk::look() {
    if (!open())
        return;
    if (!begun()) {
        panel->showFindings({});
        panel->showPages({});
        panel->say(tr("There is no proposal yet: begin one with New, or open one."));
        counts->hide();
        stepWhenLooked = false;
    } else if (room.forms.busy()) {
        pause.start();
    } else {
        lookout.begin();  // one that is under way is old, and tells so when it has ended
    }
}

void ReviewDesk::looked(std::unique_ptr<ReviewResult> result) {
    if (!open())
        return;
    if (!result) {
        if (!pause.isActive())
            look();
        return;
    }
    counts->setVisible(result->failure.empty());
    if (!result->failure.empty())
        return panel->say(tr("The review failed: %1").arg(beginning(result->failure)));
    counts->setText(countsOf(result->groups));
    panel->showPages(std::move(result->pages));
    panel->showFindings(std::move(result->groups));
    panel->say({});
    if (std::exchange(stepWhenLooked, false))
        step(false);
}

void ReviewDesk::step(bool back) {
    if (!open()) {
        // There is nothing to step through before the first look; the keyboard stays where it is.
        madePanel().show();
        stepWhenLooked = true;
        return;
    }
    panel->endSearch();
    if (const ReviewLine* line = panel->step(back))
        go(ReviewTarget(line->target));
    else
        panel->say(begun() ? tr("There is nothing in the list.") : tr("There is no proposal yet."));
}

void ReviewDesk::go(const ReviewTarget& target) {
    if (const Form* modal = room.proposal.screen.modalForm())
        return panel->say(tr("Close \u201c%1\u201d first.").arg(beginning(trim(modal->caption()))));
    if (target.form.empty() || target.control.empty())
        return panel->say(tr("This is about no one question."));
    if (const std::string answer = whatOpens(room.proposal, target.form, target.control); !answer.empty())
        return panel->say(tr("This page opens when the first page is complete. It still needs \u201c%1\u201d.")
                              .arg(beginning(answer)));
    bool there = false;
    room.forms.act(Qt::ShortcutFocusReason, [&] {
        there = goTo(room.proposal, target.form, target.control, target.row, target.column, target.extract);
    });
    if (!there)
        return panel->say(tr("This place cannot be reached now."));
    panel->say({});
    if (room.forms.guest())
        room.forms.setGuest(nullptr);
    room.forms.takeKeysBack();  // also where the focus was there already, under the panel's keyboard
}

void ReviewDesk::openForm(std::string_view form) {
    for (const MenuEntry& entry : mainMenu())
        if (entry.form == form) {
            room.shell.press(entry.name);
            return;
        }
    room.proposal.screen.event([&] { room.proposal.forms.open(form); });
}

void ReviewDesk::goToPage(const ReviewPage& page) {
    const ReviewTarget* first = nullptr;
    if (panel->showsFindings() && !panel->groups().empty())
        for (const ReviewLine& line : panel->groups().front().lines)
            if (!first && line.page == (page.count.paged ? page.count.page : -1) && line.target.form == page.count.form)
                first = &line.target;
    go(first ? ReviewTarget(*first) : ReviewTarget{page.count.form, page.count.first});
}

void ReviewDesk::compare() {
    setOpen(true);
    room.forms.act(Qt::OtherFocusReason, [this] {
        room.proposal.screen.event([this] {
            const std::string path =
                room.proposal.screen.ports.dialogs.openFile({"Compare with", "xml", "xml File(s) (*.xml)", ""});
            if (path.empty())
                return;
            const QString name = toQt(std::filesystem::path(path).filename().string());
            std::optional<ReviewGroups> groups = compareWithFile(room.shell, path);
            panel->showOther(groups ? tr("Compared with %1").arg(name) : tr("%1 is no proposal.").arg(name),
                             groups ? std::move(*groups) : ReviewGroups());
        });
    });
    panel->takeKeys();
}

void ReviewDesk::saveList() {
    setOpen(true);
    room.forms.act(Qt::OtherFocusReason, [this] {
        room.proposal.screen.event([this] {
            const Ports& ports = room.proposal.screen.ports;
            const auto* form = static_cast<const frmAnnexureA*>(room.proposal.forms.loaded(frmAnnexureA::formName));
            const std::string path = ports.dialogs.saveFile(
                {"Save the list", "pdf", "PDF or text file (*.pdf *.txt)", "", fromQt(panel->title())});
            if (path.empty())
                return;
            const ReviewHeading heading{fromQt(panel->title()), form ? form->txtTitle.text() : "", ports.clock.today()};
            if (lowerCase(std::filesystem::path(path).extension().string()) == ".txt")
                ports.files.writeWhole(path, textOf(heading, panel->groups()));
            else
                ports.printer.writePdf(paperOf(heading, panel->groups()), path);
        });
    });
}

ReviewGroup ReviewDesk::find(const QString& words) {
    if (room.forms.busy() || !begun())
        return {};
    if (!searched) {
        searched = std::make_unique<ReviewCopy>(room.shell);
        openNeededForms(searched->proposal());
    }
    return linesOf(findQuestions(searched->proposal(), fromQt(words)), searched->proposal());
}

}  // namespace plandesk::desktop
