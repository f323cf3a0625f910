#pragma once

#include <compare>
#include <string_view>

namespace orken {

/// Orders version texts: where both stand at a run of ASCII digits the runs compare by value, of any length and
/// whatever their leading zeros; everything else compares by code point, and a prefix comes first. Both are UTF-8.
[[nodiscard]] std::strong_ordering numericCompare(std::string_view left, std::string_view right);

} // namespace orken
