#pragma once

#include <glib.h>

#include <memory>

namespace orken::desktop {

struct ContextUnref {
    void operator()(GMainContext* context) const { g_main_context_unref(context); }
};

/// A main context besides the default one.
class PrivateContext {
public:
    [[nodiscard]] GMainContext* get() const { return context_.get(); }

private:
    std::unique_ptr<GMainContext, ContextUnref> context_{g_main_context_new()};
};

/// While it lives, what this thread starts answers in that context.
class ThreadDefault {
public:
    explicit ThreadDefault(const PrivateContext& context) : context_(context.get())
    {
        g_main_context_push_thread_default(context_);
    }

    ThreadDefault(const ThreadDefault&) = delete;
    ThreadDefault& operator=(const ThreadDefault&) = delete;

    ~ThreadDefault() { g_main_context_pop_thread_default(context_); }

private:
    GMainContext* context_;
};

} // namespace orken::desktop
