#include <QDateEdit>
#include <QScrollBar>

#include "gui/GridForm.h"
#include "gui/Registry.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

namespace {

bool standsOver(GridStage& stage, const Control& editor, int row, int column) {
    const QWidget& widget = stage.widget(editor);
    return widget.isVisible() && widget.parentWidget() == stage.shown().viewport() &&
           widget.geometry() == stage.place(row, column);
}

}  // namespace

class FloatingEditorTest : public QObject {
    Q_OBJECT

private slots:
    void theDatePickerStandsOverItsCellAndItsDateIsTaken() {
        GridStage stage;
        stage.clickButton(1, GridForm::On);
        QVERIFY(standsOver(stage, stage.form().picker, 1, GridForm::On));
        QCOMPARE(stage.widget(stage.form().picker).accessibleName(), QString("Date"));
        auto& picker = static_cast<QDateEdit&>(stage.widget(stage.form().picker));
        QCOMPARE(&stage.keyboard(), &picker);
        picker.setDate({2020, 2, 29});
        stage.settle();
        QCOMPARE(stage.text(1, GridForm::On), QString("29/02/2020"));
        stage.press(Qt::Key_Tab);
        QVERIFY(stage.at(1, GridForm::Kind));
        QCOMPARE(&stage.keyboard(), &stage.shown());
    }

    void theFirstKeyTypedInADateReachesThePicker() {
        GridStage stage;
        stage.form().picker.setDate({2024, 1, 15});
        stage.click(0, GridForm::On);
        stage.type("28032021");
        QCOMPARE(stage.cell(0, GridForm::On), "28/03/2021"s);
    }

    void aListStandsOverItsCellAndItsItemIsTaken() {
        GridStage stage;
        stage.form().list.setListIndex(0);
        stage.click(2, GridForm::Kind);
        QVERIFY(standsOver(stage, stage.form().list, 2, GridForm::Kind));
        stage.press(Qt::Key_Down);
        QCOMPARE(stage.form().list.text(), "Old"s);
        stage.press(Qt::Key_Return);
        QCOMPARE(stage.cell(2, GridForm::Kind), "Old"s);
        QVERIFY(!stage.widget(stage.form().list).isVisible());
        QVERIFY(stage.at(2, GridForm::Done));
    }

    void aKeyThatAnEditorHasNoUseForIsNotTypedIntoTheCell() {
        GridStage stage;
        stage.click(2, GridForm::Kind);
        stage.press(Qt::Key_Left);
        stage.press(Qt::Key_Delete);
        QVERIFY(stage.form().list.focused());
        QVERIFY(stage.at(2, GridForm::Kind));
        QCOMPARE(stage.table->rowCount(), 3);
    }

    void theEditorPlacedLastStandsInFront() {
        GridStage stage;
        GridForm& form = stage.form();
        form.grid.place(form.list, GridForm::Name);
        form.grid.place(form.picker, GridForm::Name);
        stage.settle();
        const auto inFront = [&](const Control& first, const Control& second) {
            const QObjectList& order = stage.shown().viewport()->children();
            return order.indexOf(&stage.widget(first)) > order.indexOf(&stage.widget(second));
        };
        QVERIFY(inFront(form.picker, form.list));
        form.grid.place(form.list, GridForm::Name);
        stage.settle();
        QVERIFY(inFront(form.list, form.picker));
    }

    void anEditorScrollsWithItsCellAndGoesWithIt() {
        GridStage stage(50);
        GridForm& form = stage.form();
        stage.table->setAbsolutePosition(3);
        form.grid.place(form.list, GridForm::Kind);
        stage.settle();
        QVERIFY(standsOver(stage, form.list, 2, GridForm::Kind));
        stage.shown().verticalScrollBar()->setValue(2);
        QVERIFY(standsOver(stage, form.list, 2, GridForm::Kind));
        QCOMPARE(stage.widget(form.list).y(), 0);
        stage.shown().verticalScrollBar()->setValue(20);
        QVERIFY(!stage.widget(form.list).isVisible());
        stage.shown().verticalScrollBar()->setValue(0);
        QVERIFY(standsOver(stage, form.list, 2, GridForm::Kind));
        stage.desk.resize(800, 600);
        stage.view.fitWindows();
        stage.settle();
        QVERIFY(standsOver(stage, form.list, 2, GridForm::Kind));
    }

    void aKeyInAnEditorThatWasScrolledAwayBringsItBack() {
        GridStage stage(50);
        stage.click(1, GridForm::Kind);
        stage.shown().verticalScrollBar()->setValue(20);
        QVERIFY(stage.form().list.focused());
        stage.press(Qt::Key_Down);
        QVERIFY(stage.shown().viewport()->rect().contains(stage.place(1, GridForm::Kind)));
        QVERIFY(standsOver(stage, stage.form().list, 1, GridForm::Kind));
    }
};

static const Registered<FloatingEditorTest> registered;

#include "FloatingEditorTest.moc"
