#include "foundation/Base64.h"
#include "foundation/DataUrl.h"

#include <gtest/gtest.h>

namespace orken {
namespace {

using namespace std::string_view_literals;

std::optional<std::string> textOf(const std::optional<Bytes>& bytes)
{
    return bytes ? std::optional<std::string>(asText(*bytes)) : std::nullopt;
}

// What is decoded and what is refused, byte for byte, the fuzz target's corpus says.
TEST(Base64, isWrittenInOneLineWithPadding)
{
    EXPECT_EQ(encodeBase64("ABCA"), "QUJDQQ==");
    EXPECT_EQ(encodeBase64("AB\xFF"), "QUL/");
    EXPECT_EQ(encodeBase64(std::string(58, 'a')).find('\n'), std::string::npos);
}

TEST(DataUrl, carriesItsBytesInBase64OrEscaped)
{
    const std::pair<std::string_view, std::optional<std::string>> cases[] = {
        {"data:application/pdf;base64,JVBERi0=", "%PDF-"},
        {"DATA:;BASE64,QQ==", "A"},
        {"data:;base64,QQ%3D%3D", "A"},
        {"data:,a%20b%00,c"sv, std::string("a b\0,c"sv)},
        {"data:text/plain;charset=x,QQ==#f", "QQ=="},
        {"data:text/plain;base64;x=y,QQ==", "QQ=="},
        {"data:base64,QQ==", "QQ=="},
        {"data:;base64,QQ=", {}},
        {"data:;base64", {}},
        {"file:///etc/passwd,", {}},
        {"metadata:,x", {}}};
    for (const auto& [url, data] : cases) {
        EXPECT_EQ(textOf(readDataUrl(url)), data) << url;
    }
}

} // namespace
} // namespace orken
