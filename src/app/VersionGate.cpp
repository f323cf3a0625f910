#include "app/VersionGate.h"

#include "foundation/Json.h"
#include "foundation/NumericCompare.h"
#include "foundation/Text.h"
#include "machine/QuitApplication.h"
#include "provider/Conventions.h"

namespace orken {

std::optional<std::string> VersionGate::appVersion() const
{
    return infoText(ports_.bundle, kBundleShortVersionKey);
}

void VersionGate::checkAppVersion(State<std::string> appVersionMessage, State<bool> showUpdateAlert) const
{
    const auto current = appVersion();
    if (!current) {
        appVersionMessage.set("Uygulama sürümü alınamadı.");
        showUpdateAlert.set(true);
        return;
    }
    // Weakly: the answer may come when the start screen has gone, and comes on another thread.
    auto block = [this, weakMessage = WeakState(appVersionMessage),
                  weakFlag = WeakState(showUpdateAlert)](std::string message) {
        ports_.mainQueue.async([weakMessage, weakFlag, message = std::move(message)] {
            weakMessage.set(message);
            weakFlag.set(true);
        });
    };
    fetchRequiredVersion([this, current = *current, block](const std::optional<std::string>& required) {
        checkAgainst(required, current, block);
    });
}

void VersionGate::checkAgainst(const std::optional<std::string>& required, const std::string& current,
                               const std::function<void(std::string)>& block) const
{
    if (!required) {
        ports_.console.printLine("Gelen veri null");
        block("Servisle bağlantı kurulamadı.");
    } else if (isUpdateRequired(current, *required)) {
        ports_.console.printLine("");
        ports_.console.printLine("Uygulama güncelleme gerekli.");
        block("Uygulamanız eski. Lütfen " + *required + " sürümüne güncelleyin.");
    }
}

void VersionGate::fetchRequiredVersion(std::function<void(std::optional<std::string>)> completion) const
{
    auto answered = [&console = ports_.console, completion = std::move(completion)](const DataTaskResult& result) {
        if (!result || !result.value()) {
            console.printLine("Hata: " + (result ? "Bilinmeyen hata" : result.error().localisedDescription()));
            completion(std::nullopt);
            return;
        }
        const auto macVersion = jsonTextMember(asText(*result.value()), kRequiredVersionMember);
        if (!macVersion) {
            console.printLine("JSON parse hatası: " + macVersion.error().localisedDescription());
            completion(std::nullopt);
            return;
        }
        completion(macVersion.value());
        console.printLine("Başarılı: AppData(macVersion: " + debugDescription(macVersion.value()) + ")");
    };
    ports_.urlSession.startDataTask(settingsURL_, std::move(answered));
}

bool VersionGate::isUpdateRequired(const std::string& current, const std::string& required) const
{
    ports_.console.printLine("Mevcut Sürüm: " + current + " - Gerekli Sürüm: " + required);
    return numericCompare(current, required) < 0;
}

Alert VersionGate::updateAlert(const std::string& appVersionMessage, const std::string& downloadURL) const
{
    auto download = [ports = ports_, downloadURL] {
        ports.uninstall.removeInstalledApplication();
        ports.workspace.open(downloadURL);
        quitApplication(ports.application);
    };
    auto quit = [&application = ports_.application] { quitApplication(application); };
    return {.title = "Güncelleme Gerekli",
            .message = appVersionMessage,
            .buttons = {{.title = "Güncellemeyi İndir", .role = ButtonRole::normal, .action = download},
                        {.title = "Kapat", .role = ButtonRole::cancel, .action = quit}}};
}

VersionGate versionGate(const Ports& ports, const Endpoints& endpoints, MachineServices& machine)
{
    return {{.bundle = ports.bundle,
             .urlSession = ports.urlSession,
             .mainQueue = ports.mainQueue,
             .console = ports.console,
             .workspace = ports.workspace,
             .application = ports.application,
             .uninstall = machine.uninstall},
            endpoints.settingsURL()};
}

} // namespace orken
