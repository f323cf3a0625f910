#pragma once

#include "foundation/NonCopyable.h"

namespace orken {

/// The cookies of the URL session; the web engine's own are website data. Main thread only.
class CookieStorage : NonCopyable {
public:
    virtual ~CookieStorage() = default;

    /// All of them are gone when this returns.
    virtual void removeAllCookies() = 0;
};

} // namespace orken
