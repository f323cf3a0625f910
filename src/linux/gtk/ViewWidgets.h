#pragma once

#include "linux/loop/GObjectPtr.h"
#include "linux/loop/SignalConnection.h"
#include "view/ViewHost.h"

#include <gtk/gtk.h>

#include <memory>
#include <vector>

namespace orken::desktop {

/// The widgets of one render node: the content, and around it a box of its own where the modifiers need one. Main
/// thread only.
class ViewWidgets {
public:
    /// `events` hears of the node's widgets while this object lives.
    ViewWidgets(const RenderNode& node, ViewEvents& events);

    ViewWidgets(const ViewWidgets&) = delete;
    ViewWidgets& operator=(const ViewWidgets&) = delete;

    void update(const RenderNode& before, const RenderNode& after);

    void insertChild(ViewWidgets& child, std::size_t index);
    void removeChild(ViewWidgets& child);

    /// What stands in the parent.
    [[nodiscard]] GtkWidget* outer() const { return outer_.get(); }

private:
    [[nodiscard]] GtkWidget* makeContent(const RenderNode& node, ViewEvents& events);
    void announceWhenSeen();
    void apply(const Element& element);
    void applyText(const Element& element);
    void applyFrame(const Modifiers& modifiers);

    Content content_;
    std::shared_ptr<PlatformView> platformView_;
    GtkWidget* inner_ = nullptr;
    GObjectPtr<GtkWidget> outer_;
    std::vector<SignalConnection> connections_;
};

/// Puts a widget among the children of a container, in drawing order.
void insertWidget(GtkWidget* container, GtkWidget* child, std::size_t index);

/// A widget that can use more room than it needs gets all of it, any other stands in the middle. To be called from
/// where something changed up to the window.
void alignUpwards(GtkWidget* widget);

} // namespace orken::desktop
