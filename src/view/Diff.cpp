#include "view/Diff.h"

namespace orken {

namespace {

/// Whether the toolkit has something for the node.
bool isShown(const RenderNodePtr& node)
{
    return node && !node->element.isEmpty();
}

/// The sibling at this place if it is the same thing as `node`; a node never moves among its siblings.
RenderNodePtr sameAt(std::size_t place, const std::vector<RenderNodePtr>& siblings, const RenderNodePtr& node)
{
    const bool same = place < siblings.size() && siblings[place] && siblings[place]->id == node->id;
    return same ? siblings[place] : nullptr;
}

class Differ {
public:
    Mutations take() { return std::move(mutations_); }

    void children(NodeId parent, const std::vector<RenderNodePtr>& before, const std::vector<RenderNodePtr>& after)
    {
        for (std::size_t place = 0; place < before.size(); ++place) {
            if (isShown(before[place]) && !sameAt(place, after, before[place])) {
                remove(parent, *before[place]);
            }
        }
        std::size_t index = 0;
        for (std::size_t place = 0; place < after.size(); ++place) {
            if (!isShown(after[place])) {
                continue;
            }
            if (const RenderNodePtr old = sameAt(place, before, after[place])) {
                same(old, after[place]);
            } else {
                create(after[place]);
                add(mutation::Insert{.parent = parent, .child = after[place]->id, .index = index});
            }
            ++index;
        }
    }

private:
    template <class Step>
    void add(Step step)
    {
        mutations_.emplace_back(std::move(step));
    }

    void same(const RenderNodePtr& before, const RenderNodePtr& after)
    {
        if (before == after) {
            return;
        }
        if (!sameAppearance(before->element, after->element)) {
            add(mutation::Update{.before = before, .after = after});
        }
        children(after->id, before->children, after->children);
    }

    void create(const RenderNodePtr& node)
    {
        std::vector<NodeId> inside;
        for (const RenderNodePtr& child : node->children) {
            if (isShown(child)) {
                create(child);
                inside.push_back(child->id);
            }
        }
        add(mutation::Create{.node = node});
        for (std::size_t index = 0; index < inside.size(); ++index) {
            add(mutation::Insert{.parent = node->id, .child = inside[index], .index = index});
        }
    }

    void remove(NodeId parent, const RenderNode& node)
    {
        add(mutation::Remove{.parent = parent, .child = node.id});
        for (const RenderNodePtr& child : node.children) {
            if (isShown(child)) {
                remove(node.id, *child);
            }
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
