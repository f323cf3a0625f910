#include "machine/Uninstall.h"

namespace orken {

void Uninstall::confirmUninstall()
{
    const int answer = alerts_.runModal({.title = "Uygulamayı silmek istediğinizden emin misiniz?",
                                         .message = "Bu işlem geri alınamaz",
                                         .buttons = {{.title = "Evet"}, {.title = "Hayır"}}});
    if (answer == kAlertFirstButtonReturn) {
        removeInstalledApplication();
        application_.terminate();
    }
}

void Uninstall::removeInstalledApplication()
{
    if (!files_.fileExists(kInstalledBundlePath)) {
        console_.printLine("Uygulama bulunamadı.");
        return;
    }
    if (const auto removed = files_.removeItem(kInstalledBundlePath); !removed) {
        console_.printLine("Uygulama silinirken hata oluştu: " + removed.error().description());
        return;
    }
    console_.printLine("Uygulama başarıyla silindi.");
}

} // namespace orken
