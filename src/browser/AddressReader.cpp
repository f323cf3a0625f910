#include "browser/AddressReader.h"

#include "crypto/AESCrypto.h"
#include "foundation/Base64.h"
#include "foundation/Text.h"
#include "foundation/Url.h"
#include "provider/Conventions.h"
#include "provider/Keys.h"

#include <algorithm>

namespace orken {

namespace {

/// The value of the first item of that name, which may have none.
std::optional<std::string> firstValue(const std::vector<QueryItem>& items, std::string_view name)
{
    const auto item = std::find_if(items.begin(), items.end(), [name](const auto& it) { return it.name == name; });
    return item == items.end() ? std::nullopt : item->value;
}

std::optional<std::string> decrypted(const std::string& base64)
{
    const auto bytes = decodeBase64(base64);
    const auto plain = bytes ? AESCrypto::crypt(*bytes, kQueryKey, kQueryVector, kCCDecrypt) : std::nullopt;
    return plain ? textFromUtf8(asText(*plain)) : std::nullopt;
}

} // namespace

void AddressReader::readAddress(const std::string& url)
{
    const auto components = parseUrl(url);
    if (!components) {
        console_.printLine("Invalid URL components.");
        return;
    }
    console_.printLine("Host: " + (components->host ? percentDecoded(*components->host) : "No Host"));
    console_.printLine("Path: " + percentDecoded(components->path));
    const auto items = queryItems(*components);
    if (!items) {
        console_.printLine("No query items found.");
        return;
    }
    readAesKey(*items);
    console_.printLine("Query Items: " + description(*items));
    readHash(*items);
}

void AddressReader::readAesKey(const std::vector<QueryItem>& items)
{
    const auto value = firstValue(items, kAesKeyParameter);
    if (const auto key = value ? decrypted(*value) : std::nullopt) {
        values_.receivedAesKey = *key;
        console_.printLine("Gelen AES Key: " + *key);
    }
}

void AddressReader::readHash(const std::vector<QueryItem>& items)
{
    const auto value = firstValue(items, kHashParameter);
    if (!value) {
        console_.printLine("Hash query parameter not found.");
        return;
    }
    values_.hashValue = *value;
    console_.printLine("Hash Value: " + *value);
    if (auto text = decrypted(*value)) {
        console_.printLine("Decrypted Value: " + *text);
        values_.decryptedHashValue = std::move(text);
    } else {
        console_.printLine("Decryption failed: Invalid cipher text or key/IV mismatch.");
    }
}

} // namespace orken
