#include "desktop/PaperPdf.h"

#include "gui/PaperTools.h"
#include "gui/Registry.h"
#include "reports/ReportCatalogue.h"

using namespace plandesk;
using namespace plandesk::test;
using desktop::pdfOf;

namespace {

Paper smallPaper(const std::string& value) {
    Paper paper{.name = "letter", .title = "A letter: (1\\2)"};
    paper.person = "शिल्पा (M/s \\ A)";
    paper.body = {{SectionKind::Letter, {{{{{.text = "Name"}, {.field = "name", .value = value}}}}}}};
    return paper;
}

QString infoOf(const std::string& pdf) {
    return QString::fromUtf8(outputOf("pdfinfo", {"-enc", "UTF-8", "-"}, pdf));
}

}  // namespace

class PaperPdfTest : public QObject {
    Q_OBJECT

private slots:
    void aFileIsWellFormedSmallAndBringsItsFonts_data() {
        QTest::addColumn<QString>("name");
        for (const Paper& layout : reportLayouts())
            QTest::newRow(std::string(layout.name).c_str()) << QString::fromStdString(std::string(layout.name));
    }
    void aFileIsWellFormedSmallAndBringsItsFonts() {
        QFETCH(QString, name);
        Paper paper = filled(*findLayout(name.toStdString()),
                             [](int number) { return "value " + std::to_string(number) + " of the sample"; });
        paper.person = "A. Person";
        const std::string pdf = pdfOf(paper);
        QVERIFY2(pdf.size() < 100000, qPrintable(QString::number(pdf.size())));
        QFile file("paper.pdf");
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(pdf.data(), static_cast<qint64>(pdf.size()));
        file.close();
        QVERIFY(outputOf("qpdf", {"--check", "paper.pdf"}, "").contains("No syntax or stream encoding errors"));
        const QStringList fonts = QString::fromUtf8(outputOf("pdffonts", {"paper.pdf"}, "")).split('\n').mid(2);
        int embedded = 0;
        for (const QString& font : fonts)
            if (!font.isEmpty()) {
                QVERIFY2(font.contains(QRegularExpression(R"(yes +(yes|no) +yes +\d+ +\d+$)")), qPrintable(font));
                QVERIFY2(font.startsWith("LiberationSans"), qPrintable(font));
                ++embedded;
            }
        QVERIFY(embedded > 0);
        QVERIFY(infoOf(pdf).contains(QRegularExpression(
            "Title: +" + QRegularExpression::escape(QString::fromUtf8(std::string(paper.title).c_str())))));
        QVERIFY(infoOf(pdf).contains("A. Person"));
        QVERIFY(infoOf(pdf).contains("(A4)"));
    }

    void titleAndPersonAreInThePropertiesAsTheyStand() {
        const QString info = infoOf(pdfOf(smallPaper("x")));
        QVERIFY2(info.contains(QRegularExpression(R"(Title: +A letter: \(1\\2\)\n)")), qPrintable(info));
        QVERIFY2(info.contains(QRegularExpression(R"(Author: +शिल्पा \(M/s \\ A\)\n)")), qPrintable(info));
    }

    void withoutAPersonThereIsNoAuthor() {
        Paper paper = smallPaper("x");
        paper.person.clear();
        QVERIFY(!infoOf(pdfOf(paper)).contains("Author"));
    }

    void devanagariIsDrawnWithAFontThatHasIt() {
        const std::string pdf = pdfOf(smallPaper("नमन पवार"));
        QVERIFY(sheetsOf(pdf, "-raw").join("").contains(QString::fromUtf8("नमन पवार")));
        QFile file("paper.pdf");
        QVERIFY(file.open(QFile::WriteOnly));
        file.write(pdf.data(), static_cast<qint64>(pdf.size()));
        file.close();
        QVERIFY(outputOf("pdffonts", {"paper.pdf"}, "").contains("Lohit-Devanagari"));
    }

    void theSamePaperGivesTheSameBytesButForTheDate() {
        const auto undated = [](const std::string& pdf) {
            QString text = QString::fromLatin1(pdf.data(), static_cast<qsizetype>(pdf.size()));
            static const QRegularExpression date(R"(/CreationDate \([^)]*\))");
            return text.remove(date);
        };
        const std::string once = pdfOf(smallPaper("x"));
        QTest::qWait(1100);
        QCOMPARE(undated(pdfOf(smallPaper("x"))), undated(once));
        QVERIFY(undated(pdfOf(smallPaper("y"))) != undated(once));
    }
};

static const Registered<PaperPdfTest> registered;

#include "PaperPdfTest.moc"
