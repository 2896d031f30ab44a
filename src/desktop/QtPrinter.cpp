#include "desktop/QtPrinter.h"

#include <QPageSize>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>

#include "base/RuntimeError.h"
#include "desktop/PaperPages.h"
#include "desktop/PaperText.h"
#include "desktop/QtText.h"

namespace plandesk::desktop {

namespace {

void setUp(QPrinter& printer, const Paper& paper) {
    printer.setDocName(toQt(paper.title));
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setFullPage(true);  // the papers have margins of their own
}

/// Prints the pages between the two, counted from 0.
void printPages(QPrinter& printer, const PaperPages& pages, int first, int last) {
    QPainter painter;
    bool printed = painter.begin(&printer);
    if (printed)
        painter.scale(static_cast<qreal>(printer.logicalDpiX()) / paperUnitsPerInch,
                      static_cast<qreal>(printer.logicalDpiY()) / paperUnitsPerInch);
    for (int page = first; printed && page <= last; ++page) {
        printed = page == first || printer.newPage();
        if (printed)
            pages.paint(painter, page);
    }
    if (!printed || !painter.end() || printer.printerState() == QPrinter::Error)
        throw RuntimeError(ErrorNumber::PrinterError);
}

}  // namespace

std::unique_ptr<QPrinter> QtPrinter::printer() {
    QPrinterInfo chosen = QPrinterInfo::defaultPrinter();
    if (chosen.isNull())
        if (const QStringList names = QPrinterInfo::availablePrinterNames(); !names.isEmpty())
            chosen = QPrinterInfo::printerInfo(names.constFirst());
    return chosen.isNull() ? nullptr : std::make_unique<QPrinter>(chosen, QPrinter::HighResolution);
}

bool QtPrinter::ready() {
    return printer() != nullptr;
}

void QtPrinter::print(const Paper& paper) {
    const std::unique_ptr<QPrinter> chosen = printer();
    if (!chosen)
        throw RuntimeError(ErrorNumber::PrinterError);
    setUp(*chosen, paper);
    const PaperPages pages(paper);
    printPages(*chosen, pages, 0, pages.count() - 1);
}

void QtPrinter::printWithDialog(const Paper& paper, const PaperPages& pages, QWidget* window) {
    std::unique_ptr<QPrinter> chosen = printer();
    if (!chosen)
        chosen = std::make_unique<QPrinter>(QPrinter::HighResolution);  // the dialog then offers to print into a file
    setUp(*chosen, paper);
    QPrintDialog dialog(chosen.get(), window);
    dialog.setObjectName(QStringLiteral("printDialog"));
    dialog.setMinMax(1, pages.count());
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, pages.count() > 1);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const bool some = dialog.printRange() == QAbstractPrintDialog::PageRange;
    const int first = some ? std::clamp(dialog.fromPage(), 1, pages.count()) : 1;
    const int last = some ? std::clamp(dialog.toPage(), first, pages.count()) : pages.count();
    printPages(*chosen, pages, first - 1, last - 1);
}

}  // namespace plandesk::desktop
