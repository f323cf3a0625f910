#pragma once

#include "foundation/Bytes.h"

#include <optional>
#include <string>

namespace orken {

/// The text of a response whose encoding has to be found out: a byte-order mark, else the charset that the response
/// names, if it is a known one, else strict UTF-8. No bytes are the empty text; absent when the bytes are no text.
[[nodiscard]] std::optional<std::string> decodeText(const Bytes& body, const std::optional<std::string>& charset);

} // namespace orken
