#include "foundation/Url.h"

#include "foundation/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace orken {

namespace {

constexpr std::string_view kNotInAuthority = "|{}^[]\\`@";

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isAlpha(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

int hexValue(char c)
{
    return isDigit(c) ? c - '0' : c >= 'a' && c <= 'f' ? c - 'a' + 10 : c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

bool isEscape(std::string_view text, std::size_t at)
{
    return at + 2 < text.size() && hexValue(text[at + 1]) >= 0 && hexValue(text[at + 2]) >= 0;
}

/// Characters that may stand anywhere after the scheme without a closer look. A table, because a data URL holds a whole
/// document.
constexpr std::array<bool, 256> kPlain = [] {
    std::array<bool, 256> plain{};
    for (std::size_t c = 0x21; c < 0x7F; ++c) {
        plain.at(c) = std::string_view("\"<>%#").find(static_cast<char>(c)) == std::string_view::npos;
    }
    return plain;
}();

bool hasForbiddenCharacter(std::string_view text)
{
    bool inFragment = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (kPlain[static_cast<unsigned char>(text[i])] || (text[i] == '%' && isEscape(text, i))) {
            continue;
        }
        if (text[i] != '#' || inFragment) {
            return true;
        }
        inFragment = true;
    }
    return false;
}

/// The components as pieces of the text.
struct Pieces {
    std::string_view scheme;
    std::optional<std::string_view> user;
    std::optional<std::string_view> host;
    std::optional<int> port;
    std::string_view path;
    std::optional<std::string_view> query;
    std::optional<std::string_view> fragment;
};

/// Takes what follows the first `mark` off `text`, and the mark; absent, and `text` untouched, without a mark.
std::optional<std::string_view> splitOff(std::string_view& text, char mark)
{
    const std::size_t at = text.find(mark);
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view rest = text.substr(at + 1);
    text = text.substr(0, at);
    return rest;
}

/// What stands before the first ":"; absent when that is not a scheme.
std::optional<std::string_view> schemeOf(std::string_view text)
{
    const std::string_view scheme = text.substr(0, text.find(':'));
    const bool valid = scheme.size() < text.size() && !scheme.empty() && isAlpha(scheme.front()) &&
                       std::all_of(scheme.begin(), scheme.end(),
                                   [](char c) { return isAlpha(c) || isDigit(c) || c == '+' || c == '-' || c == '.'; });
    return valid ? std::optional(scheme) : std::nullopt;
}

/// `[userinfo@]host[:port]`; false when it is not one.
bool readAuthority(std::string_view authority, Pieces& pieces)
{
    if (const std::size_t at = authority.rfind('@'); at != std::string_view::npos) {
        pieces.user = authority.substr(0, at);
        authority.remove_prefix(at + 1);
    }
    std::size_t hostEnd = authority.find(':');
    std::string_view name = authority.substr(0, hostEnd);
    if (authority.starts_with('[')) {
        const std::size_t closing = authority.find(']');
        if (closing == std::string_view::npos) {
            return false;
        }
        hostEnd = closing + 1;
        name = authority.substr(1, closing - 1);
    }
    const std::string_view rest = hostEnd < authority.size() ? authority.substr(hostEnd) : std::string_view{};
    const auto refuses = [](std::string_view part) {
        return part.find_first_of(kNotInAuthority) != std::string_view::npos;
    };
    if (refuses(name) || refuses(pieces.user.value_or("")) || (!rest.empty() && rest.front() != ':')) {
        return false;
    }
    pieces.host = authority.substr(0, hostEnd);
    if (rest.size() > 1) {
        std::uint16_t port = 0;
        const auto [end, error] = std::from_chars(rest.data() + 1, rest.data() + rest.size(), port);
        if (error != std::errc() || end != rest.data() + rest.size()) {
            return false;
        }
        pieces.port = port;
    }
    return true;
}

std::optional<Pieces> split(std::string_view text)
{
    const auto scheme = schemeOf(text);
    if (!scheme || hasForbiddenCharacter(text)) {
        return std::nullopt;
    }
    Pieces pieces{.scheme = *scheme};
    text.remove_prefix(scheme->size() + 1);
    pieces.fragment = splitOff(text, '#');
    pieces.query = splitOff(text, '?');
    if (text.starts_with("//")) {
        const std::string_view authority = text.substr(2, text.find('/', 2) - 2);
        if (!readAuthority(authority, pieces)) {
            return std::nullopt;
        }
        text.remove_prefix(2 + authority.size());
    }
    pieces.path = text;
    return pieces;
}

} // namespace

std::optional<UrlComponents> parseUrl(std::string_view text)
{
    const auto pieces = split(text);
    if (!pieces) {
        return std::nullopt;
    }
    const auto copy = [](const std::optional<std::string_view>& piece) {
        return piece ? std::optional<std::string>(*piece) : std::nullopt;
    };
    return UrlComponents{.scheme = std::string(pieces->scheme),
                         .user = copy(pieces->user),
                         .host = copy(pieces->host),
                         .port = pieces->port,
                         .path = std::string(pieces->path),
                         .query = copy(pieces->query),
                         .fragment = copy(pieces->fragment)};
}

bool isUrl(std::string_view text)
{
    return split(text).has_value();
}

std::optional<std::string> urlScheme(std::string_view text)
{
    const auto scheme = schemeOf(text);
    return scheme ? std::optional<std::string>(*scheme) : std::nullopt;
}

std::string percentDecodedBytes(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && isEscape(text, i)) {
            bytes += static_cast<char>(hexValue(text[i + 1]) * 16 + hexValue(text[i + 2]));
            i += 2;
        } else {
            bytes += text[i];
        }
    }
    return bytes;
}

std::string percentDecoded(std::string_view text)
{
    std::string bytes = percentDecodedBytes(text);
    return isValidUtf8(bytes) ? bytes : std::string(text);
}

} // namespace orken
