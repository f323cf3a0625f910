#include "machine/SavedState.h"

#include "foundation/PropertyList.h"

#include <limits>

namespace orken {

namespace {

constexpr const char* kRestoreCountKey = "restoreCount";
/// The file is some 200 bytes long. What is this large is not the client's, and is not taken into memory.
constexpr std::size_t kLargestFile = 16 * 1024;

} // namespace

void SavedState::removeSavedStateDirectory()
{
    const auto folder = directory();
    if (!ports_.files.fileExists(folder)) {
        ports_.console.printLine("Saved state dizini mevcut değil.");
        return;
    }
    if (const auto removed = ports_.files.removeItem(folder); !removed) {
        ports_.console.printLine("Saved state dizini silinirken bir hata oluştu: " +
                                 removed.error().localisedDescription());
        return;
    }
    ports_.console.printLine("Saved state dizini başarıyla silindi.");
}

void SavedState::updateRestoreCount()
{
    const auto file = directory() / "restorecount.plist";
    if (!ports_.files.fileExists(file)) {
        ports_.console.printLine("Dosya mevcut değil, varsayılan değerler kullanılacak.");
        createDefaultRestoreCountFile(file);
        return;
    }
    const auto printReadError = [this](const PlatformError& error) {
        ports_.console.printLine("Dosya okunurken bir hata oluştu: " + error.localisedDescription());
    };
    const auto bytes = ports_.files.readFile(file, kLargestFile);
    if (!bytes) {
        printReadError(bytes.error());
        return;
    }
    const auto list = readPropertyList(bytes.value(), kRestoreCountKey);
    if (!list) {
        printReadError(list.error());
        return;
    }
    if (!list.value()) {
        return;
    }
    const auto count = list.value()->integer;
    if (!count) {
        ports_.console.printLine("restoreCount anahtarı bulunamadı, varsayılan değer kullanılacak.");
        createDefaultRestoreCountFile(file);
        return;
    }
    ports_.console.printLine("Restore Count değeri: " + std::to_string(*count));
    incrementRestoreCount(*count, file);
}

std::filesystem::path SavedState::directory() const
{
    return ports_.files.homeDirectory() / "Library/Saved Application State" / (bundleIdentifier_ + ".savedState");
}

void SavedState::createDefaultRestoreCountFile(const std::filesystem::path& file)
{
    if (const auto created = tryCreateDefaultFile(file); !created) {
        ports_.console.printLine("Varsayılan dosya oluşturulurken bir hata oluştu: " +
                                 created.error().localisedDescription());
        return;
    }
    ports_.console.printLine("Varsayılan restorecount.plist dosyası oluşturuldu.");
}

Outcome<void> SavedState::tryCreateDefaultFile(const std::filesystem::path& file)
{
    const auto folder = file.parent_path();
    if (!ports_.files.fileExists(folder)) {
        if (auto created = ports_.files.createDirectory(folder); !created) {
            return created;
        }
        ports_.console.printLine("Dizin oluşturuldu: " + folder.string());
    }
    return write(0, file);
}

void SavedState::incrementRestoreCount(std::int64_t current, const std::filesystem::path& file)
{
    // The greatest value stays: a counter must not keep anybody from a session.
    const std::int64_t next = current == std::numeric_limits<std::int64_t>::max() ? current : current + 1;
    ports_.console.printLine("Yeni Restore Count değeri: " + std::to_string(next));
    writeRestoreCount(next, file);
}

void SavedState::writeRestoreCount(std::int64_t value, const std::filesystem::path& file)
{
    if (const auto written = write(value, file); !written) {
        ports_.console.printLine("Dosya kaydedilirken bir hata oluştu: " + written.error().localisedDescription());
        return;
    }
    ports_.console.printLine("restorecount.plist dosyası güncellendi.");
}

Outcome<void> SavedState::write(std::int64_t value, const std::filesystem::path& file)
{
    const auto bytes = writePropertyList(kRestoreCountKey, value);
    return bytes ? ports_.files.writeFile(file, bytes.value()) : bytes.error();
}

} // namespace orken
