#pragma once

#include <glib.h>

#include <functional>
#include <memory>

namespace orken::desktop {

struct SourceEnd {
    void operator()(GSource* source) const
    {
        g_source_destroy(source);
        g_source_unref(source);
    }
};

/// A source that ends with its owner.
using SourcePtr = std::unique_ptr<GSource, SourceEnd>;

/// A source at GLib's default priority, not attached yet, that calls `came` when its ready time
/// (`g_source_set_ready_time`) has come. The call is kept until the source ends, and a call under way until it returns;
/// it is not made from inside itself.
[[nodiscard]] SourcePtr makeTimedSource(const char* staticName, std::function<void()> came);

} // namespace orken::desktop
