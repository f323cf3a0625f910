#pragma once

#include "foundation/Bytes.h"

#include <optional>
#include <string>
#include <string_view>

namespace orken {

/// Standard alphabet (RFC 4648, section 4), nothing else: no white space, a length that is a multiple of 4, "=" only as
/// the last one or two characters. Absent otherwise. The spare bits of the last character are not looked at.
[[nodiscard]] std::optional<Bytes> decodeBase64(std::string_view text);

/// Padded, on one line.
[[nodiscard]] std::string encodeBase64(std::string_view bytes);

[[nodiscard]] inline std::string encodeBase64(const Bytes& bytes)
{
    return encodeBase64(asText(bytes));
}

} // namespace orken
