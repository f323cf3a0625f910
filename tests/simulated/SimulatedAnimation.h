#pragma once

#include "platform/AnimationSurface.h"
#include "simulated/Part.h"
#include "simulated/SeenView.h"

#include <cmath>
#include <optional>
#include <vector>

namespace orken::simulated {

/// A surface whose renderer does what the test tells it. The screen shows 60 frames a second while it can be seen.
class SimulatedAnimationSurface final : public AnimationSurface,
                                        public SeenView,
                                        Part,
                                        public std::enable_shared_from_this<SimulatedAnimationSurface> {
public:
    enum class Renderer { works, refuses };

    SimulatedAnimationSurface(Common& common, Size size, const Renderer& renderer)
        : Part(common), bounds_(size), renderer_(renderer)
    {
    }

    [[nodiscard]] NativeHandle* native() override { return this; }

    [[nodiscard]] Size bounds() const override { return bounds_; }

    void setOnResize(std::function<void()> callback) override { onResize_ = std::move(callback); }

    void open(AnimationDocument document, Events events) override
    {
        loop_.requireMainThread();
        close();
        opened = document;
        failed_ = events.failed;
        loop_.later(Seconds{0.02}, [this, weak = weak_from_this(), generation = generation_, answer = events.opened] {
            if (weak.lock() && generation == generation_) {
                const bool works = renderer_ == Renderer::works && !opened->json.empty();
                works ? void(isOpen_ = true) : close();
                answer(works);
            }
        });
    }

    void close() override
    {
        ++generation_;
        isOpen_ = false;
        opened.reset();
        frame.reset();
    }

    void setPlacement(const Rect& where, LottieContentMode how) override
    {
        placement = where;
        mode = how;
    }

    void show(int shown, int next) override
    {
        require(isOpen_ && shown >= 0 && shown < opened->frameCount && next >= 0 && next < opened->frameCount,
                "a frame that the document does not have");
        frame = shown;
        frames.push_back(shown);
    }

    void setFrameTick(FrameTick tick) override
    {
        tick_ = std::move(tick);
        scheduleTick();
    }

    void setSeen(bool seen) override
    {
        isSeen_ = seen;
        scheduleTick();
    }

    /// The renderer of an open document crashes or hangs.
    void fail()
    {
        close();
        failed_();
    }

    void resize(Size size)
    {
        bounds_ = size;
        onResize_();
    }

    [[nodiscard]] bool isTicking() const { return tick_ && isSeen_; }

    std::optional<AnimationDocument> opened;
    std::optional<int> frame;
    std::vector<int> frames;
    Rect placement;
    LottieContentMode mode = LottieContentMode::scaleAspectFit;

private:
    static constexpr Seconds kScreenFrame{1.0 / 60};

    void scheduleTick()
    {
        if (isTicking() && !std::exchange(isScheduled_, true)) {
            loop_.later(kScreenFrame, [this, weak = weak_from_this()] {
                const auto alive = weak.lock();
                if (alive && std::exchange(isScheduled_, false) && isTicking()) {
                    const FrameTick tick = tick_;
                    tick(kScreenFrame);
                    scheduleTick();
                }
            });
        }
    }

    Size bounds_;
    const Renderer& renderer_;
    std::function<void()> onResize_;
    std::function<void()> failed_;
    FrameTick tick_;
    bool isOpen_ = false;
    bool isSeen_ = false;
    bool isScheduled_ = false;
    unsigned generation_ = 0;
};

class SimulatedAnimationSurfaces final : public AnimationSurfaces, Part {
public:
    using Part::Part;

    [[nodiscard]] Outcome<AnimationDocument> prepare(AnimationDocument document) const override { return document; }

    [[nodiscard]] std::shared_ptr<AnimationSurface> make(Size size) override
    {
        loop_.requireMainThread();
        latest = std::make_shared<SimulatedAnimationSurface>(common_, size, renderer);
        return latest;
    }

    SimulatedAnimationSurface::Renderer renderer = SimulatedAnimationSurface::Renderer::works;
    /// The surface that was made last.
    std::shared_ptr<SimulatedAnimationSurface> latest;
};

} // namespace orken::simulated
