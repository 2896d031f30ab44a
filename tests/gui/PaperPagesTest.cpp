#include "desktop/PaperPages.h"

#include <QImage>
#include <QPainter>
#include <algorithm>

#include "desktop/PaperPdf.h"
#include "desktop/PaperText.h"
#include "gui/PaperTools.h"
#include "gui/Registry.h"
#include "reports/ReportCatalogue.h"

using namespace plandesk;
using namespace plandesk::test;
using desktop::PaperPages;
using desktop::pdfOf;

namespace {

std::string shortValue(int number) {
    return "v" + std::to_string(number) + "x";
}

/// 250 characters, half of them one word.
std::string longValue(int number) {
    constexpr std::size_t half = 125;
    std::string text;
    while (text.size() < half)
        text += shortValue(number) + " and ";
    return text.substr(0, half) + std::string(half, static_cast<char>('a' + number % 26));
}

QString withoutBlanks(QString text) {
    static const QRegularExpression blanks(R"(\s+)");
    return text.remove(blanks);
}

PaperRow row(std::string_view number, std::string_view words, std::string_view column) {
    return {{{{.text = number}}, {{.text = words}}, {{.field = column}}}};
}

/// A table of that many rows under a head, between a page header and a footer.
Paper tablePaper(int rows) {
    Paper paper{.name = "table", .title = "A table"};
    paper.header = {{SectionKind::Heading, {{{{{.text = "Heading"}}}}}}};
    paper.footer = {{SectionKind::Heading, {{{{{.text = "Footing"}}}}}}};
    PaperSection table{.kind = SectionKind::Table, .rows = {}, .widths = {10, 40, 50}};
    PaperRow head = row("No", "Rule", "");
    head.cells[2] = {{.text = "Remarks"}};
    head.style = RowStyle::Head;
    table.rows.push_back(head);
    for (int number = 0; number < rows; ++number)
        table.rows.push_back(row("1", "words", "Fld"));
    paper.body = {table};
    return paper;
}

}  // namespace

class PaperPagesTest : public QObject {
    Q_OBJECT

private slots:
    void everyLayout_data() {
        QTest::addColumn<QString>("name");
        for (const Paper& layout : reportLayouts())
            QTest::newRow(std::string(layout.name).c_str()) << QString::fromStdString(std::string(layout.name));
    }

    void everyLabelAndValueIsInTheTextAsOftenAsItStandsInTheLayout_data() { everyLayout_data(); }
    void everyLabelAndValueIsInTheTextAsOftenAsItStandsInTheLayout() {
        QFETCH(QString, name);
        Paper paper = filled(*findLayout(name.toStdString()), shortValue);
        const std::string pdf = pdfOf(paper);
        const QStringList drawn = sheetsOf(pdf, "-raw");
        const QString inOneGo = withoutBlanks(drawn.join(""));
        std::map<QString, int> wanted;
        for (const PaperItem* item : itemsOf(paper)) {
            QString text = QString::fromStdString(item->isField() ? item->value : std::string(item->text));
            text.replace("%D", "09/03/2026");
            QVERIFY2(inOneGo.contains(withoutBlanks(text)), qPrintable(text));
            for (const auto& [word, times] : wordsOf(text))
                wanted[word] += times;
        }
        if (drawn.size() > 1)
            return;  // heads stand on each sheet, and the sheets are numbered
        // A comma that begins an item closes up with the word before it.
        const QString all = sheetsOf(pdf, "-layout").join("");
        int words = 0;
        for (const auto& [word, times] : wanted)
            words += static_cast<int>(word.size()) * times;
        QCOMPARE(withoutBlanks(all).size(), words);
    }

    void nothingIsPrintedOverOrBeyondTheMargins_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("fill");
        for (const Paper& layout : reportLayouts())
            for (const char* fill : {"empty", "short", "long"})
                QTest::newRow((std::string(layout.name) + ", " + fill).c_str())
                    << QString::fromStdString(std::string(layout.name)) << QString(fill);
    }
    void nothingIsPrintedOverOrBeyondTheMargins() {
        QFETCH(QString, name);
        QFETCH(QString, fill);
        const auto value = [&](int number) {
            return fill == "empty" ? std::string() : fill == "short" ? shortValue(number) : longValue(number);
        };
        const std::vector<Word> words = placesOf(pdfOf(filled(*findLayout(name.toStdString()), value)));
        QVERIFY(!words.empty());
        constexpr double margin = 42;  // 15 millimetres are 42.5 points
        const QRectF room = QRectF(0, 0, 595, 842).adjusted(margin, margin, -margin, -margin / 2);
        for (auto word = words.begin(); word != words.end(); ++word) {
            QVERIFY2(room.contains(word->place), qPrintable(word->text));
            for (auto other = word + 1; other != words.end() && other->sheet == word->sheet; ++other) {
                // The boxes hold the whole height of the font, which lines of text share a little of.
                const QRectF both = word->place & other->place;
                if (both.width() > 1 && both.height() > 2)
                    QFAIL(qPrintable(word->text + " and " + other->text));
            }
        }
    }

    void aLongAnswerPushesDownWhatFollowsAndIsAllThere_data() { everyLayout_data(); }
    void aLongAnswerPushesDownWhatFollowsAndIsAllThere() {
        QFETCH(QString, name);
        Paper paper = filled(*findLayout(name.toStdString()), longValue);
        const std::string pdf = pdfOf(paper);
        const QString text = withoutBlanks(sheetsOf(pdf, "-raw").join(""));
        for (const PaperItem* item : itemsOf(paper)) {
            const QString longest = QString::fromStdString(item->value).section(' ', -1);
            QVERIFY2(item->value.empty() || text.contains(withoutBlanks(longest.left(20))), qPrintable(longest));
        }
        QVERIFY(sheetsOf(pdf, "-raw").size() >= PaperPages(*findLayout(name.toStdString())).count());
    }

    void headFootAndTheHeadOfATableStandOnEverySheet() {
        const Paper paper = filled(tablePaper(150), shortValue);
        const QStringList sheets = sheetsOf(pdfOf(paper), "-layout");
        QVERIFY(sheets.size() >= 4);
        QCOMPARE(sheets.size(), PaperPages(paper).count());
        int rows = 0;
        for (int sheet = 0; sheet < sheets.size(); ++sheet) {
            const auto words = wordsOf(sheets[sheet]);
            for (const char* word : {"Heading", "Remarks", "Footing"})
                QCOMPARE(words.at(word), 1);
            QVERIFY(withoutBlanks(sheets[sheet]).endsWith(QStringLiteral("%1/%2").arg(sheet + 1).arg(sheets.size())));
            rows += words.at("words");
        }
        QCOMPARE(rows, 150);
    }

    void aPaperOfOneSheetHasNoSheetNumber() {
        QVERIFY(!sheetsOf(pdfOf(filled(tablePaper(3), shortValue)), "-layout").join("").contains('/'));
    }

    void aRowThatFitsOnASheetIsNotCut() {
        Paper paper = tablePaper(40);
        int lines = 0;
        paper = filled(paper, [&](int) {
            std::string value = "begins";
            for (int line = 0; line < lines % 7; ++line)
                value += "\nmiddle";
            ++lines;
            return value + "\nends";
        });
        for (const QString& sheet : sheetsOf(pdfOf(paper), "-layout")) {
            const auto words = wordsOf(sheet);
            QCOMPARE(words.at("begins"), words.at("ends"));
        }
    }

    void aRowLongerThanASheetGoesOnOnTheNextBetweenTwoLines() {
        std::string value;
        for (int line = 0; line < 200; ++line)
            value += "line" + std::to_string(line) + "\n";
        const Paper paper = filled(tablePaper(1), [&](int) { return value; });
        const QStringList sheets = sheetsOf(pdfOf(paper), "-layout");
        QVERIFY(sheets.size() >= 3);
        for (int line = 0; line < 200; ++line)
            QCOMPARE(wordsOf(sheets.join(" ")).at("line" + QString::number(line)), 1);
    }

    void aParagraphGoesOnOnTheNextSheetWithTwoLinesAtLeast() {
        // Beside shorter and shorter rests of the first sheet.
        for (int above = 0; above < 12; ++above) {
            Paper paper{.name = "letter", .title = "A letter"};
            PaperSection letter{.kind = SectionKind::Letter, .rows = {}};
            for (int line = 0; line < 28 + above; ++line)
                letter.rows.push_back({{{{.text = "above"}}}});
            std::string text;
            for (int line = 0; line < 6; ++line)
                text += "line\n";
            letter.rows.push_back({{{{.field = "text", .value = text + "line"}}}});
            paper.body = {letter};
            for (const QString& sheet : sheetsOf(pdfOf(paper), "-layout")) {
                const auto words = wordsOf(sheet);
                QVERIFY(!words.contains("line") || words.at("line") >= 2);
            }
            QCOMPARE(wordsOf(sheetsOf(pdfOf(paper), "-layout").join(" ")).at("line"), 7);
        }
    }

    void aQuestionWithoutAnAnswerStaysWithTheNextOne() {
        Paper paper{.name = "questions", .title = "Questions"};
        PaperSection questions{.kind = SectionKind::Questions, .rows = {}};
        for (int number = 0; number < 200; ++number) {
            const bool head = number % 3 == 0;
            PaperRow question{{{}, {}, {}, {{.text = head ? "head" : number % 3 == 1 ? "first" : "second"}}, {}}};
            if (!head)
                question.cells.back().push_back({.field = "answer"});
            questions.rows.push_back(question);
        }
        paper.body = {questions};
        for (const QString& sheet : sheetsOf(pdfOf(paper), "-layout"))
            QCOMPARE(wordsOf(sheet).at("head"), wordsOf(sheet).at("first"));
    }

    void anEmptyBlankHasRoomForThePen() {
        const double blank = widthOf({{.field = "FLD1"}}, desktop::FieldLook::Blank);
        QVERIFY2(qAbs(blank - 40) < 0.5, qPrintable(QString::number(blank)));
        QVERIFY(widthOf({{.field = "FLD1"}}, desktop::FieldLook::Bold) > 10);
        QCOMPARE(widthOf({{.field = "FLD1"}}, desktop::FieldLook::Plain), 0.0);
        QVERIFY(widthOf({{.field = "FLD1", .value = "x"}}, desktop::FieldLook::Blank) < 5);
    }

    void emptyBlanksAreRules() {
        Paper paper{.name = "letter", .title = "A letter"};
        paper.body = {{SectionKind::Letter, {{{{{.field = "FLD1"}}}}}}};
        QVERIFY(inkOn(paper) > 100);
        paper.body = {{SectionKind::Pairs, {{{{}, {}}}}}};
        QVERIFY(inkOn(paper) > 100);
        paper.body = {{SectionKind::Letter, {{{{}}}}}};
        QCOMPARE(inkOn(paper), 0);
    }

    void aBlankStandsBetweenItemsButNotBeforeAMark() {
        Paper paper{.name = "letter", .title = "A letter"};
        paper.body = {{SectionKind::Letter,
                       {{{{{.text = "No. "},
                           {.field = "a", .value = "7"},
                           {.text = " of the year"},
                           {.text = ", dated"},
                           {.field = "b", .value = "..today"},
                           {.text = ". It is done"}}}}}}};
        QCOMPARE(sheetsOf(pdfOf(paper), "-raw").join("").trimmed(),
                 QString("No. 7 of the year, dated ..today. It is done"));
    }

    void charactersThatATextDocumentTakesForItsOwnDoNoHarm() {
        Paper paper = tablePaper(1);
        paper = filled(paper, [](int) {
            return std::string(
                "a\0b\tc\r\nd\xEF\xB7\x90"
                "e\xEF\xBF\xBC"
                "f\xE2\x80\xA9"
                "g\xFF",
                21);
        });
        const auto words = wordsOf(sheetsOf(pdfOf(paper), "-raw").join(" "));
        for (const char* word : {"a", "b", "c", "d", "e", "f"})
            QVERIFY2(words.contains(word), word);
    }
    void aTextWithoutAnEndIsLaidOutInAFewMoments() {
        const Paper paper = filled(tablePaper(1), [](int) { return std::string(200000, 'w'); });
        QVERIFY(PaperPages(paper).count() > 10);
    }

private:
    /// In millimetres.
    static double widthOf(const PaperCell& cell, desktop::FieldLook look) {
        auto document = desktop::paperDocument(-1);
        QTextCursor cursor(document.get());
        desktop::insertItems(cursor, cell, {10, false, look}, {});
        return document->idealWidth() / desktop::paperUnitsPerMillimetre;
    }

    /// Dark dots on the first sheet.
    static int inkOn(const Paper& paper) {
        constexpr qreal scale = 0.2;
        QImage image((PaperPages::sheet() * scale).toSize(), QImage::Format_Grayscale8);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        PaperPages(paper).paint(painter, 0);
        painter.end();
        int dots = 0;
        for (int y = 0; y < image.height(); ++y)
            dots += static_cast<int>(std::count_if(image.scanLine(y), image.scanLine(y) + image.width(),
                                                   [](uchar dot) { return dot < 200; }));
        return dots;
    }
};

static const Registered<PaperPagesTest> registered;

#include "PaperPagesTest.moc"
