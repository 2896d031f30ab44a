#include <QCalendarWidget>
#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QToolButton>
#include <QWheelEvent>

#include "desktop/ListBox.h"
#include "gui/Registry.h"
#include "gui/SampleForm.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

namespace {

void turnWheel(QWidget& widget) {
    QWheelEvent event(widget.rect().center(), widget.mapToGlobal(widget.rect().center()), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

void click(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(8, widget.height() / 2));
}

}  // namespace

class ChoiceTest : public QObject {
    Q_OBJECT

private slots:
    void aClickedOptionGoesOnAndTheOtherOff() {
        Stage stage;
        YesNo& choice = stage.form().choice;
        click(stage.widget(choice.no));
        QVERIFY(choice.no.value());
        click(stage.widget(choice.yes));
        QVERIFY(choice.yes.value());
        QVERIFY(!choice.no.value());
        QVERIFY(stage.widget<QRadioButton>(choice.yes).isChecked());
        QVERIFY(!stage.widget<QRadioButton>(choice.no).isChecked());
    }

    void aClickOnAnOptionThatIsOnRunsItsReactionAgain() {
        Stage stage;
        YesNo& choice = stage.form().choice;
        click(stage.widget(choice.yes));
        click(stage.widget(choice.yes));
        QCOMPARE(stage.form().yesClicks, 2);
        QVERIFY(stage.widget<QRadioButton>(choice.yes).isChecked());
    }

    void optionsAndChecksAnswerToTheSpaceBar() {
        Stage stage;
        SampleForm& form = stage.form();
        stage.view.act(Qt::OtherFocusReason, [&] { form.choice.no.setFocus(); });
        QTest::keyClick(&stage.widget(form.choice.no), Qt::Key_Space);
        QVERIFY(form.choice.no.value());
        QTest::keyClick(&stage.widget(form.check), Qt::Key_Space);
        QCOMPARE(form.check.value(), 1);
        QTest::keyClick(&stage.widget(form.check), Qt::Key_Space);
        QCOMPARE(form.check.value(), 0);
    }

    void arrowKeysWalkOverOptionsWithoutChoosing() {
        Stage stage;
        YesNo& choice = stage.form().choice;
        stage.view.act(Qt::OtherFocusReason, [&] { choice.yes.setFocus(); });
        QTest::keyClick(&stage.widget(choice.yes), Qt::Key_Right);
        QVERIFY(stage.hasKeyboard(choice.no));
        QTest::keyClick(&stage.widget(choice.no), Qt::Key_Left);
        QVERIFY(stage.hasKeyboard(choice.yes));
        QCOMPARE(choice.code(), 2);
    }

    void optionsAndChecksSetByCodeAreShown() {
        Stage stage;
        stage.form().choice.no.setValue(true);
        stage.form().check.setValue(1);
        stage.settle();
        QVERIFY(stage.widget<QRadioButton>(stage.form().choice.no).isChecked());
        QVERIFY(stage.widget<QCheckBox>(stage.form().check).isChecked());
        stage.form().choice.clear();
        stage.settle();
        QVERIFY(!stage.widget<QRadioButton>(stage.form().choice.no).isChecked());
    }

    void aReactionThatTakesTheChoiceBackIsShown() {
        Stage stage;
        YesNo& choice = stage.form().choice;
        choice.yes.click = [&] { choice.clear(); };
        click(stage.widget(choice.yes));
        QVERIFY(!choice.yes.value());
        QVERIFY(!stage.widget<QRadioButton>(choice.yes).isChecked());
    }

    void anItemIsPickedFromTheList() {
        Stage stage;
        auto& box = stage.widget<desktop::ListBox>(stage.form().list);
        stage.view.act(Qt::OtherFocusReason, [&] { stage.form().list.setFocus(); });
        QTest::keyClick(&box, Qt::Key_Down);
        QTest::keyClick(&box, Qt::Key_Down);
        QCOMPARE(stage.form().list.listIndex(), 1);
        QCOMPARE(stage.form().list.text(), "Resi+Comm "s);
        QCOMPARE(stage.form().picks, 2);
        emit box.activated(1);
        QCOMPARE(stage.form().picks, 3);
    }

    void theListOpensUnderTheMouse() {
        Stage stage;
        auto& box = stage.widget<desktop::ListBox>(stage.form().list);
        click(box);
        QVERIFY(stage.hasKeyboard(stage.form().list));
        QVERIFY(QApplication::activePopupWidget());
        box.hidePopup();
    }

    void theListShowsWhatCodeGivesIt() {
        Stage stage;
        ComboBox& list = stage.form().list;
        auto& box = stage.widget<desktop::ListBox>(list);
        list.setText("Revalidation");
        stage.settle();
        QCOMPARE(box.currentIndex(), -1);
        QCOMPARE(box.shownText(), QString("Revalidation"));
        list.setListIndex(1);
        stage.settle();
        QCOMPARE(box.shownText(), QString("Resi+Comm "));
        list.setListIndex(-1);
        stage.settle();
        QCOMPARE(box.shownText(), QString());
        list.clear();
        list.addItem("Khandri ");
        stage.settle();
        QCOMPARE(box.count(), 1);
        QCOMPARE(box.itemText(0), QString("Khandri "));
    }

    void aDateIsTyped() {
        Stage stage;
        stage.form().date.setDate({2024, 3, 15});
        stage.view.act(Qt::TabFocusReason, [&] { stage.form().date.setFocus(); });
        auto& edit = stage.widget<QDateEdit>(stage.form().date);
        edit.setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(&edit, "21122025");
        QCOMPARE(stage.form().date.date().text(), "21/12/2025"s);
    }

    void aDateIsTypedWithOrWithoutItsSeparators_data() {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("date");
        QTest::newRow("two digits") << "15/12/2030"
                                    << "15/12/2030";
        QTest::newRow("one digit") << "5/4/2030"
                                   << "05/04/2030";
        QTest::newRow("a digit that can be the only one") << "9/12/2030"
                                                          << "09/12/2030";
        QTest::newRow("hyphens") << "15-12-2030"
                                 << "15/12/2030";
        QTest::newRow("points") << "15.12.2030"
                                << "15/12/2030";
    }
    void aDateIsTypedWithOrWithoutItsSeparators() {
        QFETCH(QString, keys);
        Stage stage;
        stage.form().date.setDate({2024, 3, 15});
        stage.view.act(Qt::TabFocusReason, [&] { stage.form().date.setFocus(); });
        auto& edit = stage.widget<QDateEdit>(stage.form().date);
        edit.setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(&edit, keys);
        QTEST(QString::fromStdString(stage.form().date.date().text()), "date");
    }

    void aDateIsTakenAsItIsTyped_data() {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("date");
        QTest::newRow("a day that the month before has not") << "31122025"
                                                             << "31/12/2025";
        QTest::newRow("with separators") << "31/5/2026"
                                         << "31/05/2026";
        QTest::newRow("a leap day") << "29022028"
                                    << "29/02/2028";
        QTest::newRow("a leap day of a year without one") << "29022027"
                                                          << "28/02/2027";
        QTest::newRow("a day that no April has") << "31042025"
                                                 << "30/04/2025";
        QTest::newRow("two digits of this century") << "5/6/21"
                                                    << "05/06/2021";
        QTest::newRow("two digits of the last") << "5/6/89"
                                                << "05/06/1989";
    }
    void aDateIsTakenAsItIsTyped() {
        QFETCH(QString, keys);
        Stage stage;
        stage.form().date.setDate({2026, 4, 15});
        stage.view.act(Qt::TabFocusReason, [&] { stage.form().date.setFocus(); });
        auto& edit = stage.widget<QDateEdit>(stage.form().date);
        edit.setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(&edit, keys);
        QTest::keyClick(&edit, Qt::Key_Tab);
        QTEST(QString::fromStdString(stage.form().date.date().text()), "date");
    }

    void aDateOfWhichOnePartIsTypedKeepsTheOthers() {
        Stage stage;
        stage.form().date.setDate({2026, 4, 15});
        stage.view.act(Qt::TabFocusReason, [&] { stage.form().date.setFocus(); });
        auto& edit = stage.widget<QDateEdit>(stage.form().date);
        edit.setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(&edit, "31");
        edit.setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClick(&edit, Qt::Key_Down);
        edit.setSelectedSection(QDateTimeEdit::MonthSection);
        QTest::keyClicks(&edit, "12");
        QCOMPARE(stage.form().date.date().text(), "29/12/2026"s);
    }

    void theKeysOfListsOpenTheCalendar_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("with");
        QTest::newRow("F4") << int(Qt::Key_F4) << int(Qt::NoModifier);
        QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier);
    }
    void theKeysOfListsOpenTheCalendar() {
        QFETCH(int, key);
        QFETCH(int, with);
        Stage stage;
        stage.form().date.setDate({2026, 4, 15});
        stage.view.act(Qt::TabFocusReason, [&] { stage.form().date.setFocus(); });
        auto& edit = stage.widget<QDateEdit>(stage.form().date);
        QTest::keyClick(&edit, Qt::Key(key), Qt::KeyboardModifiers(with));
        QTRY_VERIFY(QApplication::activePopupWidget());
        QApplication::activePopupWidget()->close();
        QCOMPARE(stage.form().date.date().text(), "15/04/2026"s);
    }

    void aClickChoosesThePartOfTheDateThatIsTypedNext() {
        Stage stage;
        stage.form().date.setDate({2024, 3, 15});
        stage.settle();
        auto& edit = stage.widget<QDateEdit>(stage.form().date);
        click(edit);
        stage.settle();
        QTest::keyClicks(&edit, "28");
        QCOMPARE(stage.form().date.date().text(), "28/03/2024"s);
    }

    void aDateIsPickedInTheCalendar() {
        Stage stage;
        stage.form().date.setDate({2024, 3, 15});
        stage.settle();
        auto& edit = stage.widget<QDateEdit>(stage.form().date);
        edit.setDate({2024, 3, 20});
        QCOMPARE(stage.form().date.date().text(), "20/03/2024"s);
        QCOMPARE(edit.displayFormat(), QString("dd/MM/yyyy"));
    }

    void aDateSetByCodeIsShown_data() {
        QTest::addColumn<int>("year");
        QTest::newRow("first") << 100;
        QTest::newRow("today") << 2024;
        QTest::newRow("last") << 9999;
    }
    void aDateSetByCodeIsShown() {
        QFETCH(int, year);
        Stage stage;
        stage.form().date.setDate({year, 12, 31});
        stage.settle();
        QCOMPARE(stage.widget<QDateEdit>(stage.form().date).date(), QDate(year, 12, 31));
        QCOMPARE(stage.form().date.date(), (Date{year, 12, 31}));
    }

    void theWheelScrollsThePageAndChangesNoAnswer() {
        Stage stage;
        stage.form().list.setListIndex(1);
        stage.form().date.setDate({2024, 3, 15});
        stage.settle();
        turnWheel(stage.widget(stage.form().list));
        turnWheel(stage.widget(stage.form().date));
        turnWheel(stage.widget(stage.form().tabs));
        QCOMPARE(stage.form().list.listIndex(), 1);
        QCOMPARE(stage.form().date.date(), (Date{2024, 3, 15}));
        QCOMPARE(stage.form().tabs.tab(), 0);
    }

    void buttonsLinksAndIconsAreClicked() {
        Stage stage;
        click(stage.widget(stage.form().button));
        click(stage.widget(stage.form().link));
        click(stage.widget(stage.form().image));
        QCOMPARE(stage.form().buttonClicks, 1);
        QCOMPARE(stage.form().linkClicks, 1);
        QCOMPARE(stage.form().imageClicks, 1);
    }

    void aDisabledButtonIsNotClicked() {
        Stage stage;
        stage.form().button.setEnabled(false);
        stage.settle();
        click(stage.widget(stage.form().button));
        QCOMPARE(stage.form().buttonClicks, 0);
    }

    void aMnemonicPressesItsButton() {
        Stage stage;
        QTest::keyClick(&stage.desk, Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(stage.form().buttonClicks, 1);
    }

    void linksHaveTheirColourAndIconsTheirTip() {
        Stage stage;
        auto& link = stage.widget<QLabel>(stage.form().link);
        QCOMPARE(link.palette().color(QPalette::WindowText), QColor(Qt::blue));
        stage.form().link.setForeColor(red);
        stage.settle();
        QCOMPARE(link.palette().color(QPalette::WindowText), QColor(Qt::red));
        QCOMPARE(stage.widget(stage.form().image).toolTip(), QString("Click Here to add the Details"));
    }

    void tabsAreNumberedAndTurnedByHandAndByCode() {
        Stage stage;
        auto& bar = stage.widget<QTabBar>(stage.form().tabs);
        QCOMPARE(bar.count(), 2);
        QCOMPARE(bar.tabText(0), QString("5"));
        QCOMPARE(bar.tabText(1), QString("6"));
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(1).center());
        QCOMPARE(stage.form().tabs.tab(), 1);
        QVERIFY(stage.widget(stage.form().second).isVisible());
        QVERIFY(!stage.widget(stage.form().title).isVisible());
        stage.form().tabs.setTab(0);
        stage.settle();
        QCOMPARE(bar.currentIndex(), 0);
        QVERIFY(stage.widget(stage.form().title).isVisible());
    }

    void aPageIsDrawnWhenItIsShownForTheFirstTime() {
        Stage stage;
        QVERIFY(!stage.view.viewOf(stage.form())->widgetOf(stage.form().second));
        stage.form().tabs.setTab(1);
        stage.settle();
        QVERIFY(stage.view.viewOf(stage.form())->widgetOf(stage.form().second));
    }
};

static const Registered<ChoiceTest> registered;

#include "ChoiceTest.moc"
