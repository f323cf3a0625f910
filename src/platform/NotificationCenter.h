#pragma once

#include "foundation/Subject.h"
#include "platform/FullScreenTransition.h"

#include <array>
#include <functional>
#include <memory>
#include <vector>

namespace orken {

enum class NotificationName {
    applicationDidChangeScreenParameters,
    windowDidResize,
    windowWillEnterFullScreen,
    windowDidEnterFullScreen,
    windowWillExitFullScreen,
    windowDidExitFullScreen,
};

[[nodiscard]] NotificationName notificationName(FullScreenChange change);

/// Posts are synchronous: observers run in order of registration and have run when `post` returns; one added during a
/// post gets the next. Every observer hears of every window. Main thread only.
class NotificationCenter {
public:
    NotificationCenter();

    void post(NotificationName name);

    /// No token is handed out: the observer stays until the process ends. Registering twice is being called twice.
    void addObserver(NotificationName name, std::function<void()> observer);

    /// The notifications as a stream: the same subject on every call.
    [[nodiscard]] const std::shared_ptr<Subject<>>& publisher(NotificationName name) const;

private:
    static constexpr std::size_t kNames = 6;

    std::array<std::shared_ptr<Subject<>>, kNames> subjects_;
    std::vector<Subscription> permanent_;
};

} // namespace orken
