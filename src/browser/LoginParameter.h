#pragma once

#include "platform/BrowserView.h"

namespace orken {

/// Adds the encrypted device description to the page's login form. Main thread only.
void startLoginParameter(BrowserView& webView);

} // namespace orken
