#include "desktop/LongText.h"

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>

#include "controls/User.h"
#include "gui/GridForm.h"
#include "gui/Registry.h"
#include "gui/SampleForm.h"

using namespace plandesk;
using namespace plandesk::desktop;
using namespace plandesk::test;

namespace {

constexpr std::size_t size = 10'000'000;

}  // namespace

class LongTextTest : public QObject {
    Q_OBJECT

private slots:
    void aTextOfUsualLengthIsShownWhole() {
        QCOMPARE(beginning("Khandri \u0917"), QString("Khandri \u0917"));
        QCOMPARE(beginning(std::string(1000, 'w')), QString(1000, 'w'));
        QVERIFY(fitsEditor(std::string(2000, 'w'), true));
        QVERIFY(fitsEditor(std::string(2001, 'w'), false));
    }

    void ofALongTextTheBeginningIsShownAndItsLength() {
        QCOMPARE(beginning(std::string(size, 'w'), 3), QString("www \u2026 [the beginning of 10.0 MB]"));
        QVERIFY(!fitsEditor(std::string(2001, 'w'), true));
        QVERIFY(!fitsEditor(std::string(size, ' '), false));
    }

    void noCharacterIsCutInTwo() {
        QVERIFY(beginning("a\u0917\u0917\u0917", 5).startsWith("a\u0917 \u2026"));
        QVERIFY(beginning("\U0001F3E0\U0001F3E0\U0001F3E0", 7).startsWith("\U0001F3E0 \u2026"));
    }

    void aBoxKeepsALongWordWhole_data() {
        QTest::addColumn<bool>("severalLines");
        QTest::newRow("one line") << false;
        QTest::newRow("several lines") << true;
    }
    void aBoxKeepsALongWordWhole() {
        QFETCH(bool, severalLines);
        Stage stage;
        TextBox& box = severalLines ? stage.form().notes : stage.form().title;
        QWidget& widget = stage.widget(box);
        stage.view.act(Qt::OtherFocusReason, [&] { user::focus(box); });
        QTest::keyClicks(&widget, "ab");
        QTest::keyClick(&widget, Qt::Key_Left);
        QGuiApplication::clipboard()->setText(QString(size, 'w'));
        QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
        QVERIFY(box.text() == "a" + std::string(size, 'w') + "b");
        stage.settle();
        QVERIFY(shown(widget).size() < 2000);
        QVERIFY(shown(widget).startsWith("aw"));
        QTest::keyClicks(&widget, "x");
        QCOMPARE(box.text().size(), size + 2);
        QTest::keyClick(&widget, Qt::Key_Backspace);
        QVERIFY(box.text() == "a" + std::string(size, 'w'));
        QTest::keyClick(&widget, Qt::Key_Delete);
        QCOMPARE(box.text().size(), size + 1);
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&widget, Qt::Key_Delete);
        QVERIFY(box.text().empty());
        QTest::keyClicks(&widget, "new");
        QCOMPARE(box.text(), std::string("new"));
    }

    void aCellKeepsALongWordWholeAndIsNotTypedInto() {
        GridStage stage;
        const std::string word(size, 'w');
        stage.table->setAbsolutePosition(2);
        stage.table->set(GridForm::Name, word);
        stage.form().grid.refresh();
        stage.settle();
        QVERIFY(stage.text(1, GridForm::Name).size() < 2000);
        stage.doubleClick(1, GridForm::Name);
        QVERIFY(!stage.line());
        QVERIFY(stage.cell(1, GridForm::Name) == word);
    }

    void aCellTakesALongWordThatIsPasted() {
        GridStage stage;
        stage.click(1, GridForm::Name);
        QGuiApplication::clipboard()->setText(QString(size, 'w'));
        stage.press(Qt::Key_V, Qt::ControlModifier);
        stage.press(Qt::Key_Return);
        QVERIFY(stage.cell(1, GridForm::Name) == std::string(size, 'w'));
    }

    void captionsAndListsShowTheBeginning() {
        Stage stage;
        const std::string word(size, 'w');
        stage.form().caption.setCaption(word);
        stage.form().list.addItem(word);
        stage.form().setCaption(word);
        stage.settle();
        QVERIFY(stage.widget<QLabel>(stage.form().caption).text().size() < 2000);
        QVERIFY(stage.widget<QComboBox>(stage.form().list).itemText(3).size() < 2000);
        stage.view.act(Qt::OtherFocusReason, [&] { user::pick(stage.form().list, 3); });
        QVERIFY(stage.form().list.text() == word);
    }

private:
    static QString shown(const QWidget& widget) {
        const auto* line = qobject_cast<const QLineEdit*>(&widget);
        return line ? line->text() : static_cast<const QPlainTextEdit&>(widget).toPlainText();
    }
};

static const Registered<LongTextTest> registered;

#include "LongTextTest.moc"
