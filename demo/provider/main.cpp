#include "provider/Failure.h"
#include "provider/Options.h"
#include "provider/Provider.h"

#include <glib-unix.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <memory>

#include <sys/prctl.h>
#include <unistd.h>

// In sanitizer builds: the leak checker breaks at the end on the thread-local storage of modules that are loaded late,
// such as GLib's TLS module, unless it leaves that storage alone.
extern "C" [[gnu::visibility("default")]] const char* __asan_default_options();

const char* __asan_default_options()
{
    return "intercept_tls_get_addr=0";
}

namespace {

constexpr int kWrongUsage = 2;

using MainLoop = std::unique_ptr<GMainLoop, decltype(&g_main_loop_unref)>;

gboolean quit(gpointer loop)
{
    g_main_loop_quit(static_cast<GMainLoop*>(loop));
    return G_SOURCE_CONTINUE;
}

/// The kernel sends SIGTERM when the parent ends; a parent that has just gone is noticed by its number.
void followParent()
{
    const pid_t parent = getppid();
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != parent) {
        raise(SIGTERM);
    }
}

int complain(const std::exception& error, int status)
{
    std::cerr << "orken-demo-provider: " << error.what() << '\n';
    return status;
}

int serve(const orken::demo::Options& options)
{
    const MainLoop loop(g_main_loop_new(nullptr, FALSE), &g_main_loop_unref);
    g_unix_signal_add(SIGTERM, quit, loop.get());
    g_unix_signal_add(SIGINT, quit, loop.get());
    if (options.parent == orken::demo::Parent::follow) {
        followParent();
    }
    const orken::demo::Provider provider(options);
    std::cout << "site https://127.0.0.1:" << provider.sitePort()
              << "/, address echo https://127.0.0.1:" << provider.echoPort() << '/' << std::endl;
    g_main_loop_run(loop.get());
    return EXIT_SUCCESS;
}

} // namespace

int main(int count, char** arguments)
{
    orken::demo::Options options;
    try {
        options = orken::demo::parseOptions({arguments + 1, arguments + count});
    } catch (const std::exception& error) {
        const int status = complain(error, kWrongUsage);
        std::cerr << orken::demo::usage();
        return status;
    }
    try {
        return serve(options);
    } catch (const std::exception& error) {
        return complain(error, EXIT_FAILURE);
    }
}
