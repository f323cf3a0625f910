#include "MarkedJson.h"

#include <string_view>

namespace orken::fuzz {

namespace {

// Marks in the texts that JSON's writer writes, put right afterwards.
constexpr std::string_view kBareBegin = "~bare(";
constexpr std::string_view kBareEnd = ")bare~";
constexpr std::string_view kAgain = "~again~";

std::string withoutMark(std::string_view text, std::string_view mark)
{
    std::string result;
    for (std::size_t end = text.find(mark); end != std::string_view::npos; end = text.find(mark)) {
        result += text.substr(0, end);
        text.remove_prefix(end + mark.size());
    }
    return result.append(text);
}

/// What stands between the quotes of a text, with its own quotes as they were.
std::string unquoted(std::string_view text)
{
    return withoutMark(text, "\\");
}

} // namespace

OrderedJson bare(std::string_view token)
{
    return std::string(kBareBegin) + std::string(token) + std::string(kBareEnd);
}

std::string again(std::string_view key)
{
    return std::string(kAgain) + std::string(key);
}

std::string written(const OrderedJson& root)
{
    const std::string dumped = root.dump(-1, ' ', false, OrderedJson::error_handler_t::replace);
    std::string_view text = dumped;
    std::string result;
    const std::string begin = '"' + std::string(kBareBegin);
    const std::string end = std::string(kBareEnd) + '"';
    for (std::size_t at = text.find(begin); at != std::string_view::npos; at = text.find(begin)) {
        result += text.substr(0, at);
        text.remove_prefix(at + begin.size());
        const std::size_t length = text.find(end);
        result += unquoted(text.substr(0, length));
        text.remove_prefix(length + end.size());
    }
    return withoutMark(result.append(text), kAgain);
}

} // namespace orken::fuzz
