#include "desktop/Process.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace plandesk::desktop {

namespace {

constexpr std::array endSignals = {SIGTERM, SIGHUP, SIGINT};

/// A signal may do next to nothing where it arrives: it leaves a byte here.
std::array<int, 2> signalPipe = {-1, -1};

void leaveByte(int /*signal*/) {
    const int error = errno;
    const char byte = 0;
    // A full pipe has bytes enough to be heard.
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);
    errno = error;
}

void onSignals(void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int number : endSignals)
        sigaction(number, &action, nullptr);
}

}  // namespace

void surviveFailedWrites() {
    for (const int number : {SIGPIPE, SIGXFSZ})
        std::signal(number, SIG_IGN);
}

std::vector<std::string> ToolkitStart::held;

ToolkitStart::ToolkitStart() {
    qInstallMessageHandler(hear);
}

ToolkitStart::~ToolkitStart() {
    qInstallMessageHandler(nullptr);
    for (const std::string& text : std::exchange(held, {}))
        qWarning("%s", text.c_str());
}

void ToolkitStart::hear(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    held.push_back(text.toStdString());
    if (type != QtFatalMsg)
        return;
    std::fputs("plandesk: there is no display on which a window could be shown\n", stderr);
    std::_Exit(EXIT_FAILURE);
}

EndSignals::EndSignals(const std::function<void()>& asked) {
    if (pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;  // the signals then end the program, as they do anywhere
    arrived = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(arrived.get(), &QSocketNotifier::activated, arrived.get(), [asked] {
        std::array<char, 64> bytes;
        while (read(signalPipe[0], bytes.data(), bytes.size()) > 0) {
        }
        asked();
    });
    onSignals(leaveByte);
}

EndSignals::~EndSignals() {
    if (!arrived)
        return;
    onSignals(SIG_DFL);
    arrived.reset();
    for (int& end : signalPipe)
        close(std::exchange(end, -1));
}

}  // namespace plandesk::desktop
