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
    /// What can be seen, to be compared.
    struct Rendered {
        Content content;
        Modifiers modifiers;
        std::vector<Rendered> children;
        bool operator==(const Rendered&) const = default;
    };

    void apply(const Mutations& mutations, ViewEvents& events) override;

    void beforeNextFrame(std::function<void()> callback) override { beforeFrame_.push_back(std::move(callback)); }

    void afterFirstFrame(std::function<void()> callback) override { afterFrame_.push_back(std::move(callback)); }

    /// The redraws that were asked for; a hidden window has them too. Says whether there were some.
    bool redraw();
    /// A redraw and the frame that shows it.
    bool runFrame();

    /// Empty for an empty tree.
    [[nodiscard]] std::vector<Rendered> rendered() const { return render(kRootContainer); }

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
    /// For messages: its number and, where it has one, its text.
    [[nodiscard]] std::string name(NodeId id) const;
    [[nodiscard]] std::vector<Rendered> render(NodeId parent) const;
    [[nodiscard]] bool isSeen(NodeId id) const;
    [[nodiscard]] bool isUsable(NodeId id) const;
    template <class Test>
    [[nodiscard]] std::optional<NodeId> findIf(const Test& test) const;
    [[nodiscard]] std::optional<NodeId> find(const std::string& text) const;

    std::map<NodeId, Node> nodes_{{kRootContainer, {}}};
    ViewEvents* events_ = nullptr;
    std::vector<std::function<void()>> beforeFrame_;
    std::vector<std::function<void()>> afterFrame_;
    std::size_t mutationCount_ = 0;
};

} // namespace orken::simulated
