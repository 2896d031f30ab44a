#include <QDateEdit>
#include <QLineEdit>
#include <QMessageBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

#include "FirstPage.h"
#include "desktop/ListBox.h"
#include "fees/frmDocCheckList.h"
#include "fees/frmPayDetail.h"
#include "gui/LandRecords.h"
#include "gui/Registry.h"
#include "gui/SampleForm.h"
#include "gui/Session.h"
#include "landrecords/frmPlotExtractRelation.h"
#include "particulars/AnnexureACont.h"
#include "particulars/frmAnnexureA.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

namespace {

/// Turns the wheel over the widget; like a real turn it goes on to the widget around, as long as it is not taken.
void turnWheel(QWidget& over) {
    bool taken = false;
    for (QWidget* widget = &over; widget && !taken; widget = widget->parentWidget()) {
        const QPoint place = widget->rect().center();
        QWheelEvent event(place, widget->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        event.ignore();
        QCoreApplication::sendEvent(widget, &event);
        taken = event.isAccepted();
    }
}

QScrollArea& areaOf(QWidget& widget) {
    QWidget* parent = &widget;
    while (!qobject_cast<QScrollArea*>(parent))
        parent = parent->parentWidget();
    return static_cast<QScrollArea&>(*parent);
}

/// A session that presses keys on whatever has the keyboard.
struct Hands : Session {
    using Session::Session;

    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(window.focusWidget(), key, modifiers);
        settle();
    }
    void type(const QString& text) {
        QTest::keyClicks(window.focusWidget(), text);
        settle();
    }
    bool hasKeyboard(const Control& control) { return window.focusWidget() == &widget(control); }
    void focus(Control& control) {
        window.forms().act(Qt::TabFocusReason, [&] { control.setFocus(); });
        settle();
    }
};

}  // namespace

class KeyboardTest : public QObject {
    Q_OBJECT

private slots:
    void theFirstBoxOfAFormShownIsSelectedSoThatTypingReplacesIt() {
        Hands session;
        session.press("mnuNew");
        auto& first = session.form<frmAnnexureA>();
        first.txtTitle.setText("0");
        first.hide();
        session.settle();
        session.press("mnuAnnexure");
        QVERIFY(session.hasKeyboard(first.txtTitle));
        session.type("2");
        QCOMPARE(first.txtTitle.text(), "2"s);
    }

    void theFirstBoxOfAPageThatWasTurnedIsSelected() {
        Hands session;
        session.press("mnuNew");
        auto& first = session.form<frmAnnexureA>();
        fillFirstPage(first);
        first.txtPlinthArea.setText("500");
        auto& next = session.form<AnnexureACont>();
        next.txtWidthOfFrontOpenSpace.setText("0");
        session.settle();
        session.focus(first.txtTitle);
        for (int page = 1; page < 5; ++page)
            session.key(Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(session.hasKeyboard(next.txtWidthOfFrontOpenSpace));
        session.type("4");
        QCOMPARE(next.txtWidthOfFrontOpenSpace.text(), "4"s);
    }

    void aBoxThatHasTheKeyboardBackFromADialogIsSelected() {
        Hands session;
        session.press("mnuNew");
        auto& first = session.form<frmAnnexureA>();
        session.type("20");
        QCOMPARE(first.txtTitle.text(), "20"s);
        QMessageBox box(&session.window);
        box.open();
        session.settle();
        box.done(0);
        session.settle();
        QCOMPARE(session.widget<QLineEdit>(first.txtTitle).selectedText(), QString("20"));
    }

    void aBoxThatIsClickedOrTypedIntoIsNotSelected() {
        Hands session;
        session.press("mnuNew");
        auto& first = session.form<frmAnnexureA>();
        first.txtTitle.setText("a title");
        first.txtHissaNo.setText("a name");
        session.settle();
        auto& line = session.widget<QLineEdit>(first.txtHissaNo);
        QTest::mouseClick(&line, Qt::LeftButton, {}, {line.width() - 4, line.height() / 2});
        session.settle();
        QVERIFY(!line.hasSelectedText());
        session.type("s");
        QVERIFY(!line.hasSelectedText());
        QCOMPARE(first.txtHissaNo.text(), "a names"s);
    }

    void theWheelScrollsThePageAlsoOverTheAnswerThatHasTheFocus() {
        Hands session;
        session.press("mnuNew");
        auto& first = session.form<frmAnnexureA>();
        first.cboCaseType.setListIndex(0);
        first.txtTitle.setText("x");
        session.settle();
        QScrollBar& bar = *areaOf(session.widget(first.txtTitle)).verticalScrollBar();
        QVERIFY(bar.maximum() > 0);
        const Date day = first.DTPicker1.date();
        for (Control* control : {static_cast<Control*>(&first.cboCaseType), static_cast<Control*>(&first.DTPicker1),
                                 static_cast<Control*>(&first.OptArch), static_cast<Control*>(&first.txtTitle)}) {
            session.focus(*control);
            bar.setValue(0);
            turnWheel(session.widget(*control));
            QVERIFY2(bar.value() > 0, control->key().c_str());
        }
        bar.setValue(0);
        turnWheel(*session.widget<QDateEdit>(first.DTPicker1).findChild<QLineEdit*>());
        QVERIFY(bar.value() > 0);
        QCOMPARE(first.cboCaseType.listIndex(), 0);
        QVERIFY(first.DTPicker1.date() == day);
        QVERIFY(first.OptArch.value());
        session.focus(first.PropTab);
        turnWheel(session.widget(first.PropTab));
        QCOMPARE(first.PropTab.tab(), 0);
    }

    void theStepLinksAreReachedAndPressedByKeyboardAndShowTheFocus() {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
            Hands session;
            session.press("mnuNew");
            auto& form = session.form<AnnexureACont>();
            form.show();
            session.settle();
            const Control& payment = *form.findKey("lblPayment");
            QWidget& link = session.widget(payment);
            const QImage before = link.grab().toImage();
            session.key(Qt::Key_Backtab, Qt::ShiftModifier);
            QVERIFY(session.hasKeyboard(payment));
            QVERIFY(link.grab().toImage() != before);
            session.key(key);
            QVERIFY(session.form<frmPayDetail>().front());
            QVERIFY(session.window.forms()
                        .viewOf(session.form<frmPayDetail>())
                        ->isAncestorOf(session.window.focusWidget()));
        }
    }

    void theIconsAreReachedAndPressedByKeyboard() {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
            Hands session;
            session.press("mnuNew");
            session.press("mnuMandatoryDocument");
            auto& form = session.form<frmDocCheckList>();
            constexpr int most = 60;
            for (int step = 0; step < most && !form.Image1[0].focused(); ++step)
                session.key(Qt::Key_Tab);
            QVERIFY(session.hasKeyboard(form.Image1[0]));
            session.key(key);
            QCOMPARE(session.dialogs.messages.size(), 1U);
            QCOMPARE(session.dialogs.messages[0].text, "Please Enter Relationship Details  for 7/12 Extract !"s);
        }
    }

    void ctrlPageUpAndDownTurnThroughAllNinePagesAndEachStartsInItsFirstAnswer() {
        Hands session;
        session.press("mnuNew");
        auto& first = session.form<frmAnnexureA>();
        auto& next = session.form<AnnexureACont>();
        fillFirstPage(first);
        session.settle();
        const auto page = [&] { return next.front() ? 4 + next.SectFourDet.tab() : first.PropTab.tab(); };
        const auto startsInItsFirstAnswer = [&] {
            Form& front = next.front() ? static_cast<Form&>(next) : first;
            return front.firstAnswer()->focused() && session.hasKeyboard(*front.firstAnswer());
        };
        for (int wanted = 1; wanted < 9; ++wanted) {
            session.key(Qt::Key_PageDown, Qt::ControlModifier);
            QCOMPARE(page(), wanted);
            QVERIFY2(startsInItsFirstAnswer(), qPrintable(QString::number(wanted)));
        }
        session.key(Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(page(), 8);
        for (int wanted = 7; wanted >= 0; --wanted) {
            session.key(Qt::Key_PageUp, Qt::ControlModifier);
            QCOMPARE(page(), wanted);
            QVERIFY2(startsInItsFirstAnswer(), qPrintable(QString::number(wanted)));
        }
        session.key(Qt::Key_PageUp, Qt::ControlModifier);
        QCOMPARE(page(), 0);
        QVERIFY(session.dialogs.messages.empty());
    }

    void aPageThatIsLeftWithAnEmptyTitleIsNotTurned() {
        Hands session;
        session.press("mnuNew");
        session.key(Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(session.dialogs.messages.size(), 1U);
        QCOMPARE(session.form<frmAnnexureA>().PropTab.tab(), 0);
        QVERIFY(session.hasKeyboard(session.form<frmAnnexureA>().txtTitle));
    }

    void thePagesOfTheRelationAreTurnedToo() {
        Hands session;
        session.press("mnuNew");
        session.press("mnuPlotExtRelationShip");
        auto& form = session.form<frmPlotExtractRelation>();
        QVERIFY(session.hasKeyboard(form.txtNoOfPlot712));
        session.key(Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(form.SSTab1.tab(), 1);
        QVERIFY(session.hasKeyboard(form.txtNoOfPlot));
        session.key(Qt::Key_PageUp, Qt::ControlModifier);
        QVERIFY(session.hasKeyboard(form.txtNoOfPlot712));
    }

    void nextAndATabStartThePageInItsFirstAnswer() {
        Hands session;
        session.press("mnuNew");
        auto& first = session.form<frmAnnexureA>();
        fillFirstPage(first);
        session.settle();
        session.focus(first.cmdNext);
        session.key(Qt::Key_Space);
        QCOMPARE(first.PropTab.tab(), 1);
        QVERIFY(session.hasKeyboard(*first.firstAnswer()));
        auto& bar = session.widget<QTabBar>(first.PropTab);
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(3).center());
        session.settle();
        QCOMPARE(first.PropTab.tab(), 3);
        QVERIFY(session.hasKeyboard(*first.firstAnswer()));
    }

    void aGroupOfOptionsIsOneStopWhereALetterChooses() {
        Hands session;
        session.press("mnuNew");
        auto& first = session.form<frmAnnexureA>();
        fillFirstPage(first);
        session.settle();
        session.focus(first.txtPltArea);
        session.key(Qt::Key_Tab);
        QVERIFY(session.hasKeyboard(first.Opt1.yes));
        session.type("n");
        QVERIFY(first.Opt1.no.value());
        QVERIFY(session.hasKeyboard(first.Opt1.no));
        session.key(Qt::Key_Return);
        QVERIFY(session.hasKeyboard(first.txtActualArea));
        session.key(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(session.hasKeyboard(first.Opt1.no));
        session.type("Y");
        QVERIFY(first.Opt1.yes.value());
    }

    void arrowsWipeNoAnswerAndSpaceChooses() {
        Hands session;
        session.press("mnuNew");
        auto& first = session.form<frmAnnexureA>();
        fillFirstPage(first);
        first.PropTab.setTab(2);
        session.settle();
        session.focus(first.Opt9.yes);
        session.type("y");
        first.txtMainProcess.setText("Weaving");
        session.key(Qt::Key_Right);
        QVERIFY(session.hasKeyboard(first.Opt9.no));
        QCOMPARE(first.txtMainProcess.text(), "Weaving"s);
        session.key(Qt::Key_Left);
        QVERIFY(session.hasKeyboard(first.Opt9.yes));
        session.key(Qt::Key_Down);
        session.key(Qt::Key_Space);
        QVERIFY(first.Opt9.no.value());
        QCOMPARE(first.txtMainProcess.text(), ""s);
    }

    void theWholeRowOfTheFocusIsSeenWithItsQuestion() {
        Hands session;
        session.press("mnuNew");
        auto& first = session.form<frmAnnexureA>();
        auto& next = session.form<AnnexureACont>();
        fillFirstPage(first);
        session.settle();
        for (int page = 0; page < 9; ++page) {
            Form& form = next.front() ? static_cast<Form&>(next) : first;
            QVERIFY(form.firstAnswer()->focused());
            const Control* begin = session.proposal.screen.focused();
            const auto stops = form.pageOrder();
            for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
                do {
                    session.key(key, key == Qt::Key_Tab ? Qt::NoModifier : Qt::ShiftModifier);
                    const Control* focused = session.proposal.screen.focused();
                    if (std::ranges::find(stops, focused) == stops.end())
                        break;
                    QVERIFY2(rowIsSeen(session.widget(*focused)), focused->key().c_str());
                } while (session.proposal.screen.focused() != begin);
            }
            session.focus(*form.firstAnswer());
            session.key(Qt::Key_PageDown, Qt::ControlModifier);
        }
    }

    void escClosesEveryChildAsItsCloseBoxDoes_data() {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"frmHelp", "frmAbout", "frmAnnexureA", "AnnexureACont", "frmPayDetail", "frmDocCheckList",
              "frmDocCheckList1", "frmPlotExtractRelation", "frmMain712", "frmPRCEXT", "frmNaOrder"})
            QTest::newRow(name) << QString(name);
    }
    void escClosesEveryChildAsItsCloseBoxDoes() {
        QFETCH(QString, name);
        Hands session;
        session.press("mnuNew");
        session.form<frmAnnexureA>().hide();
        const std::string form = name.toStdString();
        session.proposal.forms.touch(form)->show();
        session.settle();
        session.key(Qt::Key_Escape);
        QVERIFY(!session.proposal.forms.loaded(form) || !session.proposal.forms.loaded(form)->visible());
        QCOMPARE(session.program.ends, 0);
        QVERIFY(session.dialogs.messages.empty());
    }

private:
    /// Whether all labels and controls that stand in one line with the widget are within the part of the page in sight.
    static bool rowIsSeen(QWidget& widget) {
        QScrollArea& area = areaOf(widget);
        const QRect seen = area.viewport()->rect();
        const QRect own(widget.mapTo(area.viewport(), QPoint(0, 0)), widget.size());
        for (QObject* child : widget.parentWidget()->children()) {
            auto* part = qobject_cast<QWidget*>(child);
            if (!part || !part->isVisible())
                continue;
            const QRect place(part->mapTo(area.viewport(), QPoint(0, 0)), part->size());
            if (place.top() <= own.center().y() && place.bottom() >= own.center().y() &&
                (place.top() < seen.top() || place.bottom() > seen.bottom()))
                return false;
        }
        return true;
    }
};

static const Registered<KeyboardTest> registered;

#include "KeyboardTest.moc"
