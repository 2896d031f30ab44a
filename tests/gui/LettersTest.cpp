#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include "gui/Registry.h"
#include "gui/Session.h"
#include "reports/letters/StatutoryLetters.h"

using namespace plandesk;
using namespace plandesk::test;

class LettersTest : public QObject {
    Q_OBJECT

private slots:
    void aLetterReadsFromTheTopAndItsBlanksAreCalledByTheirWords() {
        Session session;
        session.press("mnuCommencement");
        auto& form = session.form<frmnoticeofcommencementofwork>();
        int bottom = 0;
        for (Control* control : form.pageOrder()) {
            if (!control->visible() || control->key() == "possessionreciept(0)")
                continue;
            const QWidget& widget = session.widget(*control);
            QVERIFY2(topOf(widget) > bottom, control->key().c_str());
            bottom = topOf(widget);
        }
        QCOMPARE(session.widget(form.blanks.boxes[1]).accessibleName(), QString("Village"));
        QCOMPARE(session.widget(form.blanks.boxes[1]).accessibleDescription(), QString("mandatory"));
        QCOMPARE(session.widget(form.blanks.dates[1]).accessibleName(), QString("date of the communication"));
    }

    void thePageNumberComesAndGoesWithTheAnswer() {
        Session session;
        session.press("mnuCommencement");
        auto& form = session.form<frmnoticeofcommencementofwork>();
        auto& page = form.at<TextBox>("txtNoticeForCommencment(15)");
        auto& box = session.widget<QLineEdit>(page);
        QVERIFY(!box.isVisible());
        QVERIFY(!session.widget(form.lblPageNumber).isVisible());
        session.widget<QRadioButton>(form.blanks.answer.front().yes).click();
        session.settle();
        QVERIFY(box.isVisible());
        QVERIFY(session.widget(form.lblPageNumber).isVisible());
        QCOMPARE(box.accessibleName(), QString("Page Number  :"));
        box.setFocus();
        session.settle();
        QTest::keyClicks(&box, "1#4");
        QCOMPARE(page.text(), std::string("14"));
        session.widget<QRadioButton>(form.blanks.answer.front().no).click();
        session.settle();
        QVERIFY(!box.isVisible());
        QCOMPARE(page.text(), std::string());
    }

private:
    static int topOf(const QWidget& widget) { return widget.mapToGlobal(QPoint(0, 0)).y(); }
};

static const Registered<LettersTest> registered;

#include "LettersTest.moc"
