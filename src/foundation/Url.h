#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orken {

/// The components of an absolute address as RFC 3986 splits it, still percent-encoded. Absent and empty differ.
struct UrlComponents {
    /// As it is written, in capitals or not.
    std::string scheme;
    /// All that stands before the "@".
    std::optional<std::string> user;
    /// With the brackets around an IP literal. Empty in `file:///x`, absent in `about:blank`.
    std::optional<std::string> host;
    std::optional<int> port;
    std::string path;
    std::optional<std::string> query;
    std::optional<std::string> fragment;

    bool operator==(const UrlComponents&) const = default;
};

/// Absent for what is not an absolute address: control characters, blanks, `"`, `<`, `>` and bytes above 7F, a "%"
/// without two hex digits, a second "#", a port that is not a number up to 65535, an unclosed "[" in the host, the
/// empty text. The characters `| { } ^ [ ] \` and the grave accent pass in path, query and fragment only: the engine
/// leaves them raw in addresses.
[[nodiscard]] std::optional<UrlComponents> parseUrl(std::string_view text);

/// Whether `parseUrl` gives something, found out without a copy: a `data:` URL holds a whole document.
[[nodiscard]] bool isUrl(std::string_view text);

/// What stands before the first ":" when that is a scheme (RFC 3986, section 3.1), as it is written; absent otherwise.
[[nodiscard]] std::optional<std::string> urlScheme(std::string_view text);

/// With every escape decoded; the text as it was when the result would not be UTF-8.
[[nodiscard]] std::string percentDecoded(std::string_view text);

/// The decoded bytes, whatever they are. A "%" without two hex digits stands for itself.
[[nodiscard]] std::string percentDecodedBytes(std::string_view text);

} // namespace orken
