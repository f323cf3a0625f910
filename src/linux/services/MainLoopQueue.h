#pragma once

#include "linux/loop/Source.h"
#include "platform/MainQueue.h"

#include <map>
#include <mutex>

namespace orken::desktop {

/// Items of one main context, run one per turn at GLib's default priority by the thread that serves the context.
///
/// All of them hang on a single source: GLib does not dispatch a source from inside its own dispatch, so a nested loop
/// serves the queue only when no item of the queue has started that loop.
class MainLoopQueue final : public MainQueue {
public:
    /// Without a context: the default one, which is the main thread's.
    explicit MainLoopQueue(GMainContext* context = nullptr);

    void async(std::function<void()> item) override;
    void after(Seconds delay, std::function<void()> item) override;

    /// Nothing runs from now on, apart from an item that is running already. What never ran is kept until the queue
    /// goes, so that it is not released on the thread that has posted it.
    void stop();

private:
    void enter(gint64 delay, std::function<void()> item);
    void arm();
    void runNext();

    std::mutex mutex_;
    /// By the moment of entering, in microseconds of the monotonic clock; equal moments keep the order of their calls.
    std::multimap<gint64, std::function<void()>> items_;
    Source source_;
};

} // namespace orken::desktop
