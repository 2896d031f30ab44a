#include "desktop/PaperPdf.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

#include "base/RuntimeError.h"
#include "desktop/PaperPages.h"
#include "desktop/PaperText.h"
#include "desktop/QtText.h"

namespace plandesk::desktop {

std::string pdfOf(const Paper& paper) {
    return pdfOf(paper, PaperPages(paper));
}

std::string pdfOf(const Paper& paper, const PaperPages& pages) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(toQt(paper.title));
    writer.setCreator(QStringLiteral("Plandesk"));
    writer.setResolution(paperUnitsPerInch);
    writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    QPainter painter;
    if (!painter.begin(&writer))
        throw RuntimeError(ErrorNumber::PrinterError);
    for (int page = 0; page < pages.count(); ++page) {
        if (page > 0)
            writer.newPage();
        pages.paint(painter, page);
    }
    painter.end();
    return bytes.toStdString();
}

}  // namespace plandesk::desktop
