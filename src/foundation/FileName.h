#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace orken {

/// The name that a download gets from its address: the last component of the decoded path, up to a "?" or NUL that was
/// escaped. Holds no "/", so it names an entry of the folder that it is joined with, whatever the page wrote; it may be
/// "." or "..". Absent when nothing is left. The address may hold characters that make `parseUrl` refuse it.
[[nodiscard]] std::optional<std::string> fileBaseName(std::string_view url);

} // namespace orken
