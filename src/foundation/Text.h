#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orken {

/// Strict UTF-8 (RFC 3629): no overlong form, no surrogate, nothing above U+10FFFF. U+0000 is valid inside a text.
[[nodiscard]] bool isValidUtf8(std::string_view bytes);

/// The bytes as a text without a leading byte-order mark; absent when they are not valid UTF-8.
[[nodiscard]] std::optional<std::string> textFromUtf8(std::string_view bytes);

/// Without the white space and line ends at both ends: the general categories Zs, Zl and Zp of Unicode, U+0009 to
/// U+000D and U+0085. Bytes that are not UTF-8 count as something else than white space.
[[nodiscard]] std::string trimmed(std::string_view text);

/// The text on one line: line ends and NUL become blanks, and what is longer than so many characters ends in "…".
[[nodiscard]] std::string shortenedLine(std::string_view text, std::size_t characters);

/// The text between double quotes with quotes, backslashes and control characters escaped.
[[nodiscard]] std::string debugDescription(std::string_view text);

/// `Optional("…")` with the text's debug form, or `nil`.
[[nodiscard]] std::string optionalDescription(const std::optional<std::string>& text);

} // namespace orken
