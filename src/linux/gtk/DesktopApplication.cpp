#include "linux/gtk/DesktopApplication.h"

#include "linux/gtk/PlainButton.h"
#include "linux/gtk/SingleInstance.h"
#include "linux/services/StandardConsole.h"

#include <gtk/gtk.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace orken::desktop {

namespace {

constexpr Seconds kCleanUpPatience{2};

} // namespace

int DesktopApplication::run(ApplicationDelegate& delegate, const WindowGroup& group)
{
    if (const auto status = launch(delegate, group)) {
        return *status;
    }
    while (!ended_) {
        g_main_context_iteration(nullptr, TRUE);
    }
    return EXIT_SUCCESS;
}

std::optional<int> DesktopApplication::launch(ApplicationDelegate& delegate, const WindowGroup& group)
{
    // What the window list and screen readers call the program, and what tells its menu entry that a window is its own.
    g_set_prgname(identifier_.c_str());
    if (!gtk_init_check()) {
        reportDiagnostic("orken: the desktop cannot be reached: no display");
        return EXIT_FAILURE;
    }
    // Ctrl+Shift+D would open an inspector in which every widget of the session can be changed.
    auto* windows = GTK_WINDOW_CLASS(g_type_class_ref(GTK_TYPE_WINDOW));
    windows->enable_debugging = +[](GtkWindow*, gboolean) -> gboolean { return TRUE; };
    // Registering would wait for an answer of the other copy and take its silence for a refusal of the bus.
    if (presentRunningInstance(identifier_)) {
        return EXIT_SUCCESS;
    }
    delegate_ = &delegate;
    group_ = group;
    watchSignals();
    application_ =
        GObjectPtr<GtkApplication>::adopt(gtk_application_new(identifier_.c_str(), G_APPLICATION_DEFAULT_FLAGS));
    auto* application = G_APPLICATION(application_.get());
    activated_ =
        SignalConnection::make<void(GApplication*)>(application, "activate", [this](GApplication*) { activate(); });
    if (!g_application_register(application, nullptr, nullptr)) {
        // A bus that refuses the name must not keep the window away: this copy is on its own then.
        activate();
    } else {
        g_application_activate(application);
        if (g_application_get_is_remote(application)) {
            g_dbus_connection_flush_sync(g_application_get_dbus_connection(application), nullptr, nullptr);
            return EXIT_SUCCESS;
        }
    }
    return std::nullopt;
}

void DesktopApplication::watchSignals()
{
    for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
        signals_.push_back(Source::onSignal(number, [this] { terminate(); }));
    }
}

void DesktopApplication::activate()
{
    if (launched_) {
        windows_.presentFirst();
        return;
    }
    launched_ = true;
    installPlainButtonStyle();
    windows_.start([this] { terminate(); });
    screens_.start();
    openGroupWindow();
}

void DesktopApplication::openGroupWindow()
{
    const auto window = windows_.makeGroupWindow();
    window->setTitle(group_.title);
    window->setContentView(group_.content());
    window->afterFirstFrame(hooks_.started);
    window->makeKeyAndOrderFront();
}

void DesktopApplication::terminate()
{
    if (!latch_.request(delegate_)) {
        return;
    }
    hooks_.stopProduct();
    windows_.silence();
    finishCleanUp();
    if (hooks_.isNested()) {
        std::fflush(nullptr);
        _exit(EXIT_SUCCESS);
    }
    ended_ = true;
    g_main_context_wakeup(nullptr);
}

void DesktopApplication::finishCleanUp()
{
    // Without this the process would be gone before the engine has removed anything.
    bool late = false;
    const Source limit = Source::after(kCleanUpPatience, [&late] { late = true; });
    while (!late && hooks_.isCleaningUp()) {
        g_main_context_iteration(nullptr, TRUE);
    }
    if (late) {
        reportDiagnostic("orken: the web engine did not finish clearing its data");
    }
}

} // namespace orken::desktop
