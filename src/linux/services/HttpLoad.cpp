#include "linux/services/HttpLoad.h"

#include "foundation/Url.h"
#include "linux/loop/AsyncReply.h"
#include "linux/services/TrustedAuthorities.h"

#include <memory>
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
class HttpLoad : public std::enable_shared_from_this<HttpLoad> {
public:
    HttpLoad(SoupSession* session, std::string url, std::size_t maximumBodyBytes, GCancellable* cancellable,
             std::function<void(Outcome<HttpAnswer>)> completion)
        : session_(GObjectPtr<SoupSession>::share(session)), url_(std::move(url)), maximumBodyBytes_(maximumBodyBytes),
          cancellable_(GObjectPtr<GCancellable>::share(cancellable)), completion_(std::move(completion))
    {
    }

    void start()
    {
        message_ = makeMessage(url_);
        if (!message_) {
            fail(*GErrorPtr(g_error_new_literal(G_URI_ERROR, G_URI_ERROR_FAILED, "not an http or https address")));
            return;
        }
        soup_session_send_async(session_.get(), message_.get(), G_PRIORITY_DEFAULT, cancellable_.get(),
                                AsyncReply::call, replyTo(&HttpLoad::sent));
    }

private:
    /// The reply keeps this alive.
    gpointer replyTo(void (HttpLoad::*step)(GAsyncResult*))
    {
        return AsyncReply::of([self = shared_from_this(), step](GAsyncResult* result) { (self.get()->*step)(result); });
    }

    void sent(GAsyncResult* result)
    {
        GError* error = nullptr;
        stream_ = GObjectPtr<GInputStream>::adopt(soup_session_send_finish(session_.get(), result, &error));
        if (stream_) {
            readOn();
        } else {
            fail(*GErrorPtr(error));
        }
    }

    /// Chunk by chunk: a body that is too large is given up before it fills the memory.
    void readOn()
    {
        g_input_stream_read_bytes_async(stream_.get(), kChunkBytes, G_PRIORITY_DEFAULT, cancellable_.get(),
                                        AsyncReply::call, replyTo(&HttpLoad::read));
    }

    void read(GAsyncResult* result)
    {
        GError* error = nullptr;
        GBytes* chunk = g_input_stream_read_bytes_finish(stream_.get(), result, &error);
        if (!chunk) {
            fail(*GErrorPtr(error));
            return;
        }
        gsize size = 0;
        const auto* bytes = static_cast<const std::uint8_t*>(g_bytes_get_data(chunk, &size));
        const bool fits = size <= maximumBodyBytes_ - body_.size();
        if (fits) {
            body_.insert(body_.end(), bytes, bytes + size);
        }
        g_bytes_unref(chunk);
        if (!fits) {
            fail(*GErrorPtr(g_error_new_literal(G_IO_ERROR, G_IO_ERROR_NO_SPACE, "the answer is too large")));
        } else if (size > 0) {
            readOn();
        } else {
            succeed();
        }
    }

    void fail(const GError& error)
    {
        completion_(platformError(g_quark_to_string(error.domain), error.code, url_, error.message));
    }

    void succeed()
    {
        GHashTable* parameters = nullptr;
        soup_message_headers_get_content_type(soup_message_get_response_headers(message_.get()), &parameters);
        HttpAnswer answer{.body = std::move(body_)};
        if (parameters) {
            const auto* charset = static_cast<const char*>(g_hash_table_lookup(parameters, "charset"));
            if (charset && *charset) {
                answer.charset = charset;
            }
            g_hash_table_destroy(parameters);
        }
        completion_(std::move(answer));
    }

    GObjectPtr<SoupSession> session_;
    std::string url_;
    std::size_t maximumBodyBytes_;
    GObjectPtr<GCancellable> cancellable_;
    std::function<void(Outcome<HttpAnswer>)> completion_;
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
              std::function<void(Outcome<HttpAnswer>)> completion)
{
    std::make_shared<HttpLoad>(session, url, maximumBodyBytes, cancellable, std::move(completion))->start();
}

} // namespace orken::desktop
