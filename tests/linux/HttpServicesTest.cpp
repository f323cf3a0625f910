#include "linux/LoopbackServer.h"
#include "linux/loop/Source.h"
#include "linux/services/BlockingReader.h"
#include "linux/services/HttpSession.h"

#include <gmock/gmock.h>

#include <csignal>
#include <filesystem>
#include <future>
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
    } else if (path == "/moved" || path == "/round") {
        soup_server_message_set_redirect(message, SOUP_STATUS_FOUND, path == "/moved" ? "/text" : "/round");
    } else if (path == "/stalling") {
        reply(200, "text/plain", "begin");
        soup_message_headers_set_content_length(headers, 500);
    } else if (path == "/silent" || path == "/terminating") {
        soup_server_message_pause(message);
        if (path == "/terminating") {
            kill(getpid(), SIGTERM);
        }
    } else {
        soup_server_message_set_status(message, SOUP_STATUS_NOT_FOUND, nullptr);
    }
}

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
    const LoopbackServer server(answer);
    HttpSession session;
    EXPECT_EQ(get(session, server.url("/text")), "a\xF0la");
    EXPECT_EQ(get(session, server.url("/moved")), "a\xF0la");
    EXPECT_EQ(get(session, server.url("/missing")), "");
}

TEST(HttpSession, whatCannotBeLoadedIsAnError)
{
    const LoopbackServer server(answer);
    HttpSession session(kSmall);
    for (const std::string& url : {std::string("https:///x"), server.url("/large"), server.url("/round"),
                                   server.url("/silent"), server.url("/stalling")}) {
        EXPECT_THAT(get(session, url), testing::MatchesRegex("Error Domain=.* Code=.* \".+\"")) << url;
    }
}

TEST(HttpSession, aServerThatHangsHoldsNothingUp)
{
    const LoopbackServer server(answer);
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
    const LoopbackServer server(answer);
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
    const SelfSignedIdentity identity;
    const LoopbackServer server(answer, &identity);
    HttpSession stranger;
    HttpSession lost("/nowhere/authority.pem");
    HttpSession friendly(identity.certificate());
    EXPECT_THAT(get(stranger, server.url("/text")), testing::HasSubstr("g-tls-error-quark"));
    EXPECT_THAT(get(lost, server.url("/text")), testing::HasSubstr("g-tls-error-quark"));
    EXPECT_EQ(get(friendly, server.url("/text")), "a\xF0la");
    auto otherName = server.url("/text");
    otherName.replace(otherName.find("127.0.0.1"), 9, "localhost");
    EXPECT_THAT(get(friendly, otherName), testing::HasSubstr("g-tls-error-quark"));
}

TEST(BlockingReader, readsTextWithoutServingTheMainLoop)
{
    const LoopbackServer server(answer);
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
    const LoopbackServer server(answer);
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
