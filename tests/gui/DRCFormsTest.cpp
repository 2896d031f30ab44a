#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include "desktop/LongMessage.h"
#include "drc/frmDRCTransfer.h"
#include "drc/frmDRCTransferCont.h"
#include "drc/frmDRCUtilisationForm.h"
#include "drc/frmIssuOfDRc.h"
#include "gui/Registry.h"
#include "gui/Session.h"

using namespace plandesk;
using namespace plandesk::test;

class DRCFormsTest : public QObject {
    Q_OBJECT

private slots:
    void tabsCarryTheirWordsAndTheHeadStaysAboveThem() {
        Session session;
        session.press("mnuIssDCR");
        auto& form = session.form<frmIssuOfDRc>();
        auto& bar = session.widget<QTabBar>(form.SSTab1);
        QCOMPARE(bar.count(), 2);
        QCOMPARE(bar.tabText(0), QString("Land Details"));
        QWidget& inward = session.widget(form.txtInwardNo);
        QWidget& land = session.widget(form.txtCSCTSNo);
        QVERIFY(inward.isVisible() && land.isVisible());
        QVERIFY(bottomOf(inward) < topOf(bar) && bottomOf(bar) <= topOf(land));
        bar.setCurrentIndex(1);
        session.settle();
        QCOMPARE(form.SSTab1.tab(), 1);
        QVERIFY(inward.isVisible() && !land.isVisible());
        QVERIFY(bottomOf(bar) <= topOf(session.widget(form.txtTotalAreaOfLand)));
    }

    void wordsFollowTheKeysAndTheFigureIsGroupedWhenItIsLeft() {
        Session session;
        session.press("mnuDCRUtilization");
        auto& form = session.form<frmDRCUtilisationForm>();
        auto& figure = session.widget<QLineEdit>(form.txtConsiderationRs);
        auto& words = session.widget<QPlainTextEdit>(form.txtConsiderationRsWord);
        figure.setFocus();
        session.settle();
        for (const char key : {'1', '5', '0', '0'})
            QTest::keyClick(&figure, key);
        QCOMPARE(words.toPlainText(), QString("One Thousand Five Hundred Rupees"));
        QVERIFY(words.isReadOnly());
        QTest::keyClick(&figure, Qt::Key_Return);
        session.settle();
        QCOMPARE(figure.text(), QString("1,500.00"));
        QCOMPARE(words.toPlainText(), QString("One Thousand Five Hundred Point Zero  Rupees"));
        QVERIFY(form.txtConsiderationRsWord.focused());
        figure.setFocus();
        figure.selectAll();
        QTest::keyClick(&figure, Qt::Key_Delete);
        QCOMPARE(figure.text(), QString());
        QCOMPARE(words.toPlainText(), QString("One Thousand Five Hundred Point Zero  Rupees"));
    }

    void aClickOnAHintActsAsItsKey() {
        Session session;
        session.press("mnuDCRUtilization");
        auto& form = session.form<frmDRCUtilisationForm>();
        click(session.widget(form.lblToggle));
        session.settle();
        QCOMPARE(form.SSTab1.tab(), 1);
        QVERIFY(form.txtTransfareeName1.focused());
        QCOMPARE(QApplication::focusWidget(), &session.widget(form.txtTransfareeName1));
        click(session.widget(form.lblSave));
        QCOMPARE(session.dialogs.take().size(), std::size_t{1});
        click(session.widget(form.lblEsc));
        QVERIFY(!form.visible());
    }

    void theLastFieldOfTheDeedLeadsToTheOtherTab() {
        Session session;
        session.press("mnuDcrTransForm");
        auto& form = session.form<frmDRCTransfer>();
        QWidget& last = session.widget(form.txtApprovalPlace);
        last.setFocus();
        session.settle();
        QTest::keyClick(&last, Qt::Key_Return);
        session.settle();
        QCOMPARE(form.SSTab1.tab(), 1);
        QCOMPARE(QApplication::focusWidget(), &session.widget(form.txtFolioNumber1));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);
        session.settle();
        QCOMPARE(form.SSTab1.tab(), 0);
    }

    void aLongTextScrollsInItsMessageAndTheButtonStaysOnTheScreen_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("scrolls");
        QTest::newRow("short") << "RecodCOunt 1" << false;
        QTest::newRow("one long word") << "<ISSUEOFDRC>" + QString(12'000, '#') + "</ISSUEOFDRC>" << true;
        QTest::newRow("many words") << QString("Patil & Sons#").repeated(1'000) << true;
        QTest::newRow("at the limit") << QString("Patil and Sons ").repeated(32) << false;
        QTest::newRow("a word of one line") << QString(50, 'W') << false;
        QTest::newRow("a word longer than a line") << QString(51, 'W') << true;
    }
    void aLongTextScrollsInItsMessageAndTheButtonStaysOnTheScreen() {
        QFETCH(QString, text);
        QFETCH(bool, scrolls);
        const QFont usual = QApplication::font();
        for (const int scale : {1, 2}) {
            QFont font = usual;
            font.setPointSizeF(scale * usual.pointSizeF());
            QApplication::setFont(font);
            QMessageBox box(QMessageBox::Information, "Plandesk", text, QMessageBox::Ok);
            desktop::scrollLongText(box);
            box.show();
            QCoreApplication::processEvents();
            const auto* shown = box.findChild<QPlainTextEdit*>("longText");
            QCOMPARE(shown != nullptr, scrolls);
            QCOMPARE(box.text(), text);
            QVERIFY2(box.width() <= 1024 && box.height() <= 660,
                     qPrintable(QString("%1 x %2").arg(box.width()).arg(box.height())));
            const QPushButton& button = *static_cast<QPushButton*>(box.button(QMessageBox::Ok));
            QVERIFY(button.isVisible());
            QVERIFY(box.rect().contains(QRect(button.mapTo(&box, QPoint(0, 0)), button.size())));
            if (shown) {
                QCOMPARE(shown->toPlainText(), text);
                QVERIFY(!box.findChild<QLabel*>("qt_msgbox_label")->isVisible());
            }
        }
        QApplication::setFont(usual);
    }

private:
    static int topOf(const QWidget& widget) { return widget.mapToGlobal(QPoint(0, 0)).y(); }
    static int bottomOf(const QWidget& widget) { return topOf(widget) + widget.height(); }
    static void click(QWidget& label) { QTest::mouseClick(&label, Qt::LeftButton, {}, QPoint(4, label.height() / 2)); }
};

static const Registered<DRCFormsTest> registered;

#include "DRCFormsTest.moc"
