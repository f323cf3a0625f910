#pragma once

#include "foundation/Subject.h"
#include "view/Content.h"
#include "view/Representable.h"
#include "view/State.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orken {

class View;

/// A subscription that an element asks for while it is in the tree.
struct Receiver {
    std::shared_ptr<Subject<>> subject;
    std::function<void()> handler;
};

struct Handlers {
    std::function<void()> action;
    std::vector<std::function<void()>> onAppear;
    std::function<void(std::size_t button)> onAlertAnswer;
    std::optional<Receiver> receiver;
    std::function<std::unique_ptr<View>()> makeView;
    std::function<void(View&)> updateView;
    std::function<std::unique_ptr<Representation>()> makeRepresentation;
    std::function<void(Representation&)> renewRepresentation;
};

/// A description of something on the screen. Elements are values: they are made anew on every redraw and compared with
/// the ones before. An element keeps its identity by its place among its siblings and its type.
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
    /// A screen reader says the text, unasked, when the element comes into sight.
    [[nodiscard]] Element announcement(std::string text) &&;

    /// Runs each time the element has come onto the screen, children before parents; not before the first frame of its
    /// window, so that what holds up the main thread never holds a window back.
    [[nodiscard]] Element onAppear(std::function<void()> action) &&;
    /// Shows the alert while the cell is true. An answer sets the cell to false, then runs the button's action.
    [[nodiscard]] Element alert(State<bool> isPresented, Alert alert) &&;

    /// Calls the handler for what the subject sends while the element is in the tree. Another subject at the same place
    /// replaces the subscription; the same subject keeps it and calls the newest handler. Once for an element.
    [[nodiscard]] Element onReceive(std::shared_ptr<Subject<>> subject, std::function<void()> handler) &&;

    [[nodiscard]] const Content& content() const { return content_; }

    [[nodiscard]] const Modifiers& modifiers() const { return modifiers_; }

    [[nodiscard]] const Handlers& handlers() const { return handlers_; }

    [[nodiscard]] Handlers& handlers() { return handlers_; }

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
    std::vector<Element> children_;
};

/// Whether both have the same type, so that at the same place they are the same thing on the screen. An element with a
/// box and one without are different things.
[[nodiscard]] bool sameIdentity(const Element& left, const Element& right);

/// Whether the toolkit has nothing to do between the two.
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

} // namespace orken
