// Hands that do anything, in any order. PLANDESK_ROBOT_SEED makes another run, PLANDESK_ROBOT_EVENTS makes it longer,
// and PLANDESK_ROBOT_LOG names a file for what was done.

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <optional>

#include "desktop/Application.h"
#include "gui/RandomHands.h"
#include "gui/Registry.h"

using namespace plandesk;
using namespace plandesk::test;

namespace {

std::uint64_t numberFrom(const char* variable, std::uint64_t otherwise) {
    bool given = false;
    const std::uint64_t number = qEnvironmentVariable(variable).toULongLong(&given);
    return given ? number : otherwise;
}

/// Watches from within loops that an event may have opened: one that nobody ends (a drag of a text) is ended by Esc.
class Watch : public QTimer {
public:
    Watch() {
        constexpr int pause = 50;  // milliseconds
        connect(this, &QTimer::timeout, this, [this] { look(); });
        start(pause);
    }
    int events = 0;

private:
    void look() {
        const bool stuck = events == seen && !QApplication::activeModalWidget();
        seen = events;
        // A menu may have come up while no window was active.
        QWidget* popup = QApplication::activePopupWidget();
        if (QWidget* window = popup ? popup : QApplication::activeWindow(); stuck && window)
            QTest::keyClick(window->windowHandle(), Qt::Key_Escape);
    }
    int seen = -1;
};

}  // namespace

class RandomEventsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void whateverTheUserDoesTheProgramGoesOnAndShowsWhatItHolds() {
        constexpr int usualEvents = 20'000;
        constexpr int betweenLooks = 100;
        const auto wanted = static_cast<int>(numberFrom("PLANDESK_ROBOT_EVENTS", usualEvents));
        const std::uint64_t seed = numberFrom("PLANDESK_ROBOT_SEED", 1);
        qInfo("%s", ("seed " + std::to_string(seed) + ", " + std::to_string(wanted) + " events").c_str());
        std::ofstream log(qEnvironmentVariable("PLANDESK_ROBOT_LOG").toStdString());
        Dice dice(seed);
        QTemporaryDir folder;
        Watch watch;
        std::optional<RandomHands> hands;
        int sessions = 0;
        for (int& event = watch.events; event < wanted; ++event) {
            if (!hands || hands->ended()) {
                hands.reset();
                hands.emplace(dice, std::filesystem::path(folder.path().toStdString()));
                hands->before = [&](const std::string& doing) { log << event << ' ' << doing << std::endl; };
                ++sessions;
            }
            const std::string done = hands->act();
            if (event % betweenLooks == 0 || event + 1 == wanted) {
                const std::string wrong = hands->whatIsWrong();
                QVERIFY2(wrong.empty(), ("seed " + std::to_string(seed) + ", after event " + std::to_string(event) +
                                         " (" + done + "): " + wrong)
                                            .c_str());
            }
        }
        qInfo("%d sessions", sessions);
    }
};

static const Registered<RandomEventsTest> registered;

#include "RandomEventsTest.moc"
