#include "linux/services/HttpLoad.h"

#include "foundation/Url.h"
#include "linux/services/TrustedAuthorities.h"

#include <utility>

namespace orken::desktop {

namespace {

constexpr std::size_t kChunkBytes = 64 * 1024;
/// libsoup's own two would let a server that hangs hold up its other requests.
constexpr int kConnectionsPerHost = 6;

/// Null for what is no http or https address. libsoup itself is only asked about what has a host: it takes the lack of
/// one for a programming error.
GObjectPtr<SoupMessage> makeMessage(const std::string& url)
{
    const auto parts = parseUrl(url);
    if (!parts || parts->host.value_or("").empty()) {
        return {};
    }
    const std::string scheme = GText(g_ascii_strdown(parts->scheme.c_str(), -1)).get();
    if (scheme != "http" && scheme != "https") {
        return {};
    }
    return GObjectPtr<SoupMessage>::adopt(soup_message_new(SOUP_METHOD_GET, url.c_str()));
}

/// Lives from its request to its answer.
class HttpLoad {
public:
    HttpLoad(std::string url, std::size_t maximumBodyBytes, GCancellable* cancellable,
             std::function<void(HttpAnswer)> completion)
        : url_(std::move(url)), maximumBodyBytes_(maximumBodyBytes),
          cancellable_(GObjectPtr<GCancellable>::share(cancellable)), completion_(std::move(completion))
    {
    }

    static void start(std::unique_ptr<HttpLoad> load, SoupSession* session)
    {
        load->message_ = makeMessage(load->url_);
        if (!load->message_) {
            load->fail(
                *GErrorPtr(g_error_new_literal(G_URI_ERROR, G_URI_ERROR_FAILED, "not an http or https address")));
            return;
        }
        SoupMessage* message = load->message_.get();
        GCancellable* cancellable = load->cancellable_.get();
        soup_session_send_async(session, message, G_PRIORITY_DEFAULT, cancellable, sent, load.release());
    }

private:
    static void sent(GObject* session, GAsyncResult* result, gpointer data)
    {
        std::unique_ptr<HttpLoad> load(static_cast<HttpLoad*>(data));
        GError* error = nullptr;
        load->stream_ =
            GObjectPtr<GInputStream>::adopt(soup_session_send_finish(SOUP_SESSION(session), result, &error));
        if (!load->stream_) {
            load->fail(*GErrorPtr(error));
            return;
        }
        readOn(std::move(load));
    }

    /// Chunk by chunk: a body that is too large is given up before it fills the memory.
    static void readOn(std::unique_ptr<HttpLoad> load)
    {
        GInputStream* stream = load->stream_.get();
        GCancellable* cancellable = load->cancellable_.get();
        g_input_stream_read_bytes_async(stream, kChunkBytes, G_PRIORITY_DEFAULT, cancellable, read, load.release());
    }

    static void read(GObject* stream, GAsyncResult* result, gpointer data)
    {
        std::unique_ptr<HttpLoad> load(static_cast<HttpLoad*>(data));
        GError* error = nullptr;
        GBytes* chunk = g_input_stream_read_bytes_finish(G_INPUT_STREAM(stream), result, &error);
        if (!chunk) {
            load->fail(*GErrorPtr(error));
            return;
        }
        gsize size = 0;
        const auto* bytes = static_cast<const std::uint8_t*>(g_bytes_get_data(chunk, &size));
        const bool fits = size <= load->maximumBodyBytes_ - load->body_.size();
        if (fits) {
            load->body_.insert(load->body_.end(), bytes, bytes + size);
        }
        g_bytes_unref(chunk);
        if (!fits) {
            load->fail(*GErrorPtr(g_error_new_literal(G_IO_ERROR, G_IO_ERROR_NO_SPACE, "the answer is too large")));
        } else if (size > 0) {
            readOn(std::move(load));
        } else {
            load->succeed();
        }
    }

    void fail(const GError& error)
    {
        HttpAnswer answer;
        answer.result.error = platformError(g_quark_to_string(error.domain), error.code, url_, error.message);
        completion_(std::move(answer));
    }

    void succeed()
    {
        GHashTable* parameters = nullptr;
        const char* type =
            soup_message_headers_get_content_type(soup_message_get_response_headers(message_.get()), &parameters);
        HttpAnswer answer;
        answer.result.data = std::move(body_);
        answer.result.response = UrlResponse{.statusCode = static_cast<int>(soup_message_get_status(message_.get())),
                                             .mimeType = type ? GText(g_ascii_strdown(type, -1)).get() : ""};
        if (parameters) {
            const auto* charset = static_cast<const char*>(g_hash_table_lookup(parameters, "charset"));
            if (charset && *charset) {
                answer.charset = charset;
            }
            g_hash_table_destroy(parameters);
        }
        completion_(std::move(answer));
    }

    std::string url_;
    std::size_t maximumBodyBytes_;
    GObjectPtr<GCancellable> cancellable_;
    std::function<void(HttpAnswer)> completion_;
    GObjectPtr<SoupMessage> message_;
    GObjectPtr<GInputStream> stream_;
    Bytes body_;
};

} // namespace

GObjectPtr<SoupSession> makeHttpSession(const HttpOptions& options)
{
    auto session = GObjectPtr<SoupSession>::adopt(soup_session_new_with_options(
        "timeout", options.timeoutSeconds, "max-conns-per-host", kConnectionsPerHost, nullptr));
    soup_session_set_tls_database(session.get(), trustedAuthorities(options.certificateAuthorityFile).get());
    return session;
}

void loadHttp(SoupSession* session, const std::string& url, std::size_t maximumBodyBytes, GCancellable* cancellable,
              std::function<void(HttpAnswer)> completion)
{
    HttpLoad::start(std::make_unique<HttpLoad>(url, maximumBodyBytes, cancellable, std::move(completion)), session);
}

} // namespace orken::desktop
