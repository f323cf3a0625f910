#include "linux/loop/GObjectPtr.h"
#include "linux/loop/PrivateContext.h"
#include "linux/loop/Source.h"
#include "linux/services/BlockingReader.h"
#include "linux/services/HttpSession.h"

#include <gmock/gmock.h>

#include <atomic>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <future>
#include <libsoup/soup.h>
#include <thread>
#include <unistd.h>

// The leak checker of this compiler's run-time library breaks on the thread-local storage of modules that are loaded
// late, such as GLib's TLS module, unless it leaves that storage alone.
extern "C" [[gnu::visibility("default")]] const char* __asan_default_options()
{
    return "intercept_tls_get_addr=0";
}

namespace orken::desktop {

namespace {

using namespace std::chrono_literals;

constexpr HttpOptions kSmall{.certificateAuthorityFile = std::nullopt, .maximumBodyBytes = 1000, .timeoutSeconds = 1};

void answer(SoupServer*, SoupServerMessage* message, const char* requested, GHashTable*, gpointer)
{
    const std::string path = requested;
    SoupMessageHeaders* headers = soup_server_message_get_response_headers(message);
    auto reply = [message](guint status, const char* type, const std::string& body) {
        soup_server_message_set_status(message, status, nullptr);
        soup_server_message_set_response(message, type, SOUP_MEMORY_COPY, body.data(), body.size());
    };
    if (path == "/text") {
        reply(200, "Text/HTML; charset=\"iso-8859-9\"", "a\xF0la");
    } else if (path == "/large") {
        reply(200, "text/plain", std::string(1001, 'x'));
    } else if (path == "/cookie") {
        const char* cookie = soup_message_headers_get_one(soup_server_message_get_request_headers(message), "Cookie");
        soup_message_headers_append(headers, "Set-Cookie", "seat=7; path=/");
        reply(200, "text/plain", cookie ? cookie : "none");
    } else if (path == "/moved") {
        soup_server_message_set_redirect(message, SOUP_STATUS_FOUND, "/text");
    } else if (path == "/round") {
        soup_server_message_set_redirect(message, SOUP_STATUS_FOUND, "/round");
    } else if (path == "/missing") {
        soup_server_message_set_status(message, SOUP_STATUS_NOT_FOUND, nullptr);
    } else if (path == "/silent") {
        soup_server_message_pause(message);
    } else if (path == "/stalling") {
        reply(200, "text/plain", "begin");
        soup_message_headers_set_content_length(headers, 500);
    } else if (path == "/terminating") {
        soup_server_message_pause(message);
        kill(getpid(), SIGTERM);
    }
}

/// On 127.0.0.1, with a thread of its own; with a PEM file of key and certificate it speaks TLS.
class LoopbackServer {
public:
    explicit LoopbackServer(const char* identityFile = nullptr) : thread_([=, this] { run(identityFile); })
    {
        base_ = ready_.get_future().get();
    }

    ~LoopbackServer()
    {
        quit_ = true;
        g_main_context_wakeup(context_.get());
        thread_.join();
    }

    [[nodiscard]] std::string url(const std::string& path) const { return base_ + path; }

private:
    void run(const char* identityFile)
    {
        const ThreadDefault current(context_);
        const auto server = GObjectPtr<SoupServer>::adopt(soup_server_new(nullptr, nullptr));
        if (identityFile) {
            const auto identity =
                GObjectPtr<GTlsCertificate>::adopt(g_tls_certificate_new_from_file(identityFile, nullptr));
            soup_server_set_tls_certificate(server.get(), identity.get());
        }
        soup_server_add_handler(server.get(), nullptr, answer, nullptr, nullptr);
        auto options = static_cast<SoupServerListenOptions>(SOUP_SERVER_LISTEN_IPV4_ONLY |
                                                            (identityFile ? SOUP_SERVER_LISTEN_HTTPS : 0));
        soup_server_listen_local(server.get(), 0, options, nullptr);
        GSList* uris = soup_server_get_uris(server.get());
        const GText base(g_uri_to_string(static_cast<GUri*>(uris->data)));
        g_slist_free_full(uris, [](gpointer uri) { g_uri_unref(static_cast<GUri*>(uri)); });
        ready_.set_value(std::string(base.get(), std::strlen(base.get()) - 1));
        while (!quit_) {
            g_main_context_iteration(context_.get(), TRUE);
        }
        soup_server_disconnect(server.get());
    }

    PrivateContext context_;
    std::promise<std::string> ready_;
    std::string base_;
    std::atomic<bool> quit_ = false;
    std::thread thread_;
};

/// The body, or what went wrong.
std::string get(HttpSession& session, const std::string& url)
{
    std::promise<DataTaskResult> result;
    session.startDataTask(url, [&](DataTaskResult arrived) { result.set_value(std::move(arrived)); });
    const auto arrived = result.get_future().get();
    return arrived ? std::string(asText(*arrived.value())) : arrived.error().description();
}

std::size_t threads()
{
    const std::filesystem::directory_iterator tasks("/proc/self/task");
    return static_cast<std::size_t>(std::distance(begin(tasks), end(tasks)));
}

TEST(HttpSession, anyStatusIsAnAnswerWithItsBody)
{
    const LoopbackServer server;
    HttpSession session;
    EXPECT_EQ(get(session, server.url("/text")), "a\xF0la");
    EXPECT_EQ(get(session, server.url("/moved")), "a\xF0la");
    EXPECT_EQ(get(session, server.url("/missing")), "");
}

TEST(HttpSession, whatCannotBeLoadedIsAnError)
{
    const LoopbackServer server;
    HttpSession session(kSmall);
    for (const std::string& url : {std::string("https:///x"), server.url("/large"), server.url("/round"),
                                   server.url("/silent"), server.url("/stalling")}) {
        EXPECT_THAT(get(session, url), testing::MatchesRegex("Error Domain=.* Code=.* \".+\"")) << url;
    }
}

TEST(HttpSession, aServerThatHangsHoldsNothingUp)
{
    const LoopbackServer server;
    HttpSession session;
    for (int i = 0; i < 3; ++i) {
        session.startDataTask(server.url("/silent"), [](const DataTaskResult&) { FAIL() << "after the end"; });
    }
    EXPECT_EQ(get(session, server.url("/text")), "a\xF0la");

    const auto begin = std::chrono::steady_clock::now();
    session.stop();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 10s);
    session.startDataTask(server.url("/text"), [](const DataTaskResult&) { FAIL() << "after the end"; });
}

TEST(HttpSession, cookiesAreSentBackUntilTheyAreRemoved)
{
    const LoopbackServer server;
    HttpSession session;
    EXPECT_EQ(get(session, server.url("/cookie")), "none");
    EXPECT_EQ(get(session, server.url("/cookie")), "seat=7");
    session.removeAllCookies();
    EXPECT_EQ(get(session, server.url("/cookie")), "none");
}

TEST(HttpSession, doesNothingBeforeItsFirstRequest)
{
    const std::size_t before = threads();
    HttpSession session;
    session.removeAllCookies();
    EXPECT_EQ(threads(), before);
    EXPECT_THAT(get(session, ""), testing::StartsWith("Error Domain="));
    EXPECT_GT(threads(), before);
}

TEST(HttpSession, believesOnlyAKnownAuthority)
{
    const std::string identity = testing::TempDir() + "orken-identity-" + std::to_string(getpid()) + ".pem";
    const std::string command = "openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -days 2 "
                                "-subj /CN=loopback -addext subjectAltName=IP:127.0.0.1 -keyout " +
                                identity + " -out " + identity + ".cert 2>/dev/null && cat " + identity + ".cert >> " +
                                identity;
    ASSERT_EQ(std::system(command.c_str()), 0);
    const LoopbackServer server(identity.c_str());
    HttpSession stranger;
    HttpSession lost("/nowhere/authority.pem");
    HttpSession friendly(identity + ".cert");
    EXPECT_THAT(get(stranger, server.url("/text")), testing::HasSubstr("g-tls-error-quark"));
    EXPECT_THAT(get(lost, server.url("/text")), testing::HasSubstr("g-tls-error-quark"));
    EXPECT_EQ(get(friendly, server.url("/text")), "a\xF0la");
    auto otherName = server.url("/text");
    otherName.replace(otherName.find("127.0.0.1"), 9, "localhost");
    EXPECT_THAT(get(friendly, otherName), testing::HasSubstr("g-tls-error-quark"));
    std::filesystem::remove(identity);
    std::filesystem::remove(identity + ".cert");
}

TEST(BlockingReader, readsTextWithoutServingTheMainLoop)
{
    const LoopbackServer server;
    int served = 0;
    auto idle = Source::idle(G_PRIORITY_DEFAULT, [&served] { ++served; });
    BlockingReader reader;
    const auto text = reader.readText(server.url("/moved"));
    ASSERT_TRUE(text) << text.error().message;
    EXPECT_EQ(text.value(), "ağla");
    EXPECT_EQ(served, 0);
    idle.end();
    EXPECT_FALSE(BlockingReader(kSmall).readText(server.url("/large")));
    EXPECT_FALSE(BlockingReader(kSmall).readText(server.url("/silent")));
    EXPECT_FALSE(reader.readText("no address"));
}

TEST(BlockingReader, aTerminationSignalCancelsItAndReachesTheMainLoopAfterwards)
{
    const LoopbackServer server;
    int terminations = 0;
    const auto handler = Source::onSignal(SIGTERM, [&terminations] { ++terminations; });
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_FALSE(BlockingReader().readText(server.url("/terminating")));
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 30s);
    EXPECT_EQ(terminations, 0);
    while (terminations == 0) {
        g_main_context_iteration(nullptr, TRUE);
    }
}

} // namespace

} // namespace orken::desktop
