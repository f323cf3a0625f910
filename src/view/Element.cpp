#include "view/Element.h"

#include "view/View.h"

#include <cassert>

namespace orken {

namespace {

/// Its content is made anew for each size; the builder is replaced when the view around it is redrawn.
class GeometryView final : public View {
public:
    using Builder = std::function<Element(Size)>;

    explicit GeometryView(Builder builder) : size_(makeState(Size{})), builder_(std::move(builder)) {}

    [[nodiscard]] Element body() override { return builder_(size_.get()); }

    void resized(Size size) override { size_.set(size); }

    void setBuilder(Builder builder) { builder_ = std::move(builder); }

private:
    State<Size> size_;
    Builder builder_;
};

Insets sum(const Insets& a, const Insets& b)
{
    return {.top = a.top + b.top,
            .leading = a.leading + b.leading,
            .bottom = a.bottom + b.bottom,
            .trailing = a.trailing + b.trailing};
}

} // namespace

void Element::wrap()
{
    Element inner = std::move(*this);
    *this = Element(LayersContent{});
    children_.push_back(std::move(inner));
}

void Element::moveSpaceInside()
{
    const bool inPlace = !modifiers_.frame && !modifiers_.background;
    if (inPlace) {
        modifiers_.innerPadding = sum(modifiers_.innerPadding, modifiers_.padding);
        modifiers_.padding = {};
    } else if (modifiers_.padding != Insets{}) {
        wrap();
    }
}

void Element::addPadding(const Insets& insets)
{
    modifiers_.padding = sum(modifiers_.padding, insets);
}

template <class Change>
void Element::changeTexts(const Change& change)
{
    change(modifiers_);
    for (Element& child : children_) {
        child.changeTexts(change);
    }
}

Element Element::padding(double length) &&
{
    addPadding({.top = length, .leading = length, .bottom = length, .trailing = length});
    return std::move(*this);
}

Element Element::padding(Edge edge, double length) &&
{
    addPadding({.top = edge == Edge::top ? length : 0,
                .leading = edge == Edge::leading ? length : 0,
                .bottom = edge == Edge::bottom ? length : 0,
                .trailing = edge == Edge::trailing ? length : 0});
    return std::move(*this);
}

Element Element::frame(Frame frame) &&
{
    moveSpaceInside();
    if (modifiers_.frame || modifiers_.background) {
        wrap();
    }
    modifiers_.frame = frame;
    return std::move(*this);
}

Element Element::background(Color color, double cornerRadius) &&
{
    moveSpaceInside();
    if (modifiers_.background) {
        wrap();
    }
    modifiers_.background = color;
    modifiers_.cornerRadius = cornerRadius;
    return std::move(*this);
}

Element Element::font(Font font) &&
{
    changeTexts([font](Modifiers& modifiers) {
        if (modifiers.font == Font::body) {
            modifiers.font = font;
        }
    });
    return std::move(*this);
}

Element Element::foreground(Color color) &&
{
    changeTexts([color](Modifiers& modifiers) {
        if (!modifiers.foreground) {
            modifiers.foreground = color;
        }
    });
    return std::move(*this);
}

Element Element::shadow(Shadow shadow) &&
{
    changeTexts([shadow](Modifiers& modifiers) {
        if (!modifiers.shadow) {
            modifiers.shadow = shadow;
        }
    });
    return std::move(*this);
}

Element Element::position(Point centre) &&
{
    modifiers_.position = centre;
    return std::move(*this);
}

Element Element::opacity(double opacity) &&
{
    modifiers_.opacity *= opacity;
    return std::move(*this);
}

Element Element::disabled(bool disabled) &&
{
    modifiers_.enabled = modifiers_.enabled && !disabled;
    return std::move(*this);
}

Element Element::announcement(std::string text) &&
{
    modifiers_.announcement = std::move(text);
    return std::move(*this);
}

Element Element::onAppear(std::function<void()> action) &&
{
    handlers_.onAppear.push_back(std::move(action));
    return std::move(*this);
}

Element Element::alert(State<bool> isPresented, Alert alert) &&
{
    if (isPresented.get()) {
        modifiers_.alert = alert;
    }
    handlers_.onAlertAnswer = [isPresented, buttons = std::move(alert.buttons)](std::size_t button) mutable {
        isPresented.set(false);
        if (button < buttons.size() && buttons[button].action) {
            buttons[button].action();
        }
    };
    return std::move(*this);
}

Element Element::onReceive(std::shared_ptr<Subject<>> subject, std::function<void()> handler) &&
{
    assert(!handlers_.receiver);
    handlers_.receiver = Receiver{.subject = std::move(subject), .handler = std::move(handler)};
    return std::move(*this);
}

bool sameIdentity(const Element& left, const Element& right)
{
    if (left.content().index() != right.content().index() ||
        left.modifiers().needsBox() != right.modifiers().needsBox() ||
        left.modifiers().announcement.has_value() != right.modifiers().announcement.has_value()) {
        return false;
    }
    const bool typed = std::holds_alternative<NestedContent>(left.content()) ||
                       std::holds_alternative<RepresentableContent>(left.content());
    return !typed || left.content() == right.content();
}

bool sameAppearance(const Element& left, const Element& right)
{
    return left.content() == right.content() && left.modifiers() == right.modifiers();
}

Element Text(std::string text)
{
    return Element(TextContent{.text = std::move(text)});
}

Element Symbol(std::string name, std::string label)
{
    return Element(SymbolContent{.name = std::move(name), .label = std::move(label)});
}

Element VStack(std::vector<Element> children, double spacing)
{
    return Element(StackContent{.axis = Axis::vertical, .spacing = spacing}, std::move(children));
}

Element HStack(std::vector<Element> children, double spacing)
{
    return Element(StackContent{.axis = Axis::horizontal, .spacing = spacing}, std::move(children));
}

Element ZStack(std::vector<Element> children)
{
    return Element(LayersContent{}, std::move(children));
}

Element Spacer()
{
    return Element(SpacerContent{});
}

Element Button(Element label, std::function<void()> action)
{
    std::vector<Element> children;
    children.push_back(std::move(label));
    Element button(ButtonContent{}, std::move(children));
    button.handlers().action = std::move(action);
    return button;
}

Element Button(std::string title, std::function<void()> action)
{
    return Button(Text(std::move(title)), std::move(action));
}

Element When(bool condition, const std::function<Element()>& make)
{
    return condition ? make() : Element();
}

Element GeometryReader(const std::function<Element(Size)>& content)
{
    Element element(NestedContent{.type = typeid(GeometryView), .readsGeometry = true});
    element.handlers().makeView = [content] { return std::make_unique<GeometryView>(content); };
    element.handlers().updateView = [content](View& view) { static_cast<GeometryView&>(view).setBuilder(content); };
    return element;
}

} // namespace orken
