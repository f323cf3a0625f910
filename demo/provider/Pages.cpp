#include "provider/Pages.h"

#include <gio/gio.h>

#include <cassert>
#include <cstddef>

/// The files of demo/pages, as glib-compile-resources has put them into this program.
extern "C" GResource* orken_demo_get_resource(void);

namespace orken::demo {

namespace {

std::string_view contentType(std::string_view name)
{
    static const std::map<std::string_view, std::string_view> kTypes = {
        {"css", "text/css; charset=utf-8"},
        {"js", "text/javascript; charset=utf-8"},
        {"svg", "image/svg+xml"},
        {"webm", "video/webm"},
    };
    const auto type = kTypes.find(name.substr(name.rfind('.') + 1));
    return type == kTypes.end() ? "application/octet-stream" : type->second;
}

std::string_view wordsFor(unsigned status)
{
    static const std::map<unsigned, std::string_view> kWords = {
        {400, "İstek anlaşılamadı."},        {404, "Aradığınız sayfa bulunamadı."}, {405, "Bu sayfa böyle istenemez."},
        {413, "Gönderilen bilgi çok uzun."}, {500, "Sunucuda bir hata oluştu."},
    };
    const auto words = kWords.find(status);
    return words == kWords.end() ? "Sayfa gösterilemiyor." : words->second;
}

/// With every "{{name}}" replaced in one pass, so that a value which holds a marker itself is shown as it is.
std::string filled(std::string_view text, const std::map<std::string, std::string>& values)
{
    std::string result;
    for (auto open = text.find("{{"); open != std::string_view::npos; open = text.find("{{")) {
        const auto close = text.find("}}", open);
        assert(close != std::string_view::npos);
        result += text.substr(0, open);
        result += values.at(std::string(text.substr(open + 2, close - open - 2)));
        text.remove_prefix(close + 2);
    }
    result += text;
    return result;
}

} // namespace

std::string escaped(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        case '\'':
            result += "&#39;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

std::optional<std::string> pageFile(std::string_view name)
{
    const std::string path = "/orken/demo/" + std::string(name);
    GBytes* bytes =
        g_resource_lookup_data(orken_demo_get_resource(), path.c_str(), G_RESOURCE_LOOKUP_FLAGS_NONE, nullptr);
    if (!bytes) {
        return std::nullopt;
    }
    gsize size = 0;
    const auto* data = static_cast<const char*>(g_bytes_get_data(bytes, &size));
    std::string text(data, size);
    g_bytes_unref(bytes);
    return text;
}

Answer page(std::string_view name, const std::map<std::string, std::string>& values)
{
    const auto file = pageFile(name);
    const auto layout = pageFile("layout.html");
    assert(file && layout);
    // What stands before the main element belongs into the head.
    const std::size_t main = file->find("<main");
    assert(main != std::string::npos);
    std::map<std::string, std::string> parts = {{"head", filled(file->substr(0, main), values)},
                                                {"content", filled(file->substr(main), values)}};
    const auto ownName = values.find("page");
    parts["page"] = ownName == values.end() ? name.substr(0, name.find('.')) : ownName->second;
    return {.contentType = "text/html; charset=utf-8",
            .body = filled(*layout, parts),
            .headers = {{"Cache-Control", "no-cache"}}};
}

Answer statusPage(unsigned status)
{
    const std::string number = std::to_string(status);
    Answer answer = page("status.html",
                         {{"page", "status-" + number}, {"status", number}, {"text", std::string(wordsFor(status))}});
    answer.status = status;
    return answer;
}

std::optional<Answer> asset(std::string_view name)
{
    auto file = pageFile("static/" + std::string(name));
    if (!file) {
        return std::nullopt;
    }
    return Answer{.contentType = std::string(contentType(name)),
                  .body = std::move(*file),
                  .headers = {{"Cache-Control", "max-age=600"}}};
}

} // namespace orken::demo
