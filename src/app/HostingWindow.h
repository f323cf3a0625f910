#pragma once

#include "platform/Windows.h"

#include <memory>
#include <string>

namespace orken {

/// Opens a centred window that hosts a view. The window list keeps the window. Main thread only.
void openHostingWindow(Windows& windows, const std::string& title, WindowStyleMask styleMask,
                       std::unique_ptr<View> rootView, const Rect& contentRect);

} // namespace orken
