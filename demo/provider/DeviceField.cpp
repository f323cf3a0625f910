#include "provider/DeviceField.h"

#include <openssl/evp.h>

#include <array>
#include <glib.h>
#include <memory>
#include <optional>

namespace orken::demo {

namespace {

// The client refuses this key: AES has none of 36 bytes. Should it be cut one day, to whatever length, its beginning
// decrypts the field.
constexpr std::string_view kKey = "5b2e7a41-93cd-4f08-a6e2-1c7d90b3f584";
constexpr std::array<unsigned char, 16> kVector{};

const unsigned char* bytes(std::string_view text)
{
    return reinterpret_cast<const unsigned char*>(text.data());
}

std::string fromBase64(std::string_view value)
{
    gsize size = 0;
    guchar* decoded = g_base64_decode(std::string(value).c_str(), &size);
    std::string result(reinterpret_cast<const char*>(decoded), size);
    g_free(decoded);
    return result;
}

std::optional<std::string> decrypted(const EVP_CIPHER* cipher, std::string_view input)
{
    const std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> context(EVP_CIPHER_CTX_new(),
                                                                                  EVP_CIPHER_CTX_free);
    std::string output(input.size() + kVector.size(), '\0');
    auto* out = reinterpret_cast<unsigned char*>(output.data());
    int written = 0;
    int last = 0;
    // The library takes as many bytes of the key as the cipher wants.
    if (EVP_DecryptInit_ex(context.get(), cipher, nullptr, bytes(kKey), kVector.data()) != 1 ||
        EVP_DecryptUpdate(context.get(), out, &written, bytes(input), static_cast<int>(input.size())) != 1 ||
        EVP_DecryptFinal_ex(context.get(), out + written, &last) != 1) {
        return std::nullopt;
    }
    output.resize(static_cast<std::size_t>(written) + static_cast<std::size_t>(last));
    const bool isDescription =
        output.starts_with("[{") && g_utf8_validate(output.data(), static_cast<gssize>(output.size()), nullptr);
    return isDescription ? std::optional(output) : std::nullopt;
}

} // namespace

std::string deviceFieldText(std::string_view value)
{
    if (value.empty()) {
        return "alan geldi, değeri boş";
    }
    const std::string input = fromBase64(value);
    for (const auto* cipher : {EVP_aes_256_cbc(), EVP_aes_192_cbc(), EVP_aes_128_cbc()}) {
        if (const auto text = decrypted(cipher, input)) {
            return *text;
        }
    }
    return "çözülemeyen değer";
}

} // namespace orken::demo
