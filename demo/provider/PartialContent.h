#pragma once

#include "provider/Http.h"

namespace orken::demo {

/// The part of a whole answer that a GET request's Range header names: status 206, or 416 when nothing of the body is
/// in it (RFC 9110, section 14). The answer as it is when the request wants all of it, names several parts, or when the
/// answer has no whole body.
[[nodiscard]] Answer partOf(Answer whole, const Request& request);

} // namespace orken::demo
