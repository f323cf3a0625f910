#pragma once

#include "foundation/Outcome.h"
#include "platform/AnimationSurface.h"

#include <cstddef>
#include <string_view>

namespace orken {

/// Bytes of a document; a larger one is unusable.
inline constexpr std::size_t kLargestAnimationDocument = 8 * 1024 * 1024;

/// Decides whether a document of the Lottie format can be given to the renderer, and writes it anew in the form that
/// the renderer draws right. Unusable is what is no strict UTF-8 JSON, nests or holds too much, lacks what a
/// composition needs or names numbers with which the renderer would not come to an end. Pictures are left out. Any
/// thread.
[[nodiscard]] Outcome<AnimationDocument> checkAnimationDocument(std::string_view document);

} // namespace orken
