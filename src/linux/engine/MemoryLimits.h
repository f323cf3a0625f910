#pragma once

#include "linux/loop/GObjectPtr.h"

#include <webkit/webkit.h>

namespace orken::desktop {

/// A context whose page processes, and the session's network process, are ended when they grow beyond all bounds; a
/// page is then loaded again. Without this one page could take the memory of the whole machine. Made before any
/// session: the network process reads its limits when it starts.
[[nodiscard]] GObjectPtr<WebKitWebContext> makeLimitedContext();

} // namespace orken::desktop
