#pragma once

#include "platform/Files.h"
#include "simulated/Part.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace orken::simulated {

/// Folders and files in memory, listed in the order in which they were made.
class SimulatedFiles final : public Files, Part {
public:
    using Path = std::filesystem::path;

    using Part::Part;

    [[nodiscard]] Path homeDirectory() const override { return "/home/student"; }

    [[nodiscard]] bool fileExists(const Path& item) const override { return exists(item); }

    [[nodiscard]] std::vector<Path> cachesDirectories() const override { return caches; }

    [[nodiscard]] Outcome<Path> downloadsDirectory() override
    {
        return downloads ? Outcome<Path>(*downloads) : failure("/home/student/Downloads", EACCES);
    }

    [[nodiscard]] Outcome<std::vector<std::string>> contentsOfDirectory(const Path& directory) const override
    {
        if (!folders_.contains(directory)) {
            return failure(directory, exists(directory) ? ENOTDIR : ENOENT);
        }
        std::vector<std::string> names;
        for (const Path& item : items_) {
            if (item.parent_path() == directory) {
                names.push_back(item.filename().string());
            }
        }
        return names;
    }

    [[nodiscard]] Outcome<void> removeItem(const Path& item) override
    {
        if (const int code = codeOf(item, failingRemovals, exists(item) ? 0 : ENOENT)) {
            return failure(item, code);
        }
        for (const Path& inside : std::vector(items_)) {
            if (inside.parent_path() == item) {
                if (auto removed = removeItem(inside); !removed) {
                    return removed;
                }
            }
        }
        std::erase(items_, item);
        folders_.erase(item);
        journal_.add("remove " + item.string());
        return {};
    }

    [[nodiscard]] Outcome<void> createDirectory(const Path& directory) override
    {
        if (const int code = codeOf(directory, failingWrites, 0)) {
            return failure(directory, code);
        }
        if (!exists(directory)) {
            addFile(directory);
        }
        folders_.insert(directory);
        return {};
    }

    [[nodiscard]] Outcome<Bytes> readFile(const Path& file, std::size_t limit) const override
    {
        const auto content = contents.find(file);
        if (!exists(file) || content == contents.end()) {
            return failure(file, !exists(file) ? ENOENT : folders_.contains(file) ? EISDIR : EIO);
        }
        return content->second.size() > limit ? Outcome<Bytes>(failure(file, EFBIG)) : content->second;
    }

    [[nodiscard]] Outcome<void> writeFile(const Path& file, const Bytes& content) override
    {
        if (const int code = codeOf(file, failingWrites, folders_.contains(file) ? EISDIR : 0)) {
            return failure(file, code);
        }
        if (!exists(file)) {
            addFile(file);
        }
        contents[file] = content;
        journal_.add("write " + file.string());
        return {};
    }

    /// The folders above are made where they are missing.
    void addFile(const Path& file, const std::optional<std::string>& content = std::nullopt)
    {
        const Path folder = file.parent_path();
        if (folder.has_relative_path() && !exists(folder)) {
            addFile(folder);
        }
        folders_.insert(folder);
        items_.push_back(file);
        if (content) {
            contents[file] = toBytes(*content);
        }
    }

    [[nodiscard]] bool exists(const Path& item) const
    {
        return std::find(items_.begin(), items_.end(), item) != items_.end();
    }

    std::vector<Path> caches{"/home/student/.cache"};
    /// Removals that fail, with this error code.
    std::map<Path, int> failingRemovals;
    std::map<Path, int> failingWrites;
    /// Absent: it cannot be made.
    std::optional<Path> downloads = "/home/student/Downloads";
    /// What was written.
    std::map<Path, Bytes> contents;

private:
    static int codeOf(const Path& item, const std::map<Path, int>& failing, int otherwise)
    {
        const auto place = failing.find(item);
        return place == failing.end() ? otherwise : place->second;
    }

    static PlatformError failure(const Path& item, int code)
    {
        return platformError("posix", code, item.string(), "error " + std::to_string(code));
    }

    std::vector<Path> items_;
    std::set<Path> folders_;
};

} // namespace orken::simulated
