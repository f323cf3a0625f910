#pragma once

#include "provider/Http.h"
#include "provider/Options.h"

namespace orken::demo {

/// Answers "/" with the caller's public address, or with what `mode` puts in its place. The address is one of those
/// that are reserved for documents (RFC 5737), the same for everybody.
[[nodiscard]] Answer echoAddress(const Request& request, EchoMode mode, double delay);

} // namespace orken::demo
