#include "provider/Server.h"

#include "provider/Failure.h"
#include "provider/Pages.h"
#include "provider/PartialContent.h"
#include "provider/RequestReading.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <memory>
#include <utility>

namespace orken::demo {

namespace {

constexpr goffset kLargestBody = 1 << 20;
constexpr const char* kLogged = "orken-demo-logged";

using Query = GHashTable;

/// Seconds of the monotonic clock.
double now()
{
    return static_cast<double>(g_get_monotonic_time()) / G_USEC_PER_SEC;
}

/// The text's own memory, without a copy: a document can be large.
GBytes* bytesOf(std::string text)
{
    auto* owned = new std::string(std::move(text));
    return g_bytes_new_with_free_func(
        owned->data(), owned->size(), [](gpointer memory) { delete static_cast<std::string*>(memory); }, owned);
}

Answer answerSafely(const Server::Handler& handler, const Request& request)
{
    try {
        return handler(request);
    } catch (const std::exception& error) {
        std::cerr << "orken-demo-provider: " << request.path << ": " << error.what() << '\n';
        return statusPage(500);
    }
}

} // namespace

/// An answer that is held back. Its message is paused until then.
struct Server::Wait {
    Server& server;
    desktop::GObjectPtr<SoupServerMessage> message;
    Answer answer;
    guint timer = 0;
};

Server::Server(std::string name, GTlsCertificate* identity, RequestLog& log, Handler handler)
    : name_(std::move(name)), log_(log), handler_(std::move(handler)),
      // Raw paths: otherwise "%2F" and "/" would look the same in the log.
      server_(desktop::GObjectPtr<SoupServer>::adopt(
          soup_server_new("tls-certificate", identity, "raw-paths", TRUE, nullptr)))
{
    soup_server_add_early_handler(
        server_.get(), nullptr,
        [](SoupServer*, SoupServerMessage* message, const char*, Query*, gpointer self) {
            static_cast<Server*>(self)->refuseLargeBody(message);
        },
        this, nullptr);
    soup_server_add_handler(
        server_.get(), nullptr,
        [](SoupServer*, SoupServerMessage* message, const char*, Query*, gpointer self) {
            static_cast<Server*>(self)->handle(message);
        },
        this, nullptr);
    using Signal = void (*)(SoupServer*, SoupServerMessage*, gpointer self);
    const Signal finishedSignal = [](SoupServer*, SoupServerMessage* message, gpointer self) {
        static_cast<Server*>(self)->finished(message);
    };
    const Signal abortedSignal = [](SoupServer*, SoupServerMessage* message, gpointer self) {
        static_cast<Server*>(self)->forgetWait(message);
    };
    g_signal_connect(server_.get(), "request-finished", G_CALLBACK(finishedSignal), this);
    g_signal_connect(server_.get(), "request-aborted", G_CALLBACK(abortedSignal), this);
}

Server::~Server()
{
    g_signal_handlers_disconnect_by_data(server_.get(), this);
    for (Wait* wait : waits_) {
        g_source_remove(wait->timer);
        delete wait;
    }
    soup_server_disconnect(server_.get());
}

Server::Listening Server::listen(std::uint16_t port)
{
    const auto address =
        desktop::GObjectPtr<GSocketAddress>::adopt(g_inet_socket_address_new_from_string("127.0.0.1", port));
    GError* error = nullptr;
    if (!soup_server_listen(server_.get(), address.get(), SOUP_SERVER_LISTEN_HTTPS, &error)) {
        const desktop::GErrorPtr owned(error);
        if (g_error_matches(error, G_IO_ERROR, G_IO_ERROR_ADDRESS_IN_USE)) {
            return Listening::portTaken;
        }
        throw Failure("cannot listen on port " + std::to_string(port) + ": " + owned->message);
    }
    GSList* uris = soup_server_get_uris(server_.get());
    port_ = static_cast<std::uint16_t>(g_uri_get_port(static_cast<GUri*>(uris->data)));
    g_slist_free_full(uris, [](gpointer uri) { g_uri_unref(static_cast<GUri*>(uri)); });
    return Listening::yes;
}

/// Runs when the headers are there. A status set now keeps the body from being collected and handled.
void Server::refuseLargeBody(SoupServerMessage* message)
{
    SoupMessageHeaders* headers = soup_server_message_get_request_headers(message);
    const SoupEncoding encoding = soup_message_headers_get_encoding(headers);
    const bool isLarge = encoding == SOUP_ENCODING_CONTENT_LENGTH
                             ? soup_message_headers_get_content_length(headers) > kLargestBody
                             : encoding != SOUP_ENCODING_NONE && encoding != SOUP_ENCODING_EOF;
    if (isLarge) {
        soup_message_body_set_accumulate(soup_server_message_get_request_body(message), FALSE);
        write(message, readRequest(message), now(), 413);
        send(message, statusPage(413));
    }
}

void Server::handle(SoupServerMessage* message)
{
    const double arrival = now();
    const Request request = readRequest(message);
    Answer answer = partOf(answerSafely(handler_, request), request);
    // The library would cut another part out of a body that the log has called the whole.
    soup_message_headers_remove(soup_server_message_get_request_headers(message), "Range");
    write(message, request, arrival, answer.status);
    if (answer.delay > 0) {
        sendLater(message, std::move(answer));
    } else {
        send(message, std::move(answer));
    }
}

/// The last chance for the log: what is no HTTP was refused without a call of the handler.
void Server::finished(SoupServerMessage* message)
{
    forgetWait(message);
    if (!g_object_get_data(G_OBJECT(message), kLogged)) {
        write(message, readRequest(message), now(), soup_server_message_get_status(message));
    }
}

void Server::forgetWait(const SoupServerMessage* message)
{
    const auto wait =
        std::find_if(waits_.begin(), waits_.end(), [&](const Wait* w) { return w->message.get() == message; });
    if (wait != waits_.end()) {
        g_source_remove((*wait)->timer);
        delete *wait;
        waits_.erase(wait);
    }
}

void Server::send(SoupServerMessage* message, Answer answer)
{
    soup_server_message_set_status(message, answer.status, nullptr);
    SoupMessageHeaders* headers = soup_server_message_get_response_headers(message);
    for (const auto& [name, value] : answer.headers) {
        soup_message_headers_append(headers, name.c_str(), value.c_str());
    }
    if (!answer.contentType.empty()) {
        soup_message_headers_replace(headers, "Content-Type", answer.contentType.c_str());
    }
    if (answer.ending == Ending::never) {
        soup_message_headers_set_encoding(headers, SOUP_ENCODING_CHUNKED);
    }
    SoupMessageBody* body = soup_server_message_get_response_body(message);
    if (!answer.body.empty()) {
        GBytes* bytes = bytesOf(std::move(answer.body));
        soup_message_body_append_bytes(body, bytes);
        g_bytes_unref(bytes);
    }
    if (answer.ending == Ending::complete) {
        soup_message_body_complete(body);
    }
}

void Server::sendLater(SoupServerMessage* message, Answer answer)
{
    auto* wait = new Wait{*this, desktop::GObjectPtr<SoupServerMessage>::share(message), std::move(answer)};
    soup_server_message_pause(message);
    wait->timer = g_timeout_add(
        static_cast<guint>(wait->answer.delay * 1000),
        [](gpointer data) -> gboolean {
            const std::unique_ptr<Wait> due(static_cast<Wait*>(data));
            due->server.waits_.erase(due.get());
            due->server.send(due->message.get(), std::move(due->answer));
            soup_server_message_unpause(due->message.get());
            return G_SOURCE_REMOVE;
        },
        wait);
    waits_.insert(wait);
}

void Server::write(SoupServerMessage* message, const Request& request, double arrival, unsigned status)
{
    g_object_set_data(G_OBJECT(message), kLogged, GINT_TO_POINTER(1));
    log_.write(request, arrival, name_, status);
}

} // namespace orken::demo
