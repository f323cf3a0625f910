#include "browser/PdfDownload.h"

#include "foundation/DataUrl.h"
#include "foundation/Dates.h"
#include "foundation/FileName.h"
#include "foundation/Url.h"

#include <string_view>

namespace orken {

namespace {

// The address stands in the script as it is. A page can so bring text of its own into the client's script world; it
// gains nothing there, because that world holds nothing of the client's and the page can hand out any bytes anyway.
constexpr std::string_view kScriptHead = R"(    async function fetchData(url) {
        const response = await fetch(url);
        const blob = await response.blob();
        return blob;
    }

    function blobToDataURLAsync(blob) {
        return new Promise((resolve, reject) => {
            const reader = new FileReader();
            reader.onload = () => {
                resolve(reader.result);
            };
            reader.onerror = reject;
            reader.readAsDataURL(blob);
        });
    }

    const blobUrl = ")";
constexpr std::string_view kScriptTail = R"(";
    const blob = await fetchData(blobUrl);
    const mimeType = blob.type;
    return { dataURL: await blobToDataURLAsync(blob), mimeType: mimeType };)";

constexpr std::string_view kPdfType = "application/pdf";

const ScriptText* textMember(const ScriptDictionary& dictionary, const char* key)
{
    const auto place = dictionary.find(key);
    return place == dictionary.end() ? nullptr : &place->second;
}

} // namespace

std::optional<std::string> fileNameFromURL(const std::optional<std::string>& url)
{
    return url ? fileBaseName(*url) : std::nullopt;
}

void PdfDownload::downloadBlob(BrowserView& webView, const NavigationAction& action,
                               const std::function<void(NavigationPolicy)>& decide)
{
    std::string script(kScriptHead);
    script += action.requestUrl.value_or("");
    script += kScriptTail;
    webView.callAsyncJavaScript(script,
                                [this, keep = webView.shared_from_this(), action, decide](const ScriptResult& result) {
                                    saveHandedOver(result, action.requestUrl);
                                    decide(NavigationPolicy::cancel);
                                });
}

void PdfDownload::saveHandedOver(const ScriptResult& result, const std::optional<std::string>& requestUrl)
{
    if (!result) {
        ports_.console.printLine("Veri çözümlenemedi: " + result.error().description());
        return;
    }
    const ScriptDictionary* handed = dictionaryOf(result);
    const ScriptText* mimeType = handed ? textMember(*handed, "mimeType") : nullptr;
    const ScriptText* dataURL = handed ? textMember(*handed, "dataURL") : nullptr;
    if (!mimeType || !dataURL || !isUrl(dataURL->view())) {
        ports_.console.printLine("Veri çözülemedi.");
        return;
    }
    // As the blob declares it, to the letter; the bytes are not looked at.
    if (mimeType->view() != kPdfType) {
        ports_.console.printLine("Verilen veri PDF değil, işlemi durdur.");
        return;
    }
    ports_.console.printLine("PDF dosyası bulundu, indiriliyor.");
    if (const auto content = readDataUrl(dataURL->view())) {
        const auto name = fileNameFromURL(requestUrl);
        saveDownloadedFile(*content, name.value_or("indirilen_dosya" + localStamp(ports_.clock.now())) + ".pdf");
    }
}

void PdfDownload::saveDownloadedFile(const Bytes& content, const std::string& fileName)
{
    const auto printFailure = [this](const PlatformError& error) {
        ports_.console.printLine("Dosya kaydedilirken bir hata oluştu: " + error.localisedDescription());
    };
    const auto folder = ports_.files.downloadsDirectory();
    if (!folder) {
        printFailure(folder.error());
        return;
    }
    const std::filesystem::path file = folder.value() / fileName;
    if (const auto written = ports_.files.writeFile(file, content); !written) {
        printFailure(written.error());
        return;
    }
    ports_.console.printLine(fileName + " başarıyla indirildi.");
    ports_.mainQueue.async([this, fileName, file] { showDownloadAlert(fileName, file); });
}

void PdfDownload::showDownloadAlert(const std::string& fileName, const std::filesystem::path& file)
{
    const int answer = ports_.alerts.runModal({.title = fileName + " başarıyla indirildi.",
                                               .message = "Dosyanın olduğu klasörü açmak ister misiniz?",
                                               .style = AlertStyle::informational,
                                               .buttons = {{.title = "Aç"}, {.title = "Kapat"}}});
    if (answer == kAlertFirstButtonReturn) {
        ports_.workspace.activateFileViewer(file);
    }
}

} // namespace orken
