#pragma once

#include <unistd.h>

#include <utility>

namespace orken::desktop {

/// Owns a descriptor, which is negative where there is none.
class FileDescriptor {
public:
    FileDescriptor() = default;

    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}

    FileDescriptor(FileDescriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }

    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    ~FileDescriptor() { (void)close(); }

    /// False, with `errno` set, for an error that the system tells only now.
    [[nodiscard]] bool close()
    {
        const int descriptor = std::exchange(descriptor_, -1);
        return descriptor < 0 || ::close(descriptor) == 0;
    }

    [[nodiscard]] int get() const { return descriptor_; }

    explicit operator bool() const { return descriptor_ >= 0; }

private:
    int descriptor_ = -1;
};

} // namespace orken::desktop
