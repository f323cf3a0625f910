#include "foundation/Decimal.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace orken {

namespace {

/// `scientific` is "d[.ddd]e±xx".
std::string writtenOut(std::string_view scientific)
{
    const std::size_t mark = scientific.find('e');
    int exponent = 0;
    const std::size_t exponentBegin = mark + (scientific[mark + 1] == '+' ? 2 : 1);
    std::from_chars(scientific.data() + exponentBegin, scientific.data() + scientific.size(), exponent);

    std::string digits(1, scientific.front());
    if (mark > 2) {
        digits += scientific.substr(2, mark - 2);
    }
    if (exponent < 0) {
        return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    }
    const auto integerDigits = static_cast<std::size_t>(exponent) + 1;
    if (digits.size() <= integerDigits) {
        return digits + std::string(integerDigits - digits.size(), '0') + ".0";
    }
    return digits.insert(integerDigits, 1, '.');
}

} // namespace

std::string decimalText(double number)
{
    if (std::isnan(number)) {
        return "nan";
    }
    const std::string sign = std::signbit(number) ? "-" : "";
    const double magnitude = std::fabs(number);
    if (std::isinf(number)) {
        return sign + "inf";
    }
    constexpr double kSmallestWrittenOut = 1e-4;
    constexpr double kLargestWrittenOut = 9007199254740992.0; // 2^53: above it not every integer is a double
    std::array<char, 32> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::scientific).ptr;
    const std::string_view scientific(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    if (magnitude == 0 || (magnitude >= kSmallestWrittenOut && magnitude <= kLargestWrittenOut)) {
        return sign + writtenOut(scientific);
    }
    return sign + std::string(scientific);
}

std::string optionalDescription(const std::optional<double>& number)
{
    return number ? "Optional(" + decimalText(*number) + ")" : "nil";
}

} // namespace orken
