#pragma once

namespace orken {

/// The cookies of the URL session; the web engine's own are website data. Main thread only.
class CookieStorage {
public:
    CookieStorage() = default;
    CookieStorage(const CookieStorage&) = delete;
    CookieStorage& operator=(const CookieStorage&) = delete;
    virtual ~CookieStorage() = default;

    /// All of them are gone when this returns.
    virtual void removeAllCookies() = 0;
};

} // namespace orken
