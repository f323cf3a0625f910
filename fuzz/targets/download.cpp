#include "../Target.h"

#include "browser/BrowserServices.h"
#include "foundation/DataUrl.h"
#include "foundation/FileName.h"
#include "simulated/SimulatedDesktop.h"
#include "simulated/TestEndpoints.h"

// A page's download: a line with the address that names the file, then the document as a data URL.

namespace orken::fuzz {

namespace {

const std::filesystem::path kFolder = "/home/student/Downloads";

struct Bed {
    void download(const std::string& address, const std::string& dataUrl)
    {
        desktop.browserViews.latest->onScript = [&](const auto&) {
            return ScriptResult(std::optional<ScriptValue>(
                ScriptDictionary{{"dataURL", dataUrl}, {"mimeType", std::string("application/pdf")}}));
        };
        desktop.alerts.answerNext("Aç");
        browser.pdfDownload.downloadBlob(*made, {.requestUrl = address}, [this](NavigationPolicy policy) {
            decisions += policy == NavigationPolicy::cancel ? 1 : 100;
        });
        desktop.loop.run();
    }

    simulated::SimulatedDesktop desktop;
    MachineServices machine{portsOf(desktop), simulated::kEndpoints};
    BrowserServices browser{portsOf(desktop), simulated::kEndpoints, machine};
    std::shared_ptr<BrowserView> made = desktop.browserViews.make();
    int decisions = 0;
};

void checkName(const std::optional<std::string>& name)
{
    demand(!name || !name->empty(), "a name is not empty");
    demand(!name || name->find_first_of(std::string_view("/\0", 2)) == std::string::npos, "a name is one of a file");
}

} // namespace

void run(std::string_view input)
{
    const std::string address(takeLine(input));
    const std::string dataUrl(input);
    checkName(fileBaseName(address));
    checkName(fileBaseName(dataUrl));

    Bed bed;
    bed.download(address, dataUrl);
    demand(bed.decisions == 1, "the engine gets one answer, and it is no");
    demand(bed.desktop.files.contents.size() <= 1, "one document is one file");
    for (const auto& [file, content] : bed.desktop.files.contents) {
        demand(file.lexically_normal() == file && file.parent_path() == kFolder, "a file lies in the folder itself");
        demand(file.extension() == ".pdf", "a file is a PDF document by its name");
        demand(readDataUrl(dataUrl) == content, "a file holds the document");
    }
    for (const std::string& act : bed.desktop.journal.acts()) {
        demand(!act.starts_with("open ") && !act.starts_with("remove "), "a download opens and removes nothing");
        demand(!act.starts_with("reveal ") || !bed.desktop.files.contents.empty(), "only a file is shown");
    }
}

} // namespace orken::fuzz
