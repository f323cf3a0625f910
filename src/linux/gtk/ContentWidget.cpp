#include "linux/gtk/ContentWidget.h"

#include "linux/gtk/Conversions.h"
#include "linux/gtk/LayerBox.h"
#include "linux/gtk/PlainButton.h"
#include "linux/gtk/StackBox.h"
#include "linux/gtk/SymbolWidget.h"
#include "linux/gtk/TextShadow.h"
#include "linux/gtk/TextStyle.h"
#include "linux/gtk/WidgetView.h"
#include "linux/loop/GObjectPtr.h"
#include "linux/loop/SignalConnection.h"

#include <string>

namespace orken::desktop {

namespace {

GtkWidget* expanding(GtkWidget* widget)
{
    gtk_widget_set_hexpand(widget, TRUE);
    gtk_widget_set_vexpand(widget, TRUE);
    return widget;
}

class TextContentWidget final : public ContentWidget {
public:
    TextContentWidget() : ContentWidget(gtk_label_new(nullptr))
    {
        gtk_label_set_justify(GTK_LABEL(widget()), GTK_JUSTIFY_CENTER);
    }

    void apply(const Element& element) override
    {
        const auto& text = std::get<TextContent>(element.content()).text;
        const Modifiers& modifiers = element.modifiers();
        const GText valid(g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())));
        gtk_label_set_text(GTK_LABEL(widget()), valid.get());
        gtk_label_set_attributes(GTK_LABEL(widget()), textAttributes(modifiers.font, modifiers.foreground).get());
        applyTextShadow(widget(), modifiers.shadow);
    }

    [[nodiscard]] bool isOnlyDrawn() const override { return true; }
};

class SymbolContentWidget final : public ContentWidget {
public:
    explicit SymbolContentWidget(const SymbolContent& symbol) : ContentWidget(symbolNew(symbol.name)) {}

    void apply(const Element& element) override
    {
        symbolSetColor(widget(), rgba(element.modifiers().foreground.value_or(Color::black())));
    }

    [[nodiscard]] bool isOnlyDrawn() const override { return true; }
};

class StackContentWidget final : public ContentWidget {
public:
    explicit StackContentWidget(Axis axis)
        : ContentWidget(stackBoxNew(axis == Axis::vertical ? GTK_ORIENTATION_VERTICAL : GTK_ORIENTATION_HORIZONTAL))
    {
    }

    void apply(const Element& element) override
    {
        gtk_box_set_spacing(GTK_BOX(widget()), pixels(std::get<StackContent>(element.content()).spacing));
    }
};

class SpacerContentWidget final : public ContentWidget {
public:
    SpacerContentWidget() : ContentWidget(layerBoxNew()) {}

    /// Along the axis of a stack.
    void expandIn(GtkWidget* container, GtkWidget* outer) const override
    {
        const bool vertical = GTK_IS_ORIENTABLE(container) &&
                              gtk_orientable_get_orientation(GTK_ORIENTABLE(container)) == GTK_ORIENTATION_VERTICAL;
        gtk_widget_set_hexpand(outer, !vertical);
        gtk_widget_set_vexpand(outer, vertical);
    }
};

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

class ButtonContentWidget final : public ContentWidget {
public:
    ButtonContentWidget(const RenderNode& node, ViewEvents& events)
        : ContentWidget(plainButtonNew(firstText(node))),
          clicked_(SignalConnection::make<void(GtkButton*)>(
              widget(), "clicked", [&events, id = node.id](GtkButton*) { events.pressed(id); }))
    {
    }

    void insertChild(GtkWidget* child, std::size_t) override { gtk_button_set_child(GTK_BUTTON(widget()), child); }

    void removeChild(GtkWidget*) override { gtk_button_set_child(GTK_BUTTON(widget()), nullptr); }

private:
    SignalConnection clicked_;
};

class RepresentableContentWidget final : public ContentWidget {
public:
    explicit RepresentableContentWidget(std::shared_ptr<PlatformView> view)
        : ContentWidget(expanding(native(*view).widget())), view_(std::move(view))
    {
    }

    void becameEnabled() override { native(*view_).becameEnabled(); }

private:
    static WidgetView& native(PlatformView& view) { return static_cast<WidgetView&>(*view.native()); }

    std::shared_ptr<PlatformView> view_;
};

/// Chooses the type for a kind of content.
struct Maker {
    using Made = std::unique_ptr<ContentWidget>;

    Made operator()(const EmptyContent&) const { return layers(); }

    Made operator()(const TextContent&) const { return std::make_unique<TextContentWidget>(); }

    Made operator()(const SymbolContent& symbol) const { return std::make_unique<SymbolContentWidget>(symbol); }

    Made operator()(const StackContent& stack) const { return std::make_unique<StackContentWidget>(stack.axis); }

    Made operator()(const LayersContent&) const { return layers(); }

    Made operator()(const SpacerContent&) const { return std::make_unique<SpacerContentWidget>(); }

    Made operator()(const ButtonContent&) const { return std::make_unique<ButtonContentWidget>(node, events); }

    Made operator()(const NestedContent& nested) const
    {
        Made made = layers();
        if (nested.readsGeometry) {
            auto report = [&receiver = events, id = node.id](Size size) { receiver.resized(id, size); };
            layerBoxOnResize(expanding(made->widget()), report);
        }
        return made;
    }

    Made operator()(const RepresentableContent&) const
    {
        return std::make_unique<RepresentableContentWidget>(node.representation->platformView());
    }

    static Made layers() { return std::make_unique<ContentWidget>(layerBoxNew()); }

    const RenderNode& node;
    ViewEvents& events;
};

} // namespace

void ContentWidget::insertChild(GtkWidget* child, std::size_t index)
{
    insertWidget(widget_, child, index);
}

void ContentWidget::removeChild(GtkWidget* child)
{
    gtk_widget_unparent(child);
}

std::unique_ptr<ContentWidget> makeContentWidget(const RenderNode& node, ViewEvents& events)
{
    return std::visit(Maker{node, events}, node.element.content());
}

void insertWidget(GtkWidget* container, GtkWidget* child, std::size_t index)
{
    GtkWidget* previous = nullptr;
    for (std::size_t i = 0; i < index; ++i) {
        previous = previous ? gtk_widget_get_next_sibling(previous) : gtk_widget_get_first_child(container);
    }
    gtk_widget_insert_after(child, container, previous);
}

} // namespace orken::desktop
