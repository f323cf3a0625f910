#include "foundation/Url.h"

#include "foundation/Text.h"

#include <glib.h>

#include <algorithm>
#include <memory>

namespace orken {

namespace {

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

/// GLib's parser lets these through, or decodes past them.
bool hasForbiddenCharacter(std::string_view text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c <= 0x20 || c >= 0x7F || c == '"' || c == '<' || c == '>' || (c == '%' && !isEscape(text, i))) {
            return true;
        }
    }
    return std::count(text.begin(), text.end(), '#') > 1;
}

std::optional<std::string> optionalText(const char* text)
{
    return text ? std::optional<std::string>(text) : std::nullopt;
}

} // namespace

std::optional<UrlComponents> parseUrl(std::string_view text)
{
    if (text.empty() || hasForbiddenCharacter(text)) {
        return std::nullopt;
    }
    const std::string terminated(text);
    const std::unique_ptr<GUri, decltype(&g_uri_unref)> uri(
        g_uri_parse(terminated.c_str(), G_URI_FLAGS_ENCODED, nullptr), g_uri_unref);
    if (!uri) {
        return std::nullopt;
    }
    UrlComponents components;
    components.scheme = g_uri_get_scheme(uri.get());
    components.user = optionalText(g_uri_get_userinfo(uri.get()));
    components.host = optionalText(g_uri_get_host(uri.get()));
    components.path = g_uri_get_path(uri.get());
    components.query = optionalText(g_uri_get_query(uri.get()));
    components.fragment = optionalText(g_uri_get_fragment(uri.get()));
    if (const int port = g_uri_get_port(uri.get()); port >= 0) {
        components.port = port;
    }
    return components;
}

std::optional<std::string> urlScheme(std::string_view text)
{
    const std::string_view scheme = text.substr(0, text.find(':'));
    const bool valid = scheme.size() < text.size() && !scheme.empty() && isAlpha(scheme.front()) &&
                       std::all_of(scheme.begin(), scheme.end(), [](char c) {
                           return isAlpha(c) || isDigit(c) || c == '+' || c == '-' || c == '.';
                       });
    return valid ? std::optional<std::string>(scheme) : std::nullopt;
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
