#include <QLabel>
#include <QMenuBar>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabBar>
#include <QToolButton>
#include <filesystem>

#include "controls/FileStore.h"
#include "desktop/ChildWindow.h"
#include "desktop/MainWindow.h"
#include "desktop/PaperPages.h"
#include "desktop/PaperPdf.h"
#include "desktop/PreviewPage.h"
#include "desktop/PreviewWindow.h"
#include "gui/Registry.h"
#include "gui/Session.h"
#include "particulars/frmAnnexureA.h"
#include "reports/ReportDesk.h"
#include "reports/frmReportNav.h"

using namespace plandesk;
using namespace plandesk::test;
using desktop::PreviewWindow;

namespace {

/// A whole system whose papers become files.
struct PreviewSession {
    RecordingDialogs dialogs;
    FixedClock clock;
    FileStore files;
    ProgramFolder program;
    desktop::PdfFiles printer{files};
    Proposal proposal{{dialogs, clock, files, program, Progress::unheard(), printer}};
    mdiInterface shell{proposal};
    desktop::MainWindow window{proposal, shell};

    explicit PreviewSession(QSize size = {1100, 760}) {
        window.furnish();
        window.resize(size);
        window.show();
        QApplication::setActiveWindow(&window);
        settle();
        window.forms().act(Qt::OtherFocusReason, [&] { shell.press("mnuNew"); });
        settle();
    }
    static void settle() {
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }
    ReportDesk& reports() { return shell.reports(); }
    frmAnnexureA& particulars() { return proposal.forms.get<frmAnnexureA>(); }
    PreviewWindow& show(std::string_view report) {
        window.forms().act(Qt::OtherFocusReason, [&] { reports().show(report); });
        settle();
        return *window.previews().windowOf(report);
    }
    PreviewWindow* find(std::string_view report) { return window.previews().windowOf(report); }
    QTabBar& row() { return *window.statusBar()->findChild<QTabBar*>("openForms"); }
    static void press(QWidget* target, Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(target ? target : QApplication::focusWidget(), key, with);
        settle();
    }
    static void click(PreviewWindow& preview, const char* button) {
        QTest::mouseClick(preview.findChild<QToolButton*>(button), Qt::LeftButton);
        settle();
    }
};

QString textOf(const PreviewWindow& preview) {
    return preview.page().accessibleDescription();
}

QString labelOf(const PreviewWindow& preview, const char* name) {
    return preview.findChild<QLabel*>(name)->text();
}

}  // namespace

class PreviewTest : public QObject {
    Q_OBJECT

private slots:
    void aReportStandsWhereItIsToldAtFifteenTwipsToThePixel() {
        PreviewSession session;
        session.reports().place("rptReciept", {.left = 150, .top = 300, .width = 12000, .height = 7500});
        PreviewWindow& preview = session.show("rptReciept");
        QCOMPARE(preview.pos(), QPoint(10, 20));
        QVERIFY(qAbs(preview.width() - 800) <= 10);
        QVERIFY(qAbs(preview.height() - 500) <= 40);  // and its frame
        QVERIFY(preview.isVisible());
        QVERIFY(textOf(preview).contains("The Commissioner,"));
    }

    void aReportStaysWithinASmallDesk() {
        PreviewSession session({640, 480});
        session.reports().place("rptReciept", {.left = 9000, .top = 9000, .width = 15000, .height = 9500});
        const PreviewWindow& preview = session.show("rptReciept");
        QVERIFY(session.window.centralWidget()->rect().contains(preview.geometry()));
    }

    void theNewestIsInFrontWithTheKeyboardAndTheOthersStay() {
        PreviewSession session;
        const PreviewWindow& first = session.show("rptReciept");
        PreviewWindow& second = session.show("rptDocChecklist");
        QVERIFY(first.isVisible() && second.isVisible());
        QCOMPARE(session.window.forms().guest(), &second);
        QVERIFY(second.isAncestorOf(QApplication::focusWidget()));
        const QObjectList& stack = session.window.centralWidget()->children();
        QVERIFY(stack.indexOf(&second) > stack.indexOf(&first));
        session.show("rptReciept");
        QVERIFY(stack.indexOf(&first) > stack.indexOf(&second));
    }

    void escapeAndTheUsualKeyCloseIt() {
        PreviewSession session;
        session.show("rptReciept");
        session.show("rptDocChecklist");
        session.press(nullptr, Qt::Key_Escape);
        QVERIFY(!session.find("rptDocChecklist"));
        QVERIFY(!session.reports().find("rptDocChecklist"));
        session.show("rptReciept");
        session.press(&session.window, Qt::Key_F4, Qt::ControlModifier);
        QVERIFY(!session.reports().find("rptReciept"));
        QVERIFY(session.particulars().visible());
        QVERIFY(session.window.forms().windowOf(session.particulars())->isAncestorOf(QApplication::focusWidget()));
    }

    void theCloseBoxClosesIt() {
        PreviewSession session;
        PreviewWindow& preview = session.show("rptReciept");
        session.click(preview, "closeBox");
        QVERIFY(!session.find("rptReciept"));
        QVERIFY(!session.reports().find("rptReciept"));
    }

    void pagesAreTurnedByKeysAndButtons() {
        PreviewSession session;
        PreviewWindow& preview = session.show("rptDocChecklist");
        const auto* page = &preview.page();
        QCOMPARE(labelOf(preview, "pageNumber"), QString("1 / 2"));
        const QString first = textOf(preview);
        while (page->verticalScrollBar()->value() < page->verticalScrollBar()->maximum())
            session.press(nullptr, Qt::Key_PageDown);
        QCOMPARE(page->page(), 0);
        session.press(nullptr, Qt::Key_PageDown);
        QCOMPARE(page->page(), 1);
        QCOMPARE(page->verticalScrollBar()->value(), 0);
        QVERIFY(textOf(preview) != first);
        session.press(nullptr, Qt::Key_PageUp);
        QCOMPARE(page->page(), 0);
        QCOMPARE(page->verticalScrollBar()->value(), page->verticalScrollBar()->maximum());
        session.click(preview, "nextButton");
        QCOMPARE(labelOf(preview, "pageNumber"), QString("2 / 2"));
        QVERIFY(!preview.findChild<QToolButton*>("nextButton")->isEnabled());
        session.click(preview, "previousButton");
        QCOMPARE(page->page(), 0);
        session.press(&session.window, Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(page->page(), 1);
        session.press(nullptr, Qt::Key_Home);
        QCOMPARE(page->page(), 0);
        session.press(nullptr, Qt::Key_End);
        QCOMPARE(page->page(), 1);
    }

    void theSizeOfThePageIsChosen() {
        PreviewSession session;
        PreviewWindow& preview = session.show("rptReciept");
        QCOMPARE(labelOf(preview, "pageSize"), QString("100 %"));
        session.press(nullptr, Qt::Key_Plus, Qt::ControlModifier);
        QCOMPARE(labelOf(preview, "pageSize"), QString("120 %"));
        session.click(preview, "smallerButton");
        session.click(preview, "smallerButton");
        QCOMPARE(labelOf(preview, "pageSize"), QString("83 %"));
        session.click(preview, "pageButton");
        QVERIFY(preview.page().widget()->height() <= preview.page().viewport()->height());
        session.click(preview, "widthButton");
        QVERIFY(qAbs(preview.page().widget()->width() - preview.page().viewport()->width()) < 20);
        for (int step = 0; step < 40; ++step)
            preview.page().setZoom(preview.page().zoom() * 2);
        QCOMPARE(preview.page().zoom(), 4.0);
    }

    void itIsSavedAsPdfUnderTheChosenName() {
        PreviewSession session;
        PreviewWindow& preview = session.show("rptDocChecklist");
        const std::filesystem::path file = std::filesystem::current_path() / "chosen.pdf";
        session.dialogs.answers.push_back(file.string());
        session.click(preview, "saveButton");
        QVERIFY(std::filesystem::file_size(file) > 1000);
        QCOMPARE(session.dialogs.fileDialogs.back().defaultExtension, std::string("pdf"));
        session.dialogs.answers.push_back("cancel");
        session.click(preview, "saveButton");
        QVERIFY(session.dialogs.messages.empty());
    }

    void aFileThatCannotBeWrittenIsToldInOneBox() {
        PreviewSession session;
        PreviewWindow& preview = session.show("rptDocChecklist");
        session.dialogs.answers.push_back("/no such folder/chosen.pdf");
        session.click(preview, "saveButton");
        QCOMPARE(session.dialogs.messages.size(), std::size_t(1));
        QVERIFY(session.find("rptDocChecklist"));
    }

    void printingTakesTheDialogAndAFailureIsToldInOneBox() {
        PreviewSession session;
        PreviewWindow& preview = session.show("rptReciept");
        std::vector<std::string> printed;
        session.window.printWithDialog = [&](const Paper& paper, const desktop::PaperPages& pages, QWidget* above) {
            QCOMPARE(pages.count(), 1);
            QCOMPARE(above, &session.window);
            printed.emplace_back(paper.name);
        };
        session.click(preview, "printButton");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_P, Qt::ControlModifier);
        session.settle();
        QCOMPARE(printed, (std::vector<std::string>{"rptReciept", "rptReciept"}));
        session.window.printWithDialog = nullptr;
        session.click(preview, "printButton");
        QCOMPARE(session.dialogs.messages.size(), std::size_t(1));
        QVERIFY(session.find("rptReciept"));
    }

    void theListOfDocumentsIsOpenedByItsKeysAndFromAPreview() {
        PreviewSession session;
        const auto opened = [&] {
            Form* list = session.proposal.forms.loaded("frmPrint");
            const bool shown = list && list->front();
            session.proposal.forms.unload("frmPrint");
            session.settle();
            return shown;
        };
        QVERIFY(!opened());
        session.press(&session.window, Qt::Key_P, Qt::ControlModifier);
        QVERIFY(opened());
        PreviewWindow& preview = session.show("rptReciept");
        session.click(preview, "severalButton");
        QVERIFY(opened());
    }

    void whatIsFedAgainIsShownInItsPlace() {
        PreviewSession session;
        session.particulars().txtApplicantNm.setText("First");
        session.window.forms().act(Qt::OtherFocusReason, [&] { session.proposal.commands.print("rptReciept"); });
        session.settle();
        PreviewWindow* preview = session.find("rptReciept");
        QVERIFY(preview);
        QVERIFY(textOf(*preview).contains("FIRST"));
        session.particulars().txtApplicantNm.setText("Second");
        session.settle();
        QVERIFY(textOf(*preview).contains("FIRST"));
        session.window.forms().act(Qt::OtherFocusReason, [&] { session.proposal.commands.print("rptReciept"); });
        session.settle();
        QCOMPARE(session.find("rptReciept"), preview);
        QVERIFY(textOf(*preview).contains("SECOND"));
    }

    void aFormThatIsClickedComesBeforeIt() {
        PreviewSession session;
        PreviewWindow& preview = session.show("rptReciept");
        QWidget* form = session.window.forms().windowOf(session.particulars());
        QWidget* box = session.window.forms().viewOf(session.particulars())->widgetOf(session.particulars().txtTitle);
        box->setFocus(Qt::MouseFocusReason);
        session.settle();
        QVERIFY(!session.window.forms().guest());
        const QObjectList& stack = session.window.centralWidget()->children();
        QVERIFY(stack.indexOf(form) > stack.indexOf(&preview));
        QTest::mouseClick(preview.page().viewport(), Qt::LeftButton);
        session.settle();
        QCOMPARE(session.window.forms().guest(), &preview);
        QVERIFY(stack.indexOf(&preview) > stack.indexOf(form));
    }

    void theRowOfWindowsAndItsKeysReachIt() {
        PreviewSession session;
        PreviewWindow& preview = session.show("rptReciept");
        QCOMPARE(session.row().tabText(session.row().currentIndex()), preview.caption());
        QTest::keyPress(&session.window, Qt::Key_Tab, Qt::ControlModifier);
        QTest::keyRelease(&session.window, Qt::Key_Control);
        session.settle();
        QVERIFY(!session.window.forms().guest());
        QVERIFY(session.row().tabText(session.row().currentIndex()) != preview.caption());
        QTest::keyPress(&session.window, Qt::Key_Tab, Qt::ControlModifier);
        QTest::keyRelease(&session.window, Qt::Key_Control);
        session.settle();
        QCOMPARE(session.window.forms().guest(), &preview);
        QVERIFY(preview.isAncestorOf(QApplication::focusWidget()));
    }

    void tabGoesRoundWithinIt() {
        PreviewSession session;
        PreviewWindow& preview = session.show("rptDocChecklist");
        QSet<QString> visited;
        for (int step = 0; step < 12; ++step) {
            session.press(nullptr, Qt::Key_Tab);
            QVERIFY(preview.isAncestorOf(QApplication::focusWidget()));
            visited.insert(QApplication::focusWidget()->objectName());
        }
        for (const char* name : {"printButton", "saveButton", "nextButton", "smallerButton", "previewPage"})
            QVERIFY2(visited.contains(name), name);
    }

    void everythingHasAName() {
        PreviewSession session;
        PreviewWindow& preview = session.show("rptDocChecklist");
        QVERIFY(!preview.accessibleName().isEmpty());
        for (const QToolButton* button : preview.findChildren<QToolButton*>())
            QVERIFY2(!button->accessibleName().isEmpty(), qPrintable(button->objectName()));
        QVERIFY(preview.page().accessibleName().contains("1 / 2"));
    }

    void theArrowKeysOfTheFrameDrawItAndNoOthers() {
        PreviewSession session({1300, 900});
        PreviewWindow& preview = session.show("rptReciept");
        const QSize before = preview.size();
        session.press(preview.findChild<QToolButton*>("printButton"), Qt::Key_Left);
        QCOMPARE(preview.size(), before);
        session.press(&session.window, Qt::Key_F8, Qt::ControlModifier);
        session.press(&preview, Qt::Key_Left);
        QCOMPARE(preview.width(), before.width() - 16);
    }

    void aSmallerMainWindowTakesItAlong() {
        PreviewSession session;
        const PreviewWindow& preview = session.show("rptReciept");
        session.window.resize(700, 500);
        session.settle();
        QVERIFY(preview.width() <= session.window.centralWidget()->width());
        QVERIFY(preview.height() <= session.window.centralWidget()->height());
    }

    void theNavigatorStandsAboveThePagesThatItTurns() {
        PreviewSession session;
        session.window.forms().act(Qt::OtherFocusReason, [&] { session.proposal.commands.print("rptAnnexutreA"); });
        session.settle();
        auto& navigator = session.proposal.forms.get<frmReportNav>();
        QWidget* above = session.window.forms().windowOf(navigator);
        QVERIFY(above && above->isVisible());
        const QObjectList& stack = session.window.centralWidget()->children();
        QVERIFY(stack.indexOf(above) > stack.indexOf(session.find("rptAnnexutreA")));
        QVERIFY(above->isAncestorOf(QApplication::focusWidget()));
        QWidget* last = session.window.forms().viewOf(navigator)->widgetOf(navigator.cmdNavNext);
        QTest::mouseClick(last, Qt::LeftButton);
        session.settle();
        PreviewWindow* fifth = session.find("rptAnnexutreA4");
        QVERIFY(fifth);
        QVERIFY(stack.indexOf(fifth) > stack.indexOf(session.find("rptAnnexutreA")));
        QVERIFY(stack.indexOf(above) > stack.indexOf(fifth));
        QTest::mouseClick(fifth->page().viewport(), Qt::LeftButton);
        session.settle();
        QVERIFY(fifth->isAncestorOf(QApplication::focusWidget()));
        QVERIFY(above->isVisible());
        QStringList names;
        for (int tab = 0; tab < session.row().count(); ++tab)
            names << session.row().tabText(tab);
        QVERIFY2(names.contains(fifth->caption()), qPrintable(names.join(", ")));
        session.press(nullptr, Qt::Key_Escape);
        QVERIFY(!session.find("rptAnnexutreA4"));
        QVERIFY(!session.proposal.forms.loaded("frmReportNav"));
    }

    void aReportThatIsNoPageStandsBeforeTheNavigator() {
        PreviewSession session;
        session.window.forms().act(Qt::OtherFocusReason, [&] { session.proposal.commands.print("rptAnnexutreA"); });
        PreviewWindow& letter = session.show("rptReciept");
        QCOMPARE(session.window.forms().guest(), &letter);
        QVERIFY(letter.isAncestorOf(QApplication::focusWidget()));
    }

    void allAreClosedWithTheReports() {
        PreviewSession session;
        session.show("rptReciept");
        session.show("rptDocChecklist");
        session.window.forms().act(Qt::OtherFocusReason, [&] { session.reports().unloadAll(); });
        session.settle();
        QVERIFY(session.window.previews().windows().empty());
        QVERIFY(!session.window.forms().guest());
    }

    void closeAllLeadsBackToTheParticulars() {
        PreviewSession session;
        session.particulars().hide();
        session.show("rptReciept");
        PreviewWindow& checklist = session.show("rptDocChecklist");
        session.click(checklist, "closeAllButton");
        session.settle();
        QVERIFY(session.window.previews().windows().empty());
        QVERIFY(session.particulars().front());
        session.show("rptReciept");
        session.press(nullptr, Qt::Key_F4, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(session.window.previews().windows().empty());
    }
};

static const Registered<PreviewTest> registered;

#include "PreviewTest.moc"
