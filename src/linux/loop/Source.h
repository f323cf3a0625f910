#pragma once

#include "platform/Seconds.h"

#include <glib.h>

#include <functional>
#include <memory>

namespace orken::desktop {

/// Owns a source of a main context, which ends with it. A call may end its own source and whoever owns it; it is kept
/// until it returns, and is not made from inside itself. Without a context: the default one, which is the main
/// thread's.
class Source {
public:
    using Call = std::function<void()>;

    /// No source.
    Source() = default;

    /// Calls once, when nothing of a higher priority (a lower number) is to be done.
    [[nodiscard]] static Source idle(int priority, Call call);

    /// Calls once after that time, in whole milliseconds.
    [[nodiscard]] static Source after(Seconds delay, Call call);

    /// Calls on each arrival of a POSIX signal, which has no other effect meanwhile. GLib tells every source of it.
    [[nodiscard]] static Source onSignal(int signal, Call call, GMainContext* context = nullptr);

    /// Calls while the descriptor, which outlives the source, can be read.
    [[nodiscard]] static Source onInput(int descriptor, Call call);

    /// Calls while the ready time has passed; until it is set, that is never.
    [[nodiscard]] static Source timed(Call call, GMainContext* context = nullptr);

    /// In microseconds of the monotonic clock; 0 for at once, negative for never. Wakes the context. Any thread.
    void setReadyTime(gint64 moment) { g_source_set_ready_time(source_.get(), moment); }

    /// It will call or is able to: it has neither ended nor, if it calls once, begun to.
    [[nodiscard]] bool isPending() const { return source_ && !g_source_is_destroyed(source_.get()); }

    /// No call begins from now on.
    void end();

private:
    struct End {
        void operator()(GSource* source) const
        {
            g_source_destroy(source);
            g_source_unref(source);
        }
    };

    explicit Source(GSource* source) : source_(source) {}

    static Source attached(GSource* source, GSourceFunc function, Call call, GMainContext* context);

    std::unique_ptr<GSource, End> source_;
};

} // namespace orken::desktop
