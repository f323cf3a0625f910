#pragma once

#include "foundation/Bytes.h"
#include "foundation/Outcome.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace orken {

/// A dictionary's values that are integers; the others are there without one.
using PropertyListDictionary = std::map<std::string, std::optional<std::int64_t>>;

/// Reads a property list, XML or binary. Absent when its top level is no dictionary; an error when it is no property
/// list. An integer above the range is read as the negative one of the same bits.
[[nodiscard]] Outcome<std::optional<PropertyListDictionary>> readPropertyList(const Bytes& bytes);

/// A dictionary of one integer as an XML property list, version 1.0.
[[nodiscard]] Outcome<Bytes> writePropertyList(const std::string& key, std::int64_t value);

} // namespace orken
