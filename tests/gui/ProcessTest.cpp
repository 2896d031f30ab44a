#include "desktop/Process.h"

#include <csignal>

#include "gui/Registry.h"
#include "gui/Session.h"

using namespace plandesk;
using namespace plandesk::desktop;
using namespace plandesk::test;

namespace {

/// What the desktop's session manager is asked for.
struct FakeManager {
    bool mayAsk = true;
    QStringList calls = {};

    bool allowsInteraction() const { return mayAsk; }
    void cancel() { calls += "cancel"; }
    void release() { calls += "release"; }
};

}  // namespace

class ProcessTest : public QObject {
    Q_OBJECT

private slots:
    void aSignalToEndAsksAsClosingTheWindowDoes_data() {
        QTest::addColumn<int>("number");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGHUP") << SIGHUP;
        QTest::newRow("SIGINT") << SIGINT;
    }
    void aSignalToEndAsksAsClosingTheWindowDoes() {
        QFETCH(int, number);
        Session session;
        const EndSignals endings([&] { session.window.closeWhenIdle(); });
        session.dialogs.answers = {"no", "yes"};
        std::raise(number);
        QTRY_COMPARE(session.dialogs.messages.size(), std::size_t{1});
        QVERIFY(session.window.isVisible());
        QCOMPARE(session.program.ends, 0);
        std::raise(number);
        QTRY_COMPARE(session.program.ends, 1);
        QVERIFY(!session.window.isVisible());
    }

    void aSignalThatComesWhileABoxIsOpenWaitsForItsEnd() {
        Session session;
        const EndSignals endings([&] { session.window.closeWhenIdle(); });
        session.window.forms().act(Qt::OtherFocusReason, [&] {
            std::raise(SIGTERM);
            QTest::qWait(300);
            QVERIFY(session.dialogs.messages.empty());
        });
        session.dialogs.answers = {"yes"};
        QTRY_COMPARE(session.program.ends, 1);
    }

    void theEndOfTheSessionIsStoppedByANo() {
        Session session;
        FakeManager manager;
        session.dialogs.answers = {"no"};
        answerEndOfSession(session.window, manager);
        QCOMPARE(manager.calls, QStringList({"cancel", "release"}));
        QCOMPARE(session.program.ends, 0);
        QVERIFY(session.window.isVisible());
    }

    void theEndOfTheSessionGoesOnAfterAYes() {
        Session session;
        FakeManager manager;
        session.dialogs.answers = {"yes"};
        answerEndOfSession(session.window, manager);
        QCOMPARE(manager.calls, QStringList({"release"}));
        QCOMPARE(session.program.ends, 1);
    }

    void theEndOfTheSessionIsStoppedWhileABoxIsOpen() {
        Session session;
        FakeManager manager;
        session.window.forms().act(Qt::OtherFocusReason, [&] { answerEndOfSession(session.window, manager); });
        QCOMPARE(manager.calls, QStringList({"cancel", "release"}));
        QVERIFY(session.window.isVisible());
    }

    void aManagerThatAllowsNoQuestionGetsNone() {
        Session session;
        FakeManager manager{.mayAsk = false};
        answerEndOfSession(session.window, manager);
        QVERIFY(manager.calls.empty());
        QVERIFY(session.dialogs.messages.empty());
    }
};

static const Registered<ProcessTest> registered;

#include "ProcessTest.moc"
