#include "view/Diff.h"

#include <algorithm>

namespace orken {

namespace {

std::vector<RenderNodePtr> shown(const std::vector<RenderNodePtr>& nodes)
{
    std::vector<RenderNodePtr> result;
    std::copy_if(nodes.begin(), nodes.end(), std::back_inserter(result),
                 [](const RenderNodePtr& node) { return node && !node->element.isEmpty(); });
    return result;
}

RenderNodePtr find(const std::vector<RenderNodePtr>& nodes, NodeId id)
{
    const auto found = std::find_if(nodes.begin(), nodes.end(), [id](const auto& node) { return node->id == id; });
    return found == nodes.end() ? nullptr : *found;
}

class Differ {
public:
    Mutations take() { return std::move(mutations_); }

    void children(NodeId parent, const std::vector<RenderNodePtr>& allBefore,
                  const std::vector<RenderNodePtr>& allAfter)
    {
        const auto before = shown(allBefore);
        const auto after = shown(allAfter);

        std::vector<NodeId> order;
        for (const RenderNodePtr& old : before) {
            if (find(after, old->id)) {
                order.push_back(old->id);
            } else {
                add(mutation::Remove{.parent = parent, .child = old->id});
                remove(*old);
            }
        }
        for (std::size_t index = 0; index < after.size(); ++index) {
            const RenderNodePtr& node = after[index];
            const auto there = std::find(order.begin(), order.end(), node->id);
            if (const RenderNodePtr old = find(before, node->id)) {
                same(*node, old, node);
                if (there == order.begin() + static_cast<std::ptrdiff_t>(index)) {
                    continue;
                }
                add(mutation::Remove{.parent = parent, .child = node->id});
                order.erase(there);
            } else {
                create(node);
            }
            add(mutation::Insert{.parent = parent, .child = node->id, .index = index});
            order.insert(order.begin() + static_cast<std::ptrdiff_t>(index), node->id);
        }
    }

private:
    template <class Step>
    void add(Step step)
    {
        mutations_.emplace_back(std::move(step));
    }

    void same(const RenderNode& node, const RenderNodePtr& before, const RenderNodePtr& after)
    {
        if (before == after) {
            return;
        }
        if (!sameAppearance(before->element, after->element)) {
            add(mutation::Update{.before = before, .after = after});
        }
        children(node.id, before->children, after->children);
    }

    void create(const RenderNodePtr& node)
    {
        const auto inside = shown(node->children);
        for (const RenderNodePtr& child : inside) {
            create(child);
        }
        add(mutation::Create{.node = node});
        for (std::size_t index = 0; index < inside.size(); ++index) {
            add(mutation::Insert{.parent = node->id, .child = inside[index]->id, .index = index});
        }
    }

    void remove(const RenderNode& node)
    {
        for (const RenderNodePtr& child : shown(node.children)) {
            add(mutation::Remove{.parent = node.id, .child = child->id});
            remove(*child);
        }
        add(mutation::Delete{.id = node.id});
    }

    Mutations mutations_;
};

} // namespace

Mutations diff(const RenderNodePtr& before, const RenderNodePtr& after)
{
    Differ differ;
    differ.children(kRootContainer, {before}, {after});
    return differ.take();
}

} // namespace orken
