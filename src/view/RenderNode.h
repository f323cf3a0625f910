#pragma once

#include "foundation/NonCopyable.h"
#include "foundation/Subject.h"
#include "view/Element.h"
#include "view/View.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace orken {

/// Names one thing on the screen for as long as it is there; never used again afterwards.
using NodeId = std::uint64_t;

/// The parent of a tree's topmost node: the window's content area.
inline constexpr NodeId kRootContainer = 0;

/// A subscription at its place in the tree, which calls the newest handler.
class Reception : NonCopyable {
public:
    explicit Reception(Receiver receiver)
        : receiver_(std::move(receiver)), subscription_(receiver_.subject->subscribe([this] {
              // Kept apart: a redraw inside the handler may replace it or end this.
              const auto handler = receiver_.handler;
              handler();
          }))
    {
    }

    [[nodiscard]] bool isFrom(const std::shared_ptr<Subject<>>& subject) const { return receiver_.subject == subject; }

    void setHandler(std::function<void()> handler) { receiver_.handler = std::move(handler); }

private:
    Receiver receiver_;
    Subscription subscription_;
};

struct RenderNode;
using RenderNodePtr = std::shared_ptr<const RenderNode>;

/// An element at its place, with everything inside it laid open: nested views by their bodies. Never changed once made;
/// a redraw makes new nodes where something may differ and shares the rest, so equal pointers mean equal trees.
struct RenderNode {
    NodeId id = kRootContainer;
    Element element;
    std::vector<RenderNodePtr> children;

    // What lives as long as the place is taken: handed from each node to the one that replaces it.
    std::shared_ptr<View> view;
    std::shared_ptr<Representation> representation;
    std::shared_ptr<Reception> reception;
};

} // namespace orken
