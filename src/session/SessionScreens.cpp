#include "session/SessionScreens.h"

#include "session/ContentView.h"
#include "session/WebView.h"

namespace orken {

std::unique_ptr<View> SessionScreens::makeContentView()
{
    return std::make_unique<ContentView>(
        endpoints_,
        ContentView::Ports{.identity = browser_.identity,
                           .console = ports_.console,
                           .mainQueue = ports_.mainQueue,
                           .notifications = ports_.notifications,
                           .windowControl = machine_.windowControl,
                           .makeSessionScreen = [this](const std::string& link) { return makeSessionScreen(link); }});
}

std::unique_ptr<View> SessionScreens::makeSessionScreen(const std::string& link)
{
    const WebView::Ports ports{.browserViews = ports_.browserViews,
                               .browser = browser_.forView(),
                               .windowControl = machine_.windowControl,
                               .alerts = ports_.alerts,
                               .application = ports_.application,
                               .bundle = ports_.bundle,
                               .timers = ports_.timers,
                               .mainQueue = ports_.mainQueue,
                               .pageValues = browser_.pageValues,
                               .watermark = watermarkPorts(ports_),
                               .animation = animationServices(ports_)};
    return std::make_unique<WebView>(link, endpoints_, ports);
}

} // namespace orken
