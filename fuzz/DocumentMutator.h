#pragma once

#include "MarkedJson.h"

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace orken::fuzz {

/// Spoils animation documents: as texts, byte by byte, and as JSON, member by member, so that many of them get past the
/// checker. The same seed spoils in the same way.
class DocumentMutator {
public:
    /// Documents to begin with; at least one, and all of them JSON.
    DocumentMutator(const std::vector<std::string>& documents, std::uint64_t seed);

    [[nodiscard]] std::string next();

private:
    using Json = OrderedJson;

    [[nodiscard]] std::size_t below(std::size_t limit) { return static_cast<std::size_t>(random_() % limit); }

    /// Any value in the tree, the root among them.
    [[nodiscard]] Json& anyValue(Json& root);
    /// A structured value that is not empty; the root when chance finds none.
    [[nodiscard]] Json& anyParent(Json& root);
    [[nodiscard]] Json otherType();
    [[nodiscard]] Json extremeNumber();

    void removeMember(Json& root);
    void duplicateMember(Json& root);
    void reorderMembers(Json& root);
    void replaceNumber(Json& root);
    void swapType(Json& root);
    void nest(Json& root);
    void repeatItems(Json& root);
    void graft(Json& root);
    void chainCompositions(Json& root);

    void flipBytes(std::string& text);
    void truncate(std::string& text);
    void moveSlice(std::string& text);

    std::vector<Json> documents_;
    std::mt19937_64 random_;
};

} // namespace orken::fuzz
