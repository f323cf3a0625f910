#include "simulated/StubViewHost.h"

#include "simulated/Require.h"
#include "simulated/SeenView.h"

#include <algorithm>
#include <utility>

namespace orken::simulated {

namespace {

bool runAll(std::vector<std::function<void()>>& callbacks)
{
    const auto due = std::exchange(callbacks, {});
    for (const auto& callback : due) {
        callback();
    }
    return !due.empty();
}

} // namespace

void StubViewHost::apply(const Mutations& mutations, ViewEvents& events)
{
    require(!mutations.empty(), "apply without a mutation");
    events_ = &events;
    mutationCount_ += mutations.size();
    for (const Mutation& step : mutations) {
        std::visit([this](const auto& change) { take(change); }, step);
    }
    for (const auto& [id, node] : nodes_) {
        if (id != kRootContainer && !node.parent) {
            require(false, name(id) + " was created and not inserted");
        }
        if (auto* view = node.view ? static_cast<SeenView*>(node.view->native()) : nullptr) {
            view->setSeen(isSeen(id));
        }
    }
}

void StubViewHost::take(const mutation::Create& step)
{
    const Element& element = step.node->element;
    const auto id = std::to_string(step.node->id);
    require(!element.isEmpty(), "an empty element was created as node " + id);
    Node node{.content = element.content(), .modifiers = element.modifiers()};
    if (step.node->representation) {
        node.view = step.node->representation->platformView();
        require(!findIf([&](const Node& other) { return other.view == node.view; }),
                "the native view of node " + id + " is in another place too");
    }
    require(nodes_.try_emplace(step.node->id, std::move(node)).second, name(step.node->id) + " was created twice");
}

void StubViewHost::take(const mutation::Delete& step)
{
    const Node& node = at(step.id);
    require(step.id != kRootContainer, "the window's content area was deleted");
    require(!node.parent, name(step.id) + " was deleted before it was removed");
    require(node.children.empty(), name(step.id) + " was deleted with children");
    nodes_.erase(step.id);
}

void StubViewHost::take(const mutation::Insert& step)
{
    auto& siblings = at(step.parent).children;
    require(!at(step.child).parent, name(step.child) + " was inserted twice");
    require(step.index <= siblings.size(), name(step.child) + " was inserted at " + std::to_string(step.index) +
                                               " of " + std::to_string(siblings.size()) + " children of " +
                                               name(step.parent));
    at(step.child).parent = step.parent;
    siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(step.index), step.child);
}

void StubViewHost::take(const mutation::Remove& step)
{
    require(at(step.child).parent == step.parent,
            name(step.child) + " was removed from " + name(step.parent) + ", which is not its parent");
    at(step.child).parent.reset();
    std::erase(at(step.parent).children, step.child);
}

void StubViewHost::take(const mutation::Update& step)
{
    Node& node = at(step.after->id);
    const Element& before = step.before->element;
    const Element& after = step.after->element;
    require(node.content == before.content() && node.modifiers == before.modifiers(),
            "an update of " + name(step.after->id) + " begins with what is not there");
    const bool sameWidget = before.content().index() == after.content().index() &&
                            before.modifiers().needsBox() == after.modifiers().needsBox();
    require(sameWidget, "an update of " + name(step.after->id) + " needs another widget");
    require(!sameAppearance(before, after), "an update of " + name(step.after->id) + " changes nothing");
    node.content = after.content();
    node.modifiers = after.modifiers();
}

bool StubViewHost::redraw()
{
    return runAll(beforeFrame_);
}

bool StubViewHost::runFrame()
{
    const bool redrawn = redraw();
    return runAll(afterFrame_) || redrawn;
}

StubViewHost::Node& StubViewHost::at(NodeId id)
{
    const auto place = nodes_.find(id);
    require(place != nodes_.end(), name(id) + " does not exist");
    return place->second;
}

std::string StubViewHost::name(NodeId id) const
{
    const auto place = nodes_.find(id);
    const auto* text = place == nodes_.end() ? nullptr : std::get_if<TextContent>(&place->second.content);
    return "node " + std::to_string(id) + (text ? " \"" + text->text + '"' : "");
}

std::vector<StubViewHost::Rendered> StubViewHost::render(NodeId parent) const
{
    std::vector<Rendered> result;
    for (const NodeId id : nodes_.at(parent).children) {
        const Node& node = nodes_.at(id);
        result.push_back({.content = node.content, .modifiers = node.modifiers, .children = render(id)});
    }
    return result;
}

template <class Test>
std::optional<NodeId> StubViewHost::findIf(const Test& test) const
{
    const auto place =
        std::find_if(nodes_.begin(), nodes_.end(), [&](const auto& entry) { return test(entry.second); });
    return place == nodes_.end() ? std::nullopt : std::optional(place->first);
}

std::optional<NodeId> StubViewHost::find(const std::string& text) const
{
    return findIf([&](const Node& node) {
        const auto* symbol = std::get_if<SymbolContent>(&node.content);
        return node.content == Content(TextContent{.text = text}) || (symbol && symbol->label == text);
    });
}

NodeId StubViewHost::idOf(const std::string& text) const
{
    const auto id = find(text);
    require(id.has_value(), "nothing shows the text " + text);
    return *id;
}

bool StubViewHost::isUsable(const PlatformView& view) const
{
    const auto id = findIf([&](const Node& node) { return node.view.get() == &view; });
    return id && isUsable(*id);
}

bool StubViewHost::isSeen(NodeId id) const
{
    const Node& node = nodes_.at(id);
    return node.modifiers.opacity > 0 && (!node.parent || isSeen(*node.parent));
}

bool StubViewHost::isUsable(NodeId id) const
{
    const Node& node = nodes_.at(id);
    return node.modifiers.enabled && node.modifiers.opacity > 0 && (!node.parent || isUsable(*node.parent));
}

void StubViewHost::press(const std::string& text)
{
    auto button = std::optional(idOf(text));
    while (button && !std::holds_alternative<ButtonContent>(nodes_.at(*button).content)) {
        button = nodes_.at(*button).parent;
    }
    require(button.has_value(), "the text stands in no button: " + text);
    require(isUsable(*button), "the button is disabled or hidden: " + text);
    events_->pressed(*button);
}

std::optional<Alert> StubViewHost::alert() const
{
    const auto id = findIf([](const Node& node) { return node.modifiers.alert.has_value(); });
    return id ? nodes_.at(*id).modifiers.alert : std::nullopt;
}

void StubViewHost::answerAlert(const std::string& title)
{
    const auto id = findIf([](const Node& node) { return node.modifiers.alert.has_value(); });
    require(id.has_value(), "there is no alert to answer");
    const auto buttons = alert()->buttons;
    const auto place = std::find_if(buttons.begin(), buttons.end(), [&](auto& one) { return one.title == title; });
    require(place != buttons.end(), "the alert has no button " + title);
    events_->alertAnswered(*id, static_cast<std::size_t>(place - buttons.begin()));
}

void StubViewHost::layOut(Size size)
{
    // Events only mark: the nodes stay what they are here.
    for (const auto& [id, node] : nodes_) {
        const auto* nested = std::get_if<NestedContent>(&node.content);
        if (nested && nested->readsGeometry) {
            events_->resized(id, size);
        }
    }
}

} // namespace orken::simulated
