#pragma once

#include "foundation/Outcome.h"

#include <string>
#include <string_view>

namespace orken {

/// The text under `key` in a JSON document (RFC 8259, UTF-8) whose top level is an object; other members are ignored.
/// The error says what the document lacks or where it breaks off. Any thread.
[[nodiscard]] Outcome<std::string> jsonTextMember(std::string_view document, std::string_view key);

} // namespace orken
