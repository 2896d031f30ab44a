#include "gui/LandRecords.h"

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <algorithm>

#include "desktop/ListBox.h"
#include "gui/Registry.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

namespace {

constexpr int plotName = 2;
constexpr int infoDate = 3;
constexpr int ownerStatus = 3;
constexpr int ownerEncumbrance = 4;
constexpr int holderSign = 3;

/// A session with the plots entered, worked by keys and mouse.
struct Records : Session {
    Records() {
        press("mnuNew");
        enterPlots(*this);
        settle();
        dialogs.take();
    }

    desktop::GridTable& table(const Grid& grid) { return widget<desktop::GridTable>(grid); }
    QRect place(const Grid& grid, int row, int column) {
        return table(grid).visualRect(table(grid).model()->index(row, column));
    }
    void click(const Grid& grid, int row, int column) {
        QTest::mouseClick(table(grid).viewport(), Qt::LeftButton, {}, place(grid, row, column).center());
        settle();
    }
    void clickButton(const Grid& grid, int row, int column) {
        const QRect button = table(grid).buttonRect(table(grid).model()->index(row, column));
        QTest::mouseClick(table(grid).viewport(), Qt::LeftButton, {}, button.center());
        settle();
    }
    void type(const QString& keys) {
        for (const QChar key : keys)
            QTest::keyClick(window.focusWidget(), key.toLatin1());
    }
    void key(Qt::Key key) {
        QTest::keyClick(window.focusWidget(), key);
        settle();
    }
};

}  // namespace

class LandRecordsTest : public QObject {
    Q_OBJECT

private slots:
    void plotsAreTypedByKeyboardAlone() {
        Session session;
        session.press("mnuNew");
        session.press("mnuPlotExtRelationShip");
        auto& form = session.form<frmPlotExtractRelation>();
        const auto press = [&](Qt::Key key) { QTest::keyClick(session.window.focusWidget(), key); };
        const auto type = [&](const char* text) {
            for (; *text; ++text)
                QTest::keyClick(session.window.focusWidget(), *text);
        };
        session.window.forms().act(Qt::OtherFocusReason, [&] { form.txtNoOfPlot712.setFocus(); });
        type("2");
        press(Qt::Key_Tab);
        press(Qt::Key_Tab);
        QVERIFY(form.dgd712ExtractRelation.focused());
        type("North");
        press(Qt::Key_Return);
        type("3");
        press(Qt::Key_Return);  // leads to the next plot with a zero in its name
        type("South");
        press(Qt::Key_Return);
        type("1");
        press(Qt::Key_Tab);
        QCOMPARE(form.dgd712ExtractRelation.cellText(0, plotName), "North"s);
        QCOMPARE(form.dgd712ExtractRelation.cellText(1, plotName), "0South"s);
        QCOMPARE(form.txtNoOfExtract712.text(), "4"s);
        press(Qt::Key_F2);
        QCOMPARE(session.dialogs.take().back().text, "7/12 Extract Relationship saved Succussfully ! "s);
    }

    void aClickBesideAFigureSelectsItSoThatTypingReplacesIt() {
        Session session;
        session.press("mnuNew");
        session.press("mnuPlotExtRelationShip");
        auto& form = session.form<frmPlotExtractRelation>();
        form.txtNoOfPlot712.setText("0");
        session.window.forms().act(Qt::OtherFocusReason, [&] { form.cmdAddPlot.setFocus(); });
        session.settle();
        auto& box = session.widget<QLineEdit>(form.txtNoOfPlot712);
        const QPoint beforeTheFigure(box.width() / 3, box.height() / 2);
        QTest::mouseClick(&box, Qt::LeftButton, {}, beforeTheFigure);
        QTest::keyClick(&box, Qt::Key_2);
        QCOMPARE(form.txtNoOfPlot712.text(), "2"s);
        QCOMPARE(form.dgd712ExtractRelation.rowCount(), 2);
        // A further click is one into the figure.
        QTest::mouseClick(&box, Qt::LeftButton, {}, beforeTheFigure);
        QVERIFY(!box.hasSelectedText());
    }

    void aPlotIsDeletedOnlyAfterAYes() {
        Records session;
        auto& form = session.form<frmPlotExtractRelation>();
        const Grid& plots = form.dgd712ExtractRelation;
        const auto deleteRow = [&] {
            QTest::keyClick(session.window.focusWidget(), Qt::Key_Delete, Qt::ControlModifier);
            session.settle();
        };
        session.click(plots, 0, plotName);
        deleteRow();
        QCOMPARE(plots.rowCount(), 2);
        QCOMPARE(session.dialogs.take().size(), 1U);
        session.dialogs.answers = {"yes"};
        deleteRow();
        QCOMPARE(plots.rowCount(), 1);
        QCOMPARE(session.table(plots).model()->rowCount(), 1);
        QCOMPARE(form.txtNoOfExtract712.text(), "1"s);
    }

    void deleteInACellOfThePrcPlotsEmptiesTheCell() {
        Records session;
        auto& form = session.form<frmPlotExtractRelation>();
        session.key(Qt::Key_F3);
        const Grid& plots = form.dgdPRCPlotRel;
        session.click(plots, 0, plotName);
        session.key(Qt::Key_Delete);
        QCOMPARE(plots.rowCount(), 1);
        QCOMPARE(plots.cellText(0, plotName), ""s);
        QVERIFY(session.dialogs.take().empty());
    }

    void aLetterOnAnOwnersListCellChoosesAnItem() {
        Records session;
        enterExtracts(session);
        session.settle();
        auto& form = session.form<frmMain712>();
        session.click(form.dgdOwner, 3, land::name);
        session.key(Qt::Key_Tab);
        QCOMPARE(form.dgdOwner.currentColumn(), ownerStatus);
        session.type("S");
        QVERIFY(form.cmbOwnSingingStatus.focused());
        session.key(Qt::Key_Tab);
        QCOMPARE(form.dgdOwner.cellText(3, ownerStatus), "Signed"s);
        QCOMPARE(form.dgdOwner.currentColumn(), ownerEncumbrance);
        session.type("b");
        session.key(Qt::Key_Return);
        QCOMPARE(form.dgdOwner.cellText(3, ownerEncumbrance), "Bank Loan"s);
        session.click(form.dgdOwner, 2, land::name);
        session.key(Qt::Key_Tab);
        session.key(Qt::Key_Tab);
        session.type("w");  // however soon after the letter before
        session.key(Qt::Key_Tab);
        QCOMPARE(form.dgdOwner.cellText(2, ownerEncumbrance), "Watan"s);
    }

    void theFirstTabInTheOwnersGridIsNotSwallowed() {
        Records session;
        enterExtracts(session);
        session.settle();
        auto& form = session.form<frmMain712>();
        session.window.forms().act(Qt::OtherFocusReason, [&] { user::pick(form.cmbExtract, 0); });
        session.click(form.dgdInfoOfExtract, 0, land::infoHolders);
        session.key(Qt::Key_Tab);
        QVERIFY(form.dgdOwner.focused());
        QCOMPARE(form.dgdOwner.currentColumn(), OwnerColumn::OwnNo);
        session.key(Qt::Key_Tab);
        QCOMPARE(form.dgdOwner.currentColumn(), land::name);
        session.type("Rao");
        session.key(Qt::Key_Return);
        QCOMPARE(form.dgdOwner.cellText(0, land::name), "Rao"s);
    }

    void f3GoesToTheOtherTabFromWithinTheGrid() {
        Records session;
        auto& form = session.form<frmPlotExtractRelation>();
        session.click(form.dgd712ExtractRelation, 0, plotName);
        session.type("Typed");
        session.key(Qt::Key_F3);
        QCOMPARE(form.SSTab1.tab(), 1);
        QCOMPARE(form.dgd712ExtractRelation.cellText(0, plotName), "Typed"s);
        QVERIFY(session.widget(form.dgdPRCPlotRel).isVisible());
        QVERIFY(!session.widget(form.dgd712ExtractRelation).isVisible());
    }

    void ownersComeWithTheirNumberAndTheirNamesAreTyped() {
        Records session;
        session.press("mnu712Ext");
        auto& form = session.form<frmMain712>();
        session.click(form.dgdInfoOfExtract, 0, land::infoOwners);
        session.type("3");
        session.key(Qt::Key_Return);
        QCOMPARE(session.table(form.dgdOwner).model()->rowCount(), 3);
        session.click(form.dgdOwner, 1, land::name);
        session.type("Meena Patil");
        session.click(form.dgdOwner, 2, land::name);
        session.type("Anil");
        session.key(Qt::Key_Down);
        QCOMPARE(form.dgdOwner.cellText(1, land::name), "Meena Patil"s);
        QCOMPARE(form.dgdOwner.cellText(2, land::name), "Anil"s);
    }

    void theDateIsPickedOverItsCell() {
        Records session;
        session.press("mnu712Ext");
        auto& form = session.form<frmMain712>();
        session.clickButton(form.dgdInfoOfExtract, 0, infoDate);
        auto& picker = session.widget<QDateEdit>(form.DTPicker1);
        QVERIFY(picker.isVisible());
        QVERIFY(form.DTPicker1.focused());
        QCOMPARE(picker.geometry(), session.place(form.dgdInfoOfExtract, 0, infoDate));
        picker.setDate({2019, 7, 12});
        session.settle();
        QCOMPARE(form.dgdInfoOfExtract.cellText(0, infoDate), "12/07/2019"s);
    }

    void signingStatusAndEncumbranceArePickedOverTheirCells() {
        Records session;
        enterExtracts(session);
        session.settle();
        auto& form = session.form<frmMain712>();
        session.clickButton(form.dgdOwner, 3, ownerStatus);
        auto& status = session.widget<desktop::ListBox>(form.cmbOwnSingingStatus);
        QVERIFY(status.isVisible());
        QCOMPARE(status.geometry(), session.place(form.dgdOwner, 3, ownerStatus));
        QVERIFY(form.cmbOwnSingingStatus.focused());
        emit status.activated(2);
        session.key(Qt::Key_Tab);
        QCOMPARE(form.dgdOwner.cellText(3, ownerStatus), "PAH Given"s);
        QVERIFY(form.dgdOwner.focused());
        session.click(form.dgdOwner, 3, ownerEncumbrance);
        QVERIFY(!status.isVisible());
        auto& encumbrance = session.widget<desktop::ListBox>(form.cmbEncumber);
        QCOMPARE(encumbrance.geometry(), session.place(form.dgdOwner, 3, ownerEncumbrance));
        emit encumbrance.activated(8);
        session.click(form.dgdOwner, 0, land::name);
        QCOMPARE(form.dgdOwner.cellText(3, ownerEncumbrance), "Watan"s);
        QVERIFY(!encumbrance.isVisible());
    }

    void aHolderSignsByTheButtonInTheCell() {
        Records session;
        enterExtracts(session);
        session.settle();
        auto& form = session.form<frmMain712>();
        QCOMPARE(form.dgdPAH.cellText(0, holderSign), "No"s);
        session.clickButton(form.dgdPAH, 0, holderSign);
        QCOMPARE(form.dgdPAH.cellText(0, holderSign), "Yes"s);
        session.key(Qt::Key_Space);
        QCOMPARE(form.dgdPAH.cellText(0, holderSign), "No"s);
    }

    void aSaveOfTheRelationUnloadsTheFormWhoseGridWasTypedIn() {
        Records session;
        enterExtracts(session);
        session.settle();
        auto& extracts = session.form<frmMain712>();
        session.click(extracts.dgdOwner, 0, land::name);
        session.type("half typed");
        const QPointer<QWidget> table = &session.table(extracts.dgdOwner);
        auto& relation = session.form<frmPlotExtractRelation>();
        session.window.forms().act(Qt::OtherFocusReason, [&] {
            relation.show();
            user::click(relation.cmdSave712Relation);
        });
        QVERIFY(!session.proposal.forms.loaded("frmMain712"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!table);
        const auto rows = session.proposal.tables.rsOwner712->allRows();
        QCOMPARE(std::ranges::count(rows, Value("half typed"s), [](const auto& row) { return row[land::name]; }), 1);
        session.press("mnu712Ext");
        QVERIFY(session.table(session.form<frmMain712>().dgdOwner).isVisible());
    }

    void theExtractIsNamedOverItsGridAndToScreenReaders() {
        Records session;
        session.press("mnu712Ext");
        auto& form = session.form<frmMain712>();
        auto& heading = session.widget<QLabel>(form.lblInfoExtract);
        session.window.forms().act(Qt::OtherFocusReason, [&] { user::pick(form.cmbExtract, 2); });
        session.settle();
        QCOMPARE(heading.text(), QString("Information For Extract No :- 3"));
        QVERIFY(heading.font().bold());
        QCOMPARE(heading.x(), session.table(form.dgdInfoOfExtract).x());
        QCOMPARE(session.table(form.dgdInfoOfExtract).accessibleName(), QString("Information For Extract No :- 3"));
        QCOMPARE(session.table(form.dgdOwner).accessibleName(), QString("Original Ownership"));
        QCOMPARE(session.table(form.dgdPAH).accessibleName(), QString("Power Of Attorney Information"));
    }
};

static const Registered<LandRecordsTest> registered;

#include "LandRecordsTest.moc"
#include "proposal/LandRecordColumns.h"
