#include "browser/Bed.h"

namespace orken {

TEST(AddressReader, readsWhatThePagesAddressHolds)
{
    const std::string hash = "B6xUEGCyo%2FeXAqNDLYnlZw%3D%3D";
    const std::string shown = "B6xUEGCyo/eXAqNDLYnlZw==";
    const std::tuple<std::string, std::vector<std::string>, std::optional<std::string>> cases[] = {
        {"https://h.example/a%20b", {"print Host: h.example", "print Path: /a b", "print No query items found."}, {}},
        {"about:blank", {"print Host: No Host", "print Path: blank", "print No query items found."}, {}},
        {"https://h/?hash=%%%", {"print Invalid URL components."}, {}},
        {"https://h/?Hash=x&hash&hash=" + hash,
         {"print Host: h", "print Path: /", "print Query Items: [Hash=x, hash, hash=" + shown + "]",
          "print Hash query parameter not found."},
         {}},
        {"https://h/?dnz=%2BKzf0tf55U%2FjBaU20UpvVw%3D%3D&hash=" + hash,
         {"print Host: h", "print Path: /", "print Gelen AES Key: ABC-1234",
          "print Query Items: [dnz=+Kzf0tf55U/jBaU20UpvVw==, hash=" + shown + "]", "print Hash Value: " + shown,
          "print Decrypted Value: Öğrenci 4711"},
         "Öğrenci 4711"},
        {"https://h/?dnz=QQ==&hash=GpUSST20HtY6b9ZixqvZEw==",
         {"print Host: h", "print Path: /", "print Query Items: [dnz=QQ==, hash=GpUSST20HtY6b9ZixqvZEw==]",
          "print Hash Value: GpUSST20HtY6b9ZixqvZEw==",
          "print Decryption failed: Invalid cipher text or key/IV mismatch."},
         {}},
    };
    for (const auto& [url, lines, text] : cases) {
        BrowserBed bed;
        bed.services.addressReader.readAddress(url);
        EXPECT_EQ(bed.desktop.journal.starting("print "), lines) << url;
        EXPECT_EQ(bed.services.pageValues.decryptedHashValue, text) << url;
    }
}

} // namespace orken
