#include "desktop/QtProgress.h"

#include <QFrame>
#include <QLabel>
#include <QProgressBar>
#include <QTest>

#include "gui/Registry.h"

using namespace plandesk;
using namespace plandesk::test;
using namespace std::chrono_literals;

namespace {

/// Work on a window of its own, whose time passes only as the test tells.
struct Work {
    desktop::QtProgress::Time time;
    int asked = 0;
    QWidget window;
    desktop::QtProgress progress{[this] {
        ++asked;
        return time;
    }};

    Work() {
        window.resize(600, 400);
        window.show();
        progress.parent = &window;
    }
    void step(std::chrono::milliseconds duration) {
        time += duration;
        progress.step();
    }
    QFrame* panel() { return window.findChild<QFrame*>("progress"); }
    QProgressBar& bar() { return *panel()->findChild<QProgressBar*>(); }
};

/// Counts how often the window is painted.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& window) { window.installEventFilter(this); }
    int paints = 0;
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

}  // namespace

class QtProgressTest : public QObject {
    Q_OBJECT

private slots:
    void shortWorkShowsNothing() {
        Work work;
        const ProgressOf telling(work.progress, "Save", 100);
        for (int step = 0; step < 100; ++step)
            work.step(2ms);
        QVERIFY(!work.panel());
        QVERIFY(!QGuiApplication::overrideCursor());
        // The clock is all that a step costs.
        QVERIFY(work.asked <= 101);
    }

    void longWorkShowsItsNameAndHowFarItHasCome() {
        Work work;
        {
            ProgressOf telling(work.progress, " Plot Extract Relation Ship ", 10);
            work.step(299ms);
            QVERIFY(!work.panel());
            work.step(1ms);
            QVERIFY(work.panel()->isVisible());
            QCOMPARE(work.panel()->findChild<QLabel*>()->text(), QString("Plot Extract Relation Ship"));
            QCOMPARE(work.bar().accessibleName(), QString("Plot Extract Relation Ship"));
            QCOMPARE(work.bar().maximum(), 10);
            QCOMPARE(work.bar().value(), 2);
            QVERIFY(work.window.rect().contains(work.panel()->geometry()));
            QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
            work.step(60ms);
            QCOMPARE(work.bar().value(), 3);
        }
        QVERIFY(!work.panel());
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void theBarIsMovedNowAndThenOnly() {
        Work work;
        ProgressOf telling(work.progress, "Save", 100);
        work.step(300ms);
        work.step(20ms);
        work.step(20ms);
        QCOMPARE(work.bar().value(), 1);
        work.step(20ms);
        QCOMPARE(work.bar().value(), 4);
    }

    void theWindowIsPaintedMeanwhile() {
        Work work;
        PaintCounter counter(work.window);
        ProgressOf telling(work.progress, "Save", 10);
        QVERIFY(QTest::qWaitForWindowExposed(&work.window));
        const int before = counter.paints;
        work.window.update();
        work.step(100ms);
        QCOMPARE(counter.paints, before);
        work.step(200ms);
        QVERIFY(counter.paints > before);
    }

    void eachPieceOfWorkBeginsAnew() {
        Work work;
        for (int piece = 0; piece < 5; ++piece) {
            ProgressOf telling(work.progress, "Save", 10);
            work.step(250ms);
            QVERIFY(!work.panel());
        }
    }

    void workWithinWorkKeepsItsNameAndMovesNothing() {
        Work work;
        ProgressOf outer(work.progress, "Save", 4);
        work.step(100ms);
        {
            ProgressOf inner(work.progress, "Part", 1000);
            work.step(100ms);
            work.step(100ms);
            QVERIFY(work.panel());
            QCOMPARE(work.panel()->findChild<QLabel*>()->text(), QString("Save"));
            QCOMPARE(work.bar().value(), 1);
        }
        QVERIFY(work.panel());
        work.step(100ms);
        QCOMPARE(work.bar().value(), 2);
    }

    void moreStepsThanToldAreNoHarm() {
        Work work;
        ProgressOf telling(work.progress, "Save", 1);
        work.step(300ms);
        work.step(60ms);
        QCOMPARE(work.bar().value(), 1);
    }

    void withoutAWindowNothingIsShown() {
        Work work;
        work.progress.parent = nullptr;
        ProgressOf telling(work.progress, "Save", 1);
        work.step(400ms);
        QVERIFY(!work.panel());
        work.progress.end();
        work.progress.end();
    }
};

static const Registered<QtProgressTest> registered;

#include "QtProgressTest.moc"
