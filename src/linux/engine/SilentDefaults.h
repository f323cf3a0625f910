#pragma once

#include "linux/loop/SignalConnection.h"

#include <webkit/webkit.h>

#include <vector>

namespace orken::desktop {

/// Answers what the engine would otherwise put to the user in dialogs of its own: nothing is shown, and the page goes
/// on as if the user had declined; one that asks before it is left may be left. The handlers live as long as the
/// result.
[[nodiscard]] std::vector<SignalConnection> silenceDefaults(WebKitWebView* view);

} // namespace orken::desktop
