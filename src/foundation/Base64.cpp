#include "foundation/Base64.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstring>

namespace orken {

namespace {

constexpr std::string_view kAlphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// What one character adds to the bytes of its group: three bytes in the order in which they lie in memory, and a
/// fourth that is zero for a character of the alphabet.
using Share = std::uint32_t;
using Table = std::array<Share, 256>;

constexpr Share makeShare(std::uint32_t bits, std::uint8_t invalid)
{
    return std::bit_cast<Share>(std::array<std::uint8_t, 4>{static_cast<std::uint8_t>(bits >> 16U),
                                                            static_cast<std::uint8_t>(bits >> 8U),
                                                            static_cast<std::uint8_t>(bits), invalid});
}

constexpr Share kInvalid = makeShare(0, 0xFF);

constexpr Table makeTable(unsigned place)
{
    Table table{};
    table.fill(kInvalid);
    for (std::size_t value = 0; value < kAlphabet.size(); ++value) {
        table.at(static_cast<unsigned char>(kAlphabet[value])) =
            makeShare(static_cast<std::uint32_t>(value) << (18 - 6 * place), 0);
    }
    return table;
}

constexpr std::array<Table, 4> kTables{makeTable(0), makeTable(1), makeTable(2), makeTable(3)};

Share group(const char* text)
{
    const auto share = [text](std::size_t place) { return kTables[place][static_cast<unsigned char>(text[place])]; };
    return share(0) | share(1) | share(2) | share(3);
}

} // namespace

std::optional<Bytes> decodeBase64(std::string_view text)
{
    if (text.empty()) {
        return Bytes();
    }
    if (text.size() % 4 != 0) {
        return std::nullopt;
    }
    const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
    Bytes bytes(text.size() / 4 * 3);
    const char* in = text.data();
    std::uint8_t* out = bytes.data();

    Share seen = 0;
    for (const char* const lastGroup = in + text.size() - 4; in != lastGroup; in += 4, out += 3) {
        const Share share = group(in);
        seen |= share;
        // Four bytes in one store; the next group overwrites the last of them.
        std::memcpy(out, &share, sizeof share);
    }
    std::array<char, 4> last{'A', 'A', 'A', 'A'};
    std::memcpy(last.data(), in, last.size() - padding);
    const Share share = group(last.data());
    seen |= share;
    std::memcpy(out, &share, 3);

    if ((seen & kInvalid) != 0) {
        return std::nullopt;
    }
    bytes.resize(bytes.size() - padding);
    return bytes;
}

std::string encodeBase64(std::string_view bytes)
{
    std::string text((bytes.size() + 2) / 3 * 4, '=');
    const auto byteAt = [bytes](std::size_t index) -> unsigned {
        return index < bytes.size() ? static_cast<unsigned char>(bytes[index]) : 0U;
    };
    std::size_t out = 0;
    for (std::size_t in = 0; in < bytes.size(); in += 3, out += 4) {
        const unsigned bits = byteAt(in) << 16U | byteAt(in + 1) << 8U | byteAt(in + 2);
        const std::size_t characters = bytes.size() - in < 3 ? bytes.size() - in + 1 : 4;
        for (std::size_t i = 0; i < characters; ++i) {
            text[out + i] = kAlphabet[bits >> (18U - 6U * i) & 0x3FU];
        }
    }
    return text;
}

} // namespace orken
