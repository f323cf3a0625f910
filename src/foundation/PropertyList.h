#pragma once

#include "foundation/Bytes.h"
#include "foundation/Outcome.h"

#include <cstdint>
#include <optional>
#include <string>

namespace orken {

/// What a dictionary has under one key; without an integer when there is nothing, or another value.
struct PropertyListMember {
    std::optional<std::int64_t> integer;
};

/// Looks for `key` in a property list, XML or binary. Absent when its top level is not a dictionary; an error when it
/// is no property list. An integer above the range is read as the negative one of the same bits.
[[nodiscard]] Outcome<std::optional<PropertyListMember>> readPropertyList(const Bytes& bytes, const std::string& key);

/// A dictionary of one integer as an XML property list, version 1.0.
[[nodiscard]] Outcome<Bytes> writePropertyList(const std::string& key, std::int64_t value);

} // namespace orken
