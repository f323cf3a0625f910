#include "linux/animation/FramePixels.h"

#include <fcntl.h>
#include <sys/mman.h>

namespace orken::desktop {

namespace {

FileDescriptor makeMemory(const char* name)
{
    return FileDescriptor(memfd_create(name, MFD_CLOEXEC | MFD_ALLOW_SEALING));
}

} // namespace

FramePixels::FramePixels() : memory_(makeMemory("orken-frame"))
{
    if (!memory_ || ftruncate(memory_.get(), renderer::kPixelBytes) != 0 ||
        fcntl(memory_.get(), F_ADD_SEALS, F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_SEAL) != 0) {
        return;
    }
    void* pixels = mmap(nullptr, renderer::kPixelBytes, PROT_READ, MAP_SHARED, memory_.get(), 0);
    pixels_ = pixels != MAP_FAILED ? pixels : nullptr;
}

FramePixels::~FramePixels()
{
    if (pixels_) {
        munmap(pixels_, renderer::kPixelBytes);
    }
}

FileDescriptor documentInMemory(const std::string& document)
{
    FileDescriptor memory = makeMemory("orken-animation");
    const bool isWritten =
        memory && write(memory.get(), document.data(), document.size()) == static_cast<ssize_t>(document.size());
    const int seals = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE | F_SEAL_SEAL;
    return isWritten && fcntl(memory.get(), F_ADD_SEALS, seals) == 0 ? std::move(memory) : FileDescriptor();
}

} // namespace orken::desktop
