#pragma once

#include "provider/Http.h"
#include "provider/RequestLog.h"

#include "linux/loop/GObjectPtr.h"

#include <libsoup/soup.h>

#include <cstdint>
#include <functional>
#include <set>
#include <string>

namespace orken::demo {

/// An HTTPS server on 127.0.0.1 that runs in the main loop of its thread. It logs every request, also those that are
/// refused before the handler sees them.
class Server {
public:
    using Handler = std::function<Answer(const Request&)>;

    /// `name` is the server's in the log, which must outlive the server.
    Server(std::string name, GTlsCertificate* identity, RequestLog& log, Handler handler);
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server();

    enum class Listening { yes, portTaken };

    /// 0 lets the system choose. Throws Failure for anything but a taken port.
    [[nodiscard]] Listening listen(std::uint16_t port);

    [[nodiscard]] std::uint16_t port() const { return port_; }

private:
    struct Wait;

    void refuseLargeBody(SoupServerMessage* message);
    void handle(SoupServerMessage* message);
    void finished(SoupServerMessage* message);
    void forgetWait(const SoupServerMessage* message);
    void send(SoupServerMessage* message, Answer answer);
    void sendLater(SoupServerMessage* message, Answer answer);
    void write(SoupServerMessage* message, const Request& request, double arrival, unsigned status);

    std::string name_;
    RequestLog& log_;
    Handler handler_;
    desktop::GObjectPtr<SoupServer> server_;
    std::uint16_t port_ = 0;
    std::set<Wait*> waits_;
};

} // namespace orken::demo
