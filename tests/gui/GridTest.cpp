#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include "gui/GridForm.h"
#include "gui/Registry.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

namespace {

QColor frameColour(GridStage& stage, int row, int column) {
    const QImage image = stage.shown().viewport()->grab().toImage();
    const QRect cell = stage.place(row, column);
    return image.pixelColor(cell.left() + 1, cell.center().y());
}

}  // namespace

class GridTest : public QObject {
    Q_OBJECT

private slots:
    void cellsAreReadFromTheTableAsTheyAre() {
        GridStage stage;
        QCOMPARE(stage.text(1, GridForm::Name), QString("name 1"));
        QCOMPARE(stage.text(2, GridForm::Area), QString("2.5"));
        QCOMPARE(stage.text(0, GridForm::On), QString("15/01/2024"));
        QCOMPARE(stage.text(0, GridForm::Done), QString("No"));
        stage.table->setAbsolutePosition(2);
        stage.table->set(GridForm::Name, "other"s);
        QCOMPARE(stage.text(1, GridForm::Name), QString("other"));
        const auto alignment = [&](int column) {
            return stage.shown().model()->index(0, column).data(Qt::TextAlignmentRole).toInt() &
                   int(Qt::AlignHorizontal_Mask);
        };
        QCOMPARE(alignment(GridForm::Area), int(Qt::AlignRight));
        QCOMPARE(alignment(GridForm::Name), int(Qt::AlignLeft));
    }

    void columnsHaveTheirCaptionsAndThoseWithoutWidthAreHidden() {
        GridStage stage;
        const QAbstractItemModel& model = *stage.shown().model();
        QCOMPARE(model.headerData(GridForm::Fixed, Qt::Horizontal).toString(), QString("Fixed"));
        QCOMPARE(model.headerData(GridForm::Area, Qt::Horizontal).toString(), QString("Cumulative Area in Sq.Mt"));
        QVERIFY(stage.shown().isColumnHidden(GridForm::No));
        int width = 0;
        for (int column = GridForm::Fixed; column <= GridForm::Done; ++column) {
            QVERIFY(!stage.shown().isColumnHidden(column));
            width += stage.shown().columnWidth(column);
        }
        QCOMPARE(width, stage.shown().viewport()->width());
    }

    void widthsAreSharedOut_data() {
        QTest::addColumn<int>("room");
        QTest::addColumn<QList<int>>("widths");
        QTest::newRow("all that is wanted") << 600 << QList<int>{100, 200, 0, 300};
        QTest::newRow("twice as much") << 1200 << QList<int>{200, 400, 0, 600};
        QTest::newRow("half of what could be spared") << 450 << QList<int>{100, 150, 0, 200};
        QTest::newRow("the least") << 300 << QList<int>{100, 100, 0, 100};
        QTest::newRow("too little") << 10 << QList<int>{100, 100, 0, 100};
    }

    void widthsAreSharedOut() {
        QFETCH(int, room);
        QFETCH(QList<int>, widths);
        const std::vector<desktop::ColumnNeed> needs = {{100, 100}, {100, 200}, {0, 0}, {100, 300}};
        const std::vector<int> shared = desktop::shareWidths(needs, room);
        QCOMPARE(QList<int>(shared.begin(), shared.end()), widths);
        QVERIFY(desktop::shareWidths({}, room).empty());
    }

    void theGridIsCalledAsItsQuestionOrItsFrame() {
        GridStage stage;
        QCOMPARE(stage.shown().accessibleName(), QString("Owners"));
        QCOMPARE(stage.widget(stage.form().other).accessibleName(), QString("Plots"));
        QCOMPARE(stage.shown().objectName(), QString("grid"));
    }

    void aGridTakesTheWidthOfThePageAndTheHeightOfItsLines() {
        GridStage stage;
        const int row = stage.shown().rowHeight(0);
        QCOMPARE(stage.shown().viewport()->height(), 4 * row);
        QCOMPARE(stage.widget(stage.form().other).width(), stage.shown().width());
        QVERIFY(stage.shown().width() > stage.widget(stage.form().before).width());
        QVERIFY(row >= stage.widget(stage.form().before).height());
    }

    void aClickMakesTheCellCurrentAndIsTold() {
        GridStage stage;
        stage.click(1, GridForm::Name);
        QVERIFY(stage.form().grid.focused());
        QCOMPARE(&stage.keyboard(), &stage.shown());
        QVERIFY(stage.at(1, GridForm::Name));
        QCOMPARE(stage.form().clicks, std::vector<int>{GridForm::Name});
        QCOMPARE(frameColour(stage, 1, GridForm::Name), stage.shown().palette().color(QPalette::Highlight));
        stage.click(2, GridForm::Area);
        QVERIFY(stage.at(2, GridForm::Area));
        QVERIFY(frameColour(stage, 1, GridForm::Name) != stage.shown().palette().color(QPalette::Highlight));
        stage.clickAt({5, stage.shown().viewport()->height() - 5});
        QVERIFY(stage.at(2, GridForm::Area));
        QCOMPARE(stage.form().clicks.size(), 2U);
    }

    void aGridThatWasJustFilledShowsTheCellThatKeysWouldGoTo() {
        GridStage stage;
        QCOMPARE(stage.form().grid.currentColumn(), int(GridForm::No));
        QCOMPARE(stage.shown().currentIndex(), stage.shown().model()->index(0, GridForm::Name));
        stage.form().grid.setFocus();
        stage.settle();
        QCOMPARE(frameColour(stage, 0, GridForm::Name), stage.shown().palette().color(QPalette::Highlight));
        stage.press(Qt::Key_Right);
        QVERIFY(stage.at(0, GridForm::Area));
    }

    void theOtherMouseButtonsDoNothing() {
        GridStage stage;
        QTest::mouseClick(stage.shown().viewport(), Qt::RightButton, {}, stage.place(1, GridForm::Name).center());
        QVERIFY(stage.form().clicks.empty());
        QVERIFY(!stage.form().grid.focused());
    }

    void arrowKeysWalkOverTheVisibleCells() {
        GridStage stage;
        stage.click(0, GridForm::Name);
        stage.press(Qt::Key_Down);
        QVERIFY(stage.at(1, GridForm::Name));
        stage.press(Qt::Key_Right);
        QVERIFY(stage.at(1, GridForm::Area));
        stage.press(Qt::Key_Home);
        QVERIFY(stage.at(1, GridForm::Fixed));
        stage.press(Qt::Key_Left);
        QVERIFY(stage.at(1, GridForm::Fixed));
        stage.press(Qt::Key_End);
        QVERIFY(stage.at(1, GridForm::Done));
        stage.press(Qt::Key_Up);
        QVERIFY(stage.at(0, GridForm::Done));
        stage.press(Qt::Key_End, Qt::ControlModifier);
        QVERIFY(stage.at(2, GridForm::Done));
        QCOMPARE(stage.form().clicks.size(), 1U);
    }

    void pageKeysScroll() {
        GridStage stage(200);
        stage.click(0, GridForm::Name);
        stage.press(Qt::Key_PageDown);
        stage.press(Qt::Key_PageDown);
        const int row = stage.form().grid.currentRow();
        QVERIFY(row >= 6);
        QVERIFY(stage.shown().viewport()->rect().contains(stage.place(row, GridForm::Name)));
        stage.press(Qt::Key_PageUp);
        QVERIFY(stage.form().grid.currentRow() < row);
    }

    void aButtonInACellIsPressedAlone() {
        GridStage stage;
        stage.clickButton(2, GridForm::Done);
        QVERIFY(stage.at(2, GridForm::Done));
        QCOMPARE(stage.form().buttons, std::vector<int>{GridForm::Done});
        QVERIFY(stage.form().clicks.empty());
        stage.press(Qt::Key_Space);
        QCOMPARE(stage.form().buttons.size(), 2U);
        stage.click(1, GridForm::Done);
        QCOMPARE(stage.form().buttons.size(), 2U);
        QCOMPARE(stage.form().clicks, std::vector<int>{GridForm::Done});
        QVERIFY(stage.shown().buttonRect(stage.shown().model()->index(0, GridForm::Name)).isNull());
    }

    void deleteEmptiesTheCellAndNothingElse() {
        GridStage stage;
        for (const int column : {GridForm::Name, GridForm::Area}) {
            stage.click(1, column);
            stage.press(Qt::Key_Delete);
            QCOMPARE(stage.cell(1, column), ""s);
            QCOMPARE(stage.form().updates.back(), column);
        }
        for (const int column : {GridForm::Fixed, GridForm::Done}) {
            const std::string before = stage.cell(1, column);
            stage.click(1, column);
            stage.press(Qt::Key_Delete);
            QCOMPARE(stage.cell(1, column), before);
        }
        QCOMPARE(stage.table->rowCount(), 3);
        QCOMPARE(stage.text(1, GridForm::Name), QString());
    }

    void ctrlDeleteDeletesTheCurrentRowWhereTheFormLetsIt() {
        GridStage stage;
        bool sure = false;
        stage.form().grid.beforeDelete = [&] { return sure; };
        stage.click(1, GridForm::Name);
        stage.press(Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(stage.table->rowCount(), 3);
        sure = true;
        stage.press(Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(stage.table->rowCount(), 2);
        QCOMPARE(stage.shown().model()->rowCount(), 2);
        QVERIFY(stage.at(1, GridForm::Name));
        QCOMPARE(stage.text(1, GridForm::Name), QString("name 2"));
        stage.form().grid.allowDelete = false;
        stage.press(Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(stage.table->rowCount(), 2);
    }

    void aRowTakenByItsHeadIsDeletedByDelete() {
        GridStage stage;
        const auto takeRow = [&](int row) {
            QHeaderView& heads = *stage.shown().verticalHeader();
            QTest::mouseClick(heads.viewport(), Qt::LeftButton, {}, {3, heads.sectionViewportPosition(row) + 5});
            stage.settle();
        };
        QVERIFY(stage.shown().verticalHeader()->isVisible());
        takeRow(1);
        QCOMPARE(stage.form().grid.currentRow(), 1);
        QVERIFY(stage.form().grid.focused());
        QVERIFY(stage.form().clicks.empty());
        QVERIFY(stage.shown().selectionModel()->isRowSelected(1, {}));
        stage.press(Qt::Key_Delete);
        QCOMPARE(stage.table->rowCount(), 2);
        QVERIFY(!stage.shown().selectionModel()->hasSelection());
        stage.press(Qt::Key_Delete);  // the row that came in its place was not taken
        QCOMPARE(stage.table->rowCount(), 2);
        for (const auto& leave : std::vector<std::function<void()>>{[&] { stage.press(Qt::Key_Right); },
                                                                    [&] { stage.click(1, GridForm::Area); },
                                                                    [&] { stage.press(Qt::Key_Tab); },
                                                                    [&] {
                                                                        stage.type("x");
                                                                        stage.press(Qt::Key_Escape);
                                                                    }}) {
            takeRow(1);
            QVERIFY(stage.shown().selectionModel()->hasSelection());
            leave();
            stage.settle();
            QVERIFY(!stage.shown().selectionModel()->hasSelection());
            stage.click(1, GridForm::Area);
            stage.press(Qt::Key_Delete);
            QCOMPARE(stage.table->rowCount(), 2);
        }
    }

    void tabIntoTheGridLeadsToTheFirstCellThatCanBeTypedInto() {
        GridStage stage;
        stage.view.act(Qt::OtherFocusReason, [&] { stage.form().before.setFocus(); });
        stage.settle();
        stage.press(Qt::Key_Tab);
        QVERIFY(stage.at(0, GridForm::Name));
        stage.type("Patil");
        stage.press(Qt::Key_Tab);
        QCOMPARE(stage.cell(0, GridForm::Name), "Patil"s);
        QVERIFY(stage.at(0, GridForm::Area));
    }

    void aCellOfAListTakesItsItemsAlone() {
        GridStage stage;
        GridForm& form = stage.form();
        form.grid.listOf = [&](int column) { return column == GridForm::Kind ? &form.list : nullptr; };
        stage.click(1, GridForm::Name);
        stage.press(Qt::Key_Right);
        stage.press(Qt::Key_Right);
        stage.press(Qt::Key_Right);
        QVERIFY(stage.at(1, GridForm::Kind));
        for (const char* text : {"Other", "", "N"}) {
            QGuiApplication::clipboard()->setText(text);
            stage.press(Qt::Key_V, Qt::ControlModifier);
            QVERIFY(!stage.line());
            QCOMPARE(stage.cell(1, GridForm::Kind), "New"s);
        }
        stage.press(Qt::Key_Delete);
        stage.press(Qt::Key_Backspace);
        QCOMPARE(stage.cell(1, GridForm::Kind), "New"s);
        QGuiApplication::clipboard()->setText(" old");
        stage.press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(stage.cell(1, GridForm::Kind), "Old"s);
        QVERIFY(!stage.shown().viewport()->acceptDrops());
        QInputMethodEvent composed;
        composed.setCommitString("N");
        QCoreApplication::sendEvent(&stage.keyboard(), &composed);
        stage.settle();
        QVERIFY(form.list.focused());
        QVERIFY(!stage.line());
        QCOMPARE(stage.cell(1, GridForm::Kind), "Old"s);
        stage.press(Qt::Key_N);
        stage.press(Qt::Key_Tab);
        QCOMPARE(stage.cell(1, GridForm::Kind), "New"s);
    }

    void aGridWithoutRowsTakesKeysAndClicks() {
        GridStage stage(0);
        QCOMPARE(stage.shown().model()->rowCount(), 0);
        QVERIFY(!stage.shown().isColumnHidden(GridForm::Name));
        const auto corner = [&] { return stage.shown().viewport()->grab().toImage().pixelColor(2, 2); };
        const QColor quiet = corner();
        stage.clickAt({20, 10});
        QCOMPARE(&stage.keyboard(), &stage.shown());
        QVERIFY(corner() != quiet);
        stage.type("x");
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Delete, Qt::Key_PageDown, Qt::Key_Space, Qt::Key_Backspace})
            stage.press(key);
        QVERIFY(!stage.line());
        stage.press(Qt::Key_Tab);
        QCOMPARE(&stage.keyboard(), &stage.widget(stage.form().behind));
        QCOMPARE(corner(), quiet);
    }

    void anUnboundGridIsEmpty() {
        GridStage stage;
        stage.click(1, GridForm::Name);
        stage.type("x");
        stage.form().grid.bind(nullptr);
        stage.settle();
        QCOMPARE(stage.shown().model()->rowCount(), 0);
        QCOMPARE(stage.shown().model()->columnCount(), 0);
        QVERIFY(!stage.line());
        stage.type("y");
        stage.press(Qt::Key_Right);
        stage.clickAt({20, 10});
        QCOMPARE(stage.form().grid.currentRow(), -1);
    }

    void anotherTableIsShownInItsPlace() {
        GridStage stage;
        stage.click(2, GridForm::Area);
        const auto other = GridForm::makeTable(2);
        other->set(GridForm::Name, "another"s);
        stage.form().grid.bind(other);
        stage.settle();
        QCOMPARE(stage.shown().model()->rowCount(), 2);
        QCOMPARE(stage.text(0, GridForm::Name), QString("another"));
        QVERIFY(stage.shown().isColumnHidden(GridForm::No));
        other->setFilter("No = 1");
        stage.form().grid.refresh();
        stage.settle();
        QCOMPARE(stage.shown().model()->rowCount(), 1);
        QCOMPARE(stage.text(0, GridForm::Fixed), QString("No 1"));
    }

    void rowsThatWentSinceTheLastLookAreEmptyUntilTheNext() {
        GridStage stage;
        stage.table->setFilter("No = 1");
        QCOMPARE(stage.shown().model()->rowCount(), 3);
        QCOMPARE(stage.text(2, GridForm::Name), QString());
    }

    void aGridThatIsClosedTakesNothing() {
        GridStage stage;
        stage.form().grid.setEnabled(false);
        stage.settle();
        stage.click(1, GridForm::Name);
        QVERIFY(stage.form().clicks.empty());
        QVERIFY(!stage.form().grid.focused());
    }

    void theWheelScrollsTheGridAndAtItsEndThePage() {
        GridStage stage(6);
        const auto turn = [&] {
            QWidget& viewport = *stage.shown().viewport();
            QWheelEvent event(viewport.rect().center(), viewport.mapToGlobal(viewport.rect().center()), {}, {0, -120},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&viewport, &event);
            return event.isAccepted();
        };
        QVERIFY(turn());
        QVERIFY(stage.shown().verticalScrollBar()->maximum() > 0);
        QCOMPARE(stage.shown().verticalScrollBar()->value(), stage.shown().verticalScrollBar()->maximum());
        QVERIFY(!turn());
    }

    void widthsThatTheUserDrewStay() {
        GridStage stage;
        stage.shown().setColumnWidth(GridForm::Name, 77);
        stage.click(1, GridForm::Name);
        stage.settle();
        QCOMPARE(stage.shown().columnWidth(GridForm::Name), 77);
    }
};

static const Registered<GridTest> registered;

#include "GridTest.moc"
