#pragma once

#include "animation/LUContent.h"
#include "view/View.h"

#include <functional>

namespace orken {

/// The view that screens use for an animation: takes all the space it is offered and plays as the state describes. Main
/// thread only.
class LottieView final : public View, public LUStateProtocol {
public:
    using Callback = std::function<void(bool)>;

    /// What a screen hands over anew on each of its redraws; the newest callbacks take the place of those before.
    struct Values {
        std::shared_ptr<LUStateData> state;
        Callback onCompleted;
        Callback onDownloaded;
        /// Progress to be shown; above 0 it takes control of the state.
        double value = 0;
    };

    LottieView(const Values& values, const AnimationServices& services);

    /// The view at its place in a screen.
    [[nodiscard]] static Element element(const Values& values, const AnimationServices& services);

    [[nodiscard]] const std::shared_ptr<LUStateData>& state() const override { return state_; }

    [[nodiscard]] Element body() override;

private:
    void take(const Values& values);

    AnimationServices services_;
    std::shared_ptr<LUStateData> state_;
    double value_ = 0;
    std::vector<Subscription> cancellables_;
};

} // namespace orken
