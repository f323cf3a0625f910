#include "browser/Bed.h"

#include <cerrno>

namespace orken {
namespace {

constexpr const char* kBlob = "blob:https://site.example/5c1e0e9a";
constexpr const char* kFound = "print PDF dosyası bulundu, indiriliyor.";
const std::string kFolder = "/home/student/Downloads/";

ScriptResult handedOver(const std::string& dataURL, const std::string& mimeType)
{
    return std::optional<ScriptValue>(ScriptDictionary{{"dataURL", dataURL}, {"mimeType", mimeType}});
}

const ScriptResult kPdf = handedOver("data:application/pdf;base64,JVBERi0=", "application/pdf");

struct Bed : BrowserBed {
    /// The page goes to a blob; answers what came of it, from the script's end on.
    std::vector<std::string> download(const ScriptResult& result, const std::string& url = kBlob,
                                      const std::string& answer = "Kapat")
    {
        view->onScript = [&](const auto&) { return result; };
        if (!answer.empty()) {
            desktop.alerts.answerNext(answer);
        }
        coordinator->decidePolicyForNavigationAction(*view, {.requestUrl = url}, [this](NavigationPolicy policy) {
            desktop.journal.add(policy == NavigationPolicy::cancel ? "cancelled" : "allowed");
        });
        script = desktop.journal.take().back();
        desktop.loop.run();
        return desktop.journal.take();
    }

    std::string script;
};

std::vector<std::string> saved(const std::string& name)
{
    return {kFound, "write " + kFolder + name, "print " + name + " başarıyla indirildi.", "cancelled",
            "alert " + name + " başarıyla indirildi.: Dosyanın olduğu klasörü açmak ister misiniz?"};
}

TEST(PdfDownload, asksThePageInTheClientsOwnWorld)
{
    Bed bed;
    (void)bed.download(kPdf);
    EXPECT_THAT(bed.script,
                testing::AllOf(StartsWith("function\n    async function fetchData(url) {\n"),
                               HasSubstr("    const blobUrl = \"blob:https://site.example/5c1e0e9a\";\n"),
                               testing::EndsWith("\n    return { dataURL: await blobToDataURLAsync(blob), mimeType: "
                                                 "mimeType };")));
}

TEST(PdfDownload, aFileIsNamedAfterItsAddress)
{
    const std::pair<const char*, const char*> cases[] = {
        {kBlob, "5c1e0e9a.pdf"},
        {"blob:https://site.example/..%2F..%2Fetc%2Fpasswd", "passwd.pdf"},
        {"blob:https://site.example/x\"; return 1; //", "x\"; return 1; .pdf"},
    };
    for (const auto& [url, name] : cases) {
        Bed bed;
        const auto acts = bed.download(kPdf, url);
        EXPECT_THAT(acts, ElementsAreArray(saved(name))) << url;
        EXPECT_EQ(asText(bed.desktop.files.contents[kFolder + name]), "%PDF-");
    }
}

TEST(PdfDownload, aDocumentWithoutANameIsDated)
{
    Bed bed;
    const std::string name = bed.download(kPdf, "blob:https://site.example/%3Fx").at(1).substr(6 + kFolder.size());
    EXPECT_THAT(name, testing::MatchesRegex("indirilen_dosya2026111[67]_[0-9][0-9]..25\\.pdf"));
    EXPECT_EQ(fileNameFromURL(std::nullopt), std::nullopt);
}

TEST(PdfDownload, theSameDocumentReplacesItsFile)
{
    Bed bed;
    EXPECT_THAT(bed.download(kPdf), ElementsAreArray(saved("5c1e0e9a.pdf")));
    EXPECT_THAT(bed.download(handedOver("data:application/pdf;base64,", "application/pdf")),
                ElementsAreArray(saved("5c1e0e9a.pdf")));
    EXPECT_TRUE(bed.desktop.files.contents[kFolder + "5c1e0e9a.pdf"].empty()) << "an empty document is one";
}

TEST(PdfDownload, onlyPdfIsSaved)
{
    const ScriptResult unread[] = {
        std::optional<ScriptValue>(),
        std::optional<ScriptValue>(OtherScriptValue{}),
        std::optional<ScriptValue>(ScriptText("data:application/pdf;base64,QQ==")),
        std::optional<ScriptValue>(ScriptDictionary{{"mimeType", ScriptText("application/pdf")}}),
        std::optional<ScriptValue>(ScriptDictionary{{"dataURL", ScriptText("data:application/pdf;base64,QQ==")}}),
        handedOver("", "application/pdf"),
        handedOver("data:application/pdf;base64,Q Q=", "application/pdf"),
    };
    for (const ScriptResult& result : unread) {
        EXPECT_THAT(Bed().download(result), ElementsAre("print Veri çözülemedi.", "cancelled"));
    }
    for (const char* type : {"image/png", "", "Application/PDF", "application/pdf; a=b", "application/pdf "}) {
        EXPECT_THAT(Bed().download(handedOver("data:application/pdf;base64,QQ==", type)),
                    ElementsAre("print Verilen veri PDF değil, işlemi durdur.", "cancelled"))
            << type;
    }
    for (const char* url :
         {"data:application/pdf;base64,QQ", "data:application/pdf", "file:///etc/passwd", "http://h/"}) {
        EXPECT_THAT(Bed().download(handedOver(url, "application/pdf")), ElementsAre(kFound, "cancelled")) << url;
    }
    EXPECT_THAT(
        Bed().download(platformError("script", 699, "", "TypeError: Load failed")),
        ElementsAre("print Veri çözümlenemedi: Error Domain=script Code=699 \"TypeError: Load failed\"", "cancelled"));
}

TEST(PdfDownload, aFileThatCannotBeWrittenIsALine)
{
    const auto failed = [](const std::string& about) {
        return std::vector<std::string>{kFound, "print Dosya kaydedilirken bir hata oluştu: " + about, "cancelled"};
    };
    Bed full;
    full.desktop.files.failingWrites[kFolder + "5c1e0e9a.pdf"] = ENOSPC;
    EXPECT_THAT(full.download(kPdf), ElementsAreArray(failed(kFolder + "5c1e0e9a.pdf: error 28")));
    Bed homeless;
    homeless.desktop.files.downloads.reset();
    EXPECT_THAT(homeless.download(kPdf), ElementsAreArray(failed("/home/student/Downloads: error 13")));
}

TEST(PdfDownload, onlyAPressOfTheFirstButtonOpensTheFileManager)
{
    Bed opened;
    EXPECT_EQ(opened.download(kPdf, kBlob, "Aç").back(), "reveal " + kFolder + "5c1e0e9a.pdf");
    Bed ended;
    ended.desktop.loop.later(Seconds{1}, [&] { ended.desktop.alerts.abortAll(); });
    EXPECT_THAT(ended.download(kPdf, kBlob, ""), ElementsAreArray(saved("5c1e0e9a.pdf")));
}

TEST(PdfDownload, overlappingDownloadsAlertOneAfterTheOther)
{
    Bed bed;
    bed.view->onScript = [](const auto&) { return kPdf; };
    for (const char* url : {"blob:https://site.example/a", "blob:https://site.example/b"}) {
        bed.desktop.alerts.answerNext("Kapat");
        bed.coordinator->decidePolicyForNavigationAction(*bed.view, {.requestUrl = url}, [](NavigationPolicy) {});
    }
    bed.desktop.loop.run();
    EXPECT_THAT(bed.desktop.journal.starting("write "),
                ElementsAre("write " + kFolder + "a.pdf", "write " + kFolder + "b.pdf"));
    EXPECT_THAT(bed.desktop.journal.starting("alert "), SizeIs(2));
}

TEST(PdfDownload, aPageThatKeepsItsDocumentDoesNotHoldUpTheNext)
{
    Bed bed;
    bed.desktop.browserViews.site = {{"https://site.example/", {.title = "next"}}};
    bed.view->onScript = [](const auto&) { return std::nullopt; };
    bed.view->navigate(kBlob);
    bed.desktop.loop.advance(Seconds{600});
    bed.go("https://site.example/");
    EXPECT_EQ(bed.model->pageTitle.get(), "next");
    EXPECT_THAT(bed.desktop.journal.starting("print "), SizeIs(2)) << "the two schemes and nothing more";
}

} // namespace
} // namespace orken
