#include "linux/loop/LoopSource.h"

#include <utility>

namespace orken::desktop {

SourcePtr makeTimedSource(const char* staticName, std::function<void()> came)
{
    using Call = std::function<void()>;
    // The ready time alone makes the source ready: there is nothing to prepare or to check.
    static GSourceFuncs functions = [] {
        GSourceFuncs timed{};
        timed.dispatch = [](GSource*, GSourceFunc callback, gpointer data) { return callback(data); };
        return timed;
    }();
    SourcePtr source(g_source_new(&functions, sizeof(GSource)));
    g_source_set_static_name(source.get(), staticName);
    g_source_set_callback(
        source.get(),
        [](gpointer data) -> gboolean {
            (*static_cast<Call*>(data))();
            return G_SOURCE_CONTINUE;
        },
        new Call(std::move(came)), [](gpointer data) { delete static_cast<Call*>(data); });
    return source;
}

} // namespace orken::desktop
