#include "../Target.h"

#include "crypto/AESCrypto.h"
#include "foundation/Base64.h"
#include "foundation/Cipher.h"
#include "foundation/Text.h"

// The cipher and its keys: one line of key, one of initialisation vector, then the data.

namespace orken::fuzz {

void run(std::string_view input)
{
    const std::string_view key = takeLine(input);
    const std::string_view vector = takeLine(input);
    const Bytes data = toBytes(input);
    const bool isUsable = key.size() == 32 && vector.size() == kAesBlockSize && isValidUtf8(key) && isValidUtf8(vector);

    const auto encrypted = AESCrypto::crypt(data, key, vector, kCCEncrypt);
    demand(encrypted.has_value() == isUsable, "a usable key encrypts everything, another one nothing");
    if (encrypted) {
        demand(encrypted->size() == (data.size() / kAesBlockSize + 1) * kAesBlockSize, "padding fills the last block");
        demand(AESCrypto::crypt(*encrypted, key, vector, kCCDecrypt) == data, "what was encrypted can be decrypted");
    }
    const auto decrypted = AESCrypto::crypt(data, key, vector, kCCDecrypt);
    if (decrypted) {
        demand(isUsable && data.size() % kAesBlockSize == 0, "only whole blocks are decrypted");
        demand(decrypted->size() < data.size(), "padding is taken off");
        demand(AESCrypto::crypt(*decrypted, key, vector, kCCEncrypt) == data, "and put back");
    }
    demand(!AESCrypto::crypt(data, key, vector, 2), "there are two directions");

    const auto text = AESCrypto::encrypt(key, input);
    const bool hasKeyLength = key.size() == 16 || key.size() == 24 || key.size() == 32;
    const bool isText = isValidUtf8(key) && isValidUtf8(input);
    demand(text && text->empty() != (hasKeyLength && isText), "a text is encrypted under the keys that the cipher has");
    demand(decodeBase64(*text).has_value(), "and is base64");
}

} // namespace orken::fuzz
