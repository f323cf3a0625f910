#include "foundation/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace orken {

namespace {

struct Scalar {
    char32_t value = 0;
    std::size_t length = 0; ///< 0: no valid scalar begins here
};

unsigned byteAt(std::string_view bytes, std::size_t index)
{
    return static_cast<unsigned char>(bytes[index]);
}

Scalar decode(std::string_view bytes, std::size_t begin)
{
    const unsigned lead = byteAt(bytes, begin);
    if (lead < 0x80) {
        return {.value = lead, .length = 1};
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() - begin < length) {
        return {};
    }
    constexpr std::array<unsigned, 5> kLeadMask{0, 0, 0x1F, 0x0F, 0x07};
    constexpr std::array<char32_t, 5> kSmallest{0, 0, 0x80, 0x800, 0x10000};
    char32_t value = lead & kLeadMask.at(length);
    for (std::size_t i = begin + 1; i < begin + length; ++i) {
        if ((byteAt(bytes, i) & 0xC0U) != 0x80) {
            return {};
        }
        value = (value << 6U) | (byteAt(bytes, i) & 0x3FU);
    }
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < kSmallest.at(length) || value > 0x10FFFF || surrogate) {
        return {};
    }
    return {.value = value, .length = length};
}

/// Bytes below 80 that `bytes` begins with, found eight at a time: nearly every text here is made of them.
std::size_t asciiPrefix(std::string_view bytes)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    std::size_t end = 0;
    for (std::uint64_t word = 0; bytes.size() - end >= sizeof word; end += sizeof word) {
        std::memcpy(&word, bytes.data() + end, sizeof word);
        if ((word & kHighBits) != 0) {
            break;
        }
    }
    while (end < bytes.size() && byteAt(bytes, end) < 0x80) {
        ++end;
    }
    return end;
}

bool isWhiteSpace(char32_t c)
{
    return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680 ||
           (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F || c == 0x3000;
}

/// Bytes of white space that `text` begins with.
std::size_t leadingWhiteSpace(std::string_view text)
{
    std::size_t end = 0;
    while (end < text.size()) {
        const Scalar scalar = decode(text, end);
        if (scalar.length == 0 || !isWhiteSpace(scalar.value)) {
            break;
        }
        end += scalar.length;
    }
    return end;
}

std::size_t lastScalarBegin(std::string_view text)
{
    std::size_t begin = text.size() - 1;
    while (begin > 0 && text.size() - begin < 4 && (byteAt(text, begin) & 0xC0U) == 0x80) {
        --begin;
    }
    return begin;
}

} // namespace

bool isValidUtf8(std::string_view bytes)
{
    for (std::size_t i = asciiPrefix(bytes); i < bytes.size(); i += asciiPrefix(bytes.substr(i))) {
        const Scalar scalar = decode(bytes, i);
        if (scalar.length == 0) {
            return false;
        }
        i += scalar.length;
    }
    return true;
}

std::optional<std::string> textFromUtf8(std::string_view bytes)
{
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (!isValidUtf8(bytes)) {
        return std::nullopt;
    }
    if (bytes.starts_with(kByteOrderMark)) {
        bytes.remove_prefix(kByteOrderMark.size());
    }
    return std::string(bytes);
}

std::string trimmed(std::string_view text)
{
    text.remove_prefix(leadingWhiteSpace(text));
    while (!text.empty()) {
        const std::size_t begin = lastScalarBegin(text);
        const Scalar last = decode(text, begin);
        if (last.length != text.size() - begin || !isWhiteSpace(last.value)) {
            break;
        }
        text.remove_suffix(last.length);
    }
    return std::string(text);
}

std::string shortenedLine(std::string_view text, std::size_t characters)
{
    std::string line;
    std::size_t count = 0;
    for (std::size_t i = 0; i < text.size(); ++count) {
        if (count == characters) {
            return line + "…";
        }
        const Scalar scalar = decode(text, i);
        const bool isLineEnd = (scalar.value >= 0x0A && scalar.value <= 0x0D) || scalar.value == 0x85 ||
                               scalar.value == 0x2028 || scalar.value == 0x2029 || scalar.value == 0;
        // A byte that is no UTF-8 stands for itself.
        const std::size_t length = std::max<std::size_t>(scalar.length, 1);
        line += scalar.length > 0 && isLineEnd ? std::string_view(" ") : text.substr(i, length);
        i += length;
    }
    return line;
}

std::string debugDescription(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        switch (c) {
        case '"':
        case '\\':
        case '\'':
            result += '\\';
            result += c;
            break;
        case '\n':
            result += "\\n";
            break;
        case '\r':
            result += "\\r";
            break;
        case '\t':
            result += "\\t";
            break;
        case '\0':
            result += "\\0";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F) {
                std::array<char, 8> escape{};
                std::snprintf(escape.data(), escape.size(), "\\u{%X}", static_cast<unsigned>(c));
                result += escape.data();
            } else {
                result += c;
            }
        }
    }
    return result + '"';
}

std::string optionalDescription(const std::optional<std::string>& text)
{
    return text ? "Optional(" + debugDescription(*text) + ")" : "nil";
}

} // namespace orken
