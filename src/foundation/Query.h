#pragma once

#include "foundation/Url.h"

#include <optional>
#include <string>
#include <vector>

namespace orken {

/// One `name=value` of a query, decoded; without a value when it has no "=".
struct QueryItem {
    std::string name;
    std::optional<std::string> value;

    bool operator==(const QueryItem&) const = default;
};

/// The query's items in their order, equal names included; absent without a query, no item in an empty one. A "+" is no
/// blank. What decodes to no UTF-8 stays encoded.
[[nodiscard]] std::optional<std::vector<QueryItem>> queryItems(const UrlComponents& components);

/// `[name=value, nameOfOneWithoutValue]`, nothing quoted.
[[nodiscard]] std::string description(const std::vector<QueryItem>& items);

} // namespace orken
