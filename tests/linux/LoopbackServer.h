#pragma once

#include "linux/loop/GObjectPtr.h"
#include "linux/loop/PrivateContext.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <future>
#include <libsoup/soup.h>
#include <string>
#include <thread>
#include <unistd.h>

namespace orken::desktop {

/// A key with a certificate that nobody vouches for, in files that last as long as this.
class SelfSignedIdentity {
public:
    SelfSignedIdentity() : path_(testing::TempDir() + "orken-identity-" + std::to_string(getpid()))
    {
        const std::string command = "openssl req -x509 -newkey ec -pkeyopt ec_paramgen_curve:P-256 -nodes -days 2 "
                                    "-subj /CN=loopback -addext subjectAltName=IP:127.0.0.1 -keyout " +
                                    key() + " -out " + certificate() + " 2>/dev/null";
        EXPECT_EQ(std::system(command.c_str()), 0);
    }

    SelfSignedIdentity(const SelfSignedIdentity&) = delete;
    SelfSignedIdentity& operator=(const SelfSignedIdentity&) = delete;

    ~SelfSignedIdentity()
    {
        std::filesystem::remove(key());
        std::filesystem::remove(certificate());
    }

    [[nodiscard]] std::string key() const { return path_ + ".key"; }

    [[nodiscard]] std::string certificate() const { return path_ + ".cert"; }

private:
    std::string path_;
};

/// On 127.0.0.1, with a thread of its own; with an identity it speaks TLS.
class LoopbackServer {
public:
    explicit LoopbackServer(SoupServerCallback answer, const SelfSignedIdentity* identity = nullptr)
        : thread_([=, this] { run(answer, identity); })
    {
        base_ = ready_.get_future().get();
    }

    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    ~LoopbackServer()
    {
        quit_ = true;
        g_main_context_wakeup(context_.get());
        thread_.join();
    }

    [[nodiscard]] std::string url(const std::string& path) const { return base_ + path; }

private:
    void run(SoupServerCallback answer, const SelfSignedIdentity* identity)
    {
        const ThreadDefault current(context_);
        const auto server = GObjectPtr<SoupServer>::adopt(soup_server_new(nullptr, nullptr));
        if (identity) {
            const auto certificate = GObjectPtr<GTlsCertificate>::adopt(
                g_tls_certificate_new_from_files(identity->certificate().c_str(), identity->key().c_str(), nullptr));
            soup_server_set_tls_certificate(server.get(), certificate.get());
        }
        soup_server_add_handler(server.get(), nullptr, answer, nullptr, nullptr);
        auto options = static_cast<SoupServerListenOptions>(SOUP_SERVER_LISTEN_IPV4_ONLY |
                                                            (identity ? SOUP_SERVER_LISTEN_HTTPS : 0));
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

} // namespace orken::desktop
