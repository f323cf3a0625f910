#include "foundation/PropertyList.h"

#include <plist/plist.h>

#include <cstdlib>
#include <limits>
#include <memory>
#include <type_traits>

namespace orken {

namespace {

struct NodeFree {
    void operator()(void* node) const { plist_free(node); }
};

using Node = std::unique_ptr<std::remove_pointer_t<plist_t>, NodeFree>;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

PlatformError listError(std::string_view reason)
{
    // The library gives no codes.
    return platformError("plist", 1, "", reason);
}

std::optional<std::int64_t> integerOf(plist_t node)
{
    if (plist_get_node_type(node) != PLIST_UINT) {
        return std::nullopt;
    }
    std::uint64_t value = 0;
    plist_get_uint_val(node, &value);
    return static_cast<std::int64_t>(value);
}

} // namespace

Outcome<std::optional<PropertyListMember>> readPropertyList(const Bytes& bytes, const std::string& key)
{
    plist_t parsed = nullptr;
    if (!bytes.empty() && bytes.size() <= std::numeric_limits<std::uint32_t>::max()) {
        plist_from_memory(reinterpret_cast<const char*>(bytes.data()), static_cast<std::uint32_t>(bytes.size()),
                          &parsed);
    }
    const Node root(parsed);
    if (!root) {
        return listError("not a property list");
    }
    if (plist_get_node_type(root.get()) != PLIST_DICT) {
        return std::optional<PropertyListMember>();
    }
    // Asked for by its name: to be told the names, the library demands that none holds a NUL, and aborts.
    return std::optional(PropertyListMember{.integer = integerOf(plist_dict_get_item(root.get(), key.c_str()))});
}

Outcome<Bytes> writePropertyList(const std::string& key, std::int64_t value)
{
    const Node root(plist_new_dict());
    plist_dict_set_item(root.get(), key.c_str(), plist_new_uint(static_cast<std::uint64_t>(value)));
    char* text = nullptr;
    std::uint32_t size = 0;
    plist_to_xml(root.get(), &text, &size);
    const std::unique_ptr<char, Free> owned(text);
    if (!text) {
        return listError("the property list could not be written");
    }
    return toBytes({text, size});
}

} // namespace orken
