#pragma once

#include "platform/BrowserView.h"
#include "session/WebViewModel.h"

namespace orken {

/// The work on the page that every redraw of the session screen brings. Main thread only.
void runPageScripts(BrowserView& webView, WebViewModel& viewModel);

} // namespace orken
