// What the menu of the review does beside leading to findings.

#include <QMenu>
#include <QTemporaryDir>
#include <fstream>
#include <iterator>

#include "desktop/ReviewDesk.h"
#include "gui/LandRecords.h"
#include "gui/Orders.h"
#include "gui/Registry.h"
#include "gui/ReviewSession.h"
#include "proposal/LandRecordColumns.h"
#include "review/GoTo.h"
#include "unit/StateText.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

namespace {

/// The program in a folder of its own.
class OwnFolder : public RecordingProgram {
public:
    explicit OwnFolder(std::string path) : path(std::move(path)) {}
    std::string folder() const override { return path; }

private:
    std::string path;
};

/// A proposal with land records whose second and third extract lack their numbers.
struct LandSession : ReviewSession {
    LandSession() : ReviewSession(true) {
        enterPlots(*this);
        enterExtracts(*this);
        auto& form = this->form<frmMain712>();
        user::pick(form.cmbExtract, 1);
        user::editCell(form.dgdInfoOfExtract, 0, ExtractColumn::SurveyNo, "");
        user::editCell(form.dgdOwner, 1, OwnerColumn::Name, "");
        user::pick(form.cmbExtract, 0);
        press("mnuAnnexure");
    }
};

/// Enter on the first line that holds these words; false when none does.
bool enterOnLine(ReviewSession& session, const QString& words) {
    for (int group = 0; group < session.list().model()->rowCount(); ++group) {
        const QStringList lines = session.lines(group);
        const auto line = std::ranges::find_if(lines, [&](const QString& each) { return each.contains(words); });
        if (line == lines.end())
            continue;
        session.list().setCurrentIndex(session.list().model()->index(static_cast<int>(line - lines.begin()), 0,
                                                                     session.list().model()->index(group, 0)));
        session.list().setFocus();
        session.key(Qt::Key_Return);
        return true;
    }
    return false;
}

/// The order under section 8 (4) of that extract, as one text.
std::string orderOf(ReviewSession& session, int extract) {
    std::string text;
    for (const auto& row : session.proposal.tables.rsULCOrderUS84->rowsOfKey(extract))
        for (const Value& cell : row)
            text += valueText(cell) + "|";
    return text;
}

std::string bytesOf(const QString& file) {
    std::ifstream stream(file.toStdString(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

class ReviewCommandsTest : public QObject {
    Q_OBJECT

private slots:
    void aCellOfALandRecordIsReachedWithItsExtractChosen() {
        LandSession session;
        session.open();
        auto& form = session.form<frmMain712>();
        const auto goToLine = [&](const QString& part) { QVERIFY(enterOnLine(session, part)); };
        goToLine("Name Of Owner (no. 2, row 2)");
        QVERIFY(form.front());
        QCOMPARE(form.cmbExtract.listIndex(), 1);
        QVERIFY(form.dgdOwner.focused());
        QCOMPARE(form.dgdOwner.currentRow(), 1);
        QCOMPARE(form.dgdOwner.currentColumn(), static_cast<int>(OwnerColumn::Name));
        QVERIFY(session.keyboardInForm());
        user::pick(form.cmbExtract, 0);
        session.settle();
        goToLine("Survey No (no. 2)");
        QVERIFY(form.dgdInfoOfExtract.focused());
        QCOMPARE(form.cmbExtract.listIndex(), 1);
    }

    /// A save lets go of the owners; later looks at the tables, of the filters.
    void aCellIsReachedWithItsExtractChosenAfterASaveToo() {
        LandSession session;
        auto& form = session.form<frmMain712>();
        const auto reach = [&](const char* name, const Grid& grid, int row, const std::string& extract) {
            form.cmdSave_Click();
            session.proposal.tables.rsExtract712->setFilter("");
            QVERIFY(!form.dgdOwner.table());
            QVERIFY(goTo(session.proposal, "frmMain712", name, row, OwnerColumn::Name));
            QVERIFY(grid.focused());
            QVERIFY(form.dgdOwner.table());
            QCOMPARE(valueText(grid.table()->get(ExtractColumn::ExtNo)), extract);
            QCOMPARE(std::to_string(form.cmbExtract.listIndex() + 1), extract);
            QVERIFY(!grid.table()->filter().empty());
        };
        reach("dgdOwner", form.dgdOwner, 0, valueText(session.proposal.tables.rsOwner712->allRows()[0][0]));
        reach("dgdInfoOfExtract", form.dgdInfoOfExtract, 1, "2");
        reach("dgdInfoOfExtract", form.dgdInfoOfExtract, 0, "1");
    }

    void aFormThatNobodyOpenedYetIsOpenedAsItsMenuDoes() {
        LandSession session;
        session.open();
        QVERIFY(!session.proposal.forms.loaded("frmPRCEXT"));
        const QStringList lines = session.lines(0);
        const auto line =
            std::ranges::find_if(lines, [](const QString& each) { return each.contains("property card"); });
        QVERIFY(line != lines.end());
        const QModelIndex group = session.list().model()->index(0, 0);
        session.list().setCurrentIndex(session.list().model()->index(static_cast<int>(line - lines.begin()), 0, group));
        session.key(Qt::Key_Return);
        auto& form = session.form<frmPRCEXT>();
        QVERIFY(form.front());
        QCOMPARE(form.cmbExtract.listCount(), 2);
        QVERIFY(form.dgdInfoOfExtract.focused());
    }

    void aProposalIsComparedWithASavedOne() {
        QTemporaryDir folder;
        LandSession session;
        const std::string file = folder.filePath("earlier.xml").toStdString();
        session.form<frmAnnexureA>().txtApplicantNm.setText("Meena Patil");
        session.dialogs.answers = {file};
        session.press("mnuSave");
        QVERIFY(std::filesystem::exists(file));
        session.form<frmAnnexureA>().txtApplicantNm.setText("Sunil Karkhanis");
        session.proposal.tables.rsOwner712->setFilter("");
        session.proposal.tables.rsOwner712->moveFirst();
        session.proposal.tables.rsOwner712->deleteRow();
        session.form<frmMain712>().cmbExtract_Click();
        session.open();
        const auto state = [&] {
            session.shell.Timer1_Timer();
            session.shell.Timer2_Timer();
            return stateOf(session.proposal, session.shell);
        };
        const std::string before = state();
        session.dialogs.take();
        session.dialogs.answers = {file};
        session.entry("reviewCompare").trigger();
        session.settle();
        QVERIFY(session.dialogs.messages.empty());
        QCOMPARE(session.panel()->title(), QString("Compared with earlier.xml"));
        const QStringList different = session.lines(0);
        QVERIFY2(
            different.join('\n').contains("Here \u201cSunil Karkhanis\u201d, in the file \u201cMeena Patil\u201d."),
            qPrintable(different.join('\n')));
        QVERIFY(session.lines(2).size() >= 1);
        QCOMPARE(state(), before);
        QVERIFY(session.list().hasFocus());
        session.key(Qt::Key_F8);
        QVERIFY(session.keyboardInForm());
        session.key(Qt::Key_F6);
        session.key(Qt::Key_Escape);
        QTRY_VERIFY(session.title(0).startsWith("Missing"));
    }

    /// An order's own form saves what it shows as the order of the extract that is chosen.
    void aLineAboutAnOrderNeverLeadsIntoAFormOfAnotherOrder() {
        QTemporaryDir folder;
        LandSession session;
        enterCards(session);
        enterScrutiny(session);
        enterUS84(session);
        const auto closeOrder = [&] { user::click(session.form<frmUS84>().cmdClose); };
        closeOrder();
        const std::string file = folder.filePath("earlier.xml").toStdString();
        session.dialogs.answers = {file};
        session.press("mnuSave");
        session.press("mnuUlcOrder");
        auto& scrutiny = session.form<frmScrutinyULC>();
        user::pick(scrutiny.cmbExtract, 1);
        user::pick(scrutiny.cmbULCORDERDetails, 1);
        user::click(scrutiny.cmdDetails);
        user::type(session.form<frmUS84>().txtCaseNumber, "ULC/84/205");
        user::click(session.form<frmUS84>().cmdSave);
        closeOrder();
        user::pick(scrutiny.cmbULCORDERDetails, 3);
        user::pick(scrutiny.cmbExtract, 0);
        const std::string first = orderOf(session, 1);
        const std::string second = orderOf(session, 2);
        QVERIFY(first.find("ULC/84/112") != std::string::npos);
        QVERIFY(second.find("ULC/84/205") != std::string::npos);
        session.open();
        session.dialogs.take();
        session.dialogs.answers = {file};
        session.entry("reviewCompare").trigger();
        session.settle();

        QVERIFY(enterOnLine(session, "CaseNo (no. 2)"));
        QVERIFY(!session.proposal.forms.loaded("frmUS84"));
        QVERIFY(scrutiny.front());
        QCOMPARE(scrutiny.cmbExtract.listIndex(), 1);
        QVERIFY(scrutiny.dgdULCOrderDetails.focused());

        // The order of the first extract is open: its form stays with it.
        user::pick(scrutiny.cmbExtract, 0);
        user::click(scrutiny.cmdDetails);
        QVERIFY(enterOnLine(session, "CaseNo (no. 2)"));
        QVERIFY(scrutiny.front());
        user::click(session.form<frmUS84>().cmdSave);
        QCOMPARE(orderOf(session, 1), first);
        QCOMPARE(orderOf(session, 2), second);
        QVERIFY(session.dialogs.messages.empty());
    }

    void whatIsNoProposalIsToldAndComparedWithNothing() {
        QTemporaryDir folder;
        ReviewSession session(true);
        std::ofstream(folder.filePath("a.xml").toStdString()) << "<other/>";
        session.dialogs.answers = {folder.filePath("a.xml").toStdString()};
        session.entry("reviewCompare").trigger();
        session.settle();
        QCOMPARE(session.panel()->title(), QString("a.xml is no proposal."));
        session.dialogs.answers = {folder.filePath("missing.xml").toStdString()};
        session.entry("reviewCompare").trigger();
        session.settle();
        QCOMPARE(session.dialogs.messages.size(), std::size_t{1});
        QCOMPARE(session.dialogs.messages.back().text, "File not found"s);
        session.dialogs.answers = {"cancel"};
        session.entry("reviewCompare").trigger();
        session.settle();
        QCOMPARE(session.dialogs.messages.size(), std::size_t{1});
    }

    void theListIsSavedAsText() {
        QTemporaryDir folder;
        ReviewSession session;
        session.form<frmAnnexureA>().txtTitle.setText("Row houses");
        session.open();
        const QString file = folder.filePath("list.txt");
        session.dialogs.answers = {file.toStdString()};
        session.entry("reviewSave").trigger();
        session.settle();
        const std::string text = bytesOf(file);
        QVERIFY2(text.starts_with("Findings\nRow houses\n15/03/2024\n\nMissing ("), text.c_str());
        for (int group = 0; group < 3; ++group)
            for (const QString& line : session.lines(group))
                QVERIFY(text.find(line.left(8).toStdString()) != std::string::npos);
        // A list that cannot be written leaves the earlier one.
        session.files.failAtStep(static_cast<int>(FileStore::Step::Write));
        session.dialogs.answers = {file.toStdString()};
        session.entry("reviewSave").trigger();
        session.settle();
        QCOMPARE(session.dialogs.messages.back().text, "Disk full"s);
        QCOMPARE(bytesOf(file), text);
    }

    void theListIsSavedAsPdf() {
        QTemporaryDir folder;
        RecordingDialogs dialogs;
        FixedClock clock;
        FileStore files;
        ProgramFolder program;
        desktop::PdfFiles printer(files);
        Proposal proposal{{dialogs, clock, files, program, Progress::unheard(), printer}};
        mdiInterface shell{proposal};
        desktop::MainWindow window{proposal, shell};
        window.furnish();
        window.show();
        window.forms().act(Qt::OtherFocusReason, [&] { shell.press("mnuNew"); });
        QCoreApplication::processEvents();
        QTest::keyClick(&window, Qt::Key_F9);
        QTRY_VERIFY(window.findChild<QLabel*>("reviewCounts")->isVisible());
        const QString file = folder.filePath("list.pdf");
        dialogs.answers = {file.toStdString()};
        window.findChild<QAction*>("reviewSave")->trigger();
        QVERIFY(dialogs.messages.empty());
        QVERIFY(bytesOf(file).starts_with("%PDF-"));
        QVERIFY(bytesOf(file).size() > 5000);
    }

    void theUserGuideHasAnEntryWhereOneIsInstalled() {
        QTemporaryDir folder;
        for (const bool installed : {false, true}) {
            if (installed)
                std::ofstream(folder.filePath("guide.html").toStdString()) << "<p>Guide</p>";
            TestPorts machine;
            OwnFolder program(folder.path().toStdString());
            Proposal proposal{{machine.dialogs, machine.clock, machine.files, program}};
            mdiInterface shell{proposal};
            desktop::MainWindow window{proposal, shell};
            window.furnish();
            auto* entry = window.findChild<QAction*>("reviewGuide");
            QCOMPARE(entry != nullptr, installed);
            if (!entry)
                continue;
            QVERIFY(window.findChild<QMenu*>("reviewMenu")->actions().contains(entry));
            entry->trigger();  // a window without a screen has nothing to show it in
            QCOMPARE(machine.dialogs.messages.size(), std::size_t{1});
            QVERIFY(QString::fromStdString(machine.dialogs.messages[0].text).contains(folder.filePath("guide.html")));
        }
    }
};

static const Registered<ReviewCommandsTest> registered;

#include "ReviewCommandsTest.moc"
