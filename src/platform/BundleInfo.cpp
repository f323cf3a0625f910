#include "platform/BundleInfo.h"

namespace orken {

std::optional<std::string> infoText(const BundleInfo& bundle, const std::string& key)
{
    InfoValue value = bundle.infoValue(key);
    if (auto* text = std::get_if<std::string>(&value)) {
        return std::move(*text);
    }
    return std::nullopt;
}

} // namespace orken
