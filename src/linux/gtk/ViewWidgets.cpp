#include "linux/gtk/ViewWidgets.h"

#include "linux/gtk/LayerBox.h"
#include "linux/gtk/StackBox.h"
#include "linux/gtk/SymbolWidget.h"
#include "linux/gtk/TextShadow.h"
#include "linux/gtk/TextStyle.h"
#include "linux/gtk/WidgetView.h"

#include <cmath>

namespace orken::desktop {

namespace {

int pixels(double points)
{
    return static_cast<int>(std::lround(points));
}

GdkRGBA rgba(const Color& color)
{
    return {.red = static_cast<float>(color.red),
            .green = static_cast<float>(color.green),
            .blue = static_cast<float>(color.blue),
            .alpha = static_cast<float>(color.alpha)};
}

/// The first text inside, which is what a screen reader says for a button.
std::string firstText(const RenderNode& node)
{
    if (const auto* text = std::get_if<TextContent>(&node.element.content())) {
        return text->text;
    }
    if (const auto* symbol = std::get_if<SymbolContent>(&node.element.content())) {
        return symbol->label;
    }
    for (const RenderNodePtr& child : node.children) {
        if (std::string text = firstText(*child); !text.empty()) {
            return text;
        }
    }
    return {};
}

GtkWidget* makeButton(const RenderNode& node)
{
    GtkWidget* button = gtk_button_new();
    gtk_widget_add_css_class(button, "orken-plain");
    // The keys stay where they were, with the page; Tab still leads here.
    gtk_widget_set_focus_on_click(button, FALSE);
    gtk_accessible_update_property(GTK_ACCESSIBLE(button), GTK_ACCESSIBLE_PROPERTY_LABEL, firstText(node).c_str(), -1);
    return button;
}

GtkWidget* expanding(GtkWidget* widget)
{
    gtk_widget_set_hexpand(widget, TRUE);
    gtk_widget_set_vexpand(widget, TRUE);
    return widget;
}

GtkWidget* makeNested(const RenderNode& node, const NestedContent& content, ViewEvents& events)
{
    GtkWidget* box = layerBoxNew();
    if (content.readsGeometry) {
        expanding(box);
        layerBoxOnResize(box, [&events, id = node.id](Size size) { events.resized(id, size); });
    }
    return box;
}

GtkAlign alignment(GtkWidget* widget, GtkOrientation orientation)
{
    return gtk_widget_compute_expand(widget, orientation) ? GTK_ALIGN_FILL : GTK_ALIGN_CENTER;
}

} // namespace

ViewWidgets::ViewWidgets(const RenderNode& node, ViewEvents& events) : content_(node.element.content())
{
    inner_ = makeContent(node, events);
    if (node.element.modifiers().needsBox()) {
        outer_ = GObjectPtr<GtkWidget>::share(layerBoxNew());
        gtk_widget_insert_after(inner_, outer_.get(), nullptr);
    } else {
        outer_ = GObjectPtr<GtkWidget>::share(inner_);
    }
    if (node.element.modifiers().announcement) {
        announceWhenSeen();
    }
    apply(node.element);
}

GtkWidget* ViewWidgets::makeContent(const RenderNode& node, ViewEvents& events)
{
    if (std::holds_alternative<TextContent>(content_)) {
        GtkWidget* label = gtk_label_new(nullptr);
        gtk_label_set_justify(GTK_LABEL(label), GTK_JUSTIFY_CENTER);
        return label;
    }
    if (const auto* symbol = std::get_if<SymbolContent>(&content_)) {
        return symbolNew(symbol->name);
    }
    if (const auto* stack = std::get_if<StackContent>(&content_)) {
        const bool vertical = stack->axis == Axis::vertical;
        return stackBoxNew(vertical ? GTK_ORIENTATION_VERTICAL : GTK_ORIENTATION_HORIZONTAL, pixels(stack->spacing));
    }
    if (std::holds_alternative<ButtonContent>(content_)) {
        GtkWidget* button = makeButton(node);
        connections_.push_back(SignalConnection::make<void(GtkButton*)>(
            button, "clicked", [&events, id = node.id](GtkButton*) { events.pressed(id); }));
        return button;
    }
    if (const auto* nested = std::get_if<NestedContent>(&content_)) {
        return makeNested(node, *nested, events);
    }
    if (std::holds_alternative<RepresentableContent>(content_)) {
        platformView_ = node.representation->platformView();
        return expanding(static_cast<WidgetView*>(platformView_->native())->widget());
    }
    return layerBoxNew();
}

// The toolkit of this generation tells assistive programs of no new element, but always of where the keyboard is.
void ViewWidgets::announceWhenSeen()
{
    GtkWidget* outer = outer_.get();
    g_object_set(outer, "accessible-role", GTK_ACCESSIBLE_ROLE_ALERT, nullptr);
    connections_.push_back(SignalConnection::make<void(GtkWidget*)>(outer, "map", [](GtkWidget* mapped) {
        if (gtk_widget_get_focusable(mapped)) {
            gtk_widget_grab_focus(mapped);
        }
    }));
}

void ViewWidgets::update(const RenderNode& before, const RenderNode& after)
{
    content_ = after.element.content();
    apply(after.element);
    const bool enabledAgain = !before.element.modifiers().enabled && after.element.modifiers().enabled;
    if (platformView_ && enabledAgain) {
        static_cast<WidgetView*>(platformView_->native())->becameEnabled();
    }
}

void ViewWidgets::apply(const Element& element)
{
    const Modifiers& modifiers = element.modifiers();
    if (const auto* stack = std::get_if<StackContent>(&content_)) {
        gtk_box_set_spacing(GTK_BOX(inner_), pixels(stack->spacing));
    }
    applyText(element);
    if (std::holds_alternative<SymbolContent>(content_)) {
        symbolSetColor(inner_, rgba(modifiers.foreground.value_or(Color::black())));
    }
    GtkWidget* outer = outer_.get();
    if (modifiers.needsBox()) {
        applyFrame(modifiers);
    }
    gtk_widget_set_margin_top(outer, pixels(modifiers.padding.top));
    gtk_widget_set_margin_bottom(outer, pixels(modifiers.padding.bottom));
    gtk_widget_set_margin_start(outer, pixels(modifiers.padding.leading));
    gtk_widget_set_margin_end(outer, pixels(modifiers.padding.trailing));
    gtk_widget_set_opacity(outer, modifiers.opacity);
    // What cannot be seen takes no clicks and is not read out; what is only drawn takes none either, its background
    // included.
    const bool isSeen = modifiers.opacity > 0;
    const bool isOnlyDrawn =
        std::holds_alternative<TextContent>(content_) || std::holds_alternative<SymbolContent>(content_);
    gtk_widget_set_can_target(outer, isSeen && !isOnlyDrawn);
    gtk_accessible_update_state(GTK_ACCESSIBLE(outer), GTK_ACCESSIBLE_STATE_HIDDEN, !isSeen, -1);
    if (modifiers.announcement) {
        gtk_accessible_update_property(GTK_ACCESSIBLE(outer), GTK_ACCESSIBLE_PROPERTY_LABEL,
                                       modifiers.announcement->c_str(), -1);
        gtk_widget_set_focusable(outer, isSeen);
    }
    layerBoxSetPosition(outer, modifiers.position);
    gtk_widget_set_sensitive(outer, modifiers.enabled);
}

void ViewWidgets::applyText(const Element& element)
{
    const auto* text = std::get_if<TextContent>(&content_);
    if (!text) {
        return;
    }
    const Modifiers& modifiers = element.modifiers();
    const GText valid(g_utf8_make_valid(text->text.data(), static_cast<gssize>(text->text.size())));
    gtk_label_set_text(GTK_LABEL(inner_), valid.get());
    gtk_label_set_attributes(GTK_LABEL(inner_), textAttributes(modifiers.font, modifiers.foreground).get());
    applyTextShadow(inner_, modifiers.shadow);
}

void ViewWidgets::applyFrame(const Modifiers& modifiers)
{
    GtkWidget* outer = outer_.get();
    layerBoxSetBackground(outer, modifiers.background ? std::optional(rgba(*modifiers.background)) : std::nullopt,
                          static_cast<float>(modifiers.cornerRadius));
    gtk_widget_set_margin_top(inner_, pixels(modifiers.innerPadding.top));
    gtk_widget_set_margin_bottom(inner_, pixels(modifiers.innerPadding.bottom));
    gtk_widget_set_margin_start(inner_, pixels(modifiers.innerPadding.leading));
    gtk_widget_set_margin_end(inner_, pixels(modifiers.innerPadding.trailing));

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

void ViewWidgets::insertChild(ViewWidgets& child, std::size_t index)
{
    if (std::holds_alternative<ButtonContent>(content_)) {
        gtk_button_set_child(GTK_BUTTON(inner_), child.outer());
        return;
    }
    if (std::holds_alternative<SpacerContent>(child.content_)) {
        const auto* stack = std::get_if<StackContent>(&content_);
        const bool vertical = stack && stack->axis == Axis::vertical;
        gtk_widget_set_hexpand(child.outer(), !vertical);
        gtk_widget_set_vexpand(child.outer(), vertical);
    }
    insertWidget(inner_, child.outer(), index);
}

void ViewWidgets::removeChild(ViewWidgets& child)
{
    if (std::holds_alternative<ButtonContent>(content_)) {
        gtk_button_set_child(GTK_BUTTON(inner_), nullptr);
    } else {
        gtk_widget_unparent(child.outer());
    }
}

void insertWidget(GtkWidget* container, GtkWidget* child, std::size_t index)
{
    GtkWidget* previous = nullptr;
    for (std::size_t i = 0; i < index; ++i) {
        previous = previous ? gtk_widget_get_next_sibling(previous) : gtk_widget_get_first_child(container);
    }
    gtk_widget_insert_after(child, container, previous);
}

void alignUpwards(GtkWidget* widget)
{
    for (; widget && !GTK_IS_WINDOW(widget); widget = gtk_widget_get_parent(widget)) {
        gtk_widget_set_halign(widget, alignment(widget, GTK_ORIENTATION_HORIZONTAL));
        gtk_widget_set_valign(widget, alignment(widget, GTK_ORIENTATION_VERTICAL));
    }
}

} // namespace orken::desktop
