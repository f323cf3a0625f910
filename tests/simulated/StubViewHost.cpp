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

bool isVisible(const Modifiers& modifiers)
{
    return modifiers.opacity > 0;
}

bool canBeUsed(const Modifiers& modifiers)
{
    return modifiers.enabled && isVisible(modifiers);
}

/// Ends the program at a step that is not valid for this node.
void requireStep(bool condition, NodeId id, const std::string& misuse)
{
    require(condition, "node " + std::to_string(id) + " " + misuse);
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
        requireStep(id == kRootContainer || node.parent, id, "was created and not inserted");
        if (auto* seen = node.view ? static_cast<SeenView*>(node.view->native()) : nullptr) {
            seen->setSeen(holdsUpwards(id, isVisible));
        }
    }
}

void StubViewHost::take(const mutation::Create& step)
{
    const NodeId id = step.node->id;
    const Element& element = step.node->element;
    requireStep(!element.isEmpty(), id, "was created for an empty element");
    Node node{.content = element.content(), .modifiers = element.modifiers()};
    if (step.node->representation) {
        node.view = step.node->representation->platformView();
        requireStep(!findIf([&](const Node& other) { return other.view == node.view; }), id,
                    "has a native view that is in another place too");
    }
    requireStep(nodes_.try_emplace(id, std::move(node)).second, id, "was created twice");
}

void StubViewHost::take(const mutation::Delete& step)
{
    const Node& node = at(step.id);
    requireStep(step.id != kRootContainer && !node.parent, step.id, "was deleted before it was removed");
    requireStep(node.children.empty(), step.id, "was deleted with children");
    nodes_.erase(step.id);
}

void StubViewHost::take(const mutation::Insert& step)
{
    auto& siblings = at(step.parent).children;
    requireStep(!at(step.child).parent, step.child, "was inserted twice");
    requireStep(step.index <= siblings.size(), step.child, "was inserted behind the end");
    at(step.child).parent = step.parent;
    siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(step.index), step.child);
}

void StubViewHost::take(const mutation::Remove& step)
{
    requireStep(at(step.child).parent == step.parent, step.child, "was removed from what is not its parent");
    at(step.child).parent.reset();
    std::erase(at(step.parent).children, step.child);
}

void StubViewHost::take(const mutation::Update& step)
{
    const NodeId id = step.after->id;
    const Element& before = step.before->element;
    const Element& after = step.after->element;
    Node& node = at(id);
    requireStep(node.content == before.content() && node.modifiers == before.modifiers(), id,
                "is updated from what is not there");
    const bool sameWidget = before.content().index() == after.content().index() &&
                            before.modifiers().needsBox() == after.modifiers().needsBox();
    requireStep(sameWidget, id, "needs another widget than its update says");
    requireStep(!sameAppearance(before, after), id, "is updated without a change");
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
    requireStep(place != nodes_.end(), id, "does not exist");
    return place->second;
}

bool StubViewHost::looksLike(const StubViewHost& other) const
{
    const std::function<bool(NodeId, NodeId)> same = [&](NodeId mine, NodeId others) {
        const Node& left = nodes_.at(mine);
        const Node& right = other.nodes_.at(others);
        return left.content == right.content && left.modifiers == right.modifiers &&
               std::ranges::equal(left.children, right.children, same);
    };
    return same(kRootContainer, kRootContainer);
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

template <class Test>
bool StubViewHost::holdsUpwards(NodeId id, const Test& test) const
{
    const Node& node = nodes_.at(id);
    return test(node.modifiers) && (!node.parent || holdsUpwards(*node.parent, test));
}

bool StubViewHost::isUsable(const PlatformView& view) const
{
    const auto id = findIf([&](const Node& node) { return node.view.get() == &view; });
    return id && holdsUpwards(*id, canBeUsed);
}

void StubViewHost::press(const std::string& text)
{
    auto button = std::optional(idOf(text));
    while (button && !std::holds_alternative<ButtonContent>(nodes_.at(*button).content)) {
        button = nodes_.at(*button).parent;
    }
    require(button.has_value(), "the text stands in no button: " + text);
    require(holdsUpwards(*button, canBeUsed), "the button is disabled or hidden: " + text);
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
    events_->alertAnswered(*id, positionOf(title, *alert()));
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

std::size_t positionOf(const std::string& button, const Alert& alert)
{
    const auto place = std::find_if(alert.buttons.begin(), alert.buttons.end(),
                                    [&](const AlertButton& one) { return one.title == button; });
    require(place != alert.buttons.end(), "the alert has no button " + button);
    return static_cast<std::size_t>(place - alert.buttons.begin());
}

} // namespace orken::simulated
