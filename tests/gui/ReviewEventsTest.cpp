// What the user does has the same effect with the review's panel open and without it.
// PLANDESK_REVIEW_SEED=N begins with the sequence of that seed.

#include <QLabel>
#include <QTest>
#include <random>
#include <sstream>

#include "desktop/MainWindow.h"
#include "gui/Registry.h"
#include "gui/Session.h"
#include "unit/FormEvents.h"
#include "unit/StateText.h"

using namespace plandesk;
using namespace plandesk::test;

namespace {

/// A system that any events come to, with its window.
struct Shown {
    FormEvents world;
    desktop::MainWindow window{world.proposal, world.shell};

    explicit Shown(bool reviewed) {
        window.furnish();
        window.resize(1366, 768);
        window.show();
        QCoreApplication::processEvents();
        if (reviewed)
            QTest::keyClick(&window, Qt::Key_F9);
        QTest::qWait(150);  // the desk has its size, and the picture of it is painted
    }
    template <class Act>
    void act(const Act& what) {
        window.forms().act(Qt::OtherFocusReason, what);
        QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }
    /// All that can be asked of the system; the beats of the timers are made to be over.
    std::string state() {
        world.shell.Timer1_Timer();
        world.shell.Timer2_Timer();
        std::string text = stateOf(world.proposal, world.shell);
        for (const Message& message : world.ports.dialogs.messages)
            text += "box " + message.title + ": " + message.text + " " + message.detail + '\n';
        for (const auto& [path, bytes] : world.ports.files.contents)
            text += "file " + path.string() + " " + bytes + '\n';
        return text;
    }
};

std::string firstDifference(const std::string& a, const std::string& b) {
    std::istringstream first(a);
    std::istringstream second(b);
    for (std::string one, other; std::getline(first, one) && std::getline(second, other);)
        if (one != other)
            return one.substr(0, 300) + "\n" + other.substr(0, 300);
    return a == b ? "" : "one goes on where the other ends";
}

}  // namespace

class ReviewEventsTest : public QObject {
    Q_OBJECT

private slots:
    void theSystemDoesTheSameWithThePanelOpen() {
        constexpr int sequences = 6;
        constexpr std::size_t length = 2500;  // bytes, of which an event takes a few
        std::uint32_t seed = qEnvironmentVariable("PLANDESK_REVIEW_SEED", "1").toUInt();
        int events = 0;
        int looks = 0;
        for (int sequence = 0; sequence < sequences; ++sequence, ++seed) {
            std::mt19937 engine(seed);
            std::vector<std::uint8_t> random(length);
            for (std::uint8_t& byte : random)
                byte = static_cast<std::uint8_t>(engine() >> 8);
            random.front() = static_cast<std::uint8_t>(sequence);  // each of the three beginnings
            Shown plain(false);
            Shown reviewed(true);
            Bytes left(random);
            Bytes right(random);
            plain.act([&] { plain.world.start(left); });
            reviewed.act([&] { reviewed.world.start(right); });
            QLabel& counts = *reviewed.window.findChild<QLabel*>("reviewCounts");
            for (int event = 0; !left.empty() && !plain.world.proposal.screen.ended(); ++event, ++events) {
                const std::string wrong = firstDifference(plain.state(), reviewed.state());
                QVERIFY2(wrong.empty(), ("PLANDESK_REVIEW_SEED=" + std::to_string(seed) + ", after event " +
                                         std::to_string(event) + "\n" + wrong)
                                            .c_str());
                plain.act([&] { plain.world.act(left); });
                reviewed.act([&] { reviewed.world.act(right); });
                constexpr int betweenPauses = 25;
                if (event % betweenPauses != 0)
                    continue;
                counts.setText("old");
                QTest::qWait(400);
                looks += counts.text() != "old" ? 1 : 0;
            }
            QVERIFY(reviewed.window.findChild<QWidget*>("reviewPanel")->isVisible());
        }
        qInfo("%d events, %d looks", events, looks);
        QVERIFY(events > 300 && looks > 10);
    }
};

static const Registered<ReviewEventsTest> registered;

#include "ReviewEventsTest.moc"
