#include "foundation/Cipher.h"

#include <openssl/err.h>
#include <openssl/evp.h>

#include <limits>
#include <memory>

namespace orken {

namespace {

using Context = std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)>;

/// The one place that says what a key of each length (in bytes) means; null for a length that AES does not have. The
/// library itself would cut a longer key without a word.
const EVP_CIPHER* cipherForKeyLength(std::size_t length)
{
    switch (length) {
    case 16:
        return EVP_aes_128_cbc();
    case 24:
        return EVP_aes_192_cbc();
    case 32:
        return EVP_aes_256_cbc();
    default:
        return nullptr;
    }
}

const unsigned char* bytesOf(std::string_view text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

std::optional<Bytes> run(const EVP_CIPHER* cipher, int encrypts, std::string_view key, std::string_view vector,
                         std::string_view input)
{
    const Context context(EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free);
    Bytes output(input.size() + kAesBlockSize);
    int written = 0;
    int last = 0;
    const bool done =
        context && EVP_CipherInit_ex(context.get(), cipher, nullptr, bytesOf(key), bytesOf(vector), encrypts) == 1 &&
        EVP_CipherUpdate(context.get(), output.data(), &written, bytesOf(input), static_cast<int>(input.size())) == 1 &&
        EVP_CipherFinal_ex(context.get(), output.data() + written, &last) == 1;
    if (!done) {
        // The library keeps errors for the thread; a later TLS call there must not find this one.
        ERR_clear_error();
        return std::nullopt;
    }
    output.resize(static_cast<std::size_t>(written) + static_cast<std::size_t>(last));
    return output;
}

} // namespace

std::optional<Bytes> aesCbc(CipherDirection direction, std::string_view key, std::string_view initialisationVector,
                            std::string_view input)
{
    constexpr auto kLongest = static_cast<std::size_t>(std::numeric_limits<int>::max()) - kAesBlockSize;
    const EVP_CIPHER* cipher = cipherForKeyLength(key.size());
    const bool encrypts = direction == CipherDirection::encrypt;
    const bool isDirection = encrypts || direction == CipherDirection::decrypt;
    if (!cipher || !isDirection || initialisationVector.size() != kAesBlockSize || input.size() > kLongest) {
        return std::nullopt;
    }
    return run(cipher, encrypts ? 1 : 0, key, initialisationVector, input);
}

} // namespace orken
