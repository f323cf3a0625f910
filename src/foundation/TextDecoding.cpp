#include "foundation/TextDecoding.h"

#include "foundation/Text.h"

#include <glib.h>

#include <array>
#include <memory>
#include <string_view>

namespace orken {

namespace {

struct ByteOrderMark {
    std::string_view bytes;
    const char* charset;
};

using namespace std::string_view_literals;

// UTF-32 before UTF-16: the little-endian mark of the one begins with that of the other.
constexpr std::array<ByteOrderMark, 5> kByteOrderMarks{{{"\xEF\xBB\xBF"sv, "UTF-8"},
                                                        {"\xFF\xFE\0\0"sv, "UTF-32LE"},
                                                        {"\0\0\xFE\xFF"sv, "UTF-32BE"},
                                                        {"\xFF\xFE"sv, "UTF-16LE"},
                                                        {"\xFE\xFF"sv, "UTF-16BE"}}};

bool isKnownCharset(const std::string& charset)
{
    // To iconv the empty name is the locale's charset.
    if (charset.empty()) {
        return false;
    }
    const GIConv converter = g_iconv_open("UTF-8", charset.c_str());
    // iconv reports an unknown name with the pointer -1.
    if (converter == reinterpret_cast<GIConv>(-1)) { // NOLINT(performance-no-int-to-ptr)
        return false;
    }
    g_iconv_close(converter);
    return true;
}

/// Without the mark, which goes when the converted bytes become a text.
std::optional<std::string> convert(std::string_view bytes, const char* charset)
{
    gsize length = 0;
    const std::unique_ptr<char, decltype(&g_free)> text(
        g_convert(bytes.data(), static_cast<gssize>(bytes.size()), "UTF-8", charset, nullptr, &length, nullptr),
        g_free);
    return text ? textFromUtf8({text.get(), length}) : std::nullopt;
}

} // namespace

std::optional<std::string> decodeText(const Bytes& body, const std::optional<std::string>& charset)
{
    const std::string_view bytes = asText(body);
    if (bytes.empty()) {
        return "";
    }
    for (const ByteOrderMark& mark : kByteOrderMarks) {
        if (bytes.starts_with(mark.bytes)) {
            return convert(bytes, mark.charset);
        }
    }
    if (charset && isKnownCharset(*charset)) {
        return convert(bytes, charset->c_str());
    }
    return textFromUtf8(bytes);
}

} // namespace orken
