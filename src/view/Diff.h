#pragma once

#include "view/Mutation.h"

namespace orken {

/// The steps that lead from one tree to another; pure. Nodes are the same by their ids. Either tree may be null. Empty
/// elements hold a place in the tree but are nothing in the toolkit: they appear in no step and count in no index.
[[nodiscard]] Mutations diff(const RenderNodePtr& before, const RenderNodePtr& after);

} // namespace orken
