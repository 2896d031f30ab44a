#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QTableWidget>
#include <QToolButton>

#include "FirstPage.h"
#include "desktop/ChildWindow.h"
#include "desktop/Desk.h"
#include "desktop/QtText.h"
#include "fees/frmDocCheckList.h"
#include "gui/Registry.h"
#include "gui/Session.h"
#include "landrecords/frmNaOrder.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

/// Sees the first paint of a main window's desk, or keeps all paint from it.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(desktop::MainWindow& window) : window(window) {
        window.centralWidget()->installEventFilter(this);
    }

    bool hidden = false;  ///< the desk is never painted
    bool painted = false;
    bool bare = false;  ///< it had no menu then

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && hidden)
            return true;
        if (event->type() == QEvent::Paint && !painted) {
            painted = true;
            bare = !window.entry("mnuSave");
        }
        return QObject::eventFilter(watched, event);
    }

private:
    desktop::MainWindow& window;
};

class MainWindowTest : public QObject {
    Q_OBJECT

private slots:
    void theMenuIsTheSystemsMenu() {
        Session session;
        for (const MenuEntry& item : mainMenu()) {
            const QAction* action = session.window.entry(item.name);
            QVERIFY2(action, std::string(item.name).c_str());
            QCOMPARE(action->text(), desktop::toQt(item.caption));
            QCOMPARE(action->menu() != nullptr, item.kind == EntryKind::Submenu);
            const QAction* parent = session.window.entry(item.parent);
            const QList<QAction*> siblings = parent ? parent->menu()->actions() : session.window.menuBar()->actions();
            QVERIFY2(siblings.contains(action), std::string(item.name).c_str());
        }
    }

    void entriesAreGreyedAsTheSystemSays() {
        Session session;
        const auto agree = [&] {
            for (const MenuEntry& item : mainMenu())
                QCOMPARE(session.window.entry(item.name)->isEnabled(), session.shell.available(item.name));
        };
        agree();
        QVERIFY(!session.window.entry("mnuSave")->isEnabled());
        QVERIFY(!session.window.entry("mnuDocCheckList")->isEnabled());
        session.press("mnuNew");
        agree();
        QVERIFY(session.window.entry("mnuSave")->isEnabled());
        QVERIFY(session.window.entry("mnuDocCheckList")->isEnabled());
    }

    void theFirstWindowFitsTheScreenWithItsFrame_data() {
        QTest::addColumn<QRect>("available");
        QTest::addColumn<QSize>("size");
        QTest::newRow("1024 x 768") << QRect(0, 0, 1024, 768) << QSize(1014, 724);
        QTest::newRow("1366 x 768 with a bar above") << QRect(0, 28, 1366, 740) << QSize(1180, 696);
        QTest::newRow("1920 x 1080") << QRect(0, 0, 1920, 1080) << QSize(1180, 820);
    }
    void theFirstWindowFitsTheScreenWithItsFrame() {
        QFETCH(QRect, available);
        QFETCH(QSize, size);
        const QMargins frame(5, 38, 5, 6);
        for (const QPoint corner : {QPoint(0, 0), QPoint(900, 500), QPoint(-50, -50)}) {
            const QRect place = desktop::framedWithin(available, frame, {corner, QSize(1180, 820)});
            QCOMPARE(place.size(), size);
            QVERIFY(available.contains(place.marginsAdded(frame)));
        }
        const QRect fitting(available.topLeft() + QPoint(60, 60), QSize(400, 300));
        QCOMPARE(desktop::framedWithin(available, frame, fitting), fitting);
    }

    void theRealWindowStandsInsideTheScreenOnceItHasItsFrame() {
        TestPorts machine;
        Proposal proposal{machine};
        mdiInterface shell{proposal};
        desktop::MainWindow window{proposal, shell};
        window.move(window.screen()->availableGeometry().topLeft() + QPoint(40, 300));
        window.show();
        QTRY_VERIFY(window.screen()->availableGeometry().contains(window.frameGeometry()));
        QTest::qWait(1200);
        QVERIFY(window.screen()->availableGeometry().contains(window.frameGeometry()));
    }

    void aWindowThatWasGivenAnotherSizeKeepsIt() {
        Session session({1500, 1300});
        QTest::qWait(1200);
        QCOMPARE(session.window.size(), QSize(1500, 1300));
    }

    void theWindowIsPaintedBeforeItIsFurnished() {
        TestPorts machine;
        Proposal proposal{machine};
        mdiInterface shell{proposal};
        desktop::MainWindow window{proposal, shell};
        const QString title = window.windowTitle();
        FirstPaint first(window);
        window.show();
        QTRY_VERIFY(window.entry("mnuSave"));
        QVERIFY(first.painted);
        QVERIFY(first.bare);
        QCOMPARE(window.windowTitle(), title);
        QVERIFY(!title.trimmed().isEmpty());
        const auto entries = window.menuBar()->actions().size();
        window.furnish();
        QCOMPARE(window.menuBar()->actions().size(), entries);
    }

    void aWindowThatNobodyPaintsFurnishesItself() {
        TestPorts machine;
        Proposal proposal{machine};
        mdiInterface shell{proposal};
        desktop::MainWindow window{proposal, shell};
        FirstPaint first(window);
        first.hidden = true;
        window.show();
        QCoreApplication::processEvents();
        QVERIFY(!window.entry("mnuSave"));
        QTRY_VERIFY(window.entry("mnuSave"));
    }

    void aWindowThatIsNotFurnishedYetCloses() {
        TestPorts machine;
        machine.dialogs.answers = {"yes"};
        Proposal proposal{machine};
        mdiInterface shell{proposal};
        desktop::MainWindow window{proposal, shell};
        window.show();
        QVERIFY(window.close());
        QVERIFY(proposal.screen.ended());
    }

    void theProgramHasAnIconInEverySize() {
        Session session;
        for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
            QVERIFY(session.window.windowIcon().availableSizes().contains(QSize(side, side)));
            const QImage icon = session.window.windowIcon().pixmap(side, side).toImage();
            QVERIFY(icon.pixelColor(0, 0).alpha() < 128);
            QCOMPARE(icon.pixelColor(side / 2, side / 10).name(), QString("#5b4524"));
        }
    }

    void theMenuIsReachedByItsMnemonics() {
        Session session;
        QTest::keyClick(&session.window, Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_N);
        session.settle();
        QVERIFY(session.form<frmAnnexureA>().visible());
        QVERIFY(session.widget(session.form<frmAnnexureA>().txtTitle).isVisible());
    }

    void shortcutsPressMenuEntries() {
        Session session;
        session.press("mnuNew");
        QTest::keyClick(&session.window, Qt::Key_F1);
        session.settle();
        QVERIFY(session.proposal.forms.loaded("frmHelp")->visible());
        QTest::keyClick(&session.window, Qt::Key_F4, Qt::ControlModifier);
        session.settle();
        QVERIFY(session.form<frmAnnexureA>().front());
    }

    void behindTheNaOrderNothingIsReached() {
        Session session;
        session.press("mnuNew");
        session.press("mnuMandatoryDocument");
        auto& checklist = session.form<frmDocCheckList>();
        QTest::mouseClick(&session.widget(checklist.Image1[2]), Qt::LeftButton);
        session.settle();
        auto& order = session.form<frmNaOrder>();
        QVERIFY(order.visible());
        for (const MenuEntry& entry : mainMenu())
            QVERIFY2(!session.window.entry(entry.name)->isEnabled(), std::string(entry.name).c_str());
        QTest::mouseClick(&session.widget(checklist.rows[0].pageFrom), Qt::LeftButton);
        QTest::mouseClick(&session.widget(checklist.cmdSave), Qt::LeftButton);
        session.settle();
        QVERIFY(order.front());
        QVERIFY(!checklist.rows[0].pageFrom.focused());
        desktop::ChildWindow& behind = *session.window.forms().windowOf(checklist);
        const QPoint place = behind.pos();
        QWidget& bar = *behind.findChild<QLabel*>()->parentWidget();
        QTest::mousePress(&bar, Qt::LeftButton, {}, {20, 5});
        QTest::mouseMove(&bar, {60, 45});
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, {60, 45});
        QTest::mouseClick(behind.findChild<QToolButton*>("closeBox"), Qt::LeftButton);
        session.settle();
        QCOMPARE(behind.pos(), place);
        QVERIFY(checklist.visible());
        QVERIFY(!session.window.close());
        QVERIFY(session.dialogs.messages.empty());
        QTest::keyClicks(&session.widget(order.txtNaOrderNo), "12");
        QCOMPARE(order.txtNaOrderNo.text(), "12"s);
        QTest::mouseClick(&session.widget(order.cmdSave), Qt::LeftButton);
        session.settle();
        QVERIFY(checklist.front());
        QVERIFY(session.window.entry("mnuOpen")->isEnabled());
    }

    void nothingThrowsAProposalAwayAtAKey() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        QTest::keyClicks(&session.widget(form.txtTitle), "kept");
        for (const Qt::Key key : {Qt::Key_N, Qt::Key_O, Qt::Key_W, Qt::Key_Q}) {
            QTest::keyClick(session.window.focusWidget(), key, Qt::ControlModifier);
            session.settle();
        }
        QCOMPARE(session.form<frmAnnexureA>().txtTitle.text(), "kept"s);
        QVERIFY(session.dialogs.messages.empty());
        QVERIFY(session.window.entry("mnuNew")->shortcut().isEmpty());
        QVERIFY(session.window.entry("mnuOpen")->shortcut().isEmpty());
        QCOMPARE(session.window.entry("mnuSave")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
        QCOMPARE(session.window.entry("mnuSaveAs")->shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    }

    void theCaptionIsTheSystemsCaption_data() {
        QTest::addColumn<QString>("caption");
        QTest::newRow("the first") << "Plandesk  Proposal  System";
        QTest::newRow("trailing blanks") << "Draftline Architect Utility - New file  ";
        QTest::newRow("a path") << "/home/architect/plot 12 [*].xml";
        QTest::newRow("Devanagari") << "/घर/प्रस्ताव.xml";
    }
    void theCaptionIsTheSystemsCaption() {
        QFETCH(QString, caption);
        Session session;
        session.proposal.screen.setCaption(desktop::fromQt(caption));
        session.settle();
        QCOMPARE(session.window.windowHandle()->title(), caption);
    }

    void anEmptyCaptionShowsNothing() {
        Session session;
        session.proposal.screen.setCaption("");
        session.settle();
        QCOMPARE(session.window.windowTitle().trimmed(), QString());
        QCOMPARE(session.window.windowHandle()->title().trimmed(), QString());
    }

    void theStatusBarNamesItsMakers() {
        Session session;
        const auto* panel = session.window.statusBar()->findChild<QLabel*>("statusPanel");
        QCOMPARE(panel->text(), QString("Powered by   Meridane Works"));
        QVERIFY(panel->isVisible());
    }

    void thePictureIsPaintedOnceInTheMiddleAfterTheLastResize() {
        Session session;
        int painted = 0;
        session.shell.paintBackground = [&, paint = session.shell.paintBackground] {
            ++painted;
            paint();
        };
        for (const int width : {900, 910, 920, 930}) {
            session.window.resize(width, 700);
            QTest::qWait(20);
        }
        QCOMPARE(painted, 0);
        QTRY_COMPARE(painted, 1);
        QTest::qWait(250);
        QCOMPARE(painted, 1);
        const QWidget* desk = session.window.centralWidget();
        const QImage image = session.window.centralWidget()->grab().toImage();
        QCOMPARE(image.pixelColor(1, 1), QColor(0xC6, 0x9D, 0x66));
        int left = 0;
        int right = 0;
        const int middle = desk->height() / 2;
        while (image.pixelColor(left, middle) == QColor(0xC6, 0x9D, 0x66))
            ++left;
        while (image.pixelColor(image.width() - 1 - right, middle) == QColor(0xC6, 0x9D, 0x66))
            ++right;
        QVERIFY(left > 100);
        QVERIFY(qAbs(left - right) <= 1);
    }

    void theActiveTextBoxIsHighlighted() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        const auto colour = [&](const Control& control) {
            return session.widget(control).palette().color(QPalette::Base);
        };
        QTRY_COMPARE(colour(form.txtTitle), QColor(0xED, 0xEB, 0xD3));
        QCOMPARE(colour(form.txtpltno), QColor(Qt::white));
        session.window.forms().act(Qt::OtherFocusReason, [&] { form.txtpltno.setFocus(); });
        QTRY_COMPARE(colour(form.txtpltno), QColor(0xED, 0xEB, 0xD3));
        QCOMPARE(colour(form.txtTitle), QColor(Qt::white));
    }

    void aTickOfTheTimerPaintsNothingThatDidNotChange() {
        Session session;
        session.press("mnuNew");
        QTest::qWait(250);
        struct PaintCounter : QObject {
            int paints = 0;
            bool eventFilter(QObject* watched, QEvent* event) override {
                // The caret blinks in the active box; nothing else has a reason to be painted.
                paints += event->type() == QEvent::Paint && watched != active ? 1 : 0;
                return false;
            }
            QObject* active = nullptr;
        } counter;
        counter.active = &session.widget(session.form<frmAnnexureA>().txtTitle);
        for (const Control* control : session.form<frmAnnexureA>().controls())
            if (QWidget* widget = session.window.forms().viewOf(control->form())->widgetOf(*control))
                widget->installEventFilter(&counter);
        QTest::qWait(450);
        QCOMPARE(counter.paints, 0);
    }

    void enterMovesOnAndWritesInProperCase() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        QTest::keyClicks(&session.widget(form.txtTitle), "a-12 b, 2nd floor");
        QTest::keyClick(&session.widget(form.txtTitle), Qt::Key_Return);
        QCOMPARE(form.txtTitle.text(), "A-12 B, 2Nd Floor"s);
        QCOMPARE(session.widget<QLineEdit>(form.txtTitle).text(), QString("A-12 B, 2Nd Floor"));
        QVERIFY(form.cboCaseType.focused());
        QCOMPARE(session.window.focusWidget(), &session.widget(form.cboCaseType));
    }

    void theKeysAreToldInTheReviewMenuAndHelpStaysTheSystems() {
        Session session;
        auto* entry = session.window.findChild<QAction*>("keyHelp");
        QVERIFY(entry && session.window.findChild<QMenu*>("reviewMenu")->actions().contains(entry));
        QCOMPARE(session.window.entry("mnuHelp")->menu()->actions().size(), 2);
        entry->trigger();
        entry->trigger();
        QCOMPARE(session.window.findChildren<QWidget*>("keyWindow").size(), 1);
        auto* window = session.window.findChild<QWidget*>("keyWindow");
        QVERIFY(window->isVisible());
        const auto* keys = window->findChild<QTableWidget*>();
        QCOMPARE(keys->findItems("Ctrl+P", Qt::MatchExactly).size(), 1);
        for (int row = 0; row < keys->rowCount(); ++row)
            QVERIFY(!keys->item(row, 1)->text().isEmpty());
        QTest::keyClick(window, Qt::Key_Escape);
        QVERIFY(!window->isVisible());
    }

    void aDeskWithoutAProposalTellsHowToBegin() {
        Session session;
        const auto* desk = dynamic_cast<desktop::Desk*>(session.window.centralWidget());
        QVERIFY(desk->hintShown().contains("File, New"));
        const auto dark = [&] {
            const QImage image = session.window.centralWidget()->grab(desk->hintPlace()).toImage();
            int count = 0;
            for (int x = 0; x < image.width(); ++x)
                for (int y = 0; y < image.height(); ++y)
                    count += image.pixelColor(x, y).lightness() < 40 ? 1 : 0;
            return count;
        };
        session.shell.run("Timer2_Timer");
        session.settle();
        QVERIFY(dark() > 100);
        session.press("mnuNew");
        QCOMPARE(desk->hintShown(), QString());
        QTest::keyClick(session.window.focusWidget(), Qt::Key_Escape);
        session.settle();
        QVERIFY(desk->hintShown().contains("Application Form, Particulars of Development"));
    }

    void anEmptyTitleHoldsTheFocusOnTheFirstPage() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        QTest::mouseClick(&session.widget(form.txtpltno), Qt::LeftButton);
        QCOMPARE(session.dialogs.messages.size(), 1U);
        QCOMPARE(session.dialogs.messages[0].text, "Proposal Title Can not be blank !"s);
        QCOMPARE(session.dialogs.messages[0].detail, "Particulars of Development, page 1: Proposal Title"s);
        const Control* about = session.dialogs.messages[0].about;
        QCOMPARE(about, static_cast<const Control*>(&form.txtTitle));
        const QWidget& title = session.widget(form.txtTitle);
        QCOMPARE(session.window.forms().placeOnScreen(*about), QRect(title.mapToGlobal(QPoint(0, 0)), title.size()));
        session.settle();
        QCOMPARE(session.window.focusWidget(), &session.widget(form.txtTitle));
    }

    void aMenuIsOpenedWithoutALeaveCheck() {
        Session session;
        session.press("mnuNew");
        QTest::keyClick(&session.window, Qt::Key_H, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        session.settle();
        // The first Esc may leave the menu's bar with the keys.
        if (session.window.menuBar()->hasFocus())
            QTest::keyClick(session.window.menuBar(), Qt::Key_Escape);
        QVERIFY(session.dialogs.messages.empty());
        auto& form = session.form<frmAnnexureA>();
        QVERIFY(form.txtTitle.focused());
        QTRY_COMPARE(session.window.focusWidget(), &session.widget(form.txtTitle));
    }

    void thePageButtonsTurnThePagesAndShowWhichOneItIs() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        fillFirstPage(form);
        session.settle();
        QTest::mouseClick(&session.widget(*form.findKey("cmdFormNo(2)")), Qt::LeftButton);
        session.settle();
        QCOMPARE(form.PropTab.tab(), 2);
        QVERIFY(session.widget(form.Opt9.yes).isVisible());
        QVERIFY(session.widget(*form.findKey("cmdFormNo(2)")).font().bold());
        QVERIFY(!session.widget(*form.findKey("cmdFormNo(0)")).font().bold());
        QTest::mouseClick(&session.widget(*form.findKey("cmdFormNo(8)")), Qt::LeftButton);
        session.settle();
        auto& next = session.form<AnnexureACont>();
        QVERIFY(next.front());
        QVERIFY(session.widget(next.txtHowManyTrees).isVisible());
        QVERIFY(session.window.forms().viewOf(next)->isAncestorOf(session.window.focusWidget()));
    }

    void closedBoxesAreGreyAndOpenOnesWhite() {
        Session session;
        session.press("mnuNew");
        auto& form = session.form<frmAnnexureA>();
        form.PropTab.setTab(2);
        session.settle();
        const auto pixel = [&](const Control& control) {
            const QImage image = session.widget(control).grab().toImage();
            return image.pixelColor(image.width() / 2, image.height() / 2);
        };
        session.window.forms().act(Qt::OtherFocusReason, [&] { form.Opt9.no.choose(); });
        QCOMPARE(pixel(form.txtWorkmen), QColor(0xE0, 0xE0, 0xE0));
        QVERIFY(!session.widget(form.txtWorkmen).isEnabled());
        session.window.forms().act(Qt::OtherFocusReason, [&] { form.Opt9.yes.choose(); });
        QCOMPARE(pixel(form.txtWorkmen), QColor(Qt::white));
        QVERIFY(session.widget(form.txtWorkmen).isEnabled());
    }

    void theCloseBoxAsksAndNoStays() {
        Session session;
        session.dialogs.answers = {"no"};
        session.window.close();
        QVERIFY(session.window.isVisible());
        QCOMPARE(session.dialogs.messages.size(), 1U);
        QCOMPARE(session.dialogs.messages[0].text, " Do you want to Exit  ! "s);
        QCOMPARE(session.program.ends, 0);
    }

    void theCloseBoxAsksAndYesEndsTheProgram() {
        Session session;
        session.dialogs.answers = {"yes"};
        session.window.close();
        QVERIFY(!session.window.isVisible());
        QCOMPARE(session.program.ends, 1);
        session.press("mnuNew");
        QCOMPARE(session.dialogs.messages.size(), 1U);
    }

    void newProposalsComeAndGoWithoutATrace() {
        Session session;
        for (int round = 0; round < 3; ++round) {
            session.press("mnuNew");
            auto& form = session.form<frmAnnexureA>();
            QTest::keyClicks(&session.widget(form.txtTitle), "x");
            QCOMPARE(form.txtTitle.text(), "x"s);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        int windows = 0;
        for (const QObject* child : session.window.centralWidget()->children())
            windows += child->isWidgetType() ? 1 : 0;
        QCOMPARE(windows, 1);
    }
};

static const Registered<MainWindowTest> registered;

#include "MainWindowTest.moc"
