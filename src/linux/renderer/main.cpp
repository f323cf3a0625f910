#include "linux/renderer/Confinement.h"
#include "linux/renderer/Drawing.h"
#include "linux/renderer/Protocol.h"

#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <optional>
#include <string>

// Draws the frames of one animation document for the client, which starts it, asks and ends it. Nothing but the client
// uses it: without its descriptors it ends at once.

namespace {

using namespace orken::desktop::renderer;

std::optional<std::string> readDocument()
{
    struct stat facts {};

    if (fstat(kDocument, &facts) != 0 || facts.st_size <= 0) {
        return std::nullopt;
    }
    std::string document(static_cast<std::size_t>(facts.st_size), '\0');
    return pread(kDocument, document.data(), document.size(), 0) == facts.st_size ? std::optional(document)
                                                                                  : std::nullopt;
}

void answer(Answer what)
{
    if (send(kSocket, &what, sizeof what, MSG_NOSIGNAL) != static_cast<ssize_t>(sizeof what)) {
        _exit(EXIT_FAILURE);
    }
}

} // namespace

int main()
{
    void* memory = mmap(nullptr, kPixelBytes, PROT_READ | PROT_WRITE, MAP_SHARED, kPixels, 0);
    auto document = memory != MAP_FAILED ? readDocument() : std::nullopt;
    if (!document || !limitResources() || !Drawing::warmUp() || !forbidSystemCalls()) {
        return EXIT_FAILURE;
    }
    answer(Answer::ready);

    Drawing drawing(static_cast<std::uint32_t*>(memory));
    Request request;
    bool isLoaded = false;
    // Ends when the client has gone or lets go of it.
    while (recv(kSocket, &request, sizeof request, 0) == static_cast<ssize_t>(sizeof request)) {
        isLoaded = isLoaded || (document && drawing.load(std::move(*document)));
        document.reset();
        answer(isLoaded && drawing.draw(request) ? Answer::drawn : Answer::unusable);
    }
    // The library's threads are not waited for.
    _exit(EXIT_SUCCESS);
}
