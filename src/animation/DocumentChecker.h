#pragma once

#include "foundation/Outcome.h"
#include "platform/AnimationSurface.h"

#include <cstddef>
#include <string_view>

namespace orken {

/// Bytes of a document; a larger one is unusable.
inline constexpr std::size_t kLargestAnimationDocument = 8 * 1024 * 1024;

/// Decides whether a document of the Lottie format can be given to a renderer, and writes it anew within bounds.
/// Unusable is what is no strict UTF-8 JSON, nests or holds too much, lacks what a composition needs or names numbers
/// with which a renderer would not come to an end. Pictures are left out. Any thread.
[[nodiscard]] Outcome<AnimationDocument> checkAnimationDocument(std::string_view document);

/// Checks a document and has it prepared for these surfaces. Any thread.
[[nodiscard]] Outcome<AnimationDocument> usableAnimationDocument(std::string_view document,
                                                                 const AnimationSurfaces& surfaces);

} // namespace orken
