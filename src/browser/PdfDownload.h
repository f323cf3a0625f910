#pragma once

#include "platform/NavigationDelegate.h"

#include <functional>

namespace orken {

/// Takes over a navigation to a `blob:` address. Always ends the decision with cancel, now or later. Main thread only.
void downloadBlob(BrowserView& webView, const NavigationAction& action,
                  const std::function<void(NavigationPolicy)>& decide);

} // namespace orken
