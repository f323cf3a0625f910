#pragma once

#include "foundation/Bytes.h"
#include "foundation/NonCopyable.h"
#include "foundation/PlatformError.h"

#include <functional>
#include <optional>
#include <string>

namespace orken {

struct UrlResponse {
    int statusCode = 0;
    /// Type and subtype in lower case without parameters; empty when the server named none.
    std::string mimeType;
};

/// Either data and a response (any HTTP status; an empty body is present and empty) or an error.
struct DataTaskResult {
    std::optional<Bytes> data;
    std::optional<UrlResponse> response;
    std::optional<PlatformError> error;
};

/// The shared URL session: plain GET, redirects followed, 60 s without traffic are an error, certificates are checked.
class UrlSession : NonCopyable {
public:
    virtual ~UrlSession() = default;

    /// Starts a request; any thread. The completion runs exactly once on the background queue, where completions run
    /// one at a time, and never inline. A text that is not an http or https address completes with an error.
    virtual void startDataTask(const std::string& url, std::function<void(DataTaskResult)> completion) = 0;
};

} // namespace orken
