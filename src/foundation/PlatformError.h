#pragma once

#include <string>
#include <string_view>

namespace orken {

/// Why something that the platform was asked for did not happen.
struct PlatformError {
    /// Where the code comes from, such as "posix" or a GLib error domain.
    std::string domain;
    int code = 0;
    /// One line: "<object>: <reason>", or the reason alone.
    std::string message;

    [[nodiscard]] const std::string& localisedDescription() const { return message; }

    /// `Error Domain=<domain> Code=<code> "<message>"`.
    [[nodiscard]] std::string description() const;
};

/// The message is "<object>: <reason>", without the object where that is empty; line breaks become blanks, because a
/// diagnostic is one line.
[[nodiscard]] PlatformError platformError(std::string_view domain, int code, std::string_view object,
                                          std::string_view reason);

} // namespace orken
