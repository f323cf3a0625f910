#include "foundation/NumericCompare.h"

#include <algorithm>

namespace orken {

namespace {

bool startsWithDigit(std::string_view text)
{
    return text.front() >= '0' && text.front() <= '9';
}

/// Takes the run of digits at the beginning off `text`; gives it without its leading zeros.
std::string_view takeNumber(std::string_view& text)
{
    std::string_view number = text.substr(0, text.find_first_not_of("0123456789"));
    text.remove_prefix(number.size());
    number.remove_prefix(std::min(number.find_first_not_of('0'), number.size()));
    return number;
}

} // namespace

std::strong_ordering numericCompare(std::string_view left, std::string_view right)
{
    while (!left.empty() && !right.empty()) {
        auto order = std::strong_ordering::equal;
        if (startsWithDigit(left) && startsWithDigit(right)) {
            const std::string_view leftNumber = takeNumber(left);
            const std::string_view rightNumber = takeNumber(right);
            order = leftNumber.size() <=> rightNumber.size();
            if (order == 0) {
                order = leftNumber <=> rightNumber;
            }
        } else {
            // The order of UTF-8 bytes is the order of the code points.
            order = static_cast<unsigned char>(left.front()) <=> static_cast<unsigned char>(right.front());
            left.remove_prefix(1);
            right.remove_prefix(1);
        }
        if (order != 0) {
            return order;
        }
    }
    return left.size() <=> right.size();
}

} // namespace orken
