#pragma once

#include <glib-object.h>

#include <functional>
#include <utility>

namespace orken::desktop {

/// One handler on a GObject's signal; it dies with this connection or with the object, whichever goes first.
class SignalConnection {
public:
    SignalConnection() = default;
    SignalConnection(const SignalConnection&) = delete;
    SignalConnection& operator=(const SignalConnection&) = delete;

    SignalConnection(SignalConnection&& other) noexcept { *this = std::move(other); }

    SignalConnection& operator=(SignalConnection&& other) noexcept
    {
        if (this != &other) {
            disconnect();
            if (other.object_) {
                g_object_remove_weak_pointer(other.object_, reinterpret_cast<void**>(&other.object_));
            }
            id_ = std::exchange(other.id_, 0);
            object_ = std::exchange(other.object_, nullptr);
            if (object_) {
                g_object_add_weak_pointer(object_, reinterpret_cast<void**>(&object_));
            }
        }
        return *this;
    }

    ~SignalConnection() { disconnect(); }

    void disconnect()
    {
        if (object_) {
            g_signal_handler_disconnect(object_, id_);
            g_object_remove_weak_pointer(object_, reinterpret_cast<void**>(&object_));
            object_ = nullptr;
        }
    }

    /// `Signature` is the C signature of the signal's handler without the trailing user data, such as
    /// `gboolean(GtkWindow*)`.
    template <class Signature>
    [[nodiscard]] static SignalConnection make(gpointer object, const char* signal, std::function<Signature> handler)
    {
        SignalConnection connection;
        connection.object_ = G_OBJECT(object);
        connection.id_ = connect(connection.object_, signal, std::move(handler));
        g_object_add_weak_pointer(connection.object_, reinterpret_cast<void**>(&connection.object_));
        return connection;
    }

private:
    template <class Result, class... Args>
    static gulong connect(GObject* object, const char* signal, std::function<Result(Args...)> handler)
    {
        using Handler = std::function<Result(Args...)>;
        auto call = +[](Args... args, gpointer data) -> Result { return (*static_cast<Handler*>(data))(args...); };
        auto destroy = +[](gpointer data, GClosure*) { delete static_cast<Handler*>(data); };
        return g_signal_connect_data(object, signal, G_CALLBACK(call), new Handler(std::move(handler)), destroy,
                                     GConnectFlags(0));
    }

    GObject* object_ = nullptr;
    gulong id_ = 0;
};

} // namespace orken::desktop
