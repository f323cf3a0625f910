#include "../Target.h"

#include "foundation/NumericCompare.h"

#include <compare>
#include <string>

// The order of version texts: three lines, compared with one another and with a plain way to find the same order.

namespace orken::fuzz {

namespace {

/// The same text with each run of digits written so that bytes alone order it: behind "0" (below it and above it stands
/// what stands below and above digits), how many digits there are without leading zeros, then those.
std::string sortable(std::string_view text)
{
    std::string key;
    while (!text.empty()) {
        std::string_view number = text.substr(0, text.find_first_not_of("0123456789"));
        if (number.empty()) {
            key += text.front();
            text.remove_prefix(1);
            continue;
        }
        text.remove_prefix(number.size());
        number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
        const auto size = number.size();
        key += '0';
        for (const auto shift : {24U, 16U, 8U, 0U}) {
            key += static_cast<char>((size >> shift) & 0xFFU);
        }
        key += number;
    }
    return key;
}

} // namespace

void run(std::string_view input)
{
    const std::string_view a = takeLine(input);
    const std::string_view b = takeLine(input);
    const std::string_view c = input;
    const auto order = numericCompare(a, b);
    demand(numericCompare(a, a) == 0, "a text equals itself");
    demand((order < 0) == (numericCompare(b, a) > 0), "turned round, the order turns round");
    demand(!(order <= 0 && numericCompare(b, c) <= 0) || numericCompare(a, c) <= 0, "the order holds over three");
    demand(order == (sortable(a).compare(sortable(b)) <=> 0), "numbers are ordered by value, all else by bytes");
}

} // namespace orken::fuzz
