#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QPlainTextEdit>
#include <string>

#include "base/Numbers.h"
#include "base/Text.h"
#include "controls/User.h"
#include "desktop/LongText.h"
#include "gui/Registry.h"
#include "gui/SampleForm.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::string_literals;

namespace {

/// Texts that a user can bring in by pasting, and that a document can hold.
void addTexts() {
    QTest::addColumn<std::string>("text");
    QTest::newRow("plain") << "A new case from KHANDRI"s;
    QTest::newRow("blanks around") << "  a  b  "s;
    QTest::newRow("markup") << "& < > \" ' #"s;
    QTest::newRow("Devanagari") << "प्रस्तावाचे शीर्षक"s;
    QTest::newRow("right to left") << "עברית العربية 12"s;
    QTest::newRow("beyond the first plane") << "𐐷🏠"s;
    QTest::newRow("control characters") << "a\x01\x02\x1b\x7f\tb"s;
    QTest::newRow("line ends") << "one\r\ntwo\nthree\rfour"s;
    QTest::newRow("separators") << "one\u2028two\u2029three\u00a0four"s;
    QTest::newRow("a zero") << "a\0b"s;
    QTest::newRow("byte order mark") << "\ufefftext\ufeff"s;
    QTest::newRow("a hundred thousand characters") << std::string(100'000, 'x');
    QTest::newRow("fifty thousand Devanagari letters") << [] {
        std::string text;
        for (int letter = 0; letter < 50'000; ++letter)
            text += "अ";
        return text;
    }();
}

void paste(QWidget& widget, const std::string& text) {
    QGuiApplication::clipboard()->setText(desktop::toQt(text));
    QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
}

}  // namespace

class TextBoxTest : public QObject {
    Q_OBJECT

private slots:
    void typedCharactersReachTheSystem() {
        Stage stage;
        QTest::keyClicks(&stage.widget(stage.form().title), "Bungalow 2");
        QCOMPARE(stage.form().title.text(), "Bungalow 2"s);
    }

    void aKeyThatUnloadsItsFormIsTypedIntoNothing() {
        for (const auto box : {&SampleForm::title, &SampleForm::notes}) {
            Stage stage;
            QWidget& widget = stage.widget(stage.form().*box);
            (stage.form().*box).keyPress = [&](int key) {
                stage.proposal.forms.unload("SampleForm");
                return key;
            };
            QTest::keyClicks(&widget, "x");
            QVERIFY(!stage.proposal.forms.loaded("SampleForm"));
        }
    }

    void charactersAreTypedWhereTheCaretIs() {
        Stage stage;
        stage.form().title.setText("abef");
        stage.settle();
        auto& line = stage.widget<QLineEdit>(stage.form().title);
        line.setCursorPosition(2);
        QTest::keyClicks(&line, "cd");
        QCOMPARE(stage.form().title.text(), "abcdef"s);
        QCOMPARE(line.cursorPosition(), 4);
    }

    void keysThatTheFormSwallowsDoNothing() {
        Stage stage;
        QTest::keyClicks(&stage.widget(stage.form().title), "a#b$c%d&e*f@g^h~i");
        QCOMPARE(stage.form().title.text(), "abcdefghi"s);
    }

    void keysThatTheBoxSwallowsDoNothing() {
        Stage stage;
        QTest::keyClicks(&stage.widget(stage.form().number), "1a2.-5.x0");
        QCOMPARE(stage.form().number.text(), "12.5.0"s);
        QCOMPARE(stage.widget<QLineEdit>(stage.form().number).text(), QString("12.5.0"));
    }

    void aSwallowedBackspaceDeletesNothing() {
        Stage stage;
        constexpr int backspace = 8;
        stage.form().title.setText("abc");
        stage.form().title.keyPress = [](int key) { return key == backspace ? 0 : key; };
        stage.settle();
        QTest::keyClick(&stage.widget(stage.form().title), Qt::Key_End);
        QTest::keyClick(&stage.widget(stage.form().title), Qt::Key_Backspace);
        QCOMPARE(stage.form().title.text(), "abc"s);
        stage.form().title.keyPress = nullptr;
        QTest::keyClick(&stage.widget(stage.form().title), Qt::Key_Backspace);
        QCOMPARE(stage.form().title.text(), "ab"s);
    }

    void aKeyThatAFilterTurnsIntoAnotherTypesTheOther() {
        Stage stage;
        stage.form().title.keyPress = [](int key) { return key == 'a' ? 'b' : key; };
        QTest::keyClicks(&stage.widget(stage.form().title), "cat");
        QCOMPARE(stage.form().title.text(), "cbt"s);
    }

    void composedTextPassesTheFilters() {
        Stage stage;
        QInputMethodEvent composed;
        composed.setCommitString("1क2#");
        stage.view.act(Qt::OtherFocusReason, [&] { stage.form().number.setFocus(); });
        QCoreApplication::sendEvent(&stage.widget(stage.form().number), &composed);
        QCOMPARE(stage.form().number.text(), "12"s);
    }

    void pastedTextIsKeptAsPasted_data() { addTexts(); }
    void pastedTextIsKeptAsPasted() {
        QFETCH(std::string, text);
        Stage stage;
        // The filter of the number box sees keys alone, never what is pasted.
        for (TextBox* box : {&stage.form().title, &stage.form().number, &stage.form().notes}) {
            stage.view.act(Qt::OtherFocusReason, [&] { box->setFocus(); });
            paste(stage.widget(*box), text);
            QVERIFY2(box->text() == text, box->name().c_str());
        }
    }

    void showingATextChangesNothingOfIt_data() {
        addTexts();
        QTest::newRow("no valid UTF-8") << "\xff\xfe a \x80\xc3"s;
    }
    void showingATextChangesNothingOfIt() {
        QFETCH(std::string, text);
        Stage stage;
        for (TextBox* box : {&stage.form().title, &stage.form().notes}) {
            box->setText(text);
            stage.settle();
            stage.view.act(Qt::OtherFocusReason, [&] { box->setFocus(); });
            QTest::keyClick(&stage.widget(*box), Qt::Key_End);
        }
        stage.form().hide();
        stage.settle();
        stage.form().show();
        stage.settle();
        QVERIFY(stage.form().title.text() == text);
        QVERIFY(stage.form().notes.text() == text);
    }

    void typingInATextLeavesTheRestOfItAlone_data() { showingATextChangesNothingOfIt_data(); }
    void typingInATextLeavesTheRestOfItAlone() {
        QFETCH(std::string, text);
        Stage stage;
        for (TextBox* box : {&stage.form().title, &stage.form().notes}) {
            box->setText(text);
            stage.view.act(Qt::OtherFocusReason, [&] { box->setFocus(); });
            QTest::keyClick(&stage.widget(*box), Qt::Key_Home, Qt::ControlModifier);
            QTest::keyClicks(&stage.widget(*box), "Z");
            // What is too long to be laid out at a key takes none.
            const bool edits = desktop::fitsEditor(text, box->multiLine);
            QVERIFY2(box->text() == (edits ? "Z" + text : text), box->name().c_str());
        }
    }

    void aPieceIsPastedIntoTheMiddleOfALineWithItsLineEnds() {
        Stage stage;
        TextBox& notes = stage.form().notes;
        notes.setText("one\ntwo\r\nthree");
        stage.view.act(Qt::OtherFocusReason, [&] { notes.setFocus(); });
        auto& edit = stage.widget<QPlainTextEdit>(notes);
        QTextCursor cursor = edit.textCursor();
        cursor.setPosition(8);
        edit.setTextCursor(cursor);
        paste(edit, "A\nB\r\nC\rD");
        QCOMPARE(notes.text(), "one\ntwo\r\nA\nB\r\nC\rDthree"s);
        QCOMPARE(edit.textCursor().position(), 15);
    }

    void whatIsCutOutOfSeveralLinesIsGone() {
        Stage stage;
        TextBox& notes = stage.form().notes;
        notes.setText("one\r\ntwo\r\nthree");
        stage.view.act(Qt::OtherFocusReason, [&] { notes.setFocus(); });
        auto& edit = stage.widget<QPlainTextEdit>(notes);
        QTextCursor cursor = edit.textCursor();
        cursor.setPosition(2);
        cursor.setPosition(10, QTextCursor::KeepAnchor);
        edit.setTextCursor(cursor);
        QTest::keyClick(&edit, Qt::Key_Delete);
        QCOMPARE(notes.text(), "onree"s);
    }

    void aReactionMayMakeSomethingElseOfTheText() {
        Stage stage;
        TextBox& title = stage.form().title;
        title.change = [&] {
            if (title.text() == "ab")
                title.setText("AB!");
        };
        auto& line = stage.widget<QLineEdit>(title);
        QTest::keyClicks(&line, "ab");
        QCOMPARE(title.text(), "AB!"s);
        QCOMPARE(line.text(), QString("AB!"));
        QCOMPARE(line.cursorPosition(), 2);
    }

    void aReactionMayTakeAwayALineThatIsBeingTyped() {
        Stage stage;
        TextBox& notes = stage.form().notes;
        notes.change = [&] {
            if (notes.text().size() > 2)
                notes.setText("");
        };
        auto& edit = stage.widget<QPlainTextEdit>(notes);
        QTest::keyClicks(&edit, "abcde");
        QCOMPARE(notes.text(), "de"s);
        QCOMPARE(edit.toPlainText(), QString("de"));
    }

    void aScriptOfKeysGivesTheSameTextHereAndInTheDriver_data() {
        QTest::addColumn<std::string>("keys");
        for (const char* keys : {"125", "12.5", "0.07", "1000000", "12x34", ".5", "00", "1.2.3", "अआ"})
            QTest::newRow(keys) << std::string(keys);
    }
    void aScriptOfKeysGivesTheSameTextHereAndInTheDriver() {
        QFETCH(std::string, keys);
        const auto rewrites = [](TextBox& box) {
            box.change = [&box] {
                if (box.text().find('x') == std::string::npos)
                    box.setText(formatAmount(box.text()));
                else
                    box.setText("");
            };
        };
        Stage inWindow;
        TextBox& seen = inWindow.form().title;
        rewrites(seen);
        inWindow.view.act(Qt::TabFocusReason, [&] { seen.setFocus(); });
        for (const char32_t key : codePoints(keys))
            QTest::sendKeyEvent(QTest::Click, &inWindow.widget(seen), Qt::Key_unknown,
                                QString(QChar(static_cast<char16_t>(key))), Qt::NoModifier);
        Stage scripted;
        rewrites(scripted.form().title);
        user::type(scripted.form().title, keys);
        QCOMPARE(seen.text(), scripted.form().title.text());
    }

    void anAmountIsTypedBeforeItsDecimals() {
        Stage stage;
        TextBox& amount = stage.form().title;
        amount.change = [&] { amount.setText(formatAmount(amount.text())); };
        stage.view.act(Qt::TabFocusReason, [&] { amount.setFocus(); });
        QTest::keyClicks(&stage.widget(amount), "125");
        QCOMPARE(amount.text(), "125.00"s);
    }

    void textSetByCodeIsShown() {
        Stage stage;
        stage.form().title.setText("by code");
        stage.form().notes.setText("a\r\nb");
        stage.settle();
        QCOMPARE(stage.widget<QLineEdit>(stage.form().title).text(), QString("by code"));
        QCOMPARE(stage.widget<QPlainTextEdit>(stage.form().notes).toPlainText(), QString("a\nb"));
    }

    void aBoxThatWasLeftShowsHowItsTextBegins() {
        Stage stage;
        auto& line = stage.widget<QLineEdit>(stage.form().title);
        QTest::keyClicks(&line, "a long title");
        QCOMPARE(line.cursorPosition(), 12);
        QTest::keyClick(&line, Qt::Key_Tab);
        QCOMPARE(line.cursorPosition(), 0);
    }

    void aLockedBoxTakesNoKeys() {
        Stage stage;
        stage.form().title.setText("fixed");
        stage.form().title.locked = true;
        stage.form().title.setBackColor(disabledGrey);
        stage.settle();
        QTest::keyClicks(&stage.widget(stage.form().title), "x");
        QCOMPARE(stage.form().title.text(), "fixed"s);
    }

    void boxesHaveTheColourThatTheSystemGaveThem_data() {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<quint32>("colour");
        QTest::newRow("open") << true << 0xFFFFFFU;
        QTest::newRow("closed") << false << 0xE0E0E0U;
        QTest::newRow("active") << true << 0xEDEBD3U;
    }
    void boxesHaveTheColourThatTheSystemGaveThem() {
        QFETCH(bool, enabled);
        QFETCH(quint32, colour);
        Stage stage;
        for (TextBox* box : {&stage.form().title, &stage.form().notes}) {
            box->setEnabled(enabled);
            box->setBackColor({static_cast<std::uint8_t>(colour >> 16U), static_cast<std::uint8_t>(colour >> 8U),
                               static_cast<std::uint8_t>(colour)});
            stage.settle();
            const QImage image = stage.widget(*box).grab().toImage();
            QCOMPARE(image.pixelColor(image.width() / 2, image.height() / 2).rgb() & 0xFFFFFFU, colour);
            QCOMPARE(stage.widget(*box).isEnabled(), enabled);
        }
    }

    void shiftEnterAndCtrlEnterBreakALine() {
        Stage stage;
        TextBox& notes = stage.form().notes;
        notes.setText("onetwo");
        stage.view.act(Qt::OtherFocusReason, [&] { notes.setFocus(); });
        auto& edit = stage.widget<QPlainTextEdit>(notes);
        for (const auto& [key, modifier] :
             {std::pair(Qt::Key_Return, Qt::ShiftModifier), std::pair(Qt::Key_Return, Qt::ControlModifier),
              std::pair(Qt::Key_Enter, Qt::ShiftModifier)}) {
            QTextCursor cursor = edit.textCursor();
            cursor.setPosition(3);
            edit.setTextCursor(cursor);
            QTest::keyClick(&edit, key, modifier);
            QVERIFY(stage.hasKeyboard(notes));
        }
        QCOMPARE(notes.text(), "one\r\n\r\n\r\ntwo"s);
        notes.locked = true;
        stage.settle();
        edit.setReadOnly(true);
        QTest::keyClick(&edit, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(notes.text(), "one\r\n\r\n\r\ntwo"s);
        QTest::keyClick(&stage.widget(stage.form().title), Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(stage.form().title.text(), ""s);
    }

    void enterInABoxOfSeveralLinesMovesOn() {
        Stage stage;
        stage.view.act(Qt::OtherFocusReason, [&] { stage.form().notes.setFocus(); });
        QTest::keyClick(&stage.widget(stage.form().notes), Qt::Key_Return);
        QCOMPARE(stage.form().notes.text(), ""s);
        QVERIFY(stage.hasKeyboard(stage.form().check));
    }
};

static const Registered<TextBoxTest> registered;

#include "TextBoxTest.moc"
