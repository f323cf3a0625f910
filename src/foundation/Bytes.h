#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace orken {

using Bytes = std::vector<std::uint8_t>;

/// The same bytes, to be read as text; valid as long as `bytes` is unchanged.
[[nodiscard]] inline std::string_view asText(const Bytes& bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

[[nodiscard]] inline Bytes toBytes(std::string_view text)
{
    const auto* first = reinterpret_cast<const std::uint8_t*>(text.data());
    return {first, first + text.size()};
}

} // namespace orken
