#include "../Target.h"

#include "foundation/Base64.h"

// Base64 as pages and documents carry it.

namespace orken::fuzz {

namespace {

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

bool isBase64(std::string_view text)
{
    if (text.size() % 4 != 0) {
        return false;
    }
    for (int padding = 0; padding < 2 && text.ends_with('='); ++padding) {
        text.remove_suffix(1);
    }
    return text.find_first_not_of(kAlphabet) == std::string_view::npos;
}

} // namespace

void run(std::string_view input)
{
    demand(decodeBase64(encodeBase64(input)) == toBytes(input), "what was encoded can be decoded");
    const auto bytes = decodeBase64(input);
    demand(bytes.has_value() == isBase64(input), "what the standard allows is decoded, and nothing else");
    if (!bytes) {
        return;
    }
    const std::string again = encodeBase64(*bytes);
    demand(again.size() == input.size(), "decoded bytes take as much room as before");
    // The last character before the padding may hold spare bits.
    const std::size_t fixed = input.ends_with('=') ? input.size() - 4 : input.size();
    demand(again.substr(0, fixed) == input.substr(0, fixed), "and are the same text");
}

} // namespace orken::fuzz
