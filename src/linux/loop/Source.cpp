#include "linux/loop/Source.h"

#include <glib-unix.h>

#include <chrono>
#include <utility>

namespace orken::desktop {

namespace {

using Call = Source::Call;

gboolean callOnce(gpointer data)
{
    // Over before the call, which may put another in its place. GLib keeps the data until this returns.
    g_source_destroy(g_main_current_source());
    (*static_cast<Call*>(data))();
    return G_SOURCE_REMOVE;
}

gboolean callAgain(gpointer data)
{
    (*static_cast<Call*>(data))();
    return G_SOURCE_CONTINUE;
}

gboolean callOnInput(gint, GIOCondition, gpointer data)
{
    return callAgain(data);
}

void deleteCall(gpointer data)
{
    delete static_cast<Call*>(data);
}

} // namespace

Source Source::idle(int priority, Call call)
{
    GSource* source = g_idle_source_new();
    g_source_set_priority(source, priority);
    return attached(source, callOnce, std::move(call), nullptr);
}

Source Source::after(Seconds delay, Call call)
{
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(delay);
    return attached(g_timeout_source_new(static_cast<guint>(milliseconds.count())), callOnce, std::move(call), nullptr);
}

Source Source::onSignal(int signal, Call call, GMainContext* context)
{
    return attached(g_unix_signal_source_new(signal), callAgain, std::move(call), context);
}

Source Source::onInput(int descriptor, Call call)
{
    return attached(g_unix_fd_source_new(descriptor, G_IO_IN), G_SOURCE_FUNC(callOnInput), std::move(call), nullptr);
}

Source Source::timed(Call call, GMainContext* context)
{
    // The ready time alone makes the source ready: there is nothing to prepare or to check.
    static GSourceFuncs functions = [] {
        GSourceFuncs timed{};
        timed.dispatch = [](GSource*, GSourceFunc callback, gpointer data) { return callback(data); };
        return timed;
    }();
    return attached(g_source_new(&functions, sizeof(GSource)), callAgain, std::move(call), context);
}

void Source::end()
{
    if (source_) {
        g_source_destroy(source_.get());
    }
}

Source Source::attached(GSource* source, GSourceFunc function, Call call, GMainContext* context)
{
    g_source_set_callback(source, function, new Call(std::move(call)), deleteCall);
    g_source_attach(source, context);
    return Source(source);
}

} // namespace orken::desktop
