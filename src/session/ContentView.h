#pragma once

#include "crypto/DeviceIdentity.h"
#include "machine/WindowControl.h"
#include "platform/Console.h"
#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"
#include "provider/Endpoints.h"
#include "view/View.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace orken {

/// Root of the session window: finds the public address, then shows the session screen for the provider's login page.
/// Without an address the window stays empty for good. Main thread only.
class ContentView final : public View {
public:
    struct Ports {
        const DeviceIdentity& identity;
        Console& console;
        MainQueue& mainQueue;
        NotificationCenter& notifications;
        WindowControl& windowControl;
        std::function<std::unique_ptr<View>(const std::string& link)> makeSessionScreen;
    };

    /// `endpoints` outlives the view.
    ContentView(const Endpoints& endpoints, Ports ports)
        : endpoints_(endpoints), ports_(std::move(ports)), ipAddress_(makeState(std::optional<std::string>()))
    {
    }

    [[nodiscard]] Element body() override;

    /// Reads the serial number anew on each call.
    [[nodiscard]] std::string makeLoginURL() const;

private:
    void fetchAddress();
    void sessionScreenAppeared();

    const Endpoints& endpoints_;
    Ports ports_;
    State<std::optional<std::string>> ipAddress_;
};

} // namespace orken
