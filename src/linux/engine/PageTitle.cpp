#include "linux/engine/PageTitle.h"

#include "linux/engine/ScriptCalls.h"
#include "linux/engine/ScriptWorld.h"
#include "linux/loop/AsyncReply.h"

#include <optional>
#include <utility>

namespace orken::desktop {

namespace {

constexpr Seconds kPatience{0.5};

/// Absent when the page has no document to ask or an element named "title" stands in the way.
std::optional<std::string> textResult(WebKitWebView* view, GAsyncResult* result)
{
    GError* error = nullptr;
    JSCValue* value = webkit_web_view_evaluate_javascript_finish(view, result, &error);
    const auto handedOver = takeScriptResult(value, error);
    const ScriptText* text = textOf(handedOver);
    return text ? std::optional<std::string>(text->view()) : std::nullopt;
}

} // namespace

PageTitle::PageTitle(WebKitWebView* view, Answer answer)
    : view_(view), answer_(std::move(answer)), deadline_(Source::after(kPatience, [this] { answerNow(); }))
{
    webkit_web_view_evaluate_javascript(view, "document.title", -1, kScriptWorld, nullptr, nullptr, AsyncReply::call,
                                        AsyncReply::of([this, watch = alive_.watch(), view](GAsyncResult* result) {
                                            // The engine keeps the view alive until it has called back.
                                            auto title = textResult(view, result);
                                            if (watch.expired()) {
                                                return;
                                            }
                                            if (title) {
                                                this->answer(std::move(*title));
                                            } else {
                                                answerNow();
                                            }
                                        }));
}

void PageTitle::answerNow()
{
    const char* title = webkit_web_view_get_title(view_);
    answer(title ? title : "");
}

void PageTitle::answer(std::string title)
{
    // Who is answered may destroy this.
    if (const auto once = std::exchange(answer_, nullptr)) {
        once(std::move(title));
    }
}

} // namespace orken::desktop
