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

TEST(Base64, decodingIsStrict)
{
    EXPECT_EQ(textOf(decodeBase64("")), "");
    EXPECT_EQ(textOf(decodeBase64("QUJDQR==")), "ABCA") << "spare bits";
    EXPECT_EQ(textOf(decodeBase64("//+/AAAA")), "\xFF\xFF\xBF\0\0\0"sv);
    for (const auto text : {"Q", "QQ", "QQ= =", "QQ==\n", "Q===", "====", "=QQQ", "Q=Q=", "QQ=Q", "QQ==QQ==", "-_==",
                            "QUI=QUJD", "QUJ ", "QUJD\r\n", "QUJDQUJ.", "QU.D", "QUJ\xC3QUJD", "QUJD===="}) {
        EXPECT_EQ(decodeBase64(text), std::nullopt) << text;
    }
}

TEST(Base64, everyByteInEveryPlaceComesBack)
{
    Bytes bytes;
    for (unsigned i = 0; i < 3 * 256 + 2; ++i) {
        EXPECT_EQ(decodeBase64(encodeBase64(bytes)), bytes) << i;
        bytes.push_back(static_cast<std::uint8_t>(i * 7 + i / 256));
    }
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
