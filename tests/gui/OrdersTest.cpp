#include "gui/Orders.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "desktop/ChildWindow.h"
#include "desktop/GridTable.h"
#include "gui/Registry.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

namespace {

struct OrderWindows : Session {
    explicit OrderWindows(QSize size = {1024, 700}) : Session(size) {
        press("mnuNew");
        for (void (*enter)(Session&) : {enterPlots, enterExtracts, enterCards, enterScrutiny})
            enter(*this);
        settle();
        dialogs.take();
    }
    desktop::GridTable& table(const Grid& grid) { return widget<desktop::GridTable>(grid); }
    /// Where the column stands, in the coordinates of the page.
    QRect stretch(const Grid& grid, int column) {
        const desktop::GridTable& shown = table(grid);
        return {shown.x() + shown.viewport()->x() + shown.columnViewportPosition(column), 0, shown.columnWidth(column),
                1};
    }
    void key(Qt::Key key) {
        QTest::keyClick(window.focusWidget(), key);
        settle();
    }
};

}  // namespace

class OrdersTest : public QObject {
    Q_OBJECT

private slots:
    void theTotalStandsUnderItsColumnAndFollowsIt() {
        OrderWindows windows({1366, 768});
        enterUS84(windows);
        windows.settle();
        auto& form = windows.form<frmUS84>();
        desktop::GridTable& table = windows.table(form.dgdTableAB);
        auto& total = windows.widget<QLabel>(form.lblTotalArea);
        const auto standsUnder = [&] {
            const QRect column = windows.stretch(form.dgdTableAB, US84PlotColumn::TotalArea);
            return total.isVisible() && total.x() == column.x() && total.width() == column.width() &&
                   total.y() >= table.geometry().bottom();
        };
        QCOMPARE(total.text(), QString("1250.50"));
        QVERIFY(standsUnder());
        const int before = total.width();
        table.horizontalHeader()->resizeSection(US84PlotColumn::TotalArea, before + 40);
        QTRY_VERIFY(total.width() == before + 40 && standsUnder());
        table.horizontalHeader()->resizeSection(US84PlotColumn::Village, 200);
        QTRY_VERIFY(standsUnder());
        QVERIFY(!total.visibleRegion().isEmpty());
    }

    void theTotalIsShownInFullUnderANarrowColumnAndOneSeenInPart() {
        OrderWindows windows;
        enterUS84(windows);
        windows.settle();
        auto& form = windows.form<frmUS84>();
        desktop::GridTable& table = windows.table(form.dgdTableAB);
        auto& total = windows.widget<QLabel>(form.lblTotalArea);
        const auto inFull = [&] {
            return total.isVisible() && total.width() >= total.sizeHint().width() &&
                   total.geometry().right() <= table.geometry().right() && total.x() >= table.x();
        };
        table.horizontalHeader()->resizeSection(US84PlotColumn::TotalArea, 12);
        QTRY_VERIFY(windows.stretch(form.dgdTableAB, US84PlotColumn::TotalArea).width() < total.sizeHint().width());
        QVERIFY(inFull());
        // Its column begins 10 points before the right edge.
        const QRect column = windows.stretch(form.dgdTableAB, US84PlotColumn::TotalArea);
        const int wider = table.geometry().right() - 10 - column.x();
        table.horizontalHeader()->resizeSection(US84PlotColumn::TotalArea, 120);
        table.horizontalHeader()->resizeSection(US84PlotColumn::Village,
                                                table.horizontalHeader()->sectionSize(US84PlotColumn::Village) + wider);
        QTRY_VERIFY(inFull());
    }

    void theTotalGoesWithItsColumnWhenThatIsScrolledAway() {
        OrderWindows windows;
        enterUS84(windows);
        windows.settle();
        auto& form = windows.form<frmUS84>();
        desktop::GridTable& table = windows.table(form.dgdTableAB);
        auto& total = windows.widget<QLabel>(form.lblTotalArea);
        table.horizontalHeader()->resizeSection(US84PlotColumn::Surplus, 2000);
        QTRY_VERIFY(table.horizontalScrollBar()->maximum() > 500);
        table.horizontalScrollBar()->setValue(table.horizontalScrollBar()->maximum());
        QTRY_VERIFY(!total.isVisible());
        table.horizontalScrollBar()->setValue(0);
        QTRY_VERIFY(total.isVisible());
    }

    void aLetterInACellOfTheOrdersChoosesTheOrder() {
        OrderWindows windows;
        auto& form = windows.form<frmScrutinyULC>();
        user::goToCell(form.dgdULCOrderDetails, 0, ULCOrderColumn::ULCOrderSelection);
        windows.window.forms().refresh();
        windows.settle();
        QTest::keyClick(windows.window.focusWidget(), Qt::Key_U);
        windows.settle();
        QVERIFY(form.cmbULCORDERDetails.focused());
        QCOMPARE(form.cmbULCORDERDetails.text(), "U/S 20 (a) (1)"s);
        QCOMPARE(windows.window.focusWidget(), &windows.widget(form.cmbULCORDERDetails));
        windows.key(Qt::Key_Tab);
        windows.key(Qt::Key_Tab);
        QCOMPARE(form.dgdULCOrderDetails.currentColumn(), int(ULCOrderColumn::Details));
        windows.key(Qt::Key_Space);
        QVERIFY(windows.form<frmULC20aDetails>().front());
        windows.key(Qt::Key_Escape);
        QVERIFY(!windows.proposal.forms.loaded("frmULC20aDetails"));
        QVERIFY(form.front());
    }

    void theWindowGrowsWithWhatTheAnswersOpen() {
        OrderWindows windows;
        enterUS20a1(windows);
        windows.settle();
        auto& form = windows.form<frmULC20aDetails>();
        const auto height = [&] { return windows.window.forms().windowOf(form)->height(); };
        const int desk = windows.window.forms().windowOf(form)->parentWidget()->height();
        QTRY_COMPARE(height(), desk);
        user::click(form.IsUlCUS84Submitted.no);
        user::click(form.IsReservationCondition.no);
        windows.window.forms().refresh();
        windows.settle();
        QCOMPARE(height(), desk);
    }

    void enterOnTheButtonOfDetailsOpensTheOrder() {
        OrderWindows windows;
        auto& form = windows.form<frmScrutinyULC>();
        user::focus(form.cmdDetails);
        windows.window.forms().refresh();
        windows.settle();
        QCOMPARE(windows.window.focusWidget(), &windows.widget(form.cmdDetails));
        windows.key(Qt::Key_Return);
        QVERIFY(windows.form<frmUS84>().front());
    }
};

static const Registered<OrdersTest> registered;

#include "OrdersTest.moc"
#include "proposal/OrderColumns.h"
