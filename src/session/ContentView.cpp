#include "session/ContentView.h"

#include "foundation/Text.h"

namespace orken {

namespace {

constexpr double kMinimumWidth = 1170;
constexpr double kMinimumHeight = 768;
constexpr Seconds kScreenChangeDelay{1.0};

} // namespace

Element ContentView::body()
{
    auto sessionScreen = [this] {
        auto make = [this, link = makeLoginURL()] { return ports_.makeSessionScreen(link); };
        auto toggleLater = [this] {
            ports_.mainQueue.after(kScreenChangeDelay,
                                   [&control = ports_.windowControl] { control.toggleFullScreen(); });
        };
        return Nested<View>(make)
            .frame({.minWidth = kMinimumWidth, .minHeight = kMinimumHeight})
            .onAppear([this] { sessionScreenAppeared(); })
            .onReceive(ports_.notifications.publisher(NotificationName::applicationDidChangeScreenParameters),
                       toggleLater);
    };
    return ZStack({When(ipAddress_.get().has_value(), sessionScreen)}).onAppear([this] { fetchAddress(); });
}

std::string ContentView::makeLoginURL() const
{
    return endpoints_.loginURL(ports_.identity.platformSerialNumber().value_or(kUnknownSerialNumber));
}

void ContentView::fetchAddress()
{
    ipAddress_.set(ports_.identity.fetchPublicIPAddress());
    ports_.console.printLine("asdasdasdasd: " + optionalDescription(ipAddress_.get()));
}

void ContentView::sessionScreenAppeared()
{
    ports_.console.printLine(makeLoginURL());
    ports_.mainQueue.after(Seconds{0}, [&control = ports_.windowControl] { control.toggleFullScreen(); });
}

} // namespace orken
