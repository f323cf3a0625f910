#include "../Target.h"

#include "foundation/Base64.h"
#include "foundation/DataUrl.h"

#include <string>

// Documents that pages hand over as data URLs.

namespace orken::fuzz {

namespace {

std::string escaped(std::string_view bytes)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        (text += '%') += kDigits[byte >> 4U];
        text += kDigits[byte & 0xFU];
    }
    return text;
}

} // namespace

void run(std::string_view input)
{
    const auto content = readDataUrl(input);
    if (content) {
        demand(content->size() + std::string_view("data:,").size() <= input.size(),
               "a document is no more than its URL");
        demand(readDataUrl(std::string(input) + "#x") == content, "a fragment changes nothing");
    }
    const Bytes bytes = toBytes(input);
    const std::string base64 = encodeBase64(input);
    demand(readDataUrl("data:application/pdf;base64," + base64) == bytes, "base64 arrives");
    demand(readDataUrl("DATA:;BASE64," + escaped(base64)) == bytes, "escaped base64 arrives");
    demand(readDataUrl("data:," + escaped(input)) == bytes, "escaped bytes arrive");
    demand(!readDataUrl("file:" + base64), "no other scheme is read");
}

} // namespace orken::fuzz
