#pragma once

#include <memory>

namespace orken::desktop {

/// As a member of an object that nobody shares: tells those who call back later whether the object is still there.
/// One thread.
///
///     AsyncReply::of([this, watch = alive_.watch()](GAsyncResult* result) {
///         if (!watch.expired()) { ... }
///     })
class Alive {
public:
    Alive() = default;
    Alive(const Alive&) = delete;
    Alive& operator=(const Alive&) = delete;

    [[nodiscard]] std::weak_ptr<const void> watch() const { return token_; }

private:
    std::shared_ptr<const void> token_ = std::make_shared<char>();
};

} // namespace orken::desktop
