#include "foundation/TextDecoding.h"

#include "foundation/NonCopyable.h"
#include "foundation/Text.h"

#include <array>
#include <cerrno>
#include <iconv.h>
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

/// A conversion to UTF-8, closed with its owner.
class Converter : NonCopyable {
public:
    explicit Converter(const std::string& charset) : handle_(iconv_open("UTF-8", charset.c_str())) {}

    ~Converter()
    {
        if (isKnown()) {
            iconv_close(handle_);
        }
    }

    // iconv reports an unknown name with the pointer -1.
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    [[nodiscard]] bool isKnown() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

    /// Absent when the bytes are not text in the charset, or end within a character.
    [[nodiscard]] std::optional<std::string> convert(std::string_view bytes)
    {
        std::string rest(bytes);
        char* in = rest.data();
        std::size_t inLeft = rest.size();
        std::string text;
        while (inLeft > 0) {
            std::array<char, 4096> chunk{};
            char* out = chunk.data();
            std::size_t outLeft = chunk.size();
            const bool isRefused = iconv(handle_, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1);
            if (isRefused && errno != E2BIG) {
                return std::nullopt;
            }
            text.append(chunk.data(), chunk.size() - outLeft);
        }
        return text;
    }

private:
    iconv_t handle_;
};

/// Without the mark, which goes when the converted bytes become a text.
std::optional<std::string> convert(std::string_view bytes, const std::string& charset)
{
    Converter converter(charset);
    const auto text = converter.isKnown() ? converter.convert(bytes) : std::nullopt;
    return text ? textFromUtf8(*text) : std::nullopt;
}

/// To iconv the empty name is the locale's charset.
bool isKnownCharset(const std::string& charset)
{
    return !charset.empty() && Converter(charset).isKnown();
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
        return convert(bytes, *charset);
    }
    return textFromUtf8(bytes);
}

} // namespace orken
