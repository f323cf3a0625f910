#include "machine/Uninstall.h"

#include "machine/QuitApplication.h"

namespace orken {

void Uninstall::confirmUninstall()
{
    const int answer = ports_.alerts.runModal({.title = "Uygulamayı silmek istediğinizden emin misiniz?",
                                               .message = "Bu işlem geri alınamaz",
                                               .buttons = {{.title = "Evet"}, {.title = "Hayır"}}});
    if (answer == kAlertFirstButtonReturn) {
        removeInstalledApplication();
        quitApplication(ports_.application);
    }
}

void Uninstall::removeInstalledApplication()
{
    if (!ports_.files.fileExists(kInstalledBundlePath)) {
        ports_.console.printLine("Uygulama bulunamadı.");
        return;
    }
    if (const auto removed = ports_.files.removeItem(kInstalledBundlePath); !removed) {
        ports_.console.printLine("Uygulama silinirken hata oluştu: " + removed.error().description());
        return;
    }
    ports_.console.printLine("Uygulama başarıyla silindi.");
}

} // namespace orken
