#include "../Target.h"

#include "foundation/Query.h"
#include "foundation/Text.h"
#include "foundation/Url.h"

#include <algorithm>
#include <string>

// Addresses as the page, the engine and the configuration give them.

namespace orken::fuzz {

namespace {

std::string written(const UrlComponents& url)
{
    std::string text = url.scheme + ":";
    if (url.host) {
        text += "//" + (url.user ? *url.user + "@" : "") + *url.host;
        text += url.port ? ":" + std::to_string(*url.port) : "";
    }
    text += url.path;
    text += url.query ? "?" + *url.query : "";
    return text + (url.fragment ? "#" + *url.fragment : "");
}

void checkComponents(std::string_view input, const UrlComponents& url)
{
    demand(std::all_of(input.begin(), input.end(), [](char c) { return c > ' ' && c <= '~'; }),
           "an address is plain text");
    demand(urlScheme(input) == url.scheme, "the scheme is found alone as well");
    demand(!url.port || (url.port >= 0 && url.port <= 65535), "a port is one");
    demand(!url.host || url.host->find_first_of("/?#@") == std::string::npos, "a host ends where it ends");
    demand(url.path.find_first_of("?#") == std::string::npos, "a path ends where it ends");
    demand(written(url).size() <= input.size(), "no part is made up");
    demand(parseUrl(written(url)) == url, "what is put together falls apart in the same way");
}

void checkQuery(const UrlComponents& url)
{
    const auto items = queryItems(url);
    demand(items.has_value() == url.query.has_value(), "a query has items");
    if (!items || url.query->empty()) {
        demand(!items || items->empty(), "an empty query has none");
        return;
    }
    const auto separators = std::count(url.query->begin(), url.query->end(), '&');
    demand(items->size() == static_cast<std::size_t>(separators) + 1, "no item is lost");
    for (const QueryItem& item : *items) {
        demand(isValidUtf8(item.name) && isValidUtf8(item.value.value_or("")), "names and values are UTF-8");
    }
    demand(isValidUtf8(description(*items)), "and so is their description");
}

} // namespace

void run(std::string_view input)
{
    const auto url = parseUrl(input);
    demand(isUrl(input) == url.has_value(), "both ways to ask agree");
    const std::string bytes = percentDecodedBytes(input);
    demand(bytes.size() <= input.size(), "decoding makes nothing longer");
    demand(percentDecoded(input) == (isValidUtf8(bytes) ? bytes : input), "only UTF-8 is decoded");
    if (url) {
        checkComponents(input, *url);
        checkQuery(*url);
    }
}

} // namespace orken::fuzz
