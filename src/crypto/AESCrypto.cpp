#include "crypto/AESCrypto.h"

#include "foundation/Base64.h"
#include "foundation/Cipher.h"
#include "foundation/Text.h"

#include <array>

namespace orken {

namespace {

constexpr std::size_t kKeySize = 32;

bool encodesTo(std::string_view text, std::size_t size)
{
    return text.size() == size && isValidUtf8(text);
}

} // namespace

std::optional<Bytes> AESCrypto::crypt(const Bytes& data, std::string_view key, std::string_view iv,
                                      std::uint32_t operation)
{
    if (!encodesTo(key, kKeySize) || !encodesTo(iv, kAesBlockSize)) {
        return std::nullopt;
    }
    return aesCbc(CipherDirection{operation}, key, iv, asText(data));
}

std::optional<std::string> AESCrypto::encrypt(std::string_view key, std::string_view plainText)
{
    constexpr std::array<char, kAesBlockSize> kZeros{};
    Bytes encrypted;
    if (isValidUtf8(key) && isValidUtf8(plainText)) {
        encrypted = aesCbc(CipherDirection::encrypt, key, {kZeros.data(), kZeros.size()}, plainText).value_or(Bytes());
    }
    return encodeBase64(encrypted);
}

} // namespace orken
