#include "linux/services/HttpSession.h"

#include "linux/loop/PrivateContext.h"
#include "linux/services/HttpLoad.h"
#include "linux/services/MainLoopQueue.h"

#include <atomic>
#include <future>
#include <thread>
#include <utility>

namespace orken::desktop {

/// Everything of libsoup is made, used and released on this thread.
class HttpSession::Worker {
public:
    explicit Worker(const HttpOptions& options)
        : options_(options), queue_(context_.get()), cancellable_(GObjectPtr<GCancellable>::adopt(g_cancellable_new())),
          thread_([this] { run(); })
    {
    }

    ~Worker()
    {
        quit_ = true;
        g_main_context_wakeup(context_.get());
        thread_.join();
    }

    void load(std::string url, std::function<void(DataTaskResult)> completion)
    {
        queue_.async([this, url = std::move(url), completion = std::move(completion)] {
            ++loads_;
            auto answered = [this, completion](Outcome<HttpAnswer> answer) {
                --loads_;
                if (!quit_) {
                    completion(answer ? DataTaskResult(std::move(answer).value().body) : answer.error());
                }
            };
            loadHttp(session_.get(), url, options_.maximumBodyBytes, cancellable_.get(), std::move(answered));
        });
    }

    void emptyJar()
    {
        const auto done = std::make_shared<std::promise<void>>();
        queue_.async([this, done] {
            GSList* cookies = soup_cookie_jar_all_cookies(jar_.get());
            for (GSList* rest = cookies; rest; rest = rest->next) {
                soup_cookie_jar_delete_cookie(jar_.get(), static_cast<SoupCookie*>(rest->data));
            }
            soup_cookies_free(cookies);
            done->set_value();
        });
        done->get_future().wait();
    }

private:
    void run()
    {
        const ThreadDefault current(context_);
        session_ = makeHttpSession(options_);
        jar_ = GObjectPtr<SoupCookieJar>::adopt(soup_cookie_jar_new());
        soup_session_add_feature(session_.get(), SOUP_SESSION_FEATURE(jar_.get()));
        while (!quit_) {
            g_main_context_iteration(context_.get(), TRUE);
        }
        queue_.stop();
        g_cancellable_cancel(cancellable_.get());
        while (loads_ > 0) {
            g_main_context_iteration(context_.get(), TRUE);
        }
        soup_session_abort(session_.get());
        jar_ = {};
        session_ = {};
    }

    const HttpOptions options_;
    PrivateContext context_;
    MainLoopQueue queue_;
    std::atomic<bool> quit_ = false;
    GObjectPtr<GCancellable> cancellable_;
    GObjectPtr<SoupSession> session_;
    GObjectPtr<SoupCookieJar> jar_;
    int loads_ = 0;
    std::thread thread_;
};

HttpSession::HttpSession(HttpOptions options) : options_(std::move(options)) {}

HttpSession::~HttpSession()
{
    stop();
}

void HttpSession::startDataTask(const std::string& url, std::function<void(DataTaskResult)> completion)
{
    const std::lock_guard lock(mutex_);
    if (stopped_) {
        return;
    }
    if (!worker_) {
        worker_ = std::make_unique<Worker>(options_);
    }
    worker_->load(url, std::move(completion));
}

void HttpSession::removeAllCookies()
{
    // Only the main thread ends the worker, so it may wait here without the lock, which a completion may want.
    Worker* worker = nullptr;
    {
        const std::lock_guard lock(mutex_);
        worker = worker_.get();
    }
    if (worker) {
        worker->emptyJar();
    }
}

void HttpSession::stop()
{
    std::unique_ptr<Worker> worker;
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
        worker = std::move(worker_);
    }
}

} // namespace orken::desktop
