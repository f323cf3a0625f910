#pragma once

#include "foundation/Bytes.h"

#include <optional>
#include <string>

namespace orken {

/// The text of a response whose encoding has to be found out: a byte-order mark, else the charset that the response
/// names, if it is a known one, else strict UTF-8. Without any bytes the text is empty; absent when the
/// bytes are not text in that encoding.
[[nodiscard]] std::optional<std::string> decodeText(const Bytes& body, const std::optional<std::string>& charset);

} // namespace orken
