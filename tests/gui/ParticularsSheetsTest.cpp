#include <algorithm>

#include "desktop/PaperPages.h"
#include "desktop/PaperPdf.h"
#include "gui/PaperTools.h"
#include "gui/Registry.h"
#include "reports/ReportCatalogue.h"

// The six pages of the Particulars of Development on sheets.

using namespace plandesk;
using namespace plandesk::test;
using desktop::PaperPages;
using desktop::pdfOf;

namespace {

constexpr const char* pages[] = {"rptAnnexutreA",  "rptAnnexutreA1", "rptAnnexutreA2",
                                 "rptAnnexutreA3", "rptAnnexutreA4", "rptAnnexutreA5"};

/// From the row of the question to the row of the next one.
QString rowOf(const QString& sheet, const QString& question, const QString& next) {
    const auto begin = sheet.indexOf(question);
    return sheet.mid(begin, sheet.indexOf(next) - begin).simplified();
}

}  // namespace

class ParticularsSheetsTest : public QObject {
    Q_OBJECT

private slots:
    void eachPageIsOneSheetWhenTheAnswersAreShort() {
        for (const char* page : pages)
            for (const std::string value : {"", "12.50"})
                QCOMPARE(PaperPages(filled(*findLayout(page), [&](int) { return value; })).count(), 1);
    }

    void whatIsSignedStandsOnTheSheetOfTheSignature() {
        for (const char* page : {"rptAnnexutreA4", "rptAnnexutreA5"}) {
            Paper paper = filled(*findLayout(page), [](int) { return "YES"; });
            std::vector<PaperRow>& questions = paper.body.front().rows;
            int sheets = 1;
            // Each row more moves the end of the page down by one, over the end of the sheet.
            for (int more = 0; more < 50 && sheets == 1; ++more) {
                questions.push_back(questions.back());
                const QStringList text = sheetsOf(pdfOf(paper), "-layout");
                sheets = static_cast<int>(text.size());
                QVERIFY(text.back().contains("I hereby declare"));
                for (const char* words : {"best of my knowledge.", "Signature of Applicant", "Address"})
                    QVERIFY2(text.back().contains(words), words);
            }
            QCOMPARE(sheets, 2);
        }
    }

    void marksQuestionAndAnswerStandInColumns() {
        const Paper paper =
            filled(*findLayout("rptAnnexutreA3"), [](int number) { return "v" + std::to_string(number); });
        std::map<QString, std::vector<double>> lefts;
        for (const Word& word : placesOf(pdfOf(paper)))
            for (const char* column :
                 {"16.", "17.", "18.", "19.", "20.", "21.", "a.", "b.", "c.", "d.", "i.", "ii.", "iii.", "iv."})
                if (word.text == column)
                    lefts[word.text.size() == 3 && word.text[0].isDigit() ? "number"
                          : word.text[0] == 'i'                           ? "small number"
                                                                          : "letter"]
                        .push_back(word.place.left());
        for (const Word& word : placesOf(pdfOf(paper)))
            if (word.text.startsWith('v') && word.text.size() < 4)
                lefts["answer"].push_back(word.place.left());
        QCOMPARE(lefts["number"].size(), 6U);
        QCOMPARE(lefts["letter"].size(), 15U);
        QCOMPARE(lefts["small number"].size(), 14U);
        QCOMPARE(lefts["answer"].size(), 26U);
        for (const auto& [column, places] : lefts)
            for (const double left : places)
                QVERIFY2(qAbs(left - places.front()) < 0.5, qPrintable(column));
        QVERIFY(lefts["number"].front() < lefts["letter"].front());
        QVERIFY(lefts["letter"].front() < lefts["small number"].front());
        QVERIFY(lefts["small number"].front() < lefts["answer"].front());
    }

    void ofTheStreetsThatAreNotThereNothingIsPrinted() {
        const auto widths = [](const std::string& first, const std::string& second) {
            Paper paper = *findLayout("rptAnnexutreA1");
            for (PaperItem* item : itemsOf(paper)) {
                if (item->field == "txtFstStreetWidth")
                    item->value = first;
                if (item->field == "txtStreet1" && !first.empty())
                    item->value = "1. Street :";
                if (item->field == "txtStreet2" && !first.empty())
                    item->value = "2. Street";
                if (item->field == "txtPescribWidth")
                    item->value = second;
            }
            return rowOf(sheetsOf(pdfOf(paper), "-layout").join(""), "Pescribed width", "ii.");
        };
        QCOMPARE(widths("", "9.00"), QString("Pescribed width 9.00"));
        QCOMPARE(widths("12.00", "9.00"), QString("Pescribed width 1. Street : 12.00 2. Street 9.00"));
    }

    void aFurtherAnswerStandsBelowTheFirst() {
        Paper paper = *findLayout("rptAnnexutreA4");
        for (PaperItem* item : itemsOf(paper))
            if (item->field == "Opt37Y" || item->field == "txtProvAnteena")
                item->value = item->field == "Opt37Y" ? "first" : "second";
        const std::vector<Word> words = placesOf(pdfOf(paper));
        const auto place = [&](const QString& text) {
            const auto found = std::ranges::find(words, text, &Word::text);
            return found == words.end() ? QRectF() : found->place;
        };
        QCOMPARE(place("first").left(), place("second").left());
        QVERIFY(place("first").top() + 5 < place("second").top());
    }
};

static const Registered<ParticularsSheetsTest> registered;

#include "ParticularsSheetsTest.moc"
