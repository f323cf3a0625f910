#pragma once

#include "provider/Http.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace orken::demo {

/// Text as it may stand in a page's body and in a quoted attribute.
[[nodiscard]] std::string escaped(std::string_view text);

/// A file of demo/pages, which is built into the program; absent when there is none of that name.
[[nodiscard]] std::optional<std::string> pageFile(std::string_view name);

/// A page, each "{{name}}" in it replaced by the value of that name, which is HTML already. The page must exist.
[[nodiscard]] Answer page(std::string_view name, const std::map<std::string, std::string>& values = {});

/// The page for a status that is not a success.
[[nodiscard]] Answer statusPage(unsigned status);

/// A style sheet, script or picture of demo/pages/static, which the browser may keep for ten minutes.
[[nodiscard]] std::optional<Answer> asset(std::string_view name);

} // namespace orken::demo
