#pragma once

namespace orken::desktop {

/// The client's own script world: a page sees nothing of it and cannot put its own functions in place of the
/// standard ones there.
inline constexpr const char* kScriptWorld = "client";

} // namespace orken::desktop
