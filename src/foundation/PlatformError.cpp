#include "foundation/PlatformError.h"

#include <algorithm>

namespace orken {

std::string PlatformError::description() const
{
    return "Error Domain=" + domain + " Code=" + std::to_string(code) + " \"" + message + "\"";
}

PlatformError platformError(std::string_view domain, int code, std::string_view object, std::string_view reason)
{
    std::string message(object);
    if (!object.empty()) {
        message += ": ";
    }
    message += reason;
    std::replace_if(
        message.begin(), message.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    return {.domain = std::string(domain), .code = code, .message = std::move(message)};
}

} // namespace orken
