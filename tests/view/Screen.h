#pragma once

#include "simulated/StubViewHost.h"
#include "view/ViewTree.h"

#include <functional>
#include <memory>

namespace orken {

/// A view whose body a test brings along.
class TestView final : public View {
public:
    explicit TestView(std::function<Element()> body) : body_(std::move(body)) {}

    [[nodiscard]] Element body() override { return body_(); }

    using View::makeState;
    using View::observe;

private:
    std::function<Element()> body_;
};

/// One view in a window of its own.
class Screen {
public:
    explicit Screen(std::unique_ptr<View> root) : root_(*root), tree(ViewTree::make(host, std::move(root))) {}

    explicit Screen(std::function<Element()> body) : Screen(std::make_unique<TestView>(std::move(body))) {}

    ~Screen() { tree->detach(); }

    /// Of the whole view, or of one inside.
    void redraw() { redraw(root_); }

    void redraw(View& changed)
    {
        changed.invalidation()->mark();
        host.runFrame();
    }

private:
    View& root_;

public:
    simulated::StubViewHost host;
    std::shared_ptr<ViewTree> tree;
};

} // namespace orken
