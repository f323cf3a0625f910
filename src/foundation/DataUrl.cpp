#include "foundation/DataUrl.h"

#include "foundation/Base64.h"
#include "foundation/Url.h"

#include <algorithm>

namespace orken {

namespace {

bool equalsIgnoringCase(std::string_view text, std::string_view lowerCase)
{
    return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(), [](char c, char lower) {
        return c == lower || (c >= 'A' && c <= 'Z' && c - 'A' + 'a' == lower);
    });
}

bool endsWithIgnoringCase(std::string_view text, std::string_view lowerCase)
{
    return text.size() >= lowerCase.size() &&
           equalsIgnoringCase(text.substr(text.size() - lowerCase.size()), lowerCase);
}

} // namespace

std::optional<Bytes> readDataUrl(std::string_view url)
{
    constexpr std::string_view kScheme = "data:";
    const std::string_view resource = url.substr(0, url.find('#'));
    const std::size_t comma = resource.find(',');
    if (comma == std::string_view::npos || !equalsIgnoringCase(resource.substr(0, kScheme.size()), kScheme)) {
        return std::nullopt;
    }
    const std::string_view data = resource.substr(comma + 1);
    const bool isBase64 = endsWithIgnoringCase(resource.substr(0, comma), ";base64");
    if (data.find('%') == std::string_view::npos) {
        // A whole document, usually: not copied on its way.
        return isBase64 ? decodeBase64(data) : toBytes(data);
    }
    const std::string decoded = percentDecodedBytes(data);
    return isBase64 ? decodeBase64(decoded) : toBytes(decoded);
}

} // namespace orken
