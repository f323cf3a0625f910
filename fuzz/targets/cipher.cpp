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

    const auto enciphered = AESCrypto::crypt(data, key, vector, kCCEncrypt);
    demand(enciphered.has_value() == isUsable, "a usable key enciphers everything, another one nothing");
    if (enciphered) {
        demand(enciphered->size() == (data.size() / kAesBlockSize + 1) * kAesBlockSize, "padding fills the last block");
        demand(AESCrypto::crypt(*enciphered, key, vector, kCCDecrypt) == data, "what was enciphered can be deciphered");
    }
    const auto deciphered = AESCrypto::crypt(data, key, vector, kCCDecrypt);
    if (deciphered) {
        demand(isUsable && data.size() % kAesBlockSize == 0, "only whole blocks are deciphered");
        demand(deciphered->size() < data.size(), "padding is taken off");
        demand(AESCrypto::crypt(*deciphered, key, vector, kCCEncrypt) == data, "and put back");
    }
    demand(!AESCrypto::crypt(data, key, vector, 2), "there are two directions");

    const auto text = AESCrypto::encrypt(key, input);
    const bool hasKeyLength = key.size() == 16 || key.size() == 24 || key.size() == 32;
    const bool isText = isValidUtf8(key) && isValidUtf8(input);
    demand(text && text->empty() != (hasKeyLength && isText),
           "a text is enciphered under the keys that the cipher has");
    demand(decodeBase64(*text).has_value(), "and is base64");
}

} // namespace orken::fuzz
