#pragma once

#include "foundation/NonCopyable.h"
#include "platform/Seconds.h"

#include <functional>

namespace orken {

/// Serial queue of the main thread, first in, first out. Both operations may be called on any thread.
class MainQueue : NonCopyable {
public:
    virtual ~MainQueue() = default;

    /// Never runs inline. What is posted during an item runs after it; while an item itself shows a modal alert, the
    /// items behind it wait until the alert is answered.
    virtual void async(std::function<void()> item) = 0;

    /// Enters the queue when `delay` has passed.
    virtual void after(Seconds delay, std::function<void()> item) = 0;
};

} // namespace orken
