#include "foundation/Url.h"
#include "foundation/FileName.h"
#include "foundation/Query.h"

#include <gtest/gtest.h>

namespace orken {

using namespace std::string_view_literals;
using OptionalText = std::optional<std::string>;

TEST(Url, splitsIntoComponentsWithoutDecoding)
{
    const std::pair<std::string_view, UrlComponents> cases[] = {
        {"A+-.1:", {.scheme = "A+-.1"}},
        {"https://h//accounts/login?param=U&xppKey=K",
         {.scheme = "https", .host = "h", .path = "//accounts/login", .query = "param=U&xppKey=K"}},
        {"file:///x", {.scheme = "file", .host = "", .path = "/x"}},
        {"blob:https://h/uuid", {.scheme = "blob", .path = "https://h/uuid"}},
        {"HTTP://u:p@H:65535?", {.scheme = "HTTP", .user = "u:p", .host = "H", .port = 65535, .query = ""}},
        {"http://[::1]:9/a#", {.scheme = "http", .host = "[::1]", .port = 9, .path = "/a", .fragment = ""}},
        {"http://h:/:80?a/b?@c#d?e",
         {.scheme = "http", .host = "h", .path = "/:80", .query = "a/b?@c", .fragment = "d?e"}},
        {"http://%C3%B6%2F/%2F..%2Fx%3F%E9", {.scheme = "http", .host = "%C3%B6%2F", .path = "/%2F..%2Fx%3F%E9"}},
        {"https://h/p?x=|{}^[]\\`", {.scheme = "https", .host = "h", .path = "/p", .query = "x=|{}^[]\\`"}}};
    for (const auto& [text, parts] : cases) {
        EXPECT_EQ(parseUrl(text), parts) << text;
    }
}

TEST(Url, refusesWhatIsNoAbsoluteAddress)
{
    for (const auto text : {"", "x", "//h/p", ":x", "1a:b", " a:b", "a:b c", "a:b\n", "a:\x7F", "a:é", "a:\"", "a:<b",
                            "a:>", "a:%", "a:%4", "a:%4g", "a:b#c#d"}) {
        EXPECT_FALSE(parseUrl(text)) << text;
    }
    for (const auto authority :
         {"h:8a", "h:-1", "h:+8", "h:65536", "[::1", "[::1]x", "h]", "h[", "a{b", "h\\x", "a@b@c", "a^:b@c"}) {
        EXPECT_FALSE(parseUrl(std::string("http://") + authority + "/p")) << authority;
    }
    EXPECT_FALSE(parseUrl("a:\0"sv));
    EXPECT_FALSE(parseUrl("a:%41"sv.substr(0, 4))) << "an escape that the text cuts off";
}

TEST(Url, decodingKeepsTheEncodedTextWhereTheBytesAreNoUtf8)
{
    EXPECT_EQ(percentDecoded("%C3%96+%2f%41%25"), "Ö+/A%");
    EXPECT_EQ(percentDecoded("a%20b%E9"), "a%20b%E9");
    EXPECT_EQ(percentDecodedBytes("%E9%00%%4%zz"), "\xE9\0%%4%zz"sv);
}

TEST(Query, splitsBeforeItDecodes)
{
    const std::tuple<std::string_view, std::vector<QueryItem>, std::string_view> cases[] = {
        {"", {}, "[]"},
        {"a&b=&=c", {{"a", {}}, {"b", ""}, {"", "c"}}, "[a, b=, =c]"},
        {"&&", {{"", {}}, {"", {}}, {"", {}}}, "[, , ]"},
        {"hash=B6xUEGCyo/eXAqNDLYnlZw==&x",
         {{"hash", "B6xUEGCyo/eXAqNDLYnlZw=="}, {"x", {}}},
         "[hash=B6xUEGCyo/eXAqNDLYnlZw==, x]"},
        {"hash=%2BKzf%3D&a+b=c+d", {{"hash", "+Kzf="}, {"a+b", "c+d"}}, "[hash=+Kzf=, a+b=c+d]"},
        {"hash=a%26b&hash=2", {{"hash", "a&b"}, {"hash", "2"}}, "[hash=a&b, hash=2]"},
        {"%68=%E9%41&%C3%96%3D=", {{"h", "%E9%41"}, {"Ö=", ""}}, "[h=%E9%41, Ö==]"}};
    for (const auto& [query, items, described] : cases) {
        EXPECT_EQ(queryItems({.scheme = "https", .query = std::string(query)}), items) << query;
        EXPECT_EQ(description(items), described);
    }
    EXPECT_EQ(queryItems({.scheme = "https"}), std::nullopt);
}

TEST(FileName, isTheLastComponent)
{
    const std::pair<std::string_view, OptionalText> cases[] = {
        {"blob:https://h/rapor.pdf%3Fv=2", "rapor.pdf"},
        {"blob:https://h/%3Fx", {}},
        {"blob:https://h/uuid/#f", "uuid"},
        {"blob:https://h/..%2F..%2Fx", "x"},
        {"blob:https://h/..%2F%2e%2E%2F", ".."},
        {"blob:https://h/%2Fetc%2Fpasswd%00.pdf", "passwd"},
        {"blob:https://h/%E9%2F..%2Fx", "%E9%2F..%2Fx"},
        {"blob:https://h/\"ders notu\"%C3%96.pdf", "\"ders notu\"Ö.pdf"},
        {"blob:///#x", {}}};
    for (const auto& [url, name] : cases) {
        EXPECT_EQ(fileBaseName(url), name) << url;
    }
}

} // namespace orken
