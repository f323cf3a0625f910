#include "linux/gtk/DesktopApplication.h"

#include "linux/services/StandardConsole.h"

#include <glib-unix.h>
#include <gtk/gtk.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

namespace orken::desktop {

namespace {

constexpr guint kCleanUpLimitMilliseconds = 2000;

// A button without a bezel: only its label is seen, with the toolkit's focus ring and a hint of being pressed.
constexpr const char* kStyle = "button.orken-plain { background: none; border: none; box-shadow: none; padding: 0;"
                               " margin: 0; min-width: 0; min-height: 0; border-radius: 0; font-weight: inherit; }"
                               "button.orken-plain:active { opacity: 0.6; }";

void installStyle()
{
    GtkCssProvider* provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, kStyle, -1);
    gtk_style_context_add_provider_for_display(gdk_display_get_default(), GTK_STYLE_PROVIDER(provider),
                                               GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(provider);
}

} // namespace

int DesktopApplication::run(ApplicationDelegate& delegate, const WindowGroup& group)
{
    if (!gtk_init_check()) {
        reportDiagnostic("orken: the desktop cannot be reached: no display");
        return EXIT_FAILURE;
    }
    delegate_ = &delegate;
    group_ = &group;
    const auto application = GObjectPtr<GtkApplication>::adopt(
        gtk_application_new(identifier_.c_str(), G_APPLICATION_DEFAULT_FLAGS));
    application_ = G_APPLICATION(application.get());
    const auto activated =
        SignalConnection::make<void(GApplication*)>(application_, "activate", [this](GApplication*) { activate(); });

    auto onSignal = +[](gpointer data) -> gboolean {
        static_cast<DesktopApplication*>(data)->terminate();
        return G_SOURCE_CONTINUE;
    };
    std::array<guint, 3> signals{};
    std::size_t count = 0;
    for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
        signals.at(count++) = g_unix_signal_add(number, onSignal, this);
    }

    const int status = g_application_run(application_, 0, nullptr);
    for (const guint signal : signals) {
        g_source_remove(signal);
    }
    application_ = nullptr;
    return status;
}

void DesktopApplication::activate()
{
    if (launched_) {
        windows_.presentFirst();
        return;
    }
    launched_ = true;
    // There are moments without any window between the start window and the session's.
    g_application_hold(application_);
    installStyle();
    windows_.start([this] { terminate(); });
    screens_.start();
    openGroupWindow();
}

void DesktopApplication::openGroupWindow()
{
    const auto window = windows_.makeGroupWindow();
    window->setTitle(group_->title);
    window->setContentView(group_->content());
    window->afterNextFrame(hooks_.started);
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
    g_application_quit(application_);
}

void DesktopApplication::finishCleanUp()
{
    // Without this the process would be gone before the engine has removed anything.
    bool late = false;
    auto setLate = +[](gpointer data) -> gboolean {
        *static_cast<bool*>(data) = true;
        return G_SOURCE_CONTINUE;
    };
    const guint limit = g_timeout_add(kCleanUpLimitMilliseconds, setLate, &late);
    while (!late && hooks_.isCleaningUp()) {
        g_main_context_iteration(nullptr, TRUE);
    }
    g_source_remove(limit);
    if (late) {
        reportDiagnostic("orken: the web engine did not finish clearing its data");
    }
}

} // namespace orken::desktop
