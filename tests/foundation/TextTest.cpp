#include "foundation/Text.h"
#include "foundation/PlatformError.h"
#include "foundation/TextDecoding.h"

#include <gtest/gtest.h>

namespace orken {

using namespace std::string_view_literals;
using OptionalText = std::optional<std::string>;

// Which bytes are UTF-8 the fuzz target's corpus says.
TEST(Text, onlyALeadingByteOrderMarkIsTakenOff)
{
    EXPECT_EQ(textFromUtf8("\xEF\xBB\xBF\xC3\x96"), "Ö");
    EXPECT_EQ(textFromUtf8("a\xEF\xBB\xBF"), "a\xEF\xBB\xBF");
}

TEST(Text, trimmingTakesUnicodeWhiteSpaceFromBothEndsOnly)
{
    const std::pair<std::string_view, std::string_view> cases[] = {
        {" 203.0.113.7 \r\n", "203.0.113.7"},
        {"\n", ""},
        {"\u00A0x\u2028", "x"},
        {"\u0085\u1680\u3000a \u2003b\u202F\u205F\u2029\v", "a \u2003b"},
        {"\u200Bx\uFEFF", "\u200Bx\uFEFF"},
        {"\u180Ex", "\u180Ex"},
        {"x \xA0 ", "x \xA0"},
        {"\x80\x80\x80\x80\x80 ", "\x80\x80\x80\x80\x80"}};
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(trimmed(text), expected) << text;
    }
}

TEST(Text, debugFormEscapesWhatCannotStandBetweenQuotes)
{
    EXPECT_EQ(debugDescription("a\"b\\c'd\n\r\t\0\x1B\x7F"sv), R"("a\"b\\c\'d\n\r\t\0\u{1B}\u{7F}")");
    EXPECT_EQ(debugDescription("Öğrenci"), "\"Öğrenci\"");
    EXPECT_EQ(optionalDescription(OptionalText("203.0.113.7")), "Optional(\"203.0.113.7\")");
    EXPECT_EQ(optionalDescription(OptionalText()), "nil");
}

TEST(PlatformError, isOneLineWithTheObjectFirst)
{
    const auto error = platformError("posix", 2, "/a b", "No such\nfile\r");
    EXPECT_EQ(error.localisedDescription(), "/a b: No such file ");
    EXPECT_EQ(error.description(), "Error Domain=posix Code=2 \"/a b: No such file \"");
    EXPECT_EQ(platformError("json", 1, "", "bad").message, "bad");
}

TEST(Text, responsesAreDecodedByMarkThenCharsetThenUtf8)
{
    const std::tuple<std::string_view, OptionalText, OptionalText> cases[] = {
        {"", {}, ""},
        {"\xEF\xBB\xBF\xC3\x96", "iso-8859-9", "Ö"},
        {"\xEF\xBB\xBF\xEF\xBB\xBF", {}, "\uFEFF"},
        {"\xFE\xFF\0\xD6"sv, {}, "Ö"},
        {"\xFF\xFE\xD6\0"sv, "utf-8", "Ö"},
        {"\xFF\xFE\0\0\xD6\0\0\0"sv, {}, "Ö"},
        {"\0\0\xFE\xFF\0\x01\xF6\0"sv, {}, "\U0001F600"},
        {"\xFE\xFF\xD8\x3D"sv, {}, {}},
        {"\xF0", "ISO-8859-9", "ğ"},
        {"\xF0", {}, {}},
        {"\xC3\x96", "no-such-charset", "Ö"},
        {"\xC3\x96", "", "Ö"},
        {"\xC3\x96", "us-ascii", {}}};
    for (const auto& [bytes, charset, text] : cases) {
        EXPECT_EQ(decodeText(toBytes(bytes), charset), text) << bytes << " " << charset.value_or("none");
    }
}

} // namespace orken
