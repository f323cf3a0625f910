#include "animation/LUContent.h"

namespace orken {

std::shared_ptr<LUView> LUContent::makeNSView(const Context&) const
{
    auto view = LUView::make(values_.size, services_);
    view->load(values_.state);
    return view;
}

void LUContent::updateNSView(LUView& nsView, const Context&) const
{
    if (values_.value > 0) {
        values_.state->isControlEnabled = true;
    }
    const auto& animationView = nsView.animationView();
    if (!animationView) {
        return;
    }
    if (values_.state->isControlEnabled) {
        animationView->setCurrentProgress(values_.value);
    }
    animationView->setFrame({.x = 0, .y = 0, .width = values_.size.width, .height = values_.size.height});
}

} // namespace orken
