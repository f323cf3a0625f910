// How long the main thread is held up by what runs beside the user: one silent round over other applications with 50
// windows (or as many as the argument says), and the version gate's call. Run on a virtual desktop. Prints one JSON
// object, times in milliseconds.

#include "app/VersionGate.h"
#include "linux/Desktop.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <gtk/gtk.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

constexpr std::size_t kUsualWindows = 50;
constexpr int kRounds = 50;

/// Another process whose windows stay: it never reads what it is sent.
void showWindows(std::size_t count)
{
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    for (std::size_t i = 0; i < count; ++i) {
        const xcb_window_t window = xcb_generate_id(connection);
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 100, 100, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        const std::string windowClass = "w" + std::to_string(i) + '\0' + "Window" + std::to_string(i) + '\0';
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                            static_cast<std::uint32_t>(windowClass.size()), windowClass.data());
        xcb_map_window(connection, window);
    }
    xcb_flush(connection);
    pause();
}

double milliseconds(const std::function<void()>& work)
{
    const auto began = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - began).count();
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const std::size_t windows = argumentCount > 1 ? std::strtoul(arguments[1], nullptr, 10) : kUsualWindows;
    const pid_t other = fork();
    if (other == 0) {
        showWindows(windows);
        return 0;
    }
    gtk_init();
    orken::desktop::Desktop desktop({.bundleIdentifier = "com.orken.bench", .version = "1.0"});
    const orken::Endpoints endpoints{.bundleIdentifier = "com.orken.bench", .contentHost = "127.0.0.1:9"};
    orken::MachineServices machine(orken::portsOf(desktop), endpoints);

    double first = 0;
    for (int tries = 0; tries < 200 && desktop.runningApplications.all().size() < windows; ++tries) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    const std::size_t listed = desktop.runningApplications.all().size();
    std::vector<double> rounds;
    for (int round = 0; round < kRounds; ++round) {
        rounds.push_back(milliseconds([&] { machine.otherApplications.terminateOtherApplications(); }));
    }
    std::sort(rounds.begin(), rounds.end());

    orken::desktop::X11Applications fresh("com.orken.bench", [] { return std::string(g_getenv("DISPLAY")); });
    first = milliseconds([&] { (void)fresh.all(); });

    const orken::VersionGate gate = orken::versionGate(orken::portsOf(desktop), endpoints, machine);
    orken::State<std::string> message({}, "");
    orken::State<bool> flag({}, false);
    const double check = milliseconds([&] { gate.checkAppVersion(message, flag); });

    std::printf(
        R"({"applications": %zu, "round median": %.2f, "round longest": %.2f, "first list": %.2f, "gate": %.2f})"
        "\n",
        listed, rounds[kRounds / 2], rounds.back(), first, check);
    std::fflush(stdout);
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
    std::_Exit(0);
}
