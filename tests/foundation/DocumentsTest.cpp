#include "foundation/Base64.h"
#include "foundation/Json.h"
#include "foundation/PropertyList.h"
#include "foundation/Text.h"

#include <gtest/gtest.h>

namespace orken {

TEST(Json, onlyATopLevelTextIsGiven)
{
    const std::pair<std::string, std::string> good[] = {
        {R"({"macVersion": "1.4", "other": true})", "1.4"},
        {"\xEF\xBB\xBF \n{\"macVersion\":\"\\u00D6\\ud83d\\ude00\\n\\u0000\"}\t", std::string("Ö😀\n\0", 8)},
    };
    for (const auto& [document, text] : good) {
        const auto read = jsonTextMember(document, "macVersion");
        ASSERT_TRUE(read) << document;
        EXPECT_EQ(read.value(), text);
    }
    const std::string deep(100000, '[');
    for (const std::string& document :
         {std::string(), std::string("  "), std::string("<html>"), std::string(R"({"macVersion": 14})"),
          std::string(R"({"macVersion": null})"), std::string(R"(["macVersion"])"), std::string(R"("macVersion")"),
          std::string(R"({"a": {"macVersion": "1"}})"), std::string(R"({"macVersion": "1"} x)"),
          std::string(R"({"macVersion": "1",})"), std::string(R"({"macVersion": "\ud800"})"),
          std::string("{\"macVersion\": \"\xFF\"}"), std::string("{\"macVersion\": \"a\nb\"}"),
          std::string(R"({/**/"macVersion": "1"})"), std::string(R"({"a": 1e400, "macVersion": "1"})"), "\"" + deep,
          deep}) {
        const auto read = jsonTextMember(document, "macVersion");
        ASSERT_FALSE(read) << document;
        EXPECT_FALSE(read.error().message.empty());
        EXPECT_LE(read.error().message.size(), 200U);
        EXPECT_TRUE(isValidUtf8(read.error().message) && read.error().message.find('\n') == std::string::npos);
    }
}

constexpr const char* kZero = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                              "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                              "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                              "<plist version=\"1.0\">\n"
                              "<dict>\n"
                              "\t<key>restoreCount</key>\n"
                              "\t<integer>0</integer>\n"
                              "</dict>\n"
                              "</plist>\n";

TEST(PropertyList, isWrittenToTheByte)
{
    EXPECT_EQ(asText(writePropertyList("restoreCount", 0).value()), kZero);
    for (const std::int64_t value : {std::int64_t{0}, std::int64_t{-1}, INT64_MAX, INT64_MIN}) {
        EXPECT_EQ(readPropertyList(writePropertyList("n", value).value(), "n").value()->integer, value);
    }
}

TEST(PropertyList, onlyAnIntegerHasANumber)
{
    const auto read = [](const std::string& content, const std::string& key) {
        return readPropertyList(toBytes("<plist version=\"1.0\">" + content + "</plist>"), key);
    };
    for (const char* key : {"a", "b", "c", "d", "e", "f"}) {
        const auto member = read("<dict><key>a</key><string>4</string><key>b</key><real>4.0</real><key>c</key><true/>"
                                 "<key>d</key><integer> 4 </integer><key>e</key><array/></dict>",
                                 key);
        ASSERT_TRUE(member && member.value()) << key;
        EXPECT_EQ(member.value()->integer, *key == 'd' ? std::optional<std::int64_t>(4) : std::nullopt) << key;
    }
    EXPECT_FALSE(read("<array/>", "d").value());
    EXPECT_TRUE(read("<dict/>", "d").value());

    // {"restoreCount": 4} in the binary form.
    const Bytes binary =
        decodeBase64("YnBsaXN0MDDRAQJccmVzdG9yZUNvdW50EAQICxgAAAAAAAABAQAAAAAAAAADAAAAAAAAAAAAAAAAAAAAGg==").value();
    EXPECT_EQ(readPropertyList(binary, "restoreCount").value()->integer, 4);
    for (std::size_t length = 0; length < binary.size(); ++length) {
        (void)readPropertyList(Bytes(binary.begin(), binary.begin() + static_cast<std::ptrdiff_t>(length)), "n");
    }
    for (const char* bad : {"", "{a=1;}", "{\"a\":1}", "word", "<plist", "bplist00"}) {
        EXPECT_FALSE(readPropertyList(toBytes(bad), "a")) << bad;
    }
}

} // namespace orken
