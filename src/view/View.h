#pragma once

#include "foundation/NonCopyable.h"
#include "view/Element.h"
#include "view/Geometry.h"
#include "view/ObservableObject.h"
#include "view/State.h"

#include <memory>
#include <vector>

namespace orken {

/// A screen, or a part of one, with state of its own. The tree calls `body()` when the view is placed, when one of its
/// state cells or observed objects has changed and when the view around it is redrawn. Main thread only.
class View : NonCopyable {
public:
    virtual ~View() = default;

    [[nodiscard]] virtual Element body() = 0;

    /// The size that the layout gave to the view; called only for views placed as geometry readers.
    virtual void resized(Size) {}

    [[nodiscard]] const std::shared_ptr<Invalidation>& invalidation() const { return invalidation_; }

protected:
    template <class T>
    [[nodiscard]] State<T> makeState(T initial) const
    {
        return State<T>(invalidation_, std::move(initial));
    }

    /// Redraws this view after every assignment to a published field of `object`.
    void observe(ObservableObject& object)
    {
        observations_.push_back(object.observe([mark = std::weak_ptr(invalidation_)] {
            if (const auto invalidation = mark.lock()) {
                invalidation->mark();
            }
        }));
    }

private:
    std::shared_ptr<Invalidation> invalidation_ = std::make_shared<Invalidation>();
    std::vector<Subscription> observations_;
};

} // namespace orken
