#pragma once

#include <glib-object.h>

#include <memory>
#include <utility>

namespace orken::desktop {

/// Owns one reference to a GObject.
template <class T>
class GObjectPtr {
public:
    GObjectPtr() = default;

    /// Takes over the reference that the caller has.
    [[nodiscard]] static GObjectPtr adopt(T* object)
    {
        GObjectPtr pointer;
        pointer.object_ = object;
        return pointer;
    }

    /// Takes a reference of its own; sinks a floating one.
    [[nodiscard]] static GObjectPtr share(T* object)
    {
        return adopt(object ? static_cast<T*>(g_object_ref_sink(object)) : nullptr);
    }

    GObjectPtr(const GObjectPtr& other) : GObjectPtr(share(other.object_)) {}

    GObjectPtr(GObjectPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}

    GObjectPtr& operator=(GObjectPtr other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }

    ~GObjectPtr() { g_clear_object(&object_); }

    [[nodiscard]] T* get() const { return object_; }

    explicit operator bool() const { return object_ != nullptr; }

private:
    T* object_ = nullptr;
};

struct GFree {
    void operator()(void* memory) const { g_free(memory); }
};

/// Text that GLib has allocated.
using GText = std::unique_ptr<char, GFree>;

struct GErrorFree {
    void operator()(GError* error) const { g_error_free(error); }
};

using GErrorPtr = std::unique_ptr<GError, GErrorFree>;

} // namespace orken::desktop
