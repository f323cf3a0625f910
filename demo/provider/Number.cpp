#include "provider/Number.h"

#include <charconv>

namespace orken::demo {

namespace {

template <class T>
std::optional<T> wholeText(std::string_view text)
{
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

} // namespace

std::optional<std::uint64_t> wholeNumber(std::string_view text, std::uint64_t most)
{
    const auto value = wholeText<std::uint64_t>(text);
    return value && *value <= most ? value : std::nullopt;
}

std::optional<double> seconds(std::string_view text)
{
    const auto value = wholeText<double>(text);
    // Written so that NaN fails as well.
    return value && *value >= 0 && *value <= 3600 ? value : std::nullopt;
}

} // namespace orken::demo
