#include "app/HostingWindow.h"

namespace orken {

void openHostingWindow(Windows& windows, const std::string& title, WindowStyleMask styleMask,
                       std::unique_ptr<View> rootView, const Rect& contentRect)
{
    const auto window = windows.makeWindow(contentRect, styleMask);
    window->center();
    window->setTitle(title);
    window->makeKeyAndOrderFront();
    // After the window has been ordered front: it is there before the view's first work begins.
    window->setContentView(std::move(rootView));
}

} // namespace orken
