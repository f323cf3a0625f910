#include "linux/applications/X11Applications.h"

#include "linux/applications/ProcessTree.h"
#include "linux/applications/X11Windows.h"
#include "linux/services/StandardConsole.h"

#include <algorithm>
#include <glib.h>
#include <unistd.h>

namespace orken::desktop {

namespace {

/// What an application in the list is told from the client and closed by.
struct Handle {
    std::optional<int> processIdentifier;
    std::vector<std::uint32_t> windows;
    bool managerCloses;
};

const Handle* handleOf(const RunningApplication& application)
{
    return static_cast<const Handle*>(application.handle.get());
}

/// Terminals tell the programs in them which window they are in.
std::optional<std::uint32_t> startWindow()
{
    const char* text = g_getenv("WINDOWID");
    guint64 id = 0;
    return text && g_ascii_string_to_unsigned(text, 10, 1, G_MAXUINT32, &id, nullptr)
               ? std::optional(static_cast<std::uint32_t>(id))
               : std::nullopt;
}

} // namespace

std::vector<RunningApplication> X11Applications::all()
{
    X11Connection* server = connection();
    if (!server) {
        reportOnce("there is no X server");
        return {};
    }
    const auto list = listWindows(*server);
    if (!list) {
        reportOnce("the window manager keeps no list");
        return {};
    }
    std::vector<RunningApplication> applications;
    for (auto& group : groupApplications(list->windows, factsAbout(list->windowManagerProcess))) {
        group.application.handle = std::make_shared<Handle>(Handle{.processIdentifier = group.processIdentifier,
                                                                   .windows = std::move(group.windows),
                                                                   .managerCloses = list->managerCloses});
        applications.push_back(std::move(group.application));
    }
    return applications;
}

bool X11Applications::isCurrent(const RunningApplication& application) const
{
    const auto* handle = handleOf(application);
    return handle && handle->processIdentifier == getpid();
}

bool X11Applications::terminate(const RunningApplication& application)
{
    const auto* handle = handleOf(application);
    if (!handle || !connection_ || !connection_->isUsable()) {
        return false;
    }
    for (const xcb_window_t window : handle->windows) {
        requestClose(window, handle->managerCloses);
    }
    return xcb_flush(connection_->get()) > 0;
}

X11Connection* X11Applications::connection()
{
    if (connection_ && !connection_->isUsable()) {
        connection_.reset();
    }
    if (!connection_) {
        const auto display = displayName_();
        if (!display) {
            return nullptr;
        }
        connection_ = std::make_unique<X11Connection>(*display);
    }
    return connection_->isUsable() ? connection_.get() : nullptr;
}

SessionFacts X11Applications::factsAbout(std::optional<int> windowManagerProcess)
{
    if (!programs_) {
        programs_ = std::make_unique<InstalledPrograms>();
    }
    return {.ownProcess = getpid(),
            .ownBundleIdentifier = bundleIdentifier_,
            .windowManagerProcess = windowManagerProcess,
            .startWindow = startWindow(),
            .isAncestor =
                [ancestors = ProcessTree::ancestorsOf(getpid())](int process) {
                    return std::find(ancestors.begin(), ancestors.end(), process) != ancestors.end();
                },
            .isOwn =
                [](int process) {
                    return ProcessTree::isAncestor(getpid(), process) || ProcessTree::runSameProgram(getpid(), process);
                },
            .installedProgram = [this](const ClientWindow& window) { return programs_->find(window); }};
}

void X11Applications::reportOnce(const char* reason)
{
    if (!std::exchange(hasReported_, true)) {
        reportDiagnostic(std::string("orken: other applications cannot be listed: ") + reason);
    }
}

/// As the window's own close button: the application may ask its user, and may refuse.
void X11Applications::requestClose(xcb_window_t window, bool byManager)
{
    constexpr std::uint32_t kOnBehalfOfTheUser = 2;
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.data.data32[0] = XCB_CURRENT_TIME;
    if (byManager) {
        event.type = connection_->atom(X11Atom::closeWindow);
        event.data.data32[1] = kOnBehalfOfTheUser;
    } else {
        event.type = connection_->atom(X11Atom::wmProtocols);
        event.data.data32[0] = connection_->atom(X11Atom::wmDeleteWindow);
        event.data.data32[1] = XCB_CURRENT_TIME;
    }
    const std::uint32_t mask =
        byManager ? XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT : XCB_EVENT_MASK_NO_EVENT;
    xcb_send_event(connection_->get(), 0, byManager ? connection_->root() : window, mask,
                   reinterpret_cast<const char*>(&event));
}

} // namespace orken::desktop
