#include "foundation/FileName.h"

#include "foundation/Url.h"

namespace orken {

std::optional<std::string> fileBaseName(std::string_view url)
{
    using namespace std::string_view_literals;
    if (const auto scheme = urlScheme(url)) {
        url.remove_prefix(scheme->size() + 1);
    }
    // Decoded before it is split: an escaped "/" separates as well, and none can be left in the name.
    const std::string path = percentDecoded(url.substr(0, url.find_first_of("#?")));
    std::string_view name = path;
    name = name.substr(0, name.find_last_not_of('/') + 1);
    name = name.substr(name.rfind('/') + 1);
    name = name.substr(0, name.find_first_of("?\0"sv));
    return name.empty() ? std::nullopt : std::optional<std::string>(name);
}

} // namespace orken
