// Starts programs in turn on a bare screen and measures the time to their first mapped window and
// their resident memory: first_map ROUNDS PROGRAM BASELINE. Prints rows of medians and ratios.
#include "row.h"

#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

struct Figures {
    std::vector<double> milliseconds;
    std::vector<double> kilobytes;
};

double Resident(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:")) {
            return std::strtod(line.c_str() + 6, nullptr);
        }
    }
    return 0;
}

void Measure(xcb_connection_t* connection, const char* program, Figures& figures) {
    while (xcb_generic_event_t* old = xcb_poll_for_event(connection)) {
        std::free(old);
    }
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execl(program, program, static_cast<char*>(nullptr));
        _exit(127);
    }
    while (xcb_generic_event_t* event = xcb_wait_for_event(connection)) {
        const bool mapped = (event->response_type & 0x7F) == XCB_MAP_NOTIFY;
        std::free(event);
        if (mapped) {
            break;
        }
    }
    const std::chrono::duration<double, std::milli> taken = Clock::now() - start;
    figures.milliseconds.push_back(taken.count());
    // The first second's work belongs to what a program keeps.
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    figures.kilobytes.push_back(Resident(child));
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void Print(const char* what, const std::vector<double>& ours, const std::vector<double>& bare,
           const std::string& unit, double limit) {
    const auto text = [&](double value) { return std::to_string(std::lround(value)) + " " + unit; };
    Print_Row({what, text(Median(ours)), text(Median(bare)) + " bare window",
               Median(ours) / Median(bare), limit, 0, 0});
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fputs("usage: first_map ROUNDS PROGRAM BASELINE\n", stderr);
        return 2;
    }
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0) {
        return 1;
    }
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, screen->root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection);

    Figures program;
    Figures baseline;
    for (int round = std::atoi(argv[1]); round > 0; --round) {
        Measure(connection, argv[2], program);
        Measure(connection, argv[3], baseline);
    }
    Print("start to the first window on view", program.milliseconds, baseline.milliseconds, "ms",
          1.15);
    Print("resident memory", program.kilobytes, baseline.kilobytes, "kB", 1.25);
    xcb_disconnect(connection);
    return 0;
}
