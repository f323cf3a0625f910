#include "view/ViewTree.h"

#include "view/Diff.h"

#include <utility>

namespace orken {

namespace {

/// The topmost element: a nested view that hands out the view it was given.
Element rootElement(std::unique_ptr<View> root)
{
    Element element(NestedContent{.type = typeid(View)});
    element.handlers().makeView = [root = std::make_shared<std::unique_ptr<View>>(std::move(root))] {
        return std::move(*root);
    };
    return element;
}

RenderNodePtr findIn(const RenderNodePtr& node, NodeId id)
{
    if (!node || node->id == id) {
        return node;
    }
    for (const RenderNodePtr& child : node->children) {
        if (RenderNodePtr found = findIn(child, id)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

std::shared_ptr<ViewTree> ViewTree::make(ViewHost& host, std::unique_ptr<View> root)
{
    std::shared_ptr<ViewTree> tree(new ViewTree(host));
    tree->start(std::move(root));
    return tree;
}

void ViewTree::start(std::unique_ptr<View> root)
{
    reconciler_ = std::make_unique<Reconciler>([weak = weak_from_this()] {
        if (const auto tree = weak.lock()) {
            tree->scheduleRedraw();
        }
    });
    show(reconciler_->place(rootElement(std::move(root)), nullptr));
}

void ViewTree::scheduleRedraw()
{
    if (!host_ || redrawScheduled_) {
        return;
    }
    redrawScheduled_ = true;
    host_->beforeNextFrame([weak = weak_from_this()] {
        if (const auto tree = weak.lock()) {
            tree->redraw();
        }
    });
}

void ViewTree::redraw()
{
    redrawScheduled_ = false;
    if (host_) {
        show(reconciler_->refresh(root_));
    }
}

void ViewTree::show(RenderNodePtr next)
{
    const Mutations mutations = diff(root_, next);
    // What left the tree is let go only after the toolkit has dropped its widgets.
    const RenderNodePtr before = std::exchange(root_, std::move(next));
    if (!mutations.empty()) {
        host_->apply(mutations, *this);
    }
    // Native views see every stored value in place, also those that this redraw made.
    for (const auto& representation : reconciler_->takeRedrawn()) {
        representation->update();
    }

    std::vector<NodeId> created;
    for (const Mutation& step : mutations) {
        const auto* create = std::get_if<mutation::Create>(&step);
        if (create && !create->node->element.handlers().onAppear.empty()) {
            created.push_back(create->node->id);
        }
    }
    if (!created.empty() && host_) {
        host_->afterFirstFrame([weak = weak_from_this(), created = std::move(created)] {
            if (const auto tree = weak.lock()) {
                tree->runAppearActions(created);
            }
        });
    }
}

void ViewTree::runAppearActions(const std::vector<NodeId>& created)
{
    const RenderNodePtr keepViews = root_;
    for (const NodeId id : created) {
        const RenderNodePtr node = find(id);
        if (!node) {
            continue;
        }
        for (const auto& action : node->element.handlers().onAppear) {
            action();
        }
    }
}

void ViewTree::pressed(NodeId button)
{
    const auto keepTree = shared_from_this();
    const RenderNodePtr keepViews = root_;
    if (const RenderNodePtr node = find(button); node && node->element.handlers().action) {
        node->element.handlers().action();
    }
}

void ViewTree::alertAnswered(NodeId node, std::size_t button)
{
    const auto keepTree = shared_from_this();
    const RenderNodePtr keepViews = root_;
    if (const RenderNodePtr found = find(node); found && found->element.handlers().onAlertAnswer) {
        found->element.handlers().onAlertAnswer(button);
    }
}

void ViewTree::resized(NodeId geometryReader, Size size)
{
    if (const RenderNodePtr node = find(geometryReader); node && node->view) {
        node->view->resized(size);
    }
}

RenderNodePtr ViewTree::find(NodeId id) const
{
    return host_ ? findIn(root_, id) : nullptr;
}

} // namespace orken
