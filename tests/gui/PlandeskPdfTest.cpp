// The program plandesk-pdf, as it is run from a command line.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include "gui/PaperTools.h"
#include "gui/Registry.h"
#include "reports/ReportCatalogue.h"

using namespace plandesk;
using namespace plandesk::test;

namespace {

struct Ended {
    int status;
    QStringList said;   ///< on the output stream
    QStringList wrong;  ///< on the error stream
};

QStringList linesOf(const QByteArray& text) {
    return QString::fromUtf8(text).split('\n', Qt::SkipEmptyParts);
}

Ended run(const QString& program, const QStringList& arguments) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("DISPLAY");
    environment.remove("WAYLAND_DISPLAY");
    environment.insert("QT_QPA_PLATFORM", "xcb");
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationDirPath() + "/" + program, arguments);
    if (!process.waitForFinished())
        return {-1, {}, {process.errorString()}};
    return {process.exitCode(), linesOf(process.readAllStandardOutput()), linesOf(process.readAllStandardError())};
}

Ended writePdf(const QStringList& arguments) {
    return run("plandesk-pdf", arguments);
}

std::string bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : std::string();
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(bytes);
}

}  // namespace

class PlandeskPdfTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        const Ended saved = run("plandesk-driver", {QStringLiteral(PLANDESK_SOURCES "/data/sample-proposal.txt")});
        QVERIFY2(saved.status == 0 && QFile::exists("sample-proposal.xml"), qPrintable(saved.wrong.join('\n')));
        writeFile("ill-formed.xml", "<INWARDINFO><SECTION-I></INWARDINFO>");
        writeFile("other.xml", "<html><body/></html>");
        writeFile("empty.xml", "");
        writeFile("a file", "");
    }

    void init() { QDir().mkdir("out"); }
    void cleanup() { QDir("out").removeRecursively(); }

    void aSavedProposalBecomesAFileForEachReport() {
        const std::string before = bytesOf("sample-proposal.xml");
        const Ended ended = writePdf({"sample-proposal.xml", "out"});
        QVERIFY2(ended.status == 0, qPrintable(ended.wrong.join('\n')));
        QCOMPARE(ended.wrong, QStringList());
        QStringList wanted;
        for (const Paper& layout : reportLayouts())
            wanted << "out/" + QString::fromStdString(std::string(layout.name)) + ".pdf";
        QCOMPARE(wanted.size(), 18);
        QCOMPARE(ended.said, wanted);
        QCOMPARE(QDir("out").entryList(QDir::Files).size(), 18);
        for (const QString& file : wanted)
            QVERIFY2(outputOf("qpdf", {"--check", file}, "").contains("No syntax"), qPrintable(file));
        QVERIFY(bytesOf("sample-proposal.xml") == before);
    }

    void whatTheProposalHoldsIsInThem() {
        QCOMPARE(writePdf({"sample-proposal.xml", "out"}).status, 0);
        const auto text = [](const QString& report) {
            return sheetsOf(bytesOf("out/" + report + ".pdf"), "-layout").join("").simplified();
        };
        QVERIFY(text("rptAnnexutreA").contains("Sunil Vasant Karkhanis"));
        QVERIFY(text("rptAnnexutreA").contains("1480.50"));
        QVERIFY(text("rptReciept").contains("SUNIL VASANT KARKHANIS"));
        QVERIFY(text("rptPaymentDetails").contains("Cash"));
        QVERIFY(text("rptPaymentDetails123").contains("Cash"));
        QVERIFY(outputOf("pdfinfo", {"out/rptAnnexutreA.pdf"}, "").contains("Limaye"));
    }

    void oneReportIsWrittenByItsNameInAnyCase() {
        const Ended ended = writePdf({"sample-proposal.xml", "out", "--report", "RPTRECIEPT", "--report", "rptreciept",
                                      "--report", "rptDocChecklist"});
        QCOMPARE(ended.status, 0);
        QCOMPARE(ended.said, (QStringList{"out/rptReciept.pdf", "out/rptDocChecklist.pdf"}));
        QCOMPARE(QDir("out").entryList(QDir::Files).size(), 2);
    }

    void whatCannotBeDoneIsOneLineAndStatusTwo_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("says");
        const auto row = [](const char* name, const QStringList& arguments, const char* says) {
            QTest::newRow(name) << arguments << QString(says);
        };
        row("no file", {"missing.xml", "out"}, "missing.xml: cannot be read");
        row("a folder for a file", {"out", "out"}, "out: cannot be read");
        row("an ill-formed file", {"ill-formed.xml", "out"}, "ill-formed.xml: cannot be read");
        row("an empty file", {"empty.xml", "out"}, "empty.xml: cannot be read");
        row("another document", {"other.xml", "out"}, "other.xml: is no proposal document");
        row("no folder", {"sample-proposal.xml", "nowhere"}, "nowhere: there is no such folder");
        row("a file for a folder", {"sample-proposal.xml", "a file"}, "a file: there is no such folder");
        row("a folder that takes no files", {"sample-proposal.xml", "/proc"}, "/proc/rptAnnexutreA.pdf: ");
        row("an unknown report", {"sample-proposal.xml", "out", "--report", "rptNone"},
            "rptNone: there is no such report");
        row("a report without a name", {"sample-proposal.xml", "out", "--report"}, "--report needs a name");
        row("nothing", {}, "usage: plandesk-pdf FILE FOLDER");
        row("a file alone", {"sample-proposal.xml"}, "usage: ");
        row("too much", {"sample-proposal.xml", "out", "more"}, "usage: ");
        row("an unknown option", {"--all", "sample-proposal.xml"}, "usage: ");
    }
    void whatCannotBeDoneIsOneLineAndStatusTwo() {
        QFETCH(QStringList, arguments);
        QFETCH(QString, says);
        const Ended ended = writePdf(arguments);
        QCOMPARE(ended.status, 2);
        QVERIFY2(ended.wrong.size() == 1 && ended.wrong.front().startsWith(says), qPrintable(ended.wrong.join('\n')));
        QCOMPARE(ended.said, QStringList());
        QVERIFY(QDir("out").isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    }

    void anEarlierFileStaysWholeWhenItsPlaceIsTaken() {
        QDir().mkdir("out/rptReciept.pdf");  // a folder where the file should be
        const Ended ended = writePdf({"sample-proposal.xml", "out"});
        QCOMPARE(ended.status, 2);
        QCOMPARE(ended.wrong.size(), 1);
        for (const QString& file : ended.said)
            QVERIFY(bytesOf(file).ends_with("%%EOF\n"));
        QCOMPARE(QDir("out").entryList(QDir::Files | QDir::Hidden).size(), ended.said.size());
    }
};

static const Registered<PlandeskPdfTest> registered;

#include "PlandeskPdfTest.moc"
