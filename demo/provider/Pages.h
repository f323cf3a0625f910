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

/// A page: layout.html around the page's own file, which has its main element and, before it, what it adds to the head.
/// Each "{{name}}" in the file is replaced by the value of that name, which is HTML already. The page calls itself as
/// its file is called, or by the value "page". The file must exist.
[[nodiscard]] Answer page(std::string_view name, const std::map<std::string, std::string>& values = {});

/// The page for a status that is not a success.
[[nodiscard]] Answer statusPage(unsigned status);

/// A style sheet, script, picture or recording of demo/pages/static, which the browser may keep for ten minutes.
[[nodiscard]] std::optional<Answer> asset(std::string_view name);

} // namespace orken::demo
