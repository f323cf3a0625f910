#include "provider/Provider.h"

#include "provider/AddressEcho.h"
#include "provider/Failure.h"
#include "provider/WholeFile.h"

#include <nlohmann/json.hpp>

#include <unistd.h>

namespace orken::demo {

namespace {

[[noreturn]] void fail(const std::string& what, GError* error)
{
    const desktop::GErrorPtr owned(error);
    throw Failure(what + ": " + owned->message);
}

desktop::GObjectPtr<GTlsCertificate> certificateOf(const ServerIdentity& identity)
{
    GError* error = nullptr;
    GTlsCertificate* certificate =
        g_tls_certificate_new_from_pem(identity.pem.data(), static_cast<gssize>(identity.pem.size()), &error);
    if (!certificate) {
        fail("cannot use the server certificate", error);
    }
    return desktop::GObjectPtr<GTlsCertificate>::adopt(certificate);
}

/// A socket on a port of the system's choice at which every connection is refused.
desktop::GObjectPtr<GSocket> makeRefusingSocket(std::uint16_t& port)
{
    GError* error = nullptr;
    const auto any = desktop::GObjectPtr<GSocketAddress>::adopt(g_inet_socket_address_new_from_string("127.0.0.1", 0));
    auto socket = desktop::GObjectPtr<GSocket>::adopt(
        g_socket_new(G_SOCKET_FAMILY_IPV4, G_SOCKET_TYPE_STREAM, G_SOCKET_PROTOCOL_TCP, &error));
    if (!socket || !g_socket_bind(socket.get(), any.get(), FALSE, &error)) {
        fail("cannot reserve a port", error);
    }
    const auto bound = desktop::GObjectPtr<GSocketAddress>::adopt(g_socket_get_local_address(socket.get(), &error));
    if (!bound) {
        fail("cannot reserve a port", error);
    }
    port = g_inet_socket_address_get_port(G_INET_SOCKET_ADDRESS(bound.get()));
    return socket;
}

} // namespace

Provider::Provider(const Options& options)
    : readyFile_(options.readyFile), logFile_(options.log), log_(options.log),
      identity_(makeServerIdentity(options.certificates)), certificate_(certificateOf(identity_)), site_(options)
{
    // Whoever waits for the file must not find an earlier provider's.
    std::error_code ignored;
    std::filesystem::remove(readyFile_, ignored);
    listenForSite(options);
    listenForEcho(options);
    writeReadyFile();
}

Provider::~Provider()
{
    std::error_code ignored;
    std::filesystem::remove(readyFile_, ignored);
}

void Provider::listenForSite(const Options& options)
{
    siteServer_ = std::make_unique<Server>("site", certificate_.get(), log_,
                                           [this](const Request& request) { return site_.answer(request); });
    if (siteServer_->listen(options.port.value_or(kUsualPort)) == Server::Listening::yes) {
        return;
    }
    if (options.port || siteServer_->listen(0) != Server::Listening::yes) {
        throw Failure("port " + std::to_string(options.port.value_or(0)) + " is taken");
    }
}

void Provider::listenForEcho(const Options& options)
{
    if (options.echo == EchoMode::refuse) {
        refusingSocket_ = makeRefusingSocket(echoPort_);
        return;
    }
    echoServer_ = std::make_unique<Server>("echo", certificate_.get(), log_,
                                           [mode = options.echo, delay = options.echoDelay](const Request& request) {
                                               return echoAddress(request, mode, delay);
                                           });
    if (echoServer_->listen(0) != Server::Listening::yes) {
        throw Failure("no port is free for the address echo");
    }
    echoPort_ = echoServer_->port();
}

void Provider::writeReadyFile() const
{
    const nlohmann::ordered_json ready = {
        {"host", "127.0.0.1"},      {"port", sitePort()},
        {"echoPort", echoPort_},    {"certificateAuthority", identity_.authorityFile.string()},
        {"log", logFile_.string()}, {"pid", getpid()},
    };
    writeWholeFile(readyFile_, ready.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n");
}

} // namespace orken::demo
