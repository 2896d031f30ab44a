// An empty program of the toolkit that writes one page of PDF eighteen times, a title and plain text: what plandesk-pdf
// is measured against.

#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

int main(int count, char* arguments[]) {
    constexpr int files = 18;
    constexpr int dotsPerInch = 720;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, arguments);
    if (count != 2)
        return 2;
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(dotsPerInch / 8);
    for (int number = 0; number < files; ++number) {
        QPdfWriter writer(QStringLiteral("%1/page%2.pdf").arg(QString::fromLocal8Bit(arguments[1])).arg(number));
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setResolution(dotsPerInch);
        QPainter painter(&writer);
        QFont bold = font;
        bold.setBold(true);
        painter.setFont(bold);
        painter.drawText(0, 0, QStringLiteral("The title of a page"));
        painter.setFont(font);
        for (int line = 0; line < 50; ++line)
            painter.drawText(0, (line + 1) * dotsPerInch / 6,
                             QStringLiteral("A page of plain text, line %1, of the length of a question").arg(line));
    }
    return 0;
}
