#include "provider/Pdf.h"

#include <string_view>
#include <utility>
#include <vector>

namespace orken::demo {

namespace {

/// Ten digits, the width of an offset in the cross-reference table. Used for every number that depends on the size, so
/// that the length of the rest does not.
std::string tenDigits(std::size_t number)
{
    const std::string digits = std::to_string(number);
    return std::string(10 - digits.size(), '0') + digits;
}

/// \200 and \201 stand for the two letters that the font's usual encoding lacks.
constexpr std::string_view kText = "BT /F1 30 Tf 72 740 Td (ORKEN Ders notu) Tj /F1 16 Tf 0 -40 Td "
                                   "(\\326rnek belge: say\\200lar ve i\\201lemler, birinci b\\366l\\374m) Tj ET";

constexpr std::string_view kFont =
    "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica /Encoding << /Type /Encoding /BaseEncoding /WinAnsiEncoding "
    "/Differences [128 /dotlessi /scedilla] >> >>";

class Writer {
public:
    explicit Writer(std::size_t size) { text_.reserve(size + 64); }

    void raw(std::string_view text) { text_ += text; }

    /// Objects are numbered from 1 in the order they are written.
    void object(std::string_view content)
    {
        offsets_.push_back(text_.size());
        text_ += std::to_string(offsets_.size()) + " 0 obj\n";
        text_ += content;
        text_ += "\nendobj\n";
    }

    void filler(std::size_t length)
    {
        offsets_.push_back(text_.size());
        text_ += std::to_string(offsets_.size()) + " 0 obj\n<< /Length " + tenDigits(length) + " >>\nstream\n";
        text_.append(length, 'x');
        text_ += "\nendstream\nendobj\n";
    }

    /// Cross-reference table and trailer; object 1 is the root.
    [[nodiscard]] std::string finish()
    {
        const std::size_t start = text_.size();
        const std::string count = std::to_string(offsets_.size() + 1);
        text_ += "xref\n0 " + count + "\n0000000000 65535 f \n";
        for (const std::size_t offset : offsets_) {
            text_ += tenDigits(offset) + " 00000 n \n";
        }
        text_ += "trailer\n<< /Size " + count + " /Root 1 0 R >>\nstartxref\n" + tenDigits(start) + "\n%%EOF\n";
        return std::move(text_);
    }

private:
    std::string text_;
    std::vector<std::size_t> offsets_;
};

std::string documentWithFiller(std::size_t filler, std::size_t expectedSize)
{
    Writer writer(expectedSize);
    // The second line tells programs that move files that this one is not text.
    writer.raw("%PDF-1.4\n%\xe2\xe3\xcf\xd3\n");
    writer.object("<< /Type /Catalog /Pages 2 0 R >>");
    writer.object("<< /Type /Pages /Kids [3 0 R] /Count 1 >>");
    writer.object("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents 4 0 R "
                  "/Resources << /Font << /F1 5 0 R >> >> >>");
    writer.object("<< /Length " + std::to_string(kText.size()) + " >>\nstream\n" + std::string(kText) + "\nendstream");
    writer.object(kFont);
    writer.filler(filler);
    return writer.finish();
}

} // namespace

std::string makePdf(std::size_t size)
{
    std::string smallest = documentWithFiller(0, 0);
    return size <= smallest.size() ? smallest : documentWithFiller(size - smallest.size(), size);
}

} // namespace orken::demo
