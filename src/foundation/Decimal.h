#pragma once

#include <optional>
#include <string>

namespace orken {

/// The shortest digits that read back as the same number, in any locale with a point. Zero and magnitudes from 1e-4 to
/// 2^53 are written out with at least one fractional digit (`640.0`), others in exponent form (`1e-05`, `1e+16`);
/// `nan`, `inf`, `-inf`.
[[nodiscard]] std::string decimalText(double number);

/// `Optional(640.0)`, or `nil`.
[[nodiscard]] std::string optionalDescription(const std::optional<double>& number);

} // namespace orken
