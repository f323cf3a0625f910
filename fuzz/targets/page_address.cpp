#include "../Target.h"

#include "browser/BrowserServices.h"
#include "crypto/AESCrypto.h"
#include "foundation/Base64.h"
#include "foundation/Text.h"
#include "provider/Keys.h"
#include "simulated/SimulatedDesktop.h"
#include "simulated/TestEndpoints.h"

// The address of the page on the screen, up to the text over the video. An input that begins with "=" is a text that
// the provider encrypts; any other is the address itself.

namespace orken::fuzz {

namespace {

struct Bed {
    /// One redraw with the page at this address.
    void pass(const std::string& address)
    {
        desktop.browserViews.site = {{address, {}}};
        desktop.browserViews.latest->navigate(address);
        desktop.loop.run();
        browser.updatePass.runUpdatePass(*made, model);
        desktop.loop.run();
    }

    simulated::SimulatedDesktop desktop;
    MachineServices machine{portsOf(desktop), simulated::kEndpoints};
    BrowserServices browser{portsOf(desktop), simulated::kEndpoints, machine};
    PageValues& values = browser.pageValues;
    std::shared_ptr<WebViewModel> model = std::make_shared<WebViewModel>("first");
    std::shared_ptr<BrowserView> made = desktop.browserViews.make();
};

std::string escaped(const std::string& base64)
{
    std::string text;
    for (const char c : base64) {
        text += c == '+' ? "%2B" : c == '/' ? "%2f" : c == '=' ? "%3D" : std::string(1, c);
    }
    return text;
}

void checkShownText(const std::string& text)
{
    constexpr std::size_t kCharacters = 200;
    const std::string line = shortenedLine(text, kCharacters);
    demand(isValidUtf8(line), "the text shown is UTF-8");
    demand(line.size() <= kCharacters * 4 + 3, "the text shown is short");
    demand(line.find_first_of(std::string_view("\n\r\v\f\0", 5)) == std::string::npos, "the text shown is one line");
    demand(shortenedLine(line, kCharacters + 1) == line, "a short line stays as it is");
}

void checkEncrypted(std::string_view text)
{
    const auto bytes = AESCrypto::crypt(toBytes(text), kQueryKey, kQueryVector, kCCEncrypt);
    demand(bytes.has_value(), "any text can be encrypted");
    Bed bed;
    const std::string hash = escaped(encodeBase64(*bytes));
    bed.pass("https://site.example/playlist/1?dnz=" + hash + "&hash=" + hash);
    demand(bed.values.decryptedHashValue == textFromUtf8(text), "the provider's text arrives");
    demand(bed.values.receivedAesKey == textFromUtf8(text).value_or(""), "and so does the key");
    checkShownText(bed.values.decryptedHashValue.value_or(""));
}

} // namespace

void run(std::string_view input)
{
    if (input.starts_with('=')) {
        checkEncrypted(input.substr(1));
        return;
    }
    Bed bed;
    bed.values.decryptedHashValue = "before";
    bed.pass(std::string(input));
    demand(isValidUtf8(bed.values.decryptedHashValue.value_or("\xFF")), "a text that was there stays or is replaced");
    demand(isValidUtf8(bed.values.hashValue) && isValidUtf8(bed.values.receivedAesKey), "values of a page are UTF-8");
    checkShownText(*bed.values.decryptedHashValue);
}

} // namespace orken::fuzz
