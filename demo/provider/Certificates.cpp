#include "provider/Certificates.h"

#include "provider/Failure.h"
#include "provider/WholeFile.h"

#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

#include <memory>

namespace orken::demo {

namespace {

struct Free {
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }

    void operator()(X509* certificate) const { X509_free(certificate); }

    void operator()(X509_EXTENSION* extension) const { X509_EXTENSION_free(extension); }

    void operator()(BIO* memory) const { BIO_free(memory); }

    void operator()(BIGNUM* number) const { BN_free(number); }
};

template <class T>
using Owned = std::unique_ptr<T, Free>;

void require(bool done, const char* what)
{
    if (!done) {
        throw Failure(std::string("cannot make certificates: ") + what + ": " +
                      ERR_reason_error_string(ERR_peek_last_error()));
    }
}

/// A name, who vouches for it, and the key that goes with it.
struct Identity {
    Owned<EVP_PKEY> key;
    Owned<X509> certificate;
};

void addExtension(X509* certificate, X509* issuer, int kind, const char* value)
{
    X509V3_CTX context;
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    const Owned<X509_EXTENSION> extension(X509V3_EXT_conf_nid(nullptr, &context, kind, value));
    require(extension && X509_add_ext(certificate, extension.get(), -1) == 1, "extension");
}

void setSerial(X509* certificate)
{
    const Owned<BIGNUM> number(BN_new());
    require(number && BN_rand(number.get(), 127, BN_RAND_TOP_ONE, BN_RAND_BOTTOM_ANY) == 1 &&
                BN_to_ASN1_INTEGER(number.get(), X509_get_serialNumber(certificate)),
            "serial number");
}

void setName(X509_NAME* name, const std::string& text)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
    require(X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_UTF8, bytes, static_cast<int>(text.size()), -1, 0) == 1,
            "name");
}

/// Without extensions and signature.
Identity begin(const std::string& name)
{
    static constexpr long kHour = 60 * 60;
    Identity identity{Owned<EVP_PKEY>(EVP_EC_gen("P-256")), Owned<X509>(X509_new())};
    require(identity.key && identity.certificate, "key");
    X509* certificate = identity.certificate.get();
    require(X509_set_version(certificate, X509_VERSION_3) == 1, "version");
    setSerial(certificate);
    setName(X509_get_subject_name(certificate), name);
    // A clock that was set back a little must not make them invalid.
    require(X509_gmtime_adj(X509_getm_notBefore(certificate), -kHour) &&
                X509_gmtime_adj(X509_getm_notAfter(certificate), 30 * 24 * kHour) &&
                X509_set_pubkey(certificate, identity.key.get()) == 1,
            "validity");
    return identity;
}

void sign(X509* certificate, const Identity& issuer)
{
    require(X509_set_issuer_name(certificate, X509_get_subject_name(issuer.certificate.get())) == 1 &&
                X509_sign(certificate, issuer.key.get(), EVP_sha256()) > 0,
            "signature");
}

Identity makeAuthority()
{
    Identity authority = begin("ORKEN demo authority");
    X509* certificate = authority.certificate.get();
    addExtension(certificate, certificate, NID_basic_constraints, "critical,CA:TRUE,pathlen:0");
    addExtension(certificate, certificate, NID_key_usage, "critical,keyCertSign,cRLSign");
    addExtension(certificate, certificate, NID_subject_key_identifier, "hash");
    sign(certificate, authority);
    return authority;
}

Identity makeServer(const Identity& authority)
{
    Identity server = begin("127.0.0.1");
    X509* certificate = server.certificate.get();
    X509* issuer = authority.certificate.get();
    addExtension(certificate, issuer, NID_basic_constraints, "critical,CA:FALSE");
    addExtension(certificate, issuer, NID_key_usage, "critical,digitalSignature");
    addExtension(certificate, issuer, NID_ext_key_usage, "serverAuth");
    addExtension(certificate, issuer, NID_subject_alt_name, "IP:127.0.0.1,DNS:localhost");
    addExtension(certificate, issuer, NID_authority_key_identifier, "keyid");
    sign(certificate, authority);
    return server;
}

std::string textOf(BIO* memory)
{
    char* bytes = nullptr;
    const long size = BIO_get_mem_data(memory, &bytes);
    return std::string(bytes, static_cast<std::size_t>(size));
}

std::string pemOf(X509* certificate)
{
    const Owned<BIO> memory(BIO_new(BIO_s_mem()));
    require(memory && PEM_write_bio_X509(memory.get(), certificate) == 1, "certificate text");
    return textOf(memory.get());
}

std::string pemOf(EVP_PKEY* key)
{
    const Owned<BIO> memory(BIO_new(BIO_s_mem()));
    require(memory && PEM_write_bio_PrivateKey(memory.get(), key, nullptr, nullptr, 0, nullptr, nullptr) == 1,
            "key text");
    return textOf(memory.get());
}

} // namespace

ServerIdentity makeServerIdentity(const std::filesystem::path& folder)
{
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error) {
        throw Failure("cannot make the folder " + folder.string() + ": " + error.message());
    }
    const Identity authority = makeAuthority();
    const Identity server = makeServer(authority);
    const auto authorityFile = folder / "ca.pem";
    writeWholeFile(authorityFile, pemOf(authority.certificate.get()));
    return {.pem = pemOf(server.certificate.get()) + pemOf(server.key.get()), .authorityFile = authorityFile};
}

} // namespace orken::demo
