#pragma once

#include <cassert>
#include <functional>
#include <memory>
#include <utility>

namespace orken::desktop {

/// An answer that the engine waits for: given once, now or later. One that is dropped without having been given is
/// the refusal, so that the engine never waits for ever and never falls back on its own default.
template <class Answer>
class HeldAnswer {
public:
    HeldAnswer(std::function<void(Answer)> give, Answer refusal) : give_(std::move(give)), refusal_(refusal) {}

    HeldAnswer(const HeldAnswer&) = delete;
    HeldAnswer& operator=(const HeldAnswer&) = delete;

    ~HeldAnswer()
    {
        if (give_) {
            give_(refusal_);
        }
    }

    /// The handler that holds the answer, as a port hands it on.
    [[nodiscard]] static std::function<void(Answer)> handler(std::function<void(Answer)> give, Answer refusal)
    {
        return [held = std::make_shared<HeldAnswer>(std::move(give), refusal)](Answer answer) {
            assert(held->give_ && "an answer is given once");
            if (const auto once = std::exchange(held->give_, nullptr)) {
                once(answer);
            }
        };
    }

private:
    std::function<void(Answer)> give_;
    Answer refusal_;
};

} // namespace orken::desktop
