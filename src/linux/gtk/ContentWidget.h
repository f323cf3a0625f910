#pragma once

#include "foundation/NonCopyable.h"
#include "view/ViewHost.h"

#include <gtk/gtk.h>

#include <cstddef>
#include <memory>

namespace orken::desktop {

/// The widget for one node's content, without what the node's modifiers put around it. Each kind of content has a type
/// of its own. Main thread only.
class ContentWidget : NonCopyable {
public:
    /// The widget belongs to whom it is put into.
    explicit ContentWidget(GtkWidget* widget) : widget_(widget) {}

    virtual ~ContentWidget() = default;

    [[nodiscard]] GtkWidget* widget() const { return widget_; }

    /// Shows the element's content, which is of this kind.
    virtual void apply(const Element&) {}

    /// The element can be used again after it was disabled.
    virtual void becameEnabled() {}

    /// It never takes a click.
    [[nodiscard]] virtual bool isOnlyDrawn() const { return false; }

    /// `outer` is what stands for this content in the container, about to be put in there.
    virtual void expandIn(GtkWidget* /*container*/, GtkWidget* /*outer*/) const {}

    virtual void insertChild(GtkWidget* child, std::size_t index);
    virtual void removeChild(GtkWidget* child);

private:
    GtkWidget* widget_;
};

/// The widget of the node's kind; never null. `events` hears of it for as long as it is there.
[[nodiscard]] std::unique_ptr<ContentWidget> makeContentWidget(const RenderNode& node, ViewEvents& events);

/// Puts a widget among the children of a container, in drawing order.
void insertWidget(GtkWidget* container, GtkWidget* child, std::size_t index);

} // namespace orken::desktop
