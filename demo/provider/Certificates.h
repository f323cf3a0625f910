#pragma once

#include <filesystem>
#include <string>

namespace orken::demo {

/// What a TLS server on this machine shows and proves.
struct ServerIdentity {
    /// Server certificate and its private key, PEM, in memory only.
    std::string pem;
    /// The certificate authority that signed it: what clients have to trust.
    std::filesystem::path authorityFile;
};

/// Makes a certificate authority (EC P-256) and, signed by it, a server certificate for 127.0.0.1 and localhost. Only
/// the authority's certificate is written, as `folder`/ca.pem; its private key is gone when this returns, so nothing
/// else can ever be signed by it. Makes the folder when there is none. Throws Failure.
[[nodiscard]] ServerIdentity makeServerIdentity(const std::filesystem::path& folder);

} // namespace orken::demo
