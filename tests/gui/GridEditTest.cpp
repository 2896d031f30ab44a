#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>

#include "gui/GridForm.h"
#include "gui/Registry.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

class GridEditTest : public QObject {
    Q_OBJECT

private slots:
    void typingInACellReachesTheTableWhenTheCellIsLeft() {
        GridStage stage;
        stage.click(1, GridForm::Name);
        stage.type("Patil 2");
        QVERIFY(stage.line());
        QCOMPARE(stage.line()->text(), QString("Patil 2"));
        QCOMPARE(stage.line()->accessibleName(), QString("Name Of Owner"));
        QVERIFY(stage.place(1, GridForm::Name).contains(stage.line()->geometry()));
        QCOMPARE(stage.cell(1, GridForm::Name), "name 1"s);
        stage.press(Qt::Key_Return);
        QCOMPARE(stage.cell(1, GridForm::Name), "Patil 2"s);
        QCOMPARE(stage.form().updates, std::vector<int>{GridForm::Name});
        QVERIFY(!stage.line());
        QVERIFY(stage.at(1, GridForm::Area));
        QCOMPARE(&stage.keyboard(), &stage.shown());
    }

    void theCaretMovesInTheTypedText() {
        GridStage stage;
        stage.click(0, GridForm::Name);
        stage.type("ac");
        stage.press(Qt::Key_Left);
        stage.type("b");
        stage.press(Qt::Key_Home);
        stage.press(Qt::Key_Delete);
        stage.press(Qt::Key_End);
        stage.type("d");
        QCOMPARE(stage.form().grid.editText(), "bcd"s);
        QCOMPARE(stage.table->rowCount(), 3);
        stage.press(Qt::Key_Down);
        QCOMPARE(stage.cell(0, GridForm::Name), "bcd"s);
        QVERIFY(stage.at(1, GridForm::Name));
    }

    void keysThatTheFormSwallowsAreNotTyped() {
        GridStage stage;
        stage.click(0, GridForm::Name);
        stage.type("#a$b%");
        QCOMPARE(stage.form().grid.editText(), "ab"s);
    }

    void composedTextPassesTheFormsFilter() {
        GridStage stage;
        stage.click(0, GridForm::Name);
        QInputMethodEvent composed;
        composed.setCommitString("अ#b");
        QCoreApplication::sendEvent(&stage.keyboard(), &composed);
        QCOMPARE(stage.form().grid.editText(), "अb"s);
        composed.setCommitString("क");
        QCoreApplication::sendEvent(&stage.keyboard(), &composed);
        QCOMPARE(stage.form().grid.editText(), "अbक"s);
    }

    void copiedAndPastedTextGoesThroughTheClipboard() {
        GridStage stage;
        stage.click(2, GridForm::Name);
        stage.press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("name 2"));
        stage.click(0, GridForm::Name);
        stage.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(stage.form().grid.editText(), "name 2"s);
        stage.press(Qt::Key_V, Qt::ControlModifier);
        stage.press(Qt::Key_Tab);
        QCOMPARE(stage.cell(0, GridForm::Name), "name 2name 2"s);
        stage.click(0, GridForm::Fixed);
        stage.press(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(!stage.form().grid.editing());
    }

    void escGivesBackTheOldValueAndThenGoesToTheForm() {
        GridStage stage;
        stage.click(1, GridForm::Name);
        stage.type("x");
        stage.press(Qt::Key_Escape);
        QVERIFY(!stage.line());
        QCOMPARE(stage.text(1, GridForm::Name), QString("name 1"));
        QVERIFY(stage.form().updates.empty());
        QCOMPARE(stage.form().keys, ""s);
        stage.press(Qt::Key_Escape);
        QCOMPARE(stage.form().keys, "Esc "s);
    }

    void aValueThatTheColumnCannotTakeIsRefused() {
        GridStage stage;
        stage.click(1, GridForm::Area);
        stage.type("12x");
        stage.press(Qt::Key_Tab);
        QCOMPARE(stage.text(1, GridForm::Area), QString("1.5"));
        QVERIFY(stage.form().updates.empty());
        QVERIFY(!stage.line());
        QVERIFY(stage.machine.dialogs.messages.empty());
    }

    void aDoubleClickEditsThePresentText() {
        GridStage stage;
        stage.doubleClick(1, GridForm::Name);
        QVERIFY(stage.line());
        QCOMPARE(stage.line()->selectedText(), QString("name 1"));
        stage.press(Qt::Key_End);
        stage.type("0");
        stage.press(Qt::Key_Tab);
        QCOMPARE(stage.cell(1, GridForm::Name), "name 10"s);
        stage.doubleClick(1, GridForm::Fixed);
        QVERIFY(!stage.line());
    }

    void backspaceShortensThePresentText() {
        GridStage stage;
        stage.click(1, GridForm::Name);
        stage.press(Qt::Key_Backspace);
        stage.press(Qt::Key_Backspace);
        QCOMPARE(stage.form().grid.editText(), "name"s);
    }

    void functionKeysTakeTheEditInAndGoToTheForm() {
        GridStage stage;
        stage.click(1, GridForm::Name);
        stage.type("new");
        stage.press(Qt::Key_F2);
        QCOMPARE(stage.cell(1, GridForm::Name), "new"s);
        QCOMPARE(stage.form().keys, "F2 "s);
    }

    void tabAndEnterWalkOverTheCellsAndOutOfTheGrid() {
        GridStage stage(1);
        stage.click(0, GridForm::Name);
        for (const int column : {GridForm::Area, GridForm::On, GridForm::Kind, GridForm::Done}) {
            stage.press(column % 2 == 0 ? Qt::Key_Tab : Qt::Key_Return);
            QVERIFY(stage.at(0, column));
        }
        stage.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(stage.at(0, GridForm::Kind));
        stage.press(Qt::Key_Tab);
        stage.press(Qt::Key_Tab);
        QCOMPARE(&stage.keyboard(), &stage.widget(stage.form().behind));
        stage.press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(&stage.keyboard(), &stage.shown());
    }

    void anEditEndsWhenTheGridIsLeft() {
        GridStage stage;
        stage.click(0, GridForm::Name);
        stage.type("typed");
        QTest::mouseClick(&stage.widget(stage.form().behind), Qt::LeftButton);
        stage.settle();
        QCOMPARE(stage.cell(0, GridForm::Name), "typed"s);
        QCOMPARE(&stage.keyboard(), &stage.widget(stage.form().behind));
        QVERIFY(stage.form().behind.focused());
    }

    void anEditEndsWhenCodeTakesTheFocusAway() {
        GridStage stage;
        stage.click(0, GridForm::Name);
        stage.type("typed");
        stage.form().before.setFocus();
        stage.settle();
        QCOMPARE(stage.cell(0, GridForm::Name), "typed"s);
        QVERIFY(stage.form().before.focused());
        QCOMPARE(&stage.keyboard(), &stage.widget(stage.form().before));
    }

    void anEditOutlivesAMessageBox() {
        GridStage stage;
        stage.click(1, GridForm::Name);
        stage.type("typed");
        stage.view.act(Qt::OtherFocusReason, [&] {
            stage.form().screen().message("Do you want to Exit ?", "");
            stage.type("lost");  // nothing reaches the system while the box is open
            stage.settle();
        });
        QVERIFY(stage.line());
        QCOMPARE(stage.line()->text(), QString("typed"));
        stage.press(Qt::Key_Tab);
        QCOMPARE(stage.cell(1, GridForm::Name), "typed"s);
    }

    void anEditOutlivesRepaintingAndChangesElsewhere() {
        GridStage stage;
        stage.click(1, GridForm::Name);
        stage.type("typed");
        stage.line()->setCursorPosition(2);
        stage.form().grid.refresh();
        stage.form().setCaption("Other");
        stage.settle();
        QVERIFY(stage.line());
        QCOMPARE(stage.line()->text(), QString("typed"));
        QCOMPARE(stage.line()->cursorPosition(), 2);
        stage.type("X");
        QCOMPARE(stage.form().grid.editText(), "tyXped"s);
    }

    void aLineThatWasScrolledAwayComesBackWhenItIsTypedIn() {
        GridStage stage(50);
        stage.click(1, GridForm::Name);
        stage.type("a");
        stage.shown().verticalScrollBar()->setValue(20);
        stage.type("b");
        QVERIFY(stage.shown().viewport()->rect().contains(stage.line()->geometry()));
        QCOMPARE(stage.form().grid.editText(), "ab"s);
    }

    void aFormIsUnloadedWhileItsGridIsTypedIn() {
        GridStage stage;
        stage.click(1, GridForm::Name);
        stage.type("x");
        const QPointer<QWidget> table = &stage.shown();
        const QPointer<QWidget> line = stage.line();
        stage.proposal.forms.unload("GridForm");
        QTest::keyClick(line, Qt::Key_Y);
        QTest::mouseClick(stage.desk.findChild<desktop::GridTable*>("grid")->viewport(), Qt::LeftButton, {}, {50, 10});
        table->grab();
        stage.settle();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!table);
    }
};

static const Registered<GridEditTest> registered;

#include "GridEditTest.moc"
