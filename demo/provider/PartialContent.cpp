#include "provider/PartialContent.h"

#include "provider/Number.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace orken::demo {

namespace {

/// Positions of bytes: from the first up to the one after the last.
struct Span {
    std::size_t begin;
    std::size_t end;
};

/// "bytes=2-5", "bytes=2-" or "bytes=-5"; absent for anything else. A span that begins at `size` or later is empty.
std::optional<Span> spanOf(std::string_view header, std::size_t size)
{
    constexpr std::string_view kUnit = "bytes=";
    constexpr auto kMost = std::numeric_limits<std::uint64_t>::max() - 1;
    const auto dash = header.find('-');
    if (!header.starts_with(kUnit) || dash == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view from = header.substr(kUnit.size(), dash - kUnit.size());
    const std::string_view to = header.substr(dash + 1);
    const auto first = wholeNumber(from, kMost);
    const auto last = wholeNumber(to, kMost);
    if (from.empty() && last) {
        return Span{size - std::min<std::size_t>(*last, size), size};
    }
    if (!first || !(last || to.empty()) || (last && *last < *first)) {
        return std::nullopt;
    }
    return Span{std::min<std::size_t>(*first, size), last ? std::min<std::size_t>(*last + 1, size) : size};
}

} // namespace

Answer partOf(Answer whole, const Request& request)
{
    if (request.method != "GET" || whole.status != 200 || whole.ending == Ending::never) {
        return whole;
    }
    const auto header = request.headers.find("range");
    const auto span = header == request.headers.end() ? std::nullopt : spanOf(header->second, whole.body.size());
    if (!span) {
        whole.headers.emplace_back("Accept-Ranges", "bytes");
        return whole;
    }
    const std::string size = std::to_string(whole.body.size());
    if (span->begin == span->end) {
        return {.status = 416, .headers = {{"Content-Range", "bytes */" + size}}};
    }
    whole.status = 206;
    whole.headers.emplace_back("Content-Range", "bytes " + std::to_string(span->begin) + '-' +
                                                    std::to_string(span->end - 1) + '/' + size);
    whole.body = whole.body.substr(span->begin, span->end - span->begin);
    return whole;
}

} // namespace orken::demo
