#pragma once

#include "linux/loop/Alive.h"
#include "linux/loop/Source.h"

#include <webkit/webkit.h>

#include <functional>
#include <string>

namespace orken::desktop {

/// Asks a page that has just finished for its title: the engine's own title property is still the old or an empty one
/// at that moment. Answers exactly once, unless destroyed before, and at the latest after half a second. Main thread
/// only.
class PageTitle {
public:
    using Answer = std::function<void(std::string title)>;

    PageTitle(WebKitWebView* view, Answer answer);

    /// Answers now with what the engine knows; does nothing when it has been answered.
    void answerNow();

private:
    void answer(std::string title);

    WebKitWebView* view_;
    Answer answer_;
    Source deadline_;
    Alive alive_;
};

} // namespace orken::desktop
