// What the product does on the background queue, again and again and ended at any moment, for the thread sanitizer: the
// version gate, the login parameter and the animation's download over the real URL session.
//
//   background_queue BASE_ADDRESS ROUNDS
//
// Run on a virtual desktop, with a server that has /settings.json, /echo and /animation.json.

#include "animation/LottieAnimationView.h"
#include "app/VersionGate.h"
#include "browser/LoginParameter.h"
#include "linux/Desktop.h"

#include <gtk/gtk.h>

#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

using namespace orken;

class Page final : public BrowserView {
public:
    explicit Page(int& scripts) : scripts_(scripts) {}

    [[nodiscard]] NativeHandle* native() override { return nullptr; }

    void setNavigationDelegate(std::weak_ptr<NavigationDelegate>) override {}

    void load(const UrlRequest&) override {}

    void configure(const BrowserConfiguration&) override {}

    [[nodiscard]] std::optional<std::string> title() const override { return std::nullopt; }

    [[nodiscard]] std::optional<std::string> url() const override { return std::nullopt; }

    void evaluateJavaScript(const std::string&, ScriptCompletion) override { ++scripts_; }

    void callAsyncJavaScript(const std::string&, ScriptCompletion) override {}

private:
    int& scripts_;
};

class Delegate final : public NavigationDelegate {
public:
    void didFailNavigation(BrowserView&, const PlatformError&) override {}

    void didFailProvisionalNavigation(BrowserView&, const PlatformError&) override {}

    void didFinishNavigation(BrowserView&) override {}

    void didReceiveAuthenticationChallenge(BrowserView&, const AuthenticationChallenge&,
                                           std::function<void(ChallengeDisposition)>) override
    {
    }

    void decidePolicyForNavigationAction(BrowserView&, const NavigationAction&,
                                         std::function<void(NavigationPolicy)>) override
    {
    }
};

struct Counts {
    int scripts = 0;
    int downloads = 0;
    int alerts = 0;
};

/// One session's three requests on a URL session of their own, which is ended after so many turns of the main loop.
void visit(desktop::Desktop& desktop, const std::string& base, int turns, Counts& counts)
{
    desktop::HttpSession urlSession;
    MachineServices machine(portsOf(desktop), {});
    const VersionGate gate({.bundle = desktop.bundle,
                            .urlSession = urlSession,
                            .mainQueue = desktop.mainQueue,
                            .console = desktop.console,
                            .workspace = desktop.workspace,
                            .application = desktop.application,
                            .uninstall = machine.uninstall},
                           base + "/settings.json");
    State<std::string> message({}, "");
    State<bool> showsAlert({}, false);
    gate.checkAppVersion(message, showsAlert);

    const DeviceIdentity identity = deviceIdentity(portsOf(desktop), {.ipEchoURL = base + "/echo"});
    LoginParameter parameter({.urlSession = urlSession,
                              .mainQueue = desktop.mainQueue,
                              .console = desktop.console,
                              .clock = desktop.clock,
                              .identity = identity},
                             base + "/echo");
    auto delegate = std::make_shared<Delegate>();
    parameter.startLoginParameter(delegate, std::make_shared<Page>(counts.scripts));

    auto animation = LottieAnimationView::ofUrl(
        base + "/animation.json", urlSession, [&counts](const auto&) { ++counts.downloads; },
        desktop.animationSurfaces.make({300, 300}), desktop.mainQueue);
    const int until = turns / 2;
    for (int turn = 0; turn < turns; ++turn) {
        if (turn == until && turns % 3 == 0) {
            delegate.reset();
            animation.reset();
        }
        g_main_context_iteration(nullptr, FALSE);
        g_usleep(100);
    }
    urlSession.stop();
    // What the background queue has handed over still comes.
    while (g_main_context_iteration(nullptr, FALSE)) {
    }
    counts.alerts += showsAlert.get() ? 1 : 0;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 3) {
        std::fputs("usage: background_queue BASE_ADDRESS ROUNDS\n", stderr);
        return EXIT_FAILURE;
    }
    gtk_init();
    desktop::Desktop desktop({.bundleIdentifier = "com.orken.threads", .version = "1.0"});
    std::mt19937 random;
    Counts counts;
    const int rounds = std::atoi(arguments[2]);
    for (int round = 0; round < rounds; ++round) {
        visit(desktop, arguments[1], static_cast<int>(random() % 1000), counts);
    }
    std::fprintf(stderr, "%d rounds: %d parameters, %d downloads, %d alerts\n", rounds, counts.scripts,
                 counts.downloads, counts.alerts);
    const bool hasWorked = counts.scripts > 0 && counts.downloads > 0 && counts.alerts > 0;
    std::_Exit(hasWorked ? EXIT_SUCCESS : EXIT_FAILURE);
}
