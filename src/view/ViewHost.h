#pragma once

#include "foundation/NonCopyable.h"
#include "view/Mutation.h"

#include <functional>

namespace orken {

/// What a toolkit tells the tree. Main thread only; never from inside `ViewHost::apply`.
class ViewEvents {
public:
    virtual void pressed(NodeId button) = 0;
    /// The alert of this node was answered; `button` counts in the order of its buttons.
    virtual void alertAnswered(NodeId node, std::size_t button) = 0;
    virtual void resized(NodeId geometryReader, Size size) = 0;

protected:
    ~ViewEvents() = default;
};

/// The seam to a toolkit: one window's content area. Main thread only.
class ViewHost : NonCopyable {
public:
    virtual ~ViewHost() = default;

    /// Takes the steps in order. Events of the widgets go to `events`, which outlives the host's last widget.
    virtual void apply(const Mutations& mutations, ViewEvents& events) = 0;

    /// Calls back once on a later turn of the main loop, before the next frame is drawn; never inline.
    virtual void beforeNextFrame(std::function<void()> callback) = 0;

    /// Calls back once, on a later turn of the main loop and not before the window's first frame is on the screen: what
    /// is called may hold up the main thread. A window that is not shown has no frames.
    virtual void afterFirstFrame(std::function<void()> callback) = 0;
};

} // namespace orken
