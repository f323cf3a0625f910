#pragma once

#include "provider/Certificates.h"
#include "provider/Options.h"
#include "provider/RequestLog.h"
#include "provider/Server.h"
#include "provider/Site.h"

#include "linux/loop/GObjectPtr.h"

#include <gio/gio.h>

#include <cstdint>
#include <memory>
#include <string>

namespace orken::demo {

/// The whole provider: the site and, on a port of its own, the address echo. Serves while the main loop runs.
class Provider {
public:
    /// Listens when this returns, and the ready file is written. Throws Failure.
    explicit Provider(const Options& options);
    Provider(const Provider&) = delete;
    Provider& operator=(const Provider&) = delete;
    /// Takes the ready file away.
    ~Provider();

    [[nodiscard]] std::uint16_t sitePort() const { return siteServer_->port(); }

    [[nodiscard]] std::uint16_t echoPort() const { return echoPort_; }

private:
    void listenForSite(const Options& options);
    void listenForEcho(const Options& options);
    void writeReadyFile() const;

    std::filesystem::path readyFile_;
    std::filesystem::path logFile_;
    RequestLog log_;
    ServerIdentity identity_;
    desktop::GObjectPtr<GTlsCertificate> certificate_;
    Site site_;
    std::unique_ptr<Server> siteServer_;
    std::unique_ptr<Server> echoServer_;
    /// In the refusing mode: bound, so that nobody else gets the port, but not listening.
    desktop::GObjectPtr<GSocket> refusingSocket_;
    std::uint16_t echoPort_ = 0;
};

} // namespace orken::demo
