#include "animation/LayerCount.h"

#include "animation/DocumentReader.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>

namespace orken {

namespace {

using Json = nlohmann::json;

constexpr int kMostLayers = 2000;

/// Layers of a composition with those of the compositions that it shows, each as often as it is shown.
class LayerCount {
public:
    explicit LayerCount(const Json& root)
    {
        if (const Json* assets = member(root, "assets"); assets && assets->is_array()) {
            for (const Json& asset : *assets) {
                if (const Json* id = member(asset, "id"); id && id->is_string()) {
                    compositions_[id->get<std::string>()] = {.layers = member(asset, "layers")};
                }
            }
        }
        total_ = count(member(root, "layers"));
        for (auto& [id, composition] : compositions_) {
            (void)countOnce(composition);
        }
    }

    /// Absent when compositions show one another in a ring.
    [[nodiscard]] std::optional<int> total() const { return isEndless_ ? std::nullopt : std::optional(total_); }

private:
    struct Composition {
        const Json* layers = nullptr;
        bool isOpen = false;
        std::optional<int> count;
    };

    int countOnce(Composition& composition)
    {
        if (composition.isOpen) {
            isEndless_ = true;
        } else if (!composition.count) {
            composition.isOpen = true;
            composition.count = count(composition.layers);
            composition.isOpen = false;
        }
        return composition.count.value_or(0);
    }

    int count(const Json* layers)
    {
        int sum = 0;
        if (!layers || !layers->is_array()) {
            return sum;
        }
        for (const Json& layer : *layers) {
            const Json* reference = member(layer, "refId");
            const auto shown = reference && reference->is_string()
                                   ? compositions_.find(reference->get_ref<const std::string&>())
                                   : compositions_.end();
            sum += 1 + (shown != compositions_.end() ? countOnce(shown->second) : 0);
            sum = std::min(sum, kMostLayers + 1);
        }
        return sum;
    }

    std::map<std::string, Composition> compositions_;
    bool isEndless_ = false;
    int total_ = 0;
};

} // namespace

bool hasUsableLayerCount(const nlohmann::json& document)
{
    const auto total = LayerCount(document).total();
    return total && *total <= kMostLayers;
}

} // namespace orken
