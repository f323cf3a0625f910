#include "../Target.h"

#include "foundation/Text.h"
#include "foundation/TextDecoding.h"

// The answer that tells the public address: a line with the charset that the server names ("-" for none), then the
// body.

namespace orken::fuzz {

void run(std::string_view input)
{
    const std::string charset(takeLine(input));
    const auto text = decodeText(toBytes(input), charset == "-" ? std::nullopt : std::optional(charset));
    if (!text) {
        return;
    }
    demand(isValidUtf8(*text), "a decoded text is UTF-8");
    // One byte of a charset stands for a few characters at most.
    demand(text->size() <= 16 * input.size(), "a decoded text is not much larger");
    const std::string address = trimmed(*text);
    demand(isValidUtf8(address) && trimmed(address) == address, "a trimmed text has nothing left to trim");
    demand(text->find(address) != std::string::npos, "and is a part of the text");
}

} // namespace orken::fuzz
