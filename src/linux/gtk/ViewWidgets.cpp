#include "linux/gtk/ViewWidgets.h"

#include "linux/gtk/Conversions.h"
#include "linux/gtk/LayerBox.h"

namespace orken::desktop {

namespace {

void setMargins(GtkWidget* widget, const Insets& insets)
{
    gtk_widget_set_margin_top(widget, pixels(insets.top));
    gtk_widget_set_margin_bottom(widget, pixels(insets.bottom));
    gtk_widget_set_margin_start(widget, pixels(insets.leading));
    gtk_widget_set_margin_end(widget, pixels(insets.trailing));
}

GtkAlign alignment(GtkWidget* widget, GtkOrientation orientation)
{
    return gtk_widget_compute_expand(widget, orientation) ? GTK_ALIGN_FILL : GTK_ALIGN_CENTER;
}

} // namespace

ViewWidgets::ViewWidgets(const RenderNode& node, ViewEvents& events) : content_(makeContentWidget(node, events))
{
    if (node.element.modifiers().needsBox()) {
        outer_ = GObjectPtr<GtkWidget>::share(layerBoxNew());
        gtk_widget_insert_after(content_->widget(), outer_.get(), nullptr);
    } else {
        outer_ = GObjectPtr<GtkWidget>::share(content_->widget());
    }
    if (node.element.modifiers().announcement) {
        announceWhenSeen();
    }
    apply(node.element);
}

// The toolkit of this generation tells assistive programs of no new element, but always of where the keyboard is.
void ViewWidgets::announceWhenSeen()
{
    GtkWidget* outer = outer_.get();
    g_object_set(outer, "accessible-role", GTK_ACCESSIBLE_ROLE_ALERT, nullptr);
    mapped_ = SignalConnection::make<void(GtkWidget*)>(outer, "map", [](GtkWidget* mapped) {
        if (gtk_widget_get_focusable(mapped)) {
            gtk_widget_grab_focus(mapped);
        }
    });
}

void ViewWidgets::update(const RenderNode& before, const RenderNode& after)
{
    apply(after.element);
    if (!before.element.modifiers().enabled && after.element.modifiers().enabled) {
        content_->becameEnabled();
    }
}

void ViewWidgets::apply(const Element& element)
{
    content_->apply(element);
    const Modifiers& modifiers = element.modifiers();
    GtkWidget* outer = outer_.get();
    if (modifiers.needsBox()) {
        applyFrame(modifiers);
    }
    setMargins(outer, modifiers.padding);
    gtk_widget_set_opacity(outer, modifiers.opacity);
    // What cannot be seen takes no clicks and is not read out; what is only drawn takes none either, its background
    // included.
    const bool isSeen = modifiers.opacity > 0;
    gtk_widget_set_can_target(outer, isSeen && !content_->isOnlyDrawn());
    gtk_accessible_update_state(GTK_ACCESSIBLE(outer), GTK_ACCESSIBLE_STATE_HIDDEN, !isSeen, -1);
    if (modifiers.announcement) {
        gtk_accessible_update_property(GTK_ACCESSIBLE(outer), GTK_ACCESSIBLE_PROPERTY_LABEL,
                                       modifiers.announcement->c_str(), -1);
        gtk_widget_set_focusable(outer, isSeen);
    }
    layerBoxSetPosition(outer, modifiers.position);
    gtk_widget_set_sensitive(outer, modifiers.enabled);
}

void ViewWidgets::applyFrame(const Modifiers& modifiers)
{
    GtkWidget* outer = outer_.get();
    layerBoxSetBackground(outer, modifiers.background ? std::optional(rgba(*modifiers.background)) : std::nullopt,
                          static_cast<float>(modifiers.cornerRadius));
    setMargins(content_->widget(), modifiers.innerPadding);

    const Frame frame = modifiers.frame.value_or(Frame{});
    // The smallest size also of a fixed frame: a text that the desktop's scale makes larger is not cut.
    gtk_widget_set_size_request(outer, pixels(frame.width.value_or(-1)), pixels(frame.height.value_or(-1)));
    layerBoxSetMinimum(outer, pixels(frame.minWidth.value_or(0)), pixels(frame.minHeight.value_or(0)));
    const auto setExpand = [&](bool fixed, auto set, auto reset) {
        if (fixed || frame.fill) {
            set(outer, frame.fill ? TRUE : FALSE);
        } else {
            reset(outer, FALSE);
        }
    };
    setExpand(frame.width.has_value(), gtk_widget_set_hexpand, gtk_widget_set_hexpand_set);
    setExpand(frame.height.has_value(), gtk_widget_set_vexpand, gtk_widget_set_vexpand_set);
}

void ViewWidgets::insertChild(const ViewWidgets& child, std::size_t index)
{
    child.content_->expandIn(content_->widget(), child.outer());
    content_->insertChild(child.outer(), index);
}

void alignUpwards(GtkWidget* widget)
{
    for (; widget && !GTK_IS_WINDOW(widget); widget = gtk_widget_get_parent(widget)) {
        gtk_widget_set_halign(widget, alignment(widget, GTK_ORIENTATION_HORIZONTAL));
        gtk_widget_set_valign(widget, alignment(widget, GTK_ORIENTATION_VERTICAL));
    }
}

} // namespace orken::desktop
