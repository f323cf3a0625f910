#pragma once

#include "foundation/NonCopyable.h"

#include <memory>
#include <type_traits>
#include <utility>

namespace orken {

/// The platform's own object behind a native view: its type derives from this, and the platform alone casts back to it.
class NativeHandle {
protected:
    ~NativeHandle() = default;
};

/// A native view of a platform, opaque to everything above the ports. The browser view and the animation view derive
/// from it; a platform's view host knows how to put its own ones on the screen.
class PlatformView : NonCopyable {
public:
    virtual ~PlatformView() = default;

    /// Lives as long as the view; null for a view that its platform needs to know nothing of.
    [[nodiscard]] virtual NativeHandle* native() = 0;
};

/// What lives as long as a representable's place in the tree.
template <class Coordinator>
struct RepresentableContext {
    std::shared_ptr<Coordinator> coordinator;
};

/// The coordinator of a representable that needs none.
struct NoCoordinator {};

/// A representable at its place in the tree: made once, updated on every redraw of the view that holds it.
class Representation : NonCopyable {
public:
    virtual ~Representation() = default;

    /// The native view, the same object for the whole life of this representation.
    [[nodiscard]] virtual const std::shared_ptr<PlatformView>& platformView() const = 0;
    virtual void update() = 0;
};

/// Makes the coordinator of a representable type that has one.
template <class Representable>
[[nodiscard]] auto makeCoordinatorOf(Representable& representable)
{
    if constexpr (requires { representable.makeCoordinator(); }) {
        return representable.makeCoordinator();
    } else {
        return std::shared_ptr<NoCoordinator>();
    }
}

/// Bridges a representable type with `makeNSView(context)`, `updateNSView(view, context)` and, where it wants one,
/// `makeCoordinator()`. The coordinator is made first; it and the representable live until the place in the tree is
/// given up.
template <class Representable>
class BridgedRepresentation final : public Representation {
    using CoordinatorPointer = decltype(makeCoordinatorOf(std::declval<Representable&>()));
    using Coordinator = typename CoordinatorPointer::element_type;
    using Context = RepresentableContext<Coordinator>;
    using ViewPointer = decltype(std::declval<Representable&>().makeNSView(std::declval<const Context&>()));
    static_assert(std::is_base_of_v<PlatformView, typename ViewPointer::element_type>);

public:
    explicit BridgedRepresentation(std::unique_ptr<Representable> representable)
        : representable_(std::move(representable)), context_{.coordinator = makeCoordinatorOf(*representable_)},
          view_(representable_->makeNSView(context_)), platformView_(view_)
    {
    }

    [[nodiscard]] const std::shared_ptr<PlatformView>& platformView() const override { return platformView_; }

    void update() override { representable_->updateNSView(*view_, context_); }

    /// To be given newer values before an update.
    [[nodiscard]] Representable& representable() { return *representable_; }

private:
    std::unique_ptr<Representable> representable_;
    Context context_;
    ViewPointer view_;
    std::shared_ptr<PlatformView> platformView_;
};

} // namespace orken
