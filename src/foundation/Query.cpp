#include "foundation/Query.h"

#include <string_view>

namespace orken {

namespace {

QueryItem readItem(std::string_view text)
{
    const std::size_t equals = text.find('=');
    QueryItem item{.name = percentDecoded(text.substr(0, equals)), .value = std::nullopt};
    if (equals != std::string_view::npos) {
        item.value = percentDecoded(text.substr(equals + 1));
    }
    return item;
}

} // namespace

std::optional<std::vector<QueryItem>> queryItems(const UrlComponents& components)
{
    if (!components.query) {
        return std::nullopt;
    }
    std::vector<QueryItem> items;
    if (components.query->empty()) {
        return items;
    }
    // Split before decoding: an encoded "&" or "=" belongs to its name or value.
    std::string_view rest = *components.query;
    for (;;) {
        const std::size_t separator = rest.find('&');
        items.push_back(readItem(rest.substr(0, separator)));
        if (separator == std::string_view::npos) {
            return items;
        }
        rest.remove_prefix(separator + 1);
    }
}

std::string description(const std::vector<QueryItem>& items)
{
    std::string result = "[";
    for (const QueryItem& item : items) {
        result += (&item == &items.front() ? "" : ", ") + item.name;
        if (item.value) {
            result += "=" + *item.value;
        }
    }
    return result + "]";
}

} // namespace orken
