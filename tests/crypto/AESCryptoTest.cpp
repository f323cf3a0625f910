#include "crypto/AESCrypto.h"

#include "foundation/Base64.h"
#include "provider/Keys.h"

#include <gtest/gtest.h>

namespace orken {

constexpr std::string_view kKey = "a71c04e9b2f84d3ca6e0h5193d27f8c4";
constexpr std::string_view kIv = "4820613975204863";

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

TEST(AESCrypto, failsForEveryOtherArgument)
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

// Of the letters, as the openssl command encrypts them with a vector of zeros.
TEST(AESCrypto, encryptsWithKeysOfEachLength)
{
    const std::string key = "0123456789abcdef0123456789abcdef";
    for (const auto& [length, encrypted] : {std::pair(16U, "KjZvj+wX6VKjjp27GOi2CCzZwm3xjgDpx/OvfuImadk="),
                                            {24U, "Lh8h0Xf2hVk/T/ZFzsvW9ISf5LyqpOrBirj8AkUlDy8="},
                                            {32U, "FLznO9j6xo4fnqeoP6V93EgbVlyz4+hOwgwlIn9Kxxo="}}) {
        EXPECT_EQ(AESCrypto::encrypt(key.substr(0, length), "sixteen letters!"), encrypted) << length;
    }
}

TEST(AESCrypto, whatTheCipherRefusesIsAnEmptyText)
{
    const std::string key(kKey);
    for (const std::string& refused :
         {std::string(kApplicationKey), std::string(), key.substr(1), key + "0", key.substr(1) + "\xFF"}) {
        EXPECT_EQ(AESCrypto::encrypt(refused, "hello"), "") << refused.size();
    }
    EXPECT_EQ(AESCrypto::encrypt(key, "\xC0\x80"), "");
}

} // namespace orken
