#pragma once

#include "foundation/NonCopyable.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orken {

/// The right to be called by a subject; ends with its destruction or `cancel`, also in the middle of a send. It may
/// outlive the subject.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;

    explicit Subscription(std::function<void()> cancel) : cancel_(std::move(cancel)) {}

    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;

    Subscription(Subscription&& other) noexcept : cancel_(std::exchange(other.cancel_, nullptr)) {}

    Subscription& operator=(Subscription&& other) noexcept
    {
        if (this != &other) {
            cancel();
            cancel_ = std::exchange(other.cancel_, nullptr);
        }
        return *this;
    }

    ~Subscription() { cancel(); }

    void cancel()
    {
        if (const auto cancel = std::exchange(cancel_, nullptr)) {
            cancel();
        }
    }

    explicit operator bool() const { return static_cast<bool>(cancel_); }

private:
    std::function<void()> cancel_;
};

/// Calls its present subscribers in the order in which they subscribed; keeps nothing, replays nothing, never
/// completes. A subscriber may send, subscribe, cancel anybody and destroy the subject, whose last send then still
/// reaches the others; one that subscribes during a send gets the next one. One thread only.
template <class... Args>
class Subject : NonCopyable {
public:
    using Handler = std::function<void(Args...)>;

    [[nodiscard]] Subscription subscribe(Handler handler)
    {
        auto entry = std::make_shared<Entry>(Entry{.handler = std::move(handler)});
        entries_->push_back(entry);
        return Subscription([entry, entries = std::weak_ptr<Entries>(entries_)] {
            entry->alive = false;
            if (const auto all = entries.lock()) {
                std::erase(*all, entry);
            }
        });
    }

    void send(Args... args)
    {
        const Entries snapshot = *entries_;
        for (const auto& entry : snapshot) {
            if (entry->alive) {
                entry->handler(args...);
            }
        }
    }

    [[nodiscard]] std::size_t subscriberCount() const { return entries_->size(); }

private:
    struct Entry {
        Handler handler;
        bool alive = true;
    };

    using Entries = std::vector<std::shared_ptr<Entry>>;

    std::shared_ptr<Entries> entries_ = std::make_shared<Entries>();
};

} // namespace orken
