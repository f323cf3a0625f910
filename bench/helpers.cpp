// Pure helpers against what they are made of: the AES helper against the bare library calls on 200 bytes, the base64
// decoder against a plain copy of the same bytes. Prints one JSON object; the least of many rounds each, because
// everything else on the machine can only add.

#include "crypto/AESCrypto.h"
#include "foundation/Base64.h"

#include <openssl/evp.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>

namespace {

using orken::Bytes;

constexpr std::string_view kKey = "0123456789abcdef0123456789abcdef";
constexpr std::string_view kIv = "0123456789abcdef";

/// Seconds of one call, at best.
double leastOf(int rounds, int calls, const std::function<void()>& call)
{
    double least = 1e9;
    for (int round = 0; round < rounds; ++round) {
        const auto began = std::chrono::steady_clock::now();
        for (int i = 0; i < calls; ++i) {
            call();
        }
        least = std::min(least, std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count());
    }
    return least / calls;
}

/// The same work as one `AESCrypto::crypt`, without its checks: context, one pass, result of the right size.
Bytes bareCrypt(const Bytes& data)
{
    Bytes output(data.size() + 16);
    int written = 0;
    int last = 0;
    EVP_CIPHER_CTX* context = EVP_CIPHER_CTX_new();
    EVP_CipherInit_ex(context, EVP_aes_256_cbc(), nullptr, reinterpret_cast<const unsigned char*>(kKey.data()),
                      reinterpret_cast<const unsigned char*>(kIv.data()), 1);
    EVP_CipherUpdate(context, output.data(), &written, data.data(), static_cast<int>(data.size()));
    EVP_CipherFinal_ex(context, output.data() + written, &last);
    EVP_CIPHER_CTX_free(context);
    output.resize(static_cast<std::size_t>(written + last));
    return output;
}

double gigabytesPerSecond(std::size_t bytes, double seconds)
{
    return static_cast<double>(bytes) / seconds / 1e9;
}

} // namespace

int main()
{
    const Bytes input(200, 'x');
    std::size_t sink = 0;
    const double helper =
        leastOf(200, 1000, [&] { sink += orken::AESCrypto::crypt(input, kKey, kIv, orken::kCCEncrypt)->size(); });
    const double bare = leastOf(200, 1000, [&] { sink += bareCrypt(input).size(); });

    constexpr std::size_t kDocument = 100'000'000;
    const std::string text = orken::encodeBase64(Bytes(kDocument, 'x'));
    const double decode = leastOf(10, 1, [&] { sink += orken::decodeBase64(text)->size(); });
    // As the decoder: new memory for the result each time, as many bytes as it reads.
    const double copy = leastOf(10, 1, [&] {
        Bytes result(text.size());
        std::memcpy(result.data(), text.data(), text.size());
        sink += result.size();
    });

    std::printf(R"({"aes helper ns": %.0f, "bare EVP ns": %.0f, "aes ratio": %.2f, )"
                R"("base64 GB/s": %.2f, "copy GB/s": %.2f, "base64 to copy": %.2f, "checked": %s})"
                "\n",
                helper * 1e9, bare * 1e9, helper / bare, gigabytesPerSecond(text.size(), decode),
                gigabytesPerSecond(text.size(), copy), decode / copy, sink > 0 ? "true" : "false");
}
