#pragma once

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

struct RenderNode;
using RenderNodePtr = std::shared_ptr<const RenderNode>;

/// An element at its place, with everything inside it laid open: nested views by their bodies. Never changed once made;
/// a redraw makes new nodes where something may differ and shares the rest, so equal pointers mean equal trees.
struct RenderNode {
    struct Reception {
        const void* source = nullptr;
        std::shared_ptr<Receiver::Deliver> slot;
        Subscription subscription;
    };

    NodeId id = kRootContainer;
    Element element;
    std::vector<RenderNodePtr> children;

    // What lives as long as the place is taken: handed from each node to the one that replaces it.
    std::shared_ptr<View> view;
    std::shared_ptr<Representation> representation;
    std::shared_ptr<std::vector<Reception>> receptions;
};

} // namespace orken
