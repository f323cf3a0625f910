#include "linux/services/BlockingReader.h"

#include "foundation/TextDecoding.h"
#include "linux/loop/PrivateContext.h"
#include "linux/loop/Source.h"
#include "linux/services/HttpLoad.h"

#include <csignal>
#include <utility>

namespace orken::desktop {

BlockingReader::BlockingReader(HttpOptions options) : options_(std::move(options)) {}

Outcome<std::string> BlockingReader::readText(const std::string& url)
{
    const PrivateContext context;
    const ThreadDefault current(context);
    const auto cancellable = GObjectPtr<GCancellable>::adopt(g_cancellable_new());
    // The main context's own sources of these signals find them pending when they are served again.
    const auto cancel = [&cancellable] { g_cancellable_cancel(cancellable.get()); };
    const auto terminate = Source::onSignal(SIGTERM, cancel, context.get());
    const auto hangUp = Source::onSignal(SIGHUP, cancel, context.get());
    const auto interrupt = Source::onSignal(SIGINT, cancel, context.get());

    const auto session = makeHttpSession(options_);
    std::optional<Outcome<HttpAnswer>> answer;
    loadHttp(session.get(), url, options_.maximumBodyBytes, cancellable.get(),
             [&answer](Outcome<HttpAnswer> arrived) { answer = std::move(arrived); });
    while (!answer) {
        g_main_context_iteration(context.get(), TRUE);
    }
    soup_session_abort(session.get());

    if (!*answer) {
        return answer->error();
    }
    if (auto text = decodeText(answer->value().body, answer->value().charset)) {
        return *std::move(text);
    }
    return platformError("text", 0, url, "the encoding of the text is not known");
}

} // namespace orken::desktop
