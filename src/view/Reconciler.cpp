#include "view/Reconciler.h"

namespace orken {

namespace {

/// What stood at the place of `element`; null where that was another thing.
RenderNodePtr predecessor(const Element& element, std::size_t place, const std::vector<RenderNodePtr>& siblings)
{
    const bool same = place < siblings.size() && sameIdentity(element, siblings[place]->element);
    return same ? siblings[place] : nullptr;
}

std::shared_ptr<Reception> receive(const std::optional<Receiver>& wanted, std::shared_ptr<Reception> present)
{
    if (!wanted) {
        return nullptr;
    }
    if (!present || !present->isFrom(wanted->subject)) {
        return std::make_shared<Reception>(*wanted);
    }
    present->setHandler(wanted->handler);
    return present;
}

} // namespace

RenderNodePtr Reconciler::place(Element element, const RenderNodePtr& old)
{
    auto node = std::make_shared<RenderNode>();
    auto children = element.takeChildren();
    node->element = std::move(element);
    const Handlers& handlers = node->element.handlers();
    if (old) {
        node->id = old->id;
        node->view = old->view;
        node->representation = old->representation;
    } else {
        node->id = ++lastId_;
    }

    if (handlers.makeView) {
        if (!node->view) {
            node->view = handlers.makeView();
            node->view->invalidation()->connect(onMark_);
        } else if (handlers.updateView) {
            handlers.updateView(*node->view);
        }
        node->children = placeBody(*node->view, old.get());
    } else {
        if (handlers.makeRepresentation) {
            if (!node->representation) {
                node->representation = handlers.makeRepresentation();
            } else if (handlers.renewRepresentation) {
                handlers.renewRepresentation(*node->representation);
            }
            redrawn_.push_back(node->representation);
        }
        node->children = placeChildren(std::move(children), old.get());
    }
    node->reception = receive(handlers.receiver, old ? old->reception : nullptr);
    return node;
}

std::vector<RenderNodePtr> Reconciler::placeBody(View& view, const RenderNode* old)
{
    // Cleared first: a body that changes its own state asks for another redraw.
    view.invalidation()->clear();
    std::vector<Element> body;
    body.push_back(view.body());
    return placeChildren(std::move(body), old);
}

std::vector<RenderNodePtr> Reconciler::placeChildren(std::vector<Element> elements, const RenderNode* old)
{
    std::vector<RenderNodePtr> nodes;
    nodes.reserve(elements.size());
    for (std::size_t i = 0; i < elements.size(); ++i) {
        const auto before = old ? predecessor(elements[i], i, old->children) : nullptr;
        nodes.push_back(place(std::move(elements[i]), before));
    }
    return nodes;
}

RenderNodePtr Reconciler::refresh(const RenderNodePtr& node)
{
    std::vector<RenderNodePtr> children;
    if (node->view && node->view->invalidation()->isDirty()) {
        children = placeBody(*node->view, node.get());
    } else {
        children.reserve(node->children.size());
        for (const RenderNodePtr& child : node->children) {
            children.push_back(refresh(child));
        }
        if (children == node->children) {
            return node;
        }
    }
    auto refreshed = std::make_shared<RenderNode>(*node);
    refreshed->children = std::move(children);
    return refreshed;
}

} // namespace orken
