#pragma once

#include "foundation/NonCopyable.h"
#include "linux/gtk/ContentWidget.h"
#include "linux/loop/GObjectPtr.h"
#include "linux/loop/SignalConnection.h"
#include "view/ViewHost.h"

#include <gtk/gtk.h>

#include <cstddef>
#include <memory>

namespace orken::desktop {

/// The widgets of one render node: the content, and around it a box of its own where the modifiers need one. Main
/// thread only.
class ViewWidgets : NonCopyable {
public:
    /// `events` hears of the node's widgets while this object lives.
    ViewWidgets(const RenderNode& node, ViewEvents& events);

    void update(const RenderNode& before, const RenderNode& after);

    void insertChild(const ViewWidgets& child, std::size_t index);

    void removeChild(const ViewWidgets& child) { content_->removeChild(child.outer()); }

    /// What stands in the parent.
    [[nodiscard]] GtkWidget* outer() const { return outer_.get(); }

private:
    void announceWhenSeen();
    void apply(const Element& element);
    void applyFrame(const Modifiers& modifiers);

    std::unique_ptr<ContentWidget> content_;
    GObjectPtr<GtkWidget> outer_;
    SignalConnection mapped_;
};

/// A widget that can use more room than it needs gets all of it, any other stands in the middle. To be called from
/// where something changed up to the window.
void alignUpwards(GtkWidget* widget);

} // namespace orken::desktop
