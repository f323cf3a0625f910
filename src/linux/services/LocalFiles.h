#pragma once

#include "platform/Files.h"

namespace orken::desktop {

/// The file system of this machine. Errors carry the domain "posix" and the value of `errno` as their code.
class LocalFiles final : public Files {
public:
    [[nodiscard]] std::filesystem::path homeDirectory() const override;
    [[nodiscard]] bool fileExists(const std::filesystem::path& item) const override;
    [[nodiscard]] std::vector<std::filesystem::path> cachesDirectories() const override;
    [[nodiscard]] Outcome<std::filesystem::path> downloadsDirectory() override;
    [[nodiscard]] Outcome<std::vector<std::string>>
    contentsOfDirectory(const std::filesystem::path& directory) const override;
    [[nodiscard]] Outcome<void> createDirectory(const std::filesystem::path& directory) override;
    [[nodiscard]] Outcome<Bytes> readFile(const std::filesystem::path& file, std::size_t limit) const override;
    [[nodiscard]] Outcome<void> removeItem(const std::filesystem::path& item) override;
    [[nodiscard]] Outcome<void> writeFile(const std::filesystem::path& file, const Bytes& content) override;
};

} // namespace orken::desktop
