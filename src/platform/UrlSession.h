#pragma once

#include "foundation/Bytes.h"
#include "foundation/NonCopyable.h"
#include "foundation/Outcome.h"

#include <functional>
#include <optional>
#include <string>

namespace orken {

/// The body of an answer with any HTTP status, or why there is none. An empty body is present and empty; absent is that
/// of an answer that brings neither a body nor an error.
using DataTaskResult = Outcome<std::optional<Bytes>>;

/// The shared URL session: plain GET, redirects followed, 60 s without traffic are an error, certificates are checked.
class UrlSession : NonCopyable {
public:
    virtual ~UrlSession() = default;

    /// Starts a request; any thread. The completion runs exactly once on the background queue, where completions run
    /// one at a time, and never inline. A text that is not an http or https address completes with an error.
    virtual void startDataTask(const std::string& url, std::function<void(DataTaskResult)> completion) = 0;
};

} // namespace orken
