// plandesk-startup MOMENT RUNS TIMES MEMORY REFERENCE PROGRAM: starts the two programs in turn on the present display,
// which has to be empty, and tells how long each takes from its start to the moment, and how much memory of its own
// (anonymous pages) it then has. MOMENT is "painted", when the window is seen on the screen for the first time, or
// "answers", when it has then answered twice, so that all stands that it makes at once. Fails when the median of
// PROGRAM is more than TIMES that of REFERENCE in time, or more than MEMORY times it in memory.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr auto patience = std::chrono::seconds(20);

struct Release {
    void operator()(void* memory) const { std::free(memory); }
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};
using Event = std::unique_ptr<xcb_generic_event_t, Release>;

class Display {
public:
    Display() : connection(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(connection.get()))
            throw std::runtime_error("there is no display");
        root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
        protocols = atom("WM_PROTOCOLS");
        pingAtom = atom("_NET_WM_PING");
        const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection.get(), root, XCB_CW_EVENT_MASK, &mask);
        xcb_flush(connection.get());
    }

    /// Waits until a window comes onto the screen.
    xcb_window_t waitForWindow() {
        for (;;) {
            const Event event = next();
            if (type(*event) != XCB_MAP_NOTIFY)
                continue;
            const auto* map = reinterpret_cast<const xcb_map_notify_event_t*>(event.get());
            if (!map->override_redirect)
                return map->window;
        }
    }

    /// Waits until a window that came onto the screen is seen there.
    void waitForPaint() {
        for (const auto start = Clock::now(); Clock::now() - start < patience;) {
            if (look() != ground)
                return;
            std::this_thread::sleep_for(std::chrono::microseconds(100));
        }
        throw std::runtime_error("the window is not painted");
    }

    /// Takes what is on the screen now for its ground.
    void clear() {
        // The window of the program before goes a moment after its end.
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        ground = look();
    }

    /// Asks the window for a sign of life and waits for it.
    void ping(xcb_window_t window) {
        xcb_client_message_event_t question{};
        question.response_type = XCB_CLIENT_MESSAGE;
        question.format = 32;
        question.window = window;
        question.type = protocols;
        question.data.data32[0] = pingAtom;
        question.data.data32[2] = window;
        xcb_send_event(connection.get(), 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&question));
        xcb_flush(connection.get());
        for (;;) {
            const Event event = next();
            if (type(*event) != XCB_CLIENT_MESSAGE)
                continue;
            const auto* answer = reinterpret_cast<const xcb_client_message_event_t*>(event.get());
            if (answer->data.data32[0] == pingAtom && answer->data.data32[2] == window)
                return;
        }
    }

private:
    static unsigned type(const xcb_generic_event_t& event) { return event.response_type & 0x7FU; }

    xcb_atom_t atom(std::string_view name) {
        const auto request = xcb_intern_atom(connection.get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
        const std::unique_ptr<xcb_intern_atom_reply_t, Release> reply(
            xcb_intern_atom_reply(connection.get(), request, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    /// The colour at a place that lies inside any of the windows.
    std::uint32_t look() {
        constexpr std::int16_t place = 300;
        const auto request =
            xcb_get_image(connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, root, place, place, 1, 1, ~std::uint32_t{0});
        const std::unique_ptr<xcb_get_image_reply_t, Release> reply(
            xcb_get_image_reply(connection.get(), request, nullptr));
        std::uint32_t colour = 0;
        if (!reply || xcb_get_image_data_length(reply.get()) < static_cast<int>(sizeof colour))
            throw std::runtime_error("the screen cannot be looked at");
        std::memcpy(&colour, xcb_get_image_data(reply.get()), sizeof colour);
        return colour;
    }

    Event next() {
        for (const auto start = Clock::now(); Clock::now() - start < patience;) {
            if (Event event{xcb_poll_for_event(connection.get())})
                return event;
            pollfd ready{xcb_get_file_descriptor(connection.get()), POLLIN, 0};
            poll(&ready, 1, 100);
        }
        throw std::runtime_error("no window came, or it does not answer");
    }

    std::unique_ptr<xcb_connection_t, Release> connection;
    xcb_window_t root = 0;
    std::uint32_t ground = 0;
    xcb_atom_t protocols = 0;
    xcb_atom_t pingAtom = 0;
};

struct Start {
    double milliseconds = 0;
    double megabytes = 0;
};

/// Memory that belongs to the process alone, and no file: what it has written to.
double anonymousMegabytes(pid_t process) {
    std::ifstream rollup("/proc/" + std::to_string(process) + "/smaps_rollup");
    for (std::string line; std::getline(rollup, line);)
        if (line.starts_with("Anonymous:"))
            return std::atof(line.c_str() + std::strlen("Anonymous:")) / 1024;
    throw std::runtime_error("the memory of the program cannot be read");
}

enum class Moment { Painted, Answers };

Start startUntil(Moment moment, Display& display, const std::string& program) {
    std::string name = program;
    char* arguments[] = {name.data(), nullptr};
    display.clear();
    const auto start = Clock::now();
    pid_t process = 0;
    if (posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments, environ) != 0)
        throw std::runtime_error("cannot start " + program);
    const xcb_window_t window = display.waitForWindow();
    display.waitForPaint();
    if (moment == Moment::Answers)
        for (int answers = 0; answers < 2; ++answers)
            display.ping(window);
    const Milliseconds taken = Clock::now() - start;
    kill(process, SIGSTOP);  // it is to grow no further while its memory is counted
    const double memory = anonymousMegabytes(process);
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
    return {taken.count(), memory};
}

double median(const std::vector<Start>& starts, double Start::*figure) {
    std::vector<double> figures;
    for (const Start& start : starts)
        figures.push_back(start.*figure);
    std::sort(figures.begin(), figures.end());
    return figures[figures.size() / 2];
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 7) {
        std::cerr << "usage: plandesk-startup painted|answers RUNS TIMES MEMORY REFERENCE PROGRAM\n";
        return 2;
    }
    try {
        const Moment moment = std::string_view(argv[1]) == "painted" ? Moment::Painted : Moment::Answers;
        const int runs = std::atoi(argv[2]);
        std::vector<Start> reference;
        std::vector<Start> program;
        Display display;
        startUntil(moment, display, argv[5]);  // the first of each only brings the files into memory
        startUntil(moment, display, argv[6]);
        for (int run = 0; run < runs; ++run) {
            reference.push_back(startUntil(moment, display, argv[5]));
            program.push_back(startUntil(moment, display, argv[6]));
        }
        const auto compare = [&](double Start::*figure, const char* unit, double allowed) {
            const double given = median(reference, figure);
            const double own = median(program, figure);
            std::cout << std::fixed << std::setprecision(1) << "reference " << given << unit << ", program " << own
                      << unit << ", medians of " << runs << " starts each; " << std::setprecision(2) << own / given
                      << " times, allowed " << allowed << '\n';
            return own / given <= allowed;
        };
        const bool quick = compare(&Start::milliseconds, " ms", std::atof(argv[3]));
        const bool small = compare(&Start::megabytes, " MB", std::atof(argv[4]));
        return quick && small ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
