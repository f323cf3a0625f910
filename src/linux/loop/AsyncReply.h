#pragma once

#include <gio/gio.h>

#include <functional>
#include <memory>
#include <utility>

namespace orken::desktop {

/// A C++ callable as the callback and user data of a GIO-style asynchronous call, which calls back exactly once:
///
///     something_async(object, cancellable, AsyncReply::call, AsyncReply::of([](GAsyncResult* result) { ... }));
///
/// The callable may outlive its maker: before it touches that, it asks an `Alive` or a weak pointer.
class AsyncReply {
public:
    using Ready = std::function<void(GAsyncResult*)>;

    [[nodiscard]] static gpointer of(Ready ready) { return new Ready(std::move(ready)); }

    static void call(GObject*, GAsyncResult* result, gpointer data)
    {
        const std::unique_ptr<Ready> ready(static_cast<Ready*>(data));
        (*ready)(result);
    }
};

} // namespace orken::desktop
