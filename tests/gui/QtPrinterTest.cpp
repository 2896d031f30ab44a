#include "desktop/QtPrinter.h"

#include <QAbstractButton>
#include <QPrintDialog>
#include <QPrinter>
#include <QTimer>

#include "base/RuntimeError.h"
#include "controls/FileStore.h"
#include "desktop/PaperPages.h"
#include "gui/PaperTools.h"
#include "gui/Registry.h"
#include "reports/ReportCatalogue.h"

using namespace plandesk;
using namespace plandesk::test;
using desktop::QtPrinter;

namespace {

/// A printer that prints into a file, of whatever the machine has.
class FilePrinter : public QtPrinter {
public:
    FilePrinter(Files& files, QString file) : QtPrinter(files), file(std::move(file)) {}

protected:
    std::unique_ptr<QPrinter> printer() override {
        auto chosen = std::make_unique<QPrinter>(QPrinter::HighResolution);
        chosen->setOutputFormat(QPrinter::PdfFormat);
        chosen->setOutputFileName(file);
        return chosen;
    }

private:
    QString file;
};

class NoPrinter : public QtPrinter {
public:
    using QtPrinter::QtPrinter;

protected:
    std::unique_ptr<QPrinter> printer() override { return nullptr; }
};

Paper sample() {
    return filled(*findLayout("rptDocChecklist"), [](int number) { return std::to_string(1000 + number); });
}

std::string bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll().toStdString() : std::string();
}

int errorOf(const std::function<void()>& work) {
    try {
        work();
    } catch (const RuntimeError& error) {
        return error.number;
    }
    return 0;
}

}  // namespace

class QtPrinterTest : public QObject {
    Q_OBJECT

private slots:
    void whatIsPrintedIsWhatIsInTheFile() {
        FileStore files;
        FilePrinter printer(files, "printed.pdf");
        QVERIFY(printer.ready());
        printer.print(sample());
        printer.writePdf(sample(), "written.pdf");
        const QStringList printed = sheetsOf(bytesOf("printed.pdf"), "-raw");
        QCOMPARE(printed, sheetsOf(bytesOf("written.pdf"), "-raw"));
        QCOMPARE(printed.size(), desktop::PaperPages(sample()).count());
        QVERIFY(printed.join("").contains("1000"));
        // At the same places, to a tenth of a millimetre.
        const std::vector<Word> places = placesOf(bytesOf("printed.pdf"));
        const std::vector<Word> wanted = placesOf(bytesOf("written.pdf"));
        QCOMPARE(places.size(), wanted.size());
        for (std::size_t word = 0; word < places.size(); ++word)
            QVERIFY((places[word].place.topLeft() - wanted[word].place.topLeft()).manhattanLength() < 1);
    }

    void aPrinterThatFailsIsARunTimeError() {
        FileStore files;
        FilePrinter printer(files, "no such folder/printed.pdf");
        QCOMPARE(errorOf([&] { printer.print(sample()); }), static_cast<int>(ErrorNumber::PrinterError));
    }

    void withoutAPrinterThereIsNothingToPrintOn() {
        FileStore files;
        NoPrinter printer(files);
        QVERIFY(!printer.ready());
        QCOMPARE(errorOf([&] { printer.print(sample()); }), static_cast<int>(ErrorNumber::PrinterError));
        printer.writePdf(sample(), "file.pdf");
        QVERIFY(bytesOf("file.pdf").starts_with("%PDF"));
    }

    void aFileIsWrittenWholeOrNotAtAll() {
        FileStore files;
        NoPrinter printer(files);
        printer.writePdf(sample(), "kept.pdf");
        const std::string before = bytesOf("kept.pdf");
        for (int step = 1; step <= 6; ++step) {
            files.failAtStep(step);
            QCOMPARE(errorOf([&] { printer.writePdf(tableless(), "kept.pdf"); }),
                     static_cast<int>(ErrorNumber::DiskFull));
            QVERIFY2(bytesOf("kept.pdf") == before, qPrintable(QString::number(step)));
        }
        QCOMPARE(QDir(".").entryList({".plandesk-write-*"}, QDir::Files | QDir::Hidden), QStringList());
        QCOMPARE(errorOf([&] { printer.writePdf(sample(), "no such folder/file.pdf"); }),
                 static_cast<int>(ErrorNumber::PathNotFound));
    }

    void theDialogOffersThePagesAndPrintsWhatWasChosen() {
        FileStore files;
        FilePrinter printer(files, "range.pdf");
        const Paper paper = sample();
        const desktop::PaperPages pages(paper);
        QVERIFY(pages.count() > 1);
        QTimer::singleShot(0, qApp, [&] {
            auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            QCOMPARE(dialog->minPage(), 1);
            QCOMPARE(dialog->maxPage(), pages.count());
            dialog->setPrintRange(QAbstractPrintDialog::PageRange);
            dialog->setFromTo(2, 2);
            dialog->done(QDialog::Accepted);
        });
        printer.printWithDialog(paper, pages, nullptr);
        QCOMPARE(sheetsOf(bytesOf("range.pdf"), "-raw").size(), 1);
        QVERIFY(sheetsOf(bytesOf("range.pdf"), "-raw").join("").contains("2 / "));
    }

    void aCancelledDialogPrintsNothing() {
        FileStore files;
        FilePrinter printer(files, "cancelled.pdf");
        const Paper paper = sample();
        QTimer::singleShot(0, qApp, [] { QApplication::activeModalWidget()->close(); });
        printer.printWithDialog(paper, desktop::PaperPages(paper), nullptr);
        QVERIFY(bytesOf("cancelled.pdf").empty());
    }

private:
    static Paper tableless() { return {.name = "other", .title = "Other"}; }
};

static const Registered<QtPrinterTest> registered;

#include "QtPrinterTest.moc"
