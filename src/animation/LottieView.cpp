#include "animation/LottieView.h"

namespace orken {

LottieView::LottieView(const Values& values, const AnimationServices& services) : services_(services)
{
    take(values);
}

Element LottieView::element(const Values& values, const AnimationServices& services)
{
    auto make = [values, services] { return std::make_unique<LottieView>(values, services); };
    return Nested<LottieView>(make, [values](LottieView& view) { view.take(values); });
}

void LottieView::take(const Values& values)
{
    cancellables_.clear();
    state_ = values.state;
    value_ = values.value;
    cancellables_.push_back(state_->onCompleted.subscribe(values.onCompleted));
    cancellables_.push_back(state_->onDownloaded.subscribe(values.onDownloaded));
}

Element LottieView::body()
{
    return GeometryReader([this](Size size) {
        const LUContent::Values values{.state = state_, .size = size, .value = value_};
        auto make = [this, values] { return std::make_unique<LUContent>(values, services_); };
        return ZStack({ZStack({}).frame({.fill = true}),
                       Representable<LUContent>(make, [values](LUContent& content) { content.setValues(values); })});
    });
}

} // namespace orken
