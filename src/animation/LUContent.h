#pragma once

#include "animation/LUView.h"

namespace orken {

/// Puts the hosting view on the screen and hands size and progress over to it. Main thread only.
class LUContent final : public LUStateProtocol {
public:
    using Context = RepresentableContext<NoCoordinator>;

    struct Values {
        std::shared_ptr<LUStateData> state;
        /// The space that the view around was offered.
        Size size;
        /// Progress to be shown; above 0 it takes control.
        double value = 0;
    };

    LUContent(Values values, const AnimationServices& services) : values_(std::move(values)), services_(services) {}

    [[nodiscard]] const std::shared_ptr<LUStateData>& state() const override { return values_.state; }

    void setValues(Values values) { values_ = std::move(values); }

    [[nodiscard]] std::shared_ptr<LUView> makeNSView(const Context& context) const;
    void updateNSView(LUView& nsView, const Context& context) const;

private:
    Values values_;
    AnimationServices services_;
};

} // namespace orken
