#pragma once

#include "foundation/NonCopyable.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace orken {

/// Bit set; the bits are the engine's.
using WebsiteDataTypes = std::uint32_t;
inline constexpr WebsiteDataTypes kAllWebsiteDataTypes = 0xFFFFFFFFU;

/// What one site has left behind.
struct WebsiteDataRecord {
    WebsiteDataTypes dataTypes = 0;
    /// The engine's own record.
    std::shared_ptr<void> handle;
};

/// The web engine's data: cookies, caches, databases. Main thread only; completions come there, never inline.
class WebsiteDataStore : NonCopyable {
public:
    virtual ~WebsiteDataStore() = default;

    /// The list is empty when the engine cannot tell.
    virtual void fetchDataRecords(WebsiteDataTypes types,
                                  std::function<void(std::vector<WebsiteDataRecord>)> completion) = 0;

    virtual void removeData(WebsiteDataTypes types, const std::vector<WebsiteDataRecord>& records,
                            std::function<void()> completion) = 0;
};

} // namespace orken
