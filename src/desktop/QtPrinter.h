#pragma once

#include <memory>

#include "desktop/PaperPdf.h"

class QPrinter;
class QWidget;

namespace plandesk::desktop {

class PaperPages;

/// The machine's printers, and PDF files.
class QtPrinter : public PdfFiles {
public:
    using PdfFiles::PdfFiles;

    bool ready() override;
    void print(const Paper& paper) override;

    /// Asks for the printer and the pages in the usual dialog; does nothing when the user cancels.
    /// RuntimeError 482 when it cannot print.
    void printWithDialog(const Paper& paper, const PaperPages& pages, QWidget* window);

protected:
    /// The default printer, or the first one where none is set so; null without any.
    virtual std::unique_ptr<QPrinter> printer();
};

}  // namespace plandesk::desktop
