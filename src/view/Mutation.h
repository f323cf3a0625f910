#pragma once

#include "view/RenderNode.h"

#include <cstddef>
#include <variant>
#include <vector>

namespace orken {

/// One step that a toolkit has to take. In a list, every step is valid after the ones before it: children are created
/// before their parents, a node is inserted after it was created and removed before it is deleted.
namespace mutation {

struct Create {
    RenderNodePtr node;
};

struct Delete {
    NodeId id;
};

struct Insert {
    NodeId parent;
    NodeId child;
    std::size_t index;
};

struct Remove {
    NodeId parent;
    NodeId child;
};

/// Something that can be seen differs.
struct Update {
    RenderNodePtr before;
    RenderNodePtr after;
};

} // namespace mutation

using Mutation = std::variant<mutation::Create, mutation::Delete, mutation::Insert, mutation::Remove, mutation::Update>;
using Mutations = std::vector<Mutation>;

} // namespace orken
