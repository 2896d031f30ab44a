#include "desktop/ChildWindow.h"

#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabBar>
#include <QToolButton>
#include <QToolTip>

#include "gui/Registry.h"
#include "gui/Session.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"

using namespace plandesk;
using namespace plandesk::test;
using desktop::ChildWindow;

namespace {

struct OpenSession : Session {
    explicit OpenSession(QSize size = {1024, 700}) : Session(size) { press("mnuNew"); }

    Form& particulars() { return form<frmAnnexureA>(); }
    ChildWindow& child(const Form& form) { return *window.forms().windowOf(form); }
    ChildWindow& child() { return child(particulars()); }
    QWidget& desk() { return *window.centralWidget(); }
    QTabBar& row() { return *window.statusBar()->findChild<QTabBar*>("openForms"); }
    Form& open(std::string_view entry, std::string_view name) {
        press(entry);
        return *proposal.forms.loaded(name);
    }
    void click(const char* box) {
        QTest::mouseClick(child().findChild<QToolButton*>(box), Qt::LeftButton);
        settle();
    }
    /// Draws from a point of the child window by that much.
    void draw(QPoint from, QPoint by) {
        ChildWindow& moved = child();
        const QPoint start = moved.mapToGlobal(from);
        const auto send = [&](QEvent::Type type, QPoint place, Qt::MouseButton button) {
            QMouseEvent event(type, moved.mapFromGlobal(place), place, button, Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&moved, &event);
        };
        send(QEvent::MouseButtonPress, start, Qt::LeftButton);
        send(QEvent::MouseMove, start + by / 2, Qt::NoButton);
        send(QEvent::MouseMove, start + by, Qt::NoButton);
        send(QEvent::MouseButtonRelease, start + by, Qt::LeftButton);
        settle();
    }
    /// Steps with Ctrl held down until the end.
    void step(int times, Qt::Key key = Qt::Key_Tab, Qt::KeyboardModifiers with = Qt::ControlModifier) {
        for (int time = 0; time < times; ++time)
            QTest::keyPress(&window, key, with);
        QTest::keyRelease(&window, Qt::Key_Control);
        settle();
    }
};

QString tipOf(QWidget& widget) {
    QToolTip::hideText();
    QHelpEvent event(QEvent::ToolTip, widget.rect().center(), widget.mapToGlobal(widget.rect().center()));
    QCoreApplication::sendEvent(&widget, &event);
    return QToolTip::text();
}

}  // namespace

class ChildWindowTest : public QObject {
    Q_OBJECT

private slots:
    void theEdgesOfAChildAreDrawnWithTheMouse() {
        OpenSession session({1300, 900});
        const QRect before = session.child().geometry();
        session.draw({before.width() - 1, before.height() / 2}, {-150, 40});
        QCOMPARE(session.child().geometry(), before.adjusted(0, 0, -150, 0));
        session.draw({before.width() - 151, before.height() - 1}, {-10, -200});
        QCOMPARE(session.child().geometry(), before.adjusted(0, 0, -160, -200));
        session.draw({0, 200}, {70, 0});
        QCOMPARE(session.child().geometry(), before.adjusted(70, 0, -160, -200));
        QVERIFY(session.child().view().width() < before.width() - 200);
    }

    void aChildIsDrawnNoSmallerThanItCanBeUsedAndNotBeyondTheDesk() {
        OpenSession session({1300, 900});
        const QRect before = session.child().geometry();
        session.draw({before.width() - 1, before.height() - 1}, {-5000, -5000});
        QCOMPARE(session.child().size(), QSize(320, 160));
        session.draw({319, 159}, {5000, 5000});
        QCOMPARE(session.child().geometry(), session.desk().rect());
    }

    void aChildThatWasDrawnKeepsItsSizeAsFarAsTheWindowHasRoom() {
        OpenSession session({1300, 900});
        const QRect before = session.child().geometry();
        session.draw({before.width() - 1, before.height() - 1}, {-300, -300});
        const QSize drawn = session.child().size();
        session.window.resize(1250, 850);
        session.settle();
        QCOMPARE(session.child().size(), drawn);
        session.window.resize(600, 400);
        session.settle();
        QVERIFY(session.desk().rect().contains(QRect(QPoint(0, 0), session.child().size())));
    }

    void aChildIsMaximisedAndRestoredByItsBoxByDoubleClickAndByKeyboard() {
        OpenSession session({1300, 900});
        const QRect before = session.child().geometry();
        auto* box = session.child().findChild<QToolButton*>("maximiseBox");
        const auto isMaximised = [&](bool on) {
            QCOMPARE(session.child().maximised(), on);
            QCOMPARE(session.child().geometry(), on ? session.desk().rect() : before);
            QCOMPARE(box->accessibleName(), QString(on ? "Restore" : "Maximise"));
        };
        session.click("maximiseBox");
        isMaximised(true);
        session.click("maximiseBox");
        isMaximised(false);
        QWidget* bar = box->parentWidget();
        QTest::mouseDClick(bar, Qt::LeftButton, {}, {60, 8});
        isMaximised(true);
        session.window.resize(1200, 800);
        session.settle();
        QCOMPARE(session.child().geometry(), session.desk().rect());
        session.window.resize(1300, 900);
        session.settle();
        QTest::keyClick(&session.window, Qt::Key_F10, Qt::ControlModifier);
        isMaximised(false);
        QTest::keyClick(&session.window, Qt::Key_F10, Qt::ControlModifier);
        isMaximised(true);
    }

    void formsThatAreShownLaterFillTheDeskTooButForThoseInTheMiddle() {
        OpenSession session({1300, 900});
        session.click("maximiseBox");
        Form& list = session.open("mnuMandatoryDocument", "frmDocCheckList");
        QVERIFY(session.child(list).maximised());
        QCOMPARE(session.child(list).geometry(), session.desk().rect());
        Form& about = session.open("mnuAbout", "frmAbout");
        QVERIFY(!session.child(about).maximised());
        QVERIFY(session.child(about).width() < session.desk().width());
        about.hide();
        session.settle();
        QTest::keyClick(&session.window, Qt::Key_F10, Qt::ControlModifier);
        QVERIFY(!session.child(list).maximised());
        QVERIFY(!session.child().maximised());
    }

    void arrowKeysDrawAChildAndEnterGivesTheKeyboardBack() {
        OpenSession session({1300, 900});
        QWidget* box = session.window.focusWidget();
        const QRect before = session.child().geometry();
        QTest::keyClick(&session.window, Qt::Key_F8, Qt::ControlModifier);
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up})
            QTest::keyClick(session.window.focusWidget(), key);
        QCOMPARE(session.child().geometry(), before.adjusted(0, 0, -32, -16));
        QTest::keyClick(session.window.focusWidget(), Qt::Key_Return);
        session.settle();
        QCOMPARE(session.window.focusWidget(), box);
        QTest::keyClick(session.window.focusWidget(), Qt::Key_Left);
        QCOMPARE(session.child().geometry(), before.adjusted(0, 0, -32, -16));
    }

    void wideAnswersGrowWithTheWidthUpToAReadableLine() {
        OpenSession session;
        auto& form = session.form<frmAnnexureA>();
        const auto characters = [&](const Control& control) {
            const QWidget& widget = session.widget(control);
            return widget.width() / widget.fontMetrics().averageCharWidth();
        };
        session.window.resize(760, 700);
        session.settle();
        const int narrow = characters(form.txtTitle);
        const int number = characters(form.txtPltArea);
        session.window.resize(1920, 1000);
        session.click("maximiseBox");
        QVERIFY2(narrow < 70, qPrintable(QString::number(narrow)));
        QVERIFY2(characters(form.txtTitle) >= 80 && characters(form.txtTitle) <= 100,
                 qPrintable(QString::number(characters(form.txtTitle))));
        QVERIFY(characters(form.txtApplicantAddr) >= 80);
        QCOMPARE(characters(form.txtPltArea), number);
    }

    void onAWideWindowThePageStandsInTheMiddleWithItsButtons() {
        OpenSession session({1920, 1000});
        session.click("maximiseBox");
        desktop::FormView& view = session.child().view();
        auto& form = session.form<frmAnnexureA>();
        int left = view.width();
        int right = 0;
        for (const Control* control : form.tabOrder()) {
            const QWidget* widget = view.widgetOf(*control);
            if (!widget || !widget->isVisible())
                continue;
            left = std::min(left, widget->mapTo(&view, QPoint(0, 0)).x());
            right = std::max(right, widget->mapTo(&view, QPoint(widget->width(), 0)).x());
        }
        QVERIFY(left > 300);
        QVERIFY(right < view.width() - 300);
        QCOMPARE(session.widget(*form.findKey("cmdNavPrev")).x(), session.widget(*form.findKey("cmdPrevious")).x());
    }

    void aTextThatDoesNotFitShowsWholeInATip() {
        OpenSession session;
        auto& form = session.form<frmAnnexureA>();
        auto& box = session.widget<QLineEdit>(form.txtTitle);
        form.txtTitle.setText("short");
        session.settle();
        QCOMPARE(tipOf(box), QString());
        const std::string text(400, 'm');
        form.txtTitle.setText("<b>" + text);
        session.settle();
        QVERIFY(tipOf(box).contains(QString::fromStdString("&lt;b&gt;" + text)));
    }

    void aCaptionThatDoesNotFitShowsWholeInATip() {
        OpenSession session;
        const QString caption(300, 'x');
        session.particulars().setCaption(caption.toStdString());
        session.settle();
        QWidget* bar = session.child().findChild<QToolButton*>("closeBox")->parentWidget();
        QCOMPARE(bar->toolTip(), caption);
        QVERIFY(bar->findChild<QLabel*>()->text().size() < caption.size());
        session.particulars().setCaption("Particulars of Development");
        session.settle();
        QCOMPARE(bar->toolTip(), QString());
        QCOMPARE(bar->findChild<QLabel*>()->text(), QString("Particulars of Development"));
    }

    void theStatusBarNamesTheOpenFormsBehindItsText() {
        OpenSession session;
        session.open("mnuContent", "frmHelp");
        session.press("mnuMandatoryDocument");
        QCOMPARE(session.row().count(), 3);
        QCOMPARE(session.row().tabText(0), QString("Particulars of Development 1-4"));
        QCOMPARE(session.row().tabText(1), QString("Help VDMA Architect Utility"));
        QCOMPARE(session.row().currentIndex(), 2);
        const auto* panel = session.window.statusBar()->findChild<QLabel*>("statusPanel");
        QCOMPARE(panel->text(), QString("Powered by   Meridane Works"));
        QVERIFY(panel->x() + panel->width() <= session.row().x());
        session.proposal.forms.loaded("frmHelp")->hide();
        session.settle();
        QCOMPARE(session.row().count(), 2);
        session.press("mnuNew");
        QCOMPARE(session.row().count(), 1);
    }

    void aClickOnANameBringsTheFormToTheFront() {
        OpenSession session;
        session.open("mnuContent", "frmHelp");
        QVERIFY(!session.particulars().front());
        QTest::mouseClick(&session.row(), Qt::LeftButton, {}, session.row().tabRect(0).center());
        session.settle();
        QVERIFY(session.particulars().front());
        QCOMPARE(session.row().currentIndex(), 0);
        QCOMPARE(session.window.focusWidget(), &session.widget(session.form<frmAnnexureA>().txtTitle));
    }

    void controlTabGoesThroughTheFormsInTheOrderOfUse() {
        OpenSession session;
        Form& help = session.open("mnuContent", "frmHelp");
        Form& list = session.open("mnuMandatoryDocument", "frmDocCheckList");
        session.step(1);
        QVERIFY(help.front());
        session.step(1);
        QVERIFY(list.front());
        session.step(2);
        QVERIFY(session.particulars().front());
        session.step(1, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!session.particulars().front());
    }

    void controlTabPassesAFormThatWasClosedMeanwhile() {
        OpenSession session;
        Form& help = session.open("mnuContent", "frmHelp");
        QTest::keyPress(&session.window, Qt::Key_Tab, Qt::ControlModifier);
        QVERIFY(session.particulars().front());
        help.hide();
        session.settle();
        session.step(2);
        QVERIFY(session.particulars().front());
    }
};

static const Registered<ChildWindowTest> registered;

#include "ChildWindowTest.moc"
