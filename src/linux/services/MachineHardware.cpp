#include "linux/services/MachineHardware.h"

#include "foundation/Text.h"

#include <fstream>
#include <utility>

namespace orken::desktop {

namespace {

/// A machine-id file holds 33 bytes; a longer one than this is something else.
constexpr std::size_t kMaximumBytes = 4096;

std::optional<std::string> textOfFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string bytes(kMaximumBytes + 1, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    // The end of the file has to be seen, which also leaves out what cannot be opened or is no plain file.
    if (!file.eof() || file.bad()) {
        return std::nullopt;
    }
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return textFromUtf8(bytes);
}

} // namespace

MachineHardware::MachineHardware(std::vector<std::filesystem::path> files) : files_(std::move(files)) {}

std::optional<std::string> MachineHardware::platformExpertSerial() const
{
    for (const auto& path : files_) {
        if (auto text = textOfFile(path)) {
            return text;
        }
    }
    return std::nullopt;
}

} // namespace orken::desktop
