#pragma once

#include "foundation/Bytes.h"
#include "foundation/Outcome.h"
#include "linux/loop/GObjectPtr.h"
#include "linux/services/HttpOptions.h"

#include <libsoup/soup.h>

#include <functional>
#include <optional>
#include <string>

namespace orken::desktop {

struct HttpAnswer {
    Bytes body;
    /// `charset` parameter of the content type as the server wrote it.
    std::optional<std::string> charset;
};

/// A session for the thread and the thread-default context that it is made in.
[[nodiscard]] GObjectPtr<SoupSession> makeHttpSession(const HttpOptions& options);

/// One GET in the thread-default context. The completion runs exactly once on this thread: at once when `url` is not an
/// http or https address, otherwise in a turn of the context. Cancelled, it is an error soon.
void loadHttp(SoupSession* session, const std::string& url, std::size_t maximumBodyBytes, GCancellable* cancellable,
              std::function<void(Outcome<HttpAnswer>)> completion);

} // namespace orken::desktop
