#include <QAccessible>
#include <QDir>
#include <QMenuBar>
#include <QStatusBar>
#include <QTemporaryDir>

#include "desktop/ReviewLook.h"
#include "desktop/ReviewMap.h"
#include "gui/LandRecords.h"
#include "gui/Registry.h"
#include "gui/ReviewSession.h"
#include "particulars/AnnexureACont.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

class ReviewPanelTest : public QObject {
    Q_OBJECT

private slots:
    void thePanelIsClosedAtTheStartAndF9OpensAndClosesIt() {
        ReviewSession session;
        QVERIFY(!session.panel());
        QVERIFY(!session.counts().isVisible());
        const int room = session.window.centralWidget()->width();
        session.open();
        QVERIFY(session.panel()->isVisible());
        QVERIFY(session.panel()->hasKeys());
        QVERIFY(session.entry("reviewPanelEntry").isChecked());
        QVERIFY(session.window.centralWidget()->width() >= 1000);
        QTest::keyClick(&session.list(), Qt::Key_F9);
        session.settle();
        QVERIFY(!session.panel()->isVisible());
        QVERIFY(!session.counts().isVisible());
        QVERIFY(!session.entry("reviewPanelEntry").isChecked());
        QVERIFY(session.keyboardInForm());
        QCOMPARE(session.window.centralWidget()->width(), room);
    }

    void theMenuStandsBeforeHelpAndItsLettersDoNotClash() {
        Session session;
        QStringList titles;
        for (const QAction* action : session.window.menuBar()->actions())
            titles += action->text();
        QCOMPARE(titles.indexOf("&Review"), titles.indexOf("&Help") - 1);
        const auto letters = [](const QList<QAction*>& actions) {
            QStringList all;
            for (const QAction* action : actions)
                if (const qsizetype mark = action->text().indexOf('&'); mark >= 0)
                    all += action->text().mid(mark + 1, 1).toUpper();
            return all;
        };
        const auto distinct = [](const QStringList& all) {
            return QSet<QString>(all.begin(), all.end()).size() == all.size();
        };
        QVERIFY(distinct(letters(session.window.menuBar()->actions())));
        QVERIFY(distinct(letters(session.window.findChild<QMenu*>("reviewMenu")->actions())));
        QVERIFY(!session.window.findChild<QAction*>("reviewGuide"));
    }

    void theThreeGroupsHoldWhatTheReviewFinds() {
        ReviewSession session;
        session.form<frmAnnexureA>().txtArchNm.setText("Lim@ye");
        session.open();
        const std::vector<Finding> findings = review(session.shell);
        std::array<int, 3> counted{};
        for (const Finding& finding : findings)
            ++counted.at(static_cast<std::size_t>(finding.kind));
        QVERIFY(counted[0] > 10 && counted[1] > 0);
        QCOMPARE(session.title(0), QString("Missing (%1)").arg(counted[0]));
        QCOMPARE(session.title(1), QString("Will not arrive as typed (%1)").arg(counted[1]));
        QCOMPARE(session.title(2), QString("To consider (%1)").arg(counted[2]));
        for (int group = 0; group < 3; ++group)
            QCOMPARE(session.lines(group).size(), counted.at(static_cast<std::size_t>(group)));
        QCOMPARE(
            session.counts().text(),
            QString("%1 missing, %2 not as typed, %3 to consider").arg(counted[0]).arg(counted[1]).arg(counted[2]));
        QCOMPARE(session.lines(0)[0], QString("Proposal Title. Proposal Title Can not be blank ! Particulars of "
                                              "Development, page 1: proposal and applicant"));
        // The text that is told there stays, and the counts stand behind it.
        const auto* told = session.window.findChild<QLabel*>("statusPanel");
        QCOMPARE(told->text(), QString("Powered by   Meridane Works"));
        QVERIFY(session.counts().geometry().left() > told->geometry().right());
    }

    void f8LeadsFromOneFindingToTheNextAndRound() {
        ReviewSession session;
        session.open();
        std::vector<std::string> places;
        for (const Finding& finding : review(session.shell))
            if (finding.kind == FindingKind::Missing)
                places.push_back(finding.form + "." + finding.control);
        for (std::size_t step = 0; step < 3; ++step) {
            session.key(Qt::Key_F8);
            QCOMPARE(session.focus(), places[step]);
            QVERIFY(session.keyboardInForm());
        }
        session.key(Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(session.focus(), places[1]);
        session.key(Qt::Key_F8, Qt::ShiftModifier);
        session.key(Qt::Key_F8, Qt::ShiftModifier);
        QCOMPARE(session.list().currentIndex().row(), static_cast<int>(places.size()) - 1);
        session.key(Qt::Key_F8);
        QCOMPARE(session.focus(), places[0]);
    }

    void f8WithAClosedPanelOpensItAndLeavesTheKeyboard() {
        ReviewSession session;
        QVERIFY(session.keyboardInForm());
        session.key(Qt::Key_F8);
        QVERIFY(session.panel()->isVisible());
        QVERIFY(session.keyboardInForm());
        QTRY_COMPARE(session.list().currentIndex().row(), 0);
        QCOMPARE(session.focus(), "frmAnnexureA.txtTitle"s);
    }

    void whatIsMendedGoesAfterAPauseAndTheNextOneFollows() {
        ReviewSession session;
        session.open();
        session.key(Qt::Key_F8);
        QCOMPARE(session.focus(), "frmAnnexureA.txtTitle"s);
        const QStringList before = session.lines(0);
        for (int key = 0; key < 4; ++key) {
            QTest::qWait(100);
            QTest::keyClicks(QApplication::focusWidget(), "a");
        }
        QTest::qWait(150);
        QCOMPARE(session.lines(0), before);  // no pause of 300 milliseconds yet
        QTRY_COMPARE(session.lines(0), before.mid(1));
        session.key(Qt::Key_F8);
        QCOMPARE(session.lines(0)[0].section('.', 0, 0), QString("Case Type"));
        QCOMPARE(session.focus(), "frmAnnexureA.cboCaseType"s);
    }

    void anOldLookIsDropped() {
        ReviewSession session;
        desktop::ReviewLook look(session.shell);
        int old = 0;
        std::unique_ptr<desktop::ReviewResult> result;
        look.done = [&](std::unique_ptr<desktop::ReviewResult> found) { found ? result.swap(found) : void(++old); };
        look.begin();
        QVERIFY(look.running());
        look.outdate();
        QTRY_COMPARE(old, 1);
        QVERIFY(!look.running() && !result);
        look.begin();
        QTRY_VERIFY(result);
        QCOMPARE(result->groups.size(), std::size_t{3});
        QVERIFY(result->failure.empty());
        look.begin();  // and one that nobody waits for
    }

    void aPageThatIsClosedSaysWhichAnswerOpensIt() {
        ReviewSession session(true);
        session.form<frmAnnexureA>().txtRegNm.setText("");
        session.key(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(&session.field(), "roofs");
        session.settle();
        QVERIFY(session.lines(0).size() >= 1);
        session.key(Qt::Key_Return);
        QCOMPARE(session.notice(),
                 QString("This page opens when the first page is complete. It still needs \u201cReg. No.\u201d."));
        const Form* second = session.proposal.forms.loaded(AnnexureACont::formName);
        QVERIFY(!second || !second->visible());
        session.form<frmAnnexureA>().txtRegNm.setText("CA/1");
        session.key(Qt::Key_Return);
        QVERIFY(session.form<AnnexureACont>().front());
        QCOMPARE(session.focus(), "AnnexureACont.txtRoofs"s);
        QCOMPARE(session.notice(), QString());
        QVERIFY(session.keyboardInForm());
    }

    void questionsAreFoundAsTheyAreTyped() {
        ReviewSession session(true);
        session.key(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(session.field().hasFocus());
        QTest::keyClicks(&session.field(), "bank");
        QVERIFY(session.lines(0).size() >= 1);
        QVERIFY2(session.lines(0)[0].contains("Bank Name"), qPrintable(session.lines(0).join('|')));
        QTest::keyClicks(&session.field(), " of nowhere");
        QCOMPARE(session.lines(0).size(), 0);
        session.key(Qt::Key_Escape);
        QCOMPARE(session.field().text(), QString());
        QTRY_COMPARE(session.title(2).section(' ', 0, 1), QString("To consider"));
        session.key(Qt::Key_Escape);
        QVERIFY(session.keyboardInForm());
    }

    void theMapTellsWhatIsAnsweredAndLeadsToThePage() {
        ReviewSession session(true);
        session.form<frmAnnexureA>().txtRegNm.setText("");
        session.open();
        QTreeWidget& map = session.map();
        QCOMPARE(map.topLevelItem(0)->text(0), QString("Particulars of Development"));
        QCOMPARE(map.topLevelItem(0)->childCount(), 9);
        const QTreeWidgetItem& first = *map.topLevelItem(0)->child(0);
        QCOMPARE(first.text(0), QString("1: proposal and applicant"));
        QCOMPARE(first.text(2), QString::number(session.lines(0).size()));
        const QString answered = first.text(1);
        session.form<frmAnnexureA>().txtRegNm.setText("CA/1");
        session.press("mnuAnnexure");
        QTRY_VERIFY(map.topLevelItem(0)->child(0)->text(1) != answered);
        QCOMPARE(map.topLevelItem(0)->child(0)->text(1).section(' ', 0, 0).toInt(),
                 answered.section(' ', 0, 0).toInt() + 1);
        session.panel()->takeKeys();
        session.key(Qt::Key_Tab);
        QVERIFY(map.hasFocus());
        map.setCurrentItem(map.topLevelItem(0)->child(2));
        session.key(Qt::Key_Return);
        QCOMPARE(session.form<frmAnnexureA>().PropTab.tab(), 2);
        QVERIFY(session.keyboardInForm());
    }

    void theMapGivesNamesTheRoomWhereNothingIsMissing() {
        QWidget panel;
        desktop::ReviewMap map(panel);
        desktop::ReviewPage page{.form = "Fees", .page = "", .count = {}, .missing = 0};
        map.show({page});
        QVERIFY(map.isColumnHidden(2));
        page.missing = 1;
        map.show({page});
        QVERIFY(!map.isColumnHidden(2));
    }

    void behindAModalFormNothingOfItIsReached() {
        ReviewSession session(true);
        session.open();
        auto& order = session.form<frmNaOrder>();
        session.window.forms().act(Qt::OtherFocusReason, [&] { order.showModal(); });
        session.settle();
        QVERIFY(!session.entry("reviewNext").isEnabled());
        QVERIFY(!session.entry("reviewPanelEntry").isEnabled());
        const std::string focus = session.focus();
        session.key(Qt::Key_F8);
        QTest::mouseClick(session.map().viewport(), Qt::LeftButton, {},
                          session.map().visualItemRect(session.map().topLevelItem(0)->child(1)).center());
        session.settle();
        QCOMPARE(session.focus(), focus);
        QVERIFY(session.notice().startsWith("Close"));
        session.window.forms().act(Qt::OtherFocusReason, [&] { order.hide(); });
        session.settle();
        QVERIFY(session.entry("reviewNext").isEnabled());
    }

    void theKeyboardStaysInThePanelUntilTheUserActsOnAForm() {
        ReviewSession session;
        QTest::keyClicks(QApplication::focusWidget(), "x");
        session.open();
        QTest::qWait(250);  // ticks that colour the box of the focus
        QVERIFY(session.list().hasFocus());
        for (QWidget* next : std::initializer_list<QWidget*>{&session.map(), &session.field(), &session.list()}) {
            session.key(Qt::Key_Tab);
            QVERIFY(next->hasFocus());
        }
        session.key(Qt::Key_Backtab);
        QVERIFY(session.field().hasFocus());
        session.key(Qt::Key_F6);
        QVERIFY(session.keyboardInForm());
        session.key(Qt::Key_F6);
        QVERIFY(session.list().hasFocus());
        session.key(Qt::Key_Down);
        session.key(Qt::Key_Down);
        session.key(Qt::Key_Return);
        QVERIFY(session.keyboardInForm());
        QVERIFY(session.panel()->isVisible());
    }

    void withoutAProposalThePanelSaysSo() {
        Session session;
        QTest::keyClick(&session.window, Qt::Key_F9);
        session.settle();
        QVERIFY(session.window.findChild<QLabel*>("reviewNotice")->text().startsWith("There is no proposal yet"));
        QTest::keyClick(&session.window, Qt::Key_F8);
        session.settle();
        QVERIFY(session.proposal.forms.all().empty());
    }

    void screenReadersAreToldEachLineAsAWhole() {
        ReviewSession session;
        session.open();
        QAccessibleInterface* list = QAccessible::queryAccessibleInterface(&session.list());
        QCOMPARE(list->text(QAccessible::Name), QString("Findings"));
        QAccessibleTableInterface* table = list->tableInterface();
        QVERIFY(table && table->rowCount() > 10);
        QCOMPARE(table->cellAt(0, 0)->text(QAccessible::Name), session.title(0));
        QCOMPARE(table->cellAt(1, 0)->text(QAccessible::Name), session.lines(0)[0]);
        QAccessibleInterface* map = QAccessible::queryAccessibleInterface(&session.map());
        QCOMPARE(map->text(QAccessible::Name), QString("Forms and pages"));
        const QString page = map->tableInterface()->cellAt(1, 0)->text(QAccessible::Name);
        QVERIFY2(page.startsWith("1: proposal and applicant, ") && page.endsWith(" missing"), qPrintable(page));
        QCOMPARE(QAccessible::queryAccessibleInterface(&session.field())->text(QAccessible::Name),
                 QString("Find a question"));
    }
};

static const Registered<ReviewPanelTest> registered;

#include "ReviewPanelTest.moc"
