#include <QCheckBox>
#include <QLineEdit>
#include <QPointer>
#include <QToolButton>

#include "desktop/ChildWindow.h"
#include "gui/Registry.h"
#include "gui/SampleForm.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

namespace {

void click(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
}

/// Lets the title refuse to be left empty, as the first page's boxes do.
void guardTitle(Stage& stage) {
    TextBox& title = stage.form().title;
    title.leaveCheck = [&] {
        if (!title.text().empty())
            return true;
        title.form().screen().message("Title Can not be blank !", "");
        return false;
    };
}

}  // namespace

class FocusTest : public QObject {
    Q_OBJECT

private slots:
    void aFormThatIsShownBeginsWithItsFirstAnswer() {
        Stage stage;
        QVERIFY(stage.form().title.focused());
        QVERIFY(stage.hasKeyboard(stage.form().title));
    }

    void aFormThatComesBackGoesOnWhereItWasLeft() {
        Stage stage;
        click(stage.widget(stage.form().number));
        stage.otherForm().show();
        stage.settle();
        QVERIFY(stage.hasKeyboard(stage.otherForm().box));
        stage.form().show();
        stage.settle();
        QVERIFY(stage.form().number.focused());
        QVERIFY(stage.hasKeyboard(stage.form().number));
    }

    void aClickMovesTheFocus() {
        Stage stage;
        click(stage.widget(stage.form().number));
        QVERIFY(stage.form().number.focused());
        QVERIFY(stage.hasKeyboard(stage.form().number));
    }

    void aListThatWasClickedShowsThatItHasTheFocus() {
        Stage stage;
        QWidget& list = stage.widget(stage.form().list);
        const QColor mark = list.palette().color(QPalette::Highlight);
        const auto marked = [&] {
            const QImage image = list.grab().toImage();
            return image.pixelColor(image.width() / 4, 1) == mark && image.pixelColor(1, image.height() / 2) == mark;
        };
        QVERIFY(!marked());
        QTest::mouseClick(&stage.widget(stage.form().number), Qt::LeftButton);  // no keyboard is in use
        stage.form().list.setFocus();
        stage.settle();
        QVERIFY(marked());
    }

    void codeMovesTheFocus() {
        Stage stage;
        stage.form().other.setFocus();
        stage.settle();
        QVERIFY(stage.hasKeyboard(stage.form().other));
    }

    void aHeldFocusStaysAndItsMessageIsShownOnce_data() {
        QTest::addColumn<int>("way");
        QTest::newRow("click into a box") << 0;
        QTest::newRow("click on an option") << 1;
        QTest::newRow("click on a list") << 2;
        QTest::newRow("click on a button") << 3;
        QTest::newRow("click on a tab") << 4;
        QTest::newRow("Tab") << 5;
        QTest::newRow("Shift+Tab") << 6;
        QTest::newRow("Enter") << 7;
        QTest::newRow("mnemonic") << 8;
    }
    void aHeldFocusStaysAndItsMessageIsShownOnce() {
        QFETCH(int, way);
        Stage stage;
        SampleForm& form = stage.form();
        guardTitle(stage);
        QWidget& title = stage.widget(form.title);
        switch (way) {
        case 0:
            click(stage.widget(form.number));
            break;
        case 1:
            click(stage.widget(form.choice.yes));
            break;
        case 2:
            click(stage.widget(form.list));
            break;
        case 3:
            click(stage.widget(form.button));
            break;
        case 4:
            QTest::mouseClick(&stage.widget(form.tabs), Qt::LeftButton, {}, {60, 10});
            break;
        case 5:
            QTest::keyClick(&title, Qt::Key_Tab);
            break;
        case 6:
            QTest::keyClick(&title, Qt::Key_Backtab, Qt::ShiftModifier);
            break;
        case 7:
            QTest::keyClick(&title, Qt::Key_Return);
            break;
        default:
            QTest::keyClick(&stage.desk, Qt::Key_S, Qt::AltModifier);
            break;
        }
        QTRY_COMPARE(stage.machine.dialogs.messages.size(), 1U);
        stage.settle();
        QCOMPARE(stage.machine.dialogs.messages.size(), 1U);
        QVERIFY(form.title.focused());
        QVERIFY(stage.hasKeyboard(form.title));
        QVERIFY(!form.choice.yes.value());
        QVERIFY(!QApplication::activePopupWidget());
        QCOMPARE(form.buttonClicks, 0);
        QCOMPARE(form.tabs.tab(), 0);
        QTest::keyClicks(&title, "x");
        click(stage.widget(form.number));
        QVERIFY(stage.hasKeyboard(form.number));
    }

    void anIconIsClickedWithoutLeavingTheBox() {
        Stage stage;
        guardTitle(stage);
        click(stage.widget(stage.form().image));
        QCOMPARE(stage.form().imageClicks, 1);
        QVERIFY(stage.hasKeyboard(stage.form().title));
        QVERIFY(stage.machine.dialogs.messages.empty());
    }

    void theCloseBoxAsksNoLeaveCheck() {
        Stage stage;
        guardTitle(stage);
        auto* closeBox = stage.view.windowOf(stage.form())->findChild<QToolButton*>("closeBox");
        click(*closeBox);
        QVERIFY(!stage.form().visible());
        QVERIFY(stage.machine.dialogs.messages.empty());
        QVERIFY(!stage.view.windowOf(stage.form())->isVisible());
    }

    void tabAndEnterWalkForwardsAndShiftTabBackwards() {
        Stage stage;
        SampleForm& form = stage.form();
        QTest::keyClick(&stage.widget(form.title), Qt::Key_Tab);
        QVERIFY(stage.hasKeyboard(form.number));
        QTest::keyClick(&stage.widget(form.number), Qt::Key_Enter);
        QVERIFY(stage.hasKeyboard(form.choice.yes));
        QTest::keyClick(&stage.widget(form.choice.yes), Qt::Key_Tab, Qt::ShiftModifier);
        QVERIFY(stage.hasKeyboard(form.number));
        QTest::keyClick(&stage.widget(form.number), Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(stage.hasKeyboard(form.title));
        QTest::keyClick(&stage.widget(form.title), Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(stage.hasKeyboard(form.link));
        QTest::keyClick(&stage.widget(form.link), Qt::Key_Tab);
        QVERIFY(stage.hasKeyboard(form.title));
    }

    void everyKindOfControlLetsTabPass() {
        Stage stage;
        const std::vector<Control*> order = stage.form().tabOrder();
        std::vector<Control*> walked;
        for (Control* control : order)
            if (control->takesFocus() && control != &stage.form().choice.no)  // a group of options is one stop
                walked.push_back(control);
        for (std::size_t place = 0; place < walked.size(); ++place) {
            QVERIFY2(stage.hasKeyboard(*walked[place]), walked[place]->key().c_str());
            QTest::keyClick(&stage.widget(*walked[place]), Qt::Key_Tab);
        }
        QVERIFY(stage.hasKeyboard(*walked.front()));
    }

    void aControlThatIsClosedWhileItHasTheFocusLosesTheKeysButTabGoesOnFromIt() {
        Stage stage;
        SampleForm& form = stage.form();
        form.button.click = [&] { form.button.setEnabled(false); };
        click(stage.widget(form.button));
        QVERIFY(!stage.hasKeyboard(form.title));
        QTest::keyClick(stage.desk.focusWidget(), Qt::Key_Tab);
        QVERIFY(stage.hasKeyboard(form.link));
    }

    void aPageThatIsTurnedAwayTakesTheKeyboardWithIt() {
        struct TurningForm : SampleForm {
            using SampleForm::SampleForm;
            void functionKey(std::string_view /*key*/) override { tabs.setTab(1 - tabs.tab()); }
        };
        Stage stage;
        TurningForm form(stage.proposal);
        int left = 0;
        form.title.lostFocus = [&left] { ++left; };
        form.show();
        stage.settle();
        QVERIFY(stage.hasKeyboard(form.title));
        QTest::keyClick(&stage.widget(form.title), Qt::Key_F3);
        stage.settle();
        QCOMPARE(left, 1);
        QVERIFY(stage.hasKeyboard(form.second));
        QTest::keyClick(&stage.widget(form.second), Qt::Key_F3);
        stage.settle();
        QVERIFY(stage.hasKeyboard(form.title));
    }

    void functionKeysReachTheForm() {
        struct KeyForm : SampleForm {
            using SampleForm::SampleForm;
            void functionKey(std::string_view key) override { keys += std::string(key) + " "; }
            std::string keys;
        };
        Stage stage;
        KeyForm form(stage.proposal);
        form.show();
        stage.settle();
        QWidget& box = stage.widget(form.title);
        QTest::keyClick(&box, Qt::Key_F2);
        QTest::keyClick(&box, Qt::Key_F3);
        QTest::keyClick(&box, Qt::Key_Escape);
        QCOMPARE(form.keys, "F2 F3 Esc "s);
        stage.view.act(Qt::OtherFocusReason, [&] { form.hide(); });
    }

    void whileABoxIsOpenNothingElseReachesTheSystem() {
        Stage stage;
        SampleForm& form = stage.form();
        int depth = 0;
        form.button.click = [&] {
            ++depth;
            // As a click would that was under way when the box opened.
            emit stage.widget<QAbstractButton>(form.check).clicked();
            QTest::keyClicks(&stage.widget(form.title), "lost");
            stage.settle();
        };
        click(stage.widget(form.button));
        QCOMPARE(depth, 1);
        QCOMPARE(form.check.value(), 0);
        QCOMPARE(form.title.text(), ""s);
        QCOMPARE(stage.widget<QLineEdit>(form.title).text(), QString());
    }

    void whatChangedBeforeABoxIsShownWhileItIsOpen() {
        Stage stage;
        SampleForm& form = stage.form();
        QString shown;
        form.button.click = [&] {
            form.title.setText("done");
            stage.settle();  // the box's own loop
            shown = stage.widget<QLineEdit>(form.title).text();
        };
        click(stage.widget(form.button));
        QCOMPARE(shown, QString("done"));
    }

    void anUnhandledErrorIsOneBoxAndTheProgramGoesOn() {
        Stage stage;
        SampleForm& form = stage.form();
        form.button.click = [] { throw RuntimeError(ErrorNumber::Overflow); };
        click(stage.widget(form.button));
        QCOMPARE(stage.machine.dialogs.messages.size(), 1U);
        QCOMPARE(stage.machine.dialogs.messages[0].text, "Overflow"s);
        click(stage.widget(form.check));
        QCOMPARE(form.check.value(), 1);
    }

    void aFormMayUnloadItselfFromItsOwnButton() {
        Stage stage;
        SampleForm& form = stage.form();
        form.button.click = [&] { stage.proposal.forms.unload("SampleForm"); };
        const QPointer<QWidget> window = stage.view.windowOf(form);
        click(stage.widget(form.button));
        QVERIFY(!stage.proposal.forms.loaded("SampleForm"));
        QVERIFY(!window->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!window);
        stage.form().show();
        stage.settle();
        QVERIFY(stage.hasKeyboard(stage.form().title));
    }

    void theFrontFormStandsAboveTheOthers() {
        Stage stage;
        stage.otherForm().show();
        stage.settle();
        const QWidget* sample = stage.view.windowOf(stage.form());
        const QWidget* other = stage.view.windowOf(stage.otherForm());
        const QObjectList& order = stage.desk.children();
        QVERIFY(order.indexOf(other) > order.indexOf(sample));
        QTest::mouseClick(stage.view.viewOf(stage.form()), Qt::LeftButton, {}, {2, 2});
        QVERIFY(stage.form().front());
        QVERIFY(order.indexOf(sample) > order.indexOf(other));
        QCOMPARE(sample->pos(), QPoint(0, 0));
    }
};

static const Registered<FocusTest> registered;

#include "FocusTest.moc"
