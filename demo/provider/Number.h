#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace orken::demo {

/// Decimal digits only, up to and including `most`; absent for anything else.
[[nodiscard]] std::optional<std::uint64_t> wholeNumber(std::string_view text, std::uint64_t most);

/// A delay in seconds, fraction allowed, 0 to 3600; absent for anything else.
[[nodiscard]] std::optional<double> seconds(std::string_view text);

} // namespace orken::demo
