#pragma once

#include "foundation/Subject.h"
#include "view/Geometry.h"
#include "view/Representable.h"
#include "view/State.h"
#include "view/Style.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <typeindex>
#include <variant>
#include <vector>

namespace orken {

class View;

/// What an element is. The contents and the modifiers are what a person can see: they are compared between redraws,
/// and a difference reaches the toolkit. Handlers are never compared.
struct EmptyContent {
    bool operator==(const EmptyContent&) const = default;
};

struct TextContent {
    std::string text;
    bool operator==(const TextContent&) const = default;
};

/// A picture of the platform's symbol set that fills its frame, by its name there.
struct SymbolContent {
    std::string name;
    /// What a screen reader says.
    std::string label;
    bool operator==(const SymbolContent&) const = default;
};

enum class Axis { vertical, horizontal };

struct StackContent {
    Axis axis = Axis::vertical;
    double spacing = kDefaultSpacing;
    bool operator==(const StackContent&) const = default;
};

/// Children on top of each other, first at the bottom, centred.
struct LayersContent {
    bool operator==(const LayersContent&) const = default;
};

/// Takes the room that its stack has left.
struct SpacerContent {
    bool operator==(const SpacerContent&) const = default;
};

/// A button without a bezel; its only child is the label.
struct ButtonContent {
    bool operator==(const ButtonContent&) const = default;
};

/// A view with state of its own. A geometry reader is one whose content depends on the size it was given.
struct NestedContent {
    std::type_index type;
    bool readsGeometry = false;
    bool operator==(const NestedContent&) const = default;
};

struct RepresentableContent {
    std::type_index type;
    bool operator==(const RepresentableContent&) const = default;
};

using Content = std::variant<EmptyContent, TextContent, StackContent, LayersContent, SpacerContent, ButtonContent,
                             NestedContent, RepresentableContent, SymbolContent>;

/// Fixed and smallest sizes in points; `fill` takes all the room that is offered. With a smallest size alone the
/// element is as eager for room as its content.
struct Frame {
    std::optional<double> width;
    std::optional<double> height;
    std::optional<double> minWidth;
    std::optional<double> minHeight;
    bool fill = false;
    bool operator==(const Frame&) const = default;
};

enum class ButtonRole { normal, cancel };

/// An alert that belongs to the window of the element it hangs on.
struct AlertContent {
    struct Button {
        std::string title;
        ButtonRole role = ButtonRole::normal;
        bool operator==(const Button&) const = default;
    };

    std::string title;
    std::string message;
    std::vector<Button> buttons;
    bool operator==(const AlertContent&) const = default;
};

/// Applied from the inside out: content, inner padding, frame, background, padding.
struct Modifiers {
    Font font = Font::body;
    std::optional<Color> foreground;
    std::optional<Shadow> shadow;
    Insets innerPadding;
    std::optional<Frame> frame;
    std::optional<Color> background;
    /// Of the background's corners, in points.
    double cornerRadius = 0;
    Insets padding;
    /// Of the centre, in the layers around; without one it stands in the middle.
    std::optional<Point> position;
    double opacity = 1;
    bool enabled = true;
    std::optional<AlertContent> alert;
    bool operator==(const Modifiers&) const = default;

    /// Whether a box of its own is drawn around the content.
    [[nodiscard]] bool needsBox() const { return frame || background || innerPadding != Insets{}; }
};

/// A subscription that an element asks for while it is in the tree. The arguments travel as a tuple of references.
struct Receiver {
    using Deliver = std::function<void(const void* arguments)>;

    const void* source = nullptr;
    Deliver deliver;
    /// The slot holds the handler of the newest element at this place.
    std::function<Subscription(std::shared_ptr<Deliver> slot)> subscribe;
};

struct Handlers {
    std::function<void()> action;
    std::vector<std::function<void()>> onAppear;
    std::function<void(std::size_t button)> onAlertAnswer;
    std::vector<Receiver> receivers;
    std::function<std::unique_ptr<View>()> makeView;
    std::function<void(View&)> updateView;
    std::function<std::unique_ptr<Representation>()> makeRepresentation;
    std::function<void(Representation&)> renewRepresentation;
};

struct AlertButton {
    std::string title;
    ButtonRole role = ButtonRole::normal;
    std::function<void()> action;
};

/// What an alert bound to a state cell shows and does.
struct AlertDescription {
    std::string title;
    std::string message;
    std::vector<AlertButton> buttons;
};

/// A description of something on the screen. Elements are values: they are made anew on every redraw and compared with
/// the ones before. An element keeps its identity by its place among its siblings, its type and its key.
class Element {
public:
    Element() = default;

    explicit Element(Content content, std::vector<Element> children = {})
        : content_(std::move(content)), children_(std::move(children))
    {
    }

    // Modifiers in reading order; each works on what stands before it. One that cannot follow the ones before it (a
    // frame around a background, say) wraps the element in a layer of its own.
    [[nodiscard]] Element padding(double length = kDefaultPadding) &&;
    [[nodiscard]] Element padding(Edge edge, double length = kDefaultPadding) &&;
    [[nodiscard]] Element frame(Frame frame) &&;
    [[nodiscard]] Element background(Color color, double cornerRadius = 0) &&;
    /// Fonts and colours hold for every text inside that has none of its own.
    [[nodiscard]] Element font(Font font) &&;
    [[nodiscard]] Element foreground(Color color) &&;
    /// Holds for every text inside that has none of its own.
    [[nodiscard]] Element shadow(Shadow shadow) &&;
    /// Takes no room among its siblings, and stands with its centre there in the layers around it.
    [[nodiscard]] Element position(Point centre) &&;
    [[nodiscard]] Element opacity(double opacity) &&;
    [[nodiscard]] Element disabled(bool disabled) &&;
    [[nodiscard]] Element key(std::string key) &&;

    /// Runs each time the element has come onto the screen, children before parents; not before the first frame of its
    /// window, so that what holds up the main thread never holds a window back.
    [[nodiscard]] Element onAppear(std::function<void()> action) &&;
    /// Shows the alert while the cell is true. An answer sets the cell to false, then runs the button's action.
    [[nodiscard]] Element alert(State<bool> isPresented, AlertDescription description) &&;

    /// Receives what the subject sends while the element is in the tree. Another subject at the same place replaces the
    /// subscription; the same subject keeps it and calls the newest handler.
    template <class... Args>
    [[nodiscard]] Element onReceive(std::shared_ptr<Subject<Args...>> subject, std::function<void(Args...)> handler) &&;

    [[nodiscard]] const Content& content() const { return content_; }

    [[nodiscard]] const Modifiers& modifiers() const { return modifiers_; }

    [[nodiscard]] const Handlers& handlers() const { return handlers_; }

    [[nodiscard]] Handlers& handlers() { return handlers_; }

    [[nodiscard]] const std::optional<std::string>& identity() const { return key_; }

    [[nodiscard]] const std::vector<Element>& children() const { return children_; }

    [[nodiscard]] std::vector<Element> takeChildren() { return std::move(children_); }

    [[nodiscard]] bool isEmpty() const { return std::holds_alternative<EmptyContent>(content_); }

private:
    void wrap();
    void moveSpaceInside();
    void addPadding(const Insets& insets);
    template <class Change>
    void changeTexts(const Change& change);

    Content content_;
    Modifiers modifiers_;
    Handlers handlers_;
    std::optional<std::string> key_;
    std::vector<Element> children_;
};

/// Same type and key, so that at the same place it is the same thing on the screen. An element with a box and one
/// without are different things.
[[nodiscard]] bool sameIdentity(const Element& left, const Element& right);

/// Nothing to do for the toolkit between the two.
[[nodiscard]] bool sameAppearance(const Element& left, const Element& right);

[[nodiscard]] Element Text(std::string text);
[[nodiscard]] Element Symbol(std::string name, std::string label);
[[nodiscard]] Element VStack(std::vector<Element> children, double spacing = kDefaultSpacing);
[[nodiscard]] Element HStack(std::vector<Element> children, double spacing = kDefaultSpacing);
[[nodiscard]] Element ZStack(std::vector<Element> children);
[[nodiscard]] Element Spacer();
[[nodiscard]] Element Button(Element label, std::function<void()> action);
[[nodiscard]] Element Button(std::string title, std::function<void()> action);
/// The element while the condition holds. It keeps its place when it is not there, so its neighbours stay what they
/// are.
[[nodiscard]] Element When(bool condition, const std::function<Element()>& make);
/// Content that depends on the room it is given; (0, 0) before the first layout.
[[nodiscard]] Element GeometryReader(const std::function<Element(Size)>& content);

/// A view with state of its own. `make` runs once, when the place is taken; `update` hands the newest values over to
/// the view that is there on every redraw of the view around it.
template <class V>
[[nodiscard]] Element Nested(std::function<std::unique_ptr<V>()> make, std::function<void(V&)> update = {})
{
    Element element(NestedContent{.type = typeid(V)});
    element.handlers().makeView = std::move(make);
    if (update) {
        element.handlers().updateView = [update = std::move(update)](View& view) { update(static_cast<V&>(view)); };
    }
    return element;
}

/// A native view. `make` runs once, when the place is taken; the representable's update runs on every redraw, after
/// `renew` has handed the newest values over to the representable that is there.
template <class R>
[[nodiscard]] Element Representable(std::function<std::unique_ptr<R>()> make, std::function<void(R&)> renew = {})
{
    Element element(RepresentableContent{.type = typeid(R)});
    element.handlers().makeRepresentation = [make = std::move(make)] {
        return std::make_unique<BridgedRepresentation<R>>(make());
    };
    if (renew) {
        element.handlers().renewRepresentation = [renew = std::move(renew)](Representation& representation) {
            renew(static_cast<BridgedRepresentation<R>&>(representation).representable());
        };
    }
    return element;
}

template <class... Args>
Element Element::onReceive(std::shared_ptr<Subject<Args...>> subject, std::function<void(Args...)> handler) &&
{
    Receiver receiver;
    receiver.source = subject.get();
    receiver.deliver = [handler = std::move(handler)](const void* arguments) {
        std::apply(handler, *static_cast<const std::tuple<Args&...>*>(arguments));
    };
    receiver.subscribe = [subject](std::shared_ptr<Receiver::Deliver> slot) {
        return subject->subscribe([slot = std::move(slot)](Args... args) {
            const std::tuple<Args&...> arguments(args...);
            const Receiver::Deliver deliver = *slot; // a redraw inside the handler replaces the slot's content
            deliver(&arguments);
        });
    };
    handlers_.receivers.push_back(std::move(receiver));
    return std::move(*this);
}

} // namespace orken
