#pragma once

#include "foundation/NonCopyable.h"
#include "view/View.h"

#include <functional>
#include <memory>
#include <string>

namespace orken {

class ApplicationDelegate : NonCopyable {
public:
    virtual ~ApplicationDelegate() = default;

    /// Once, on the main thread, before the process ends. No product code runs after it.
    virtual void applicationWillTerminate() = 0;
};

/// A kind of window that the application opens at launch, each with a view of its own.
struct WindowGroup {
    std::string title;
    std::function<std::unique_ptr<View>()> content;
};

/// The application's life. Main thread only.
class Application : NonCopyable {
public:
    virtual ~Application() = default;

    /// Opens one window of the group and serves the main loop until the application terminates. Returns the process's
    /// exit status; not zero, with a line on standard error, when the desktop cannot be reached. The window of a group
    /// leaves the window list when it is closed.
    [[nodiscard]] virtual int run(ApplicationDelegate& delegate, const WindowGroup& group) = 0;

    /// Runs the delegate's handler at once and then ends the process. A second request does nothing. It may return to
    /// its caller, who then returns at once.
    virtual void terminate() = 0;

    [[nodiscard]] virtual bool isTerminating() const = 0;
};

} // namespace orken
