#pragma once

#include "foundation/Bytes.h"
#include "foundation/NonCopyable.h"
#include "foundation/Outcome.h"

#include <filesystem>
#include <string>
#include <vector>

namespace orken {

/// The machine's files. Main thread only.
class Files : NonCopyable {
public:
    virtual ~Files() = default;

    /// The user's home directory, absolute.
    [[nodiscard]] virtual std::filesystem::path homeDirectory() const = 0;

    /// Follows links: one that leads nowhere does not exist, and neither does what cannot be reached.
    [[nodiscard]] virtual bool fileExists(const std::filesystem::path& item) const = 0;

    /// The user's caches directories, absolute; empty when the desktop names none.
    [[nodiscard]] virtual std::vector<std::filesystem::path> cachesDirectories() const = 0;

    /// The user's folder for downloads, absolute; made where it is missing. The error says why there is none.
    [[nodiscard]] virtual Outcome<std::filesystem::path> downloadsDirectory() = 0;

    /// Names of the entries, without "." and "..", in the file system's order; not recursive.
    [[nodiscard]] virtual Outcome<std::vector<std::string>>
    contentsOfDirectory(const std::filesystem::path& directory) const = 0;

    /// With the folders above it; one that exists already is not an error.
    [[nodiscard]] virtual Outcome<void> createDirectory(const std::filesystem::path& directory) = 0;

    /// The whole content of a regular file; one of more than `limit` bytes is an error with the code `EFBIG`.
    [[nodiscard]] virtual Outcome<Bytes> readFile(const std::filesystem::path& file, std::size_t limit) const = 0;

    /// Removes a link itself, a folder with all its contents. The first error ends it, and what is gone is gone. A
    /// missing item is an error with the code `ENOENT`.
    [[nodiscard]] virtual Outcome<void> removeItem(const std::filesystem::path& item) = 0;

    /// Writes the whole file in its place, following a link there. What was in it is gone also when writing fails.
    [[nodiscard]] virtual Outcome<void> writeFile(const std::filesystem::path& file, const Bytes& content) = 0;
};

} // namespace orken
