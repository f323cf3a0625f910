#include "linux/services/BlockingReader.h"

#include "foundation/TextDecoding.h"
#include "linux/loop/LoopSource.h"
#include "linux/loop/PrivateContext.h"
#include "linux/services/HttpLoad.h"

#include <glib-unix.h>

#include <csignal>
#include <utility>

namespace orken::desktop {

namespace {

/// GLib tells every source of a signal, so the main context's own ones find it pending when they are served again.
SourcePtr cancelOnSignal(int signal, const PrivateContext& context, GCancellable* cancellable)
{
    SourcePtr source(g_unix_signal_source_new(signal));
    g_source_set_callback(
        source.get(),
        [](gpointer data) -> gboolean {
            g_cancellable_cancel(static_cast<GCancellable*>(data));
            return G_SOURCE_CONTINUE;
        },
        cancellable, nullptr);
    g_source_attach(source.get(), context.get());
    return source;
}

} // namespace

BlockingReader::BlockingReader(HttpOptions options) : options_(std::move(options)) {}

Outcome<std::string> BlockingReader::readText(const std::string& url)
{
    const PrivateContext context;
    const ThreadDefault current(context);
    const auto cancellable = GObjectPtr<GCancellable>::adopt(g_cancellable_new());
    const auto terminate = cancelOnSignal(SIGTERM, context, cancellable.get());
    const auto hangUp = cancelOnSignal(SIGHUP, context, cancellable.get());
    const auto interrupt = cancelOnSignal(SIGINT, context, cancellable.get());

    const auto session = makeHttpSession(options_);
    std::optional<HttpAnswer> answer;
    loadHttp(session.get(), url, options_.maximumBodyBytes, cancellable.get(),
             [&answer](HttpAnswer arrived) { answer = std::move(arrived); });
    while (!answer) {
        g_main_context_iteration(context.get(), TRUE);
    }
    soup_session_abort(session.get());

    if (answer->result.error) {
        return *std::move(answer->result.error);
    }
    if (auto text = decodeText(*answer->result.data, answer->charset)) {
        return *std::move(text);
    }
    return platformError("text", 0, url, "the encoding of the text is not known");
}

} // namespace orken::desktop
