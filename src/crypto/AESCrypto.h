#pragma once

#include "foundation/Bytes.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orken {

inline constexpr std::uint32_t kCCEncrypt = 0;
inline constexpr std::uint32_t kCCDecrypt = 1;

/// What passes encrypted between the client and the provider: AES in CBC mode with PKCS#7 padding. Nothing is kept,
/// printed or cached; any thread.
class AESCrypto {
public:
    AESCrypto() = delete;

    /// With a key of exactly 32 and an initialisation vector of exactly 16 UTF-8 bytes. Absent on any failure; the key
    /// is looked at before the vector. `operation` is `kCCEncrypt` or `kCCDecrypt`.
    [[nodiscard]] static std::optional<Bytes> crypt(const Bytes& data, std::string_view key, std::string_view iv,
                                                    std::uint32_t operation);

    /// Encrypts under all bytes of `key` with a vector of 16 zero bytes; base64. A text in every case: the empty one
    /// when the cipher fails, as it does for a key whose length AES does not have.
    [[nodiscard]] static std::optional<std::string> encrypt(std::string_view key, std::string_view plainText);
};

} // namespace orken
