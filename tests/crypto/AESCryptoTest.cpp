#include "crypto/AESCrypto.h"

#include "foundation/Base64.h"
#include "foundation/Cipher.h"
#include "provider/Keys.h"

#include <gtest/gtest.h>

namespace orken {
namespace {

constexpr std::string_view kKey = "a71c04e9b2f84d3ca6e0h5193d27f8c4";
constexpr std::string_view kIv = "4820613975204863";

std::string fromHex(std::string_view hex)
{
    std::string bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        bytes += static_cast<char>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16));
    }
    return bytes;
}

// NIST SP 800-38A, F.2.1, F.2.3 and F.2.5: the first two blocks of each example.
TEST(Cipher, givesThePublishedCbcVectorsForEachKeyLength)
{
    const std::string iv = fromHex("000102030405060708090a0b0c0d0e0f");
    const std::string plain = fromHex("6bc1bee22e409f96e93d7e117393172aae2d8a571e03ac9c9eb76fac45af8e51");
    const std::pair<const char*, const char*> cases[] = {
        {"2b7e151628aed2a6abf7158809cf4f3c", "7649abac8119b246cee98e9b12e9197d5086cb9b507219ee95db113a917678b2"},
        {"8e73b0f7da0e6452c810f32b809079e562f8ead2522c6b7b",
         "4f021db243bc633d7178183a9fa071e8b4d9ada9ad7dedf4e5e738763f69145a"},
        {"603deb1015ca71be2b73aef0857d77811f352c073b6108d72d9810a30914dff4",
         "f58c4c04d6e5f1ba779eabfb5f7bfbd69cfc4e967edb808d679f777bc6702c7d"},
    };
    for (const auto& [key, encrypted] : cases) {
        const auto result = aesCbc(CipherDirection::encrypt, fromHex(key), iv, plain);
        ASSERT_TRUE(result);
        EXPECT_EQ(result->size(), plain.size() + kAesBlockSize) << "a whole block of padding follows whole blocks";
        EXPECT_EQ(asText(*result).substr(0, plain.size()), fromHex(encrypted));
        const auto back = aesCbc(CipherDirection::decrypt, fromHex(key), iv, asText(*result));
        ASSERT_TRUE(back);
        EXPECT_EQ(asText(*back), plain);
    }
}

TEST(AESCrypto, readsWhatTheProviderEncrypts)
{
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"FkEtZq6V+czVvsK2Fp//PA==", ""},
        {"B6xUEGCyo/eXAqNDLYnlZw==", "Öğrenci 4711"},
        {"+Kzf0tf55U/jBaU20UpvVw==", "ABC-1234"},
        {"GpUSST20HtY6b9ZixqvZEw==", "\xFF\xFE\x80"},
    };
    for (const auto& [base64, plain] : cases) {
        const auto bytes = AESCrypto::crypt(decodeBase64(base64).value(), kKey, kIv, kCCDecrypt);
        ASSERT_TRUE(bytes) << base64;
        EXPECT_EQ(asText(*bytes), plain);
        EXPECT_EQ(encodeBase64(AESCrypto::crypt(*bytes, kKey, kIv, kCCEncrypt).value()), base64);
    }
}

TEST(AESCrypto, failsForEveryOtherKeyVectorInputAndDirection)
{
    const Bytes block = decodeBase64("B6xUEGCyo/eXAqNDLYnlZw==").value();
    const std::string key(kKey);
    const std::string iv(kIv);
    const std::string turkish = key.substr(1) + "ö"; // 32 characters, 33 bytes
    for (const std::string& wrong : {std::string(), key.substr(1), key + "0", turkish, key.substr(1) + "\xFF"}) {
        EXPECT_FALSE(AESCrypto::crypt(block, wrong, iv, kCCDecrypt)) << wrong;
        EXPECT_FALSE(AESCrypto::crypt(block, wrong, iv, kCCEncrypt)) << wrong;
    }
    for (const std::string& wrong : {std::string(), iv.substr(1), iv + "0", iv.substr(1) + "ö"}) {
        EXPECT_FALSE(AESCrypto::crypt(block, key, wrong, kCCDecrypt)) << wrong;
    }
    EXPECT_FALSE(AESCrypto::crypt(block, "b" + key.substr(1), iv, kCCDecrypt)) << "the padding does not check out";
    EXPECT_FALSE(AESCrypto::crypt({}, key, iv, kCCDecrypt));
    EXPECT_FALSE(AESCrypto::crypt(Bytes(block.begin(), block.end() - 1), key, iv, kCCDecrypt));
    EXPECT_FALSE(AESCrypto::crypt(block, key, iv, 2));
}

TEST(AESCrypto, encryptGivesATextAlsoWhereTheCipherRefuses)
{
    const std::string key = "0123456789abcdef0123456789abcdef";
    EXPECT_EQ(AESCrypto::encrypt(key, "hello"), "pZwJZBLuy3mDACEQT4YTBw==");
    EXPECT_EQ(AESCrypto::encrypt(key.substr(0, 16), "hello"), "Z0x+8454yr2c7JwSWCOmOQ==");
    for (const std::string& refused : {std::string(kApplicationKey), std::string(), key.substr(1), key + "0"}) {
        EXPECT_EQ(AESCrypto::encrypt(refused, "hello"), "") << refused.size();
    }
    EXPECT_EQ(AESCrypto::encrypt(key, "\xC0\x80"), "");
    EXPECT_EQ(AESCrypto::encrypt(key.substr(1) + "\xFF", "hello"), "");
}

} // namespace
} // namespace orken
