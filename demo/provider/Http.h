#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orken::demo {

/// Names and decoded values in the order of the text.
using Fields = std::vector<std::pair<std::string, std::string>>;

struct Request {
    std::string method;
    /// Still percent-encoded, with every slash.
    std::string path;
    /// Still percent-encoded; absent without "?".
    std::optional<std::string> query;
    /// Names in lower case; values of a repeated name joined with ", ".
    std::map<std::string, std::string> headers;
    std::string body;

    /// First query field of that name, decoded. Absent also when the query's percent-encoding is broken.
    [[nodiscard]] std::optional<std::string> parameter(std::string_view name) const;
    [[nodiscard]] std::optional<std::string> cookie(std::string_view name) const;
};

enum class Ending {
    complete,
    never, ///< the body stays unfinished, and its connection open, for as long as the provider serves
};

struct Answer {
    unsigned status = 200;
    std::string contentType;
    std::string body;
    std::vector<std::pair<std::string, std::string>> headers;
    /// Seconds that the whole answer is held back.
    double delay = 0;
    Ending ending = Ending::complete;
};

/// Reads `a=1&b=2` as a form sends it, "+" for a blank. Absent when a percent-encoding is broken. Values are made valid
/// UTF-8.
[[nodiscard]] std::optional<Fields> parseFields(std::string_view text);

} // namespace orken::demo
