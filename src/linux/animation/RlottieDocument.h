#pragma once

#include "foundation/Outcome.h"
#include "platform/AnimationSurface.h"

namespace orken::desktop {

/// A checked document in the form that the renderer's library draws right:
///
/// - "ty" is the first member of each object, because the library forgets what stands before it;
/// - a layer that does not say whether it is flat is said to be, because the library would take it for
///   three-dimensional and not turn it;
/// - it begins at frame 0, because the library shows nothing of what comes before.
///
/// An error when a time that has to be moved for that leaves the bound on numbers. Any thread.
[[nodiscard]] Outcome<AnimationDocument> rlottieDocument(AnimationDocument document);

} // namespace orken::desktop
