#pragma once

#include "view/Mutation.h"

namespace orken {

/// The steps that lead from one tree to another; pure. Nodes are the same by their ids. Either tree may be null. An
/// empty element holds a place in the tree and has no widget: no step names it, and no index counts it.
[[nodiscard]] Mutations diff(const RenderNodePtr& before, const RenderNodePtr& after);

} // namespace orken
