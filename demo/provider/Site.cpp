#include "provider/Site.h"

#include "provider/Animations.h"
#include "provider/DeviceField.h"
#include "provider/Number.h"
#include "provider/Pages.h"
#include "provider/Pdf.h"
#include "provider/WholeFile.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace orken::demo {

namespace {

constexpr std::string_view kJson = ".json";

Answer notAllowed(const char* allowed)
{
    Answer answer = statusPage(405);
    answer.headers.emplace_back("Allow", allowed);
    return answer;
}

Answer login(const Request& request)
{
    Answer answer = page("login.html");
    // Something for the client to leave behind, and to clear, even when nobody signs in.
    if (!request.cookie("visited")) {
        answer.headers.emplace_back("Set-Cookie", "visited=1; Max-Age=86400; Path=/; Secure; SameSite=Lax");
    }
    return answer;
}

Answer video(std::string_view number)
{
    constexpr unsigned kLessons = 5;
    return wholeNumber(number, kLessons).value_or(0) > 0 ? page("video.html", {{"number", std::string(number)}})
                                                         : statusPage(404);
}

Answer pdf(const Request& request)
{
    const auto size = wholeNumber(request.parameter("size").value_or("40000"), kLargestPdf);
    if (!size) {
        return statusPage(400);
    }
    return {.contentType = "application/pdf", .body = makePdf(*size), .headers = {{"Cache-Control", "no-store"}}};
}

Answer diskImage(const Request&)
{
    return {.contentType = "application/octet-stream",
            .body = std::string(64 * 1024, 'o'),
            .headers = {{"Content-Disposition", "attachment; filename=\"orkenv1.dmg\""}}};
}

Answer slow(const Request& request)
{
    const std::string text = request.parameter("seconds").value_or("");
    const auto delay = seconds(text);
    if (!delay) {
        return statusPage(400);
    }
    Answer answer = page("slow.html", {{"seconds", escaped(text)}});
    answer.delay = *delay;
    return answer;
}

Answer never(const Request&)
{
    Answer answer = page("never.html");
    answer.ending = Ending::never;
    return answer;
}

/// A page whose script tells what it has seen: the request itself, in the log, is the message.
Answer report(const Request&)
{
    return {.status = 204, .headers = {{"Cache-Control", "no-store"}}};
}

Answer param(const Request& request)
{
    return {.contentType = "text/plain; charset=utf-8",
            .body = deviceFieldText(request.parameter("value").value_or("")),
            .headers = {{"Cache-Control", "no-store"}}};
}

std::string tableRows(const Fields& fields)
{
    std::string rows;
    for (const auto& [name, value] : fields) {
        rows += "      <tr><th>" + escaped(name) + "</th><td>" + (name == "password" ? "••••••" : escaped(value)) +
                "</td></tr>\n";
        if (name == "param") {
            rows += "      <tr><th>Cihaz bilgisi</th><td>" + escaped(deviceFieldText(value)) + "</td></tr>\n";
        }
    }
    return rows;
}

/// Whoever fills in the form is let in.
Answer signIn(const Request& request)
{
    const auto fields = parseFields(request.body);
    if (!fields) {
        return statusPage(400);
    }
    Answer answer = page("session.html", {{"fields", tableRows(*fields)}});
    answer.headers.emplace_back("Set-Cookie", "session=1; Max-Age=86400; Path=/; Secure; HttpOnly; SameSite=Lax");
    return answer;
}

/// What follows `prefix` in the path; absent when the path begins otherwise.
std::optional<std::string_view> after(std::string_view prefix, std::string_view path)
{
    return path.starts_with(prefix) ? std::optional(path.substr(prefix.size())) : std::nullopt;
}

} // namespace

Site::Site(Options options) : options_(std::move(options))
{
    const auto fixedPage = [](const char* name) { return [name](const Request&) { return page(name); }; };
    const auto toFirstPage = [this](const Request&) {
        return Answer{.status = 302, .headers = {{"Location", options_.firstPage}, {"Cache-Control", "no-store"}}};
    };
    pages_ = {
        {"/", fixedPage("main.html")},
        {"//accounts/login", toFirstPage},
        {"/accounts/login", toFirstPage},
        {"/accounts/Login", login},
        {"/course", fixedPage("course.html")},
        {"/documents", fixedPage("documents.html")},
        {"/documents/ornek.pdf", pdf},
        {"/settings/xpp.json", [this](const Request&) { return settings(); }},
        {"/program/mac/orkenv1.dmg", diskImage},
        {"/animation.json", [](const Request&) { return animation(kGoodAnimation).value(); }},
        {"/a/4f99977e-1178-11ee-ba11-6f7eb2c6e070/BYMbhjCcMQ.json",
         [this](const Request&) { return animation(options_.animation).value(); }},
        {"/slow", slow},
        {"/never", never},
        {"/tries", fixedPage("tries.html")},
        {"/untitled", fixedPage("untitled.html")},
        {"/status/500", [](const Request&) { return statusPage(500); }},
        {"/keys", fixedPage("keys.html")},
        {"/demo/finished", report},
        {"/demo/param", param},
        {"/demo/seen", report},
    };
}

Answer Site::answer(const Request& request)
{
    if (request.path == "/accounts/session") {
        return request.method == "POST" ? signIn(request) : notAllowed("POST");
    }
    if (request.method != "GET" && request.method != "HEAD") {
        return notAllowed("GET, HEAD");
    }
    if (const auto page = pages_.find(request.path); page != pages_.end()) {
        return page->second(request);
    }
    if (const auto number = after("/course/video/playlist/", request.path)) {
        return video(*number);
    }
    if (const auto file = after("/animation/bad/", request.path); file && file->ends_with(kJson)) {
        return animation(file->substr(0, file->size() - kJson.size())).value_or(statusPage(404));
    }
    if (const auto name = after("/static/", request.path)) {
        return asset(*name).value_or(statusPage(404));
    }
    return statusPage(404);
}

Answer Site::settings() const
{
    Answer answer{.contentType = "application/json", .headers = {{"Cache-Control", "no-store"}}};
    if (!options_.settingsFile) {
        answer.body = nlohmann::json{{"macVersion", options_.requiredVersion}}.dump(
            -1, ' ', false, nlohmann::json::error_handler_t::replace);
    } else if (auto bytes = readWholeFile(*options_.settingsFile)) {
        answer.body = std::move(*bytes);
    } else {
        return statusPage(500);
    }
    return answer;
}

} // namespace orken::demo
