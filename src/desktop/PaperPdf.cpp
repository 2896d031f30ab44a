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

namespace {

/// A text of a PDF file, in UTF-16.
QByteArray pdfText(const QString& text) {
    QByteArray hex("<FEFF");
    for (const QChar unit : text)
        hex += QByteArray::number(unit.unicode(), 16).rightJustified(4, '0').toUpper();
    return hex + '>';
}

/// What stands between two marks.
QByteArray between(const QByteArray& bytes, const char* begin, const char* end) {
    const qsizetype from = bytes.indexOf(begin) + static_cast<qsizetype>(qstrlen(begin));
    return bytes.mid(from, bytes.indexOf(end, from) - from);
}

/// The toolkit does not write the author. It is added as the format provides for changes: behind the file stand the
/// properties anew, with a table of their place that continues the earlier one.
QByteArray withAuthor(const QByteArray& pdf, const QString& author) {
    constexpr int digits = 10;
    const QByteArray properties = between(pdf, "1 0 obj\n", "\nendobj");
    const qsizetype trailerPlace = pdf.lastIndexOf("trailer");
    const QByteArray trailer = between(pdf.mid(trailerPlace), "<<", ">>");
    const QByteArray earlierTable = between(pdf.mid(trailerPlace), "startxref\n", "\n").trimmed();
    if (!properties.endsWith(">>") || !trailer.contains("/Info 1 0 R") || earlierTable.isEmpty())
        return pdf;
    QByteArray result = pdf;
    if (!result.endsWith('\n'))
        result += '\n';
    const qsizetype place = result.size();
    result += "1 0 obj\n" + properties.chopped(2) + "/Author " + pdfText(author) + "\n>>\nendobj\n";
    const qsizetype table = result.size();
    result += "xref\n1 1\n" + QByteArray::number(place).rightJustified(digits, '0') + " 00000 n \ntrailer\n<<" +
              trailer + "/Prev " + earlierTable + "\n>>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n";
    return result;
}

}  // namespace

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
    return (paper.person.empty() ? bytes : withAuthor(bytes, toQt(paper.person))).toStdString();
}

void PdfFiles::print(const Paper& /*paper*/) {
    throw RuntimeError(ErrorNumber::PrinterError);
}

void PdfFiles::writePdf(const Paper& paper, const std::filesystem::path& file) {
    files.writeWhole(file, pdfOf(paper));
}

}  // namespace plandesk::desktop
