#pragma once

#include "foundation/Bytes.h"

#include <optional>
#include <string_view>

namespace orken {

/// The bytes that a `data:` URL (RFC 2397) carries; its media type is not looked at. Absent for another scheme, without
/// a comma, and for base64 that is none. Nothing but the text is read: no other scheme ever reaches a file or a server.
[[nodiscard]] std::optional<Bytes> readDataUrl(std::string_view url);

} // namespace orken
