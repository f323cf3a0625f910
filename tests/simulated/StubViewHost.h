#pragma once

#include "view/ViewHost.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace orken::simulated {

/// A window's content area without a toolkit: takes every mutation at its word, and ends the program at one that is
/// not valid.
class StubViewHost final : public ViewHost {
public:
    void apply(const Mutations& mutations, ViewEvents& events) override;

    void beforeNextFrame(std::function<void()> callback) override { beforeFrame_.push_back(std::move(callback)); }

    void afterFirstFrame(std::function<void()> callback) override { afterFrame_.push_back(std::move(callback)); }

    /// The redraws that were asked for; a hidden window has them too. Says whether there were some.
    bool redraw();
    /// A redraw and the frame that shows it.
    bool runFrame();

    /// Whether a person would see no difference.
    [[nodiscard]] bool looksLike(const StubViewHost& other) const;

    [[nodiscard]] std::size_t mutationCount() const { return mutationCount_; }

    [[nodiscard]] bool shows(const std::string& text) const { return find(text).has_value(); }

    [[nodiscard]] NodeId idOf(const std::string& text) const;
    /// Whether the native view is there and it, and all around it, can be used.
    [[nodiscard]] bool isUsable(const PlatformView& view) const;

    /// The user presses the button with this text in its label.
    void press(const std::string& text);
    /// The alert that hangs on some element; absent when none is up.
    [[nodiscard]] std::optional<Alert> alert() const;
    void answerAlert(const std::string& title);
    /// The layout gives this size to every geometry reader.
    void layOut(Size size);

private:
    struct Node {
        // Of the element and not the element: that would keep views alive.
        Content content;
        Modifiers modifiers;
        std::shared_ptr<PlatformView> view;
        std::optional<NodeId> parent;
        std::vector<NodeId> children;
    };

    void take(const mutation::Create& step);
    void take(const mutation::Delete& step);
    void take(const mutation::Insert& step);
    void take(const mutation::Remove& step);
    void take(const mutation::Update& step);
    Node& at(NodeId id);
    template <class Test>
    [[nodiscard]] std::optional<NodeId> findIf(const Test& test) const;
    [[nodiscard]] std::optional<NodeId> find(const std::string& text) const;
    /// Whether the test holds for the modifiers of this node and of all around it.
    template <class Test>
    [[nodiscard]] bool holdsUpwards(NodeId id, const Test& test) const;

    std::map<NodeId, Node> nodes_{{kRootContainer, {}}};
    ViewEvents* events_ = nullptr;
    std::vector<std::function<void()>> beforeFrame_;
    std::vector<std::function<void()>> afterFrame_;
    std::size_t mutationCount_ = 0;
};

/// The button's place among those of the alert, which must have it.
[[nodiscard]] std::size_t positionOf(const std::string& button, const Alert& alert);

} // namespace orken::simulated
