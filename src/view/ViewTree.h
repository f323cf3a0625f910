#pragma once

#include "view/Reconciler.h"
#include "view/ViewHost.h"

#include <memory>

namespace orken {

/// A view on the screen: calls bodies, compares, hands the differences to the host and redraws after changes. Marks
/// are merged into one redraw per turn of the main loop. Main thread only.
///
/// Held by a shared pointer: an action that closes its own window, or runs an alert while its window goes, still runs
/// to its end with its view alive.
class ViewTree final : public ViewEvents, public std::enable_shared_from_this<ViewTree> {
public:
    /// Builds and applies the whole tree before it returns. `detach` must be called before the host goes.
    [[nodiscard]] static std::shared_ptr<ViewTree> make(ViewHost& host, std::unique_ptr<View> root);

    /// The window is going: from here on nothing is drawn and no event reaches the views.
    void detach() { host_ = nullptr; }

    void pressed(NodeId button) override;
    void alertAnswered(NodeId node, std::size_t button) override;
    void resized(NodeId geometryReader, Size size) override;

private:
    explicit ViewTree(ViewHost& host) : host_(&host) {}

    void start(std::unique_ptr<View> root);
    void scheduleRedraw();
    void redraw();
    void show(RenderNodePtr next);
    void runAppearActions(const std::vector<NodeId>& created);
    [[nodiscard]] RenderNodePtr find(NodeId id) const;

    ViewHost* host_;
    std::unique_ptr<Reconciler> reconciler_;
    RenderNodePtr root_;
    bool redrawScheduled_ = false;
};

} // namespace orken
