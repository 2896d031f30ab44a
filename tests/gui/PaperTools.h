#pragma once

#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QTest>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "controls/Paper.h"

// Papers filled for a test, and what other programs find in the PDF files made of them.

namespace plandesk::test {

inline std::vector<PaperItem*> itemsOf(Paper& paper) {
    std::vector<PaperItem*> items;
    for (auto* part : {&paper.header, &paper.body, &paper.footer})
        for (PaperSection& section : *part)
            for (PaperRow& row : section.rows)
                for (PaperCell& cell : row.cells)
                    for (PaperItem& item : cell)
                        items.push_back(&item);
    return items;
}

/// The layout with what `value` gives for each field, counted from 0.
inline Paper filled(Paper layout, const std::function<std::string(int)>& value) {
    layout.date = {2026, 3, 9};
    int number = 0;
    for (PaperItem* item : itemsOf(layout))
        if (item->isField())
            item->value = value(number++);
    return layout;
}

/// What the program writes to its output when it is given the bytes; fails the test when it cannot.
inline QByteArray outputOf(const QString& program, const QStringList& arguments, const std::string& input) {
    QProcess process;
    process.start(program, arguments);
    process.write(input.data(), static_cast<qint64>(input.size()));
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitCode() != 0)
        QTest::qFail(qPrintable(program + ": " + process.errorString() + process.readAllStandardError()), __FILE__,
                     __LINE__);
    return process.readAllStandardOutput();
}

/// The text of a PDF file, its sheets one after the other. `mode`: "-raw" in the order of drawing, "-layout" as it
/// stands on the sheet.
inline QStringList sheetsOf(const std::string& pdf, const QString& mode) {
    QString text = QString::fromUtf8(outputOf("pdftotext", {mode, "-", "-"}, pdf));
    if (text.endsWith('\f'))
        text.chop(1);
    return text.split('\f');
}

inline std::map<QString, int> wordsOf(const QString& text) {
    std::map<QString, int> words;
    for (const QString& word : text.split(QRegularExpression(R"(\s+)"), Qt::SkipEmptyParts))
        ++words[word];
    return words;
}

struct Word {
    int sheet;  ///< from 0
    QRectF place;
    QString text;
};

/// Where each word stands, in points from the sheet's corner.
inline std::vector<Word> placesOf(const std::string& pdf) {
    static const QRegularExpression mark(
        R"re(<page |<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">([^<]*)<)re");
    std::vector<Word> words;
    int sheet = -1;
    auto found = mark.globalMatch(QString::fromUtf8(outputOf("pdftotext", {"-bbox", "-", "-"}, pdf)));
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        if (match.captured(1).isEmpty())
            ++sheet;
        else
            words.push_back({sheet,
                             QRectF(QPointF(match.captured(1).toDouble(), match.captured(2).toDouble()),
                                    QPointF(match.captured(3).toDouble(), match.captured(4).toDouble())),
                             match.captured(5)});
    }
    return words;
}

}  // namespace plandesk::test
