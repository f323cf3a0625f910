#pragma once

#include "foundation/Bytes.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace orken {

/// Values as the callers of the client's cipher write them.
enum class CipherDirection : std::uint32_t { encrypt = 0, decrypt = 1 };

inline constexpr std::size_t kAesBlockSize = 16;

/// AES (FIPS 197) in CBC mode with PKCS#7 padding (RFC 5652, section 6.3), the whole input in one call. The key's
/// length chooses between AES-128, AES-192 and AES-256; the initialisation vector is one block.
///
/// Absent on every failure: a key or vector of any other length, a direction that is neither of the two,
/// encrypted input that is not a whole number of blocks or whose padding does not check out. Any thread.
[[nodiscard]] std::optional<Bytes> aesCbc(CipherDirection direction, std::string_view key,
                                          std::string_view initialisationVector, std::string_view input);

} // namespace orken
