#pragma once

#include "view/Representable.h"

namespace orken::simulated {

/// What `PlatformView::native` points to on this desktop; null for a view that does not care.
class SeenView : public NativeHandle {
public:
    /// The window tells whether the view can be seen, after each change in it.
    virtual void setSeen(bool seen) = 0;

protected:
    ~SeenView() = default;
};

} // namespace orken::simulated
