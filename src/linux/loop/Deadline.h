#pragma once

#include "platform/Seconds.h"

#include <glib.h>

#include <functional>
#include <memory>
#include <utility>

namespace orken::desktop {

/// Calls once on the main thread after a while, unless it is destroyed before.
class Deadline {
public:
    Deadline(Seconds after, std::function<void()> callback)
        : run_(std::make_unique<Run>(Run{.callback = std::move(callback)}))
    {
        const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(after);
        run_->source = g_timeout_add(static_cast<guint>(milliseconds.count()), &Deadline::passed, run_.get());
    }

    Deadline(const Deadline&) = delete;
    Deadline& operator=(const Deadline&) = delete;

    ~Deadline()
    {
        if (run_->source != 0) {
            g_source_remove(run_->source);
        }
    }

private:
    struct Run {
        std::function<void()> callback;
        guint source = 0;
    };

    static gboolean passed(gpointer data)
    {
        auto* run = static_cast<Run*>(data);
        run->source = 0;
        // The callback may destroy this deadline.
        const auto callback = std::move(run->callback);
        callback();
        return G_SOURCE_REMOVE;
    }

    std::unique_ptr<Run> run_;
};

} // namespace orken::desktop
