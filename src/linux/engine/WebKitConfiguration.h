#pragma once

#include "platform/BrowserView.h"

#include <webkit/webkit.h>

namespace orken::desktop {

/// Sets up a view; there are no link previews on this engine. Main thread only.
void configure(WebKitWebView* view, const BrowserConfiguration& configuration);

} // namespace orken::desktop
