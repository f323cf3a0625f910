#pragma once

#include "foundation/Outcome.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace orken {

/// The text under `key` in a JSON document (RFC 8259, UTF-8) whose top level is an object; other members are ignored.
/// The error says what the document lacks or where it breaks off. Any thread.
[[nodiscard]] Outcome<std::string> jsonTextMember(std::string_view document, std::string_view key);

using JsonNumbers = std::map<std::string, double>;

/// The members of a JSON object all of whose values are numbers; true and false are none. Absent for another object and
/// for an array; an error for what is not a document with an object or an array, a number beyond the range of a double
/// included. Any thread.
[[nodiscard]] Outcome<std::optional<JsonNumbers>> jsonNumbers(std::string_view document);

} // namespace orken
