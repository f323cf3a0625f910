#include "app/VersionGate.h"

#include "app/QuitApplication.h"

namespace orken {

std::optional<std::string> VersionGate::appVersion() const
{
    return infoText(bundle_, kBundleShortVersionKey);
}

void VersionGate::checkAppVersion(State<std::string> appVersionMessage, State<bool> showUpdateAlert) const
{
    // Asking the provider for the required version is not part of the client yet: what can be read passes.
    if (!appVersion()) {
        appVersionMessage.set("Uygulama sürümü alınamadı.");
        showUpdateAlert.set(true);
    }
}

AlertDescription VersionGate::updateAlert(const std::string& appVersionMessage, const std::string&) const
{
    auto quit = [&application = application_] { quitApplication(application); };
    return {.title = "Güncelleme Gerekli",
            .message = appVersionMessage,
            .buttons = {{.title = "Güncellemeyi İndir", .role = ButtonRole::normal, .action = quit},
                        {.title = "Kapat", .role = ButtonRole::cancel, .action = quit}}};
}

} // namespace orken
