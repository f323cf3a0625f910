#pragma once

#include "view/RenderNode.h"

#include <functional>
#include <memory>
#include <vector>

namespace orken {

/// Lays elements open into render nodes: finds what each element was before the redraw, makes views and native views
/// for places newly taken, and calls the bodies of nested views. Main thread only.
class Reconciler {
public:
    /// `onMark` is called whenever a view placed by this reconciler needs an update.
    explicit Reconciler(std::function<void()> onMark) : onMark_(std::move(onMark)) {}

    /// The node for `element`; `old`, which may be null, is what stood at the same place if it is the same thing.
    [[nodiscard]] RenderNodePtr place(Element element, const RenderNodePtr& old);

    /// The same tree with the bodies of marked views called again; nodes without a mark inside are shared.
    [[nodiscard]] RenderNodePtr refresh(const RenderNodePtr& node);

    /// The native views placed or redrawn since the last call, in tree order.
    [[nodiscard]] std::vector<std::shared_ptr<Representation>> takeRedrawn() { return std::exchange(redrawn_, {}); }

private:
    std::vector<RenderNodePtr> placeChildren(std::vector<Element> elements, const RenderNode* old);
    std::vector<RenderNodePtr> placeBody(View& view, const RenderNode* old);

    std::function<void()> onMark_;
    NodeId lastId_ = kRootContainer;
    std::vector<std::shared_ptr<Representation>> redrawn_;
};

} // namespace orken
