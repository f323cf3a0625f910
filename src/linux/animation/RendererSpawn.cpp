#include "linux/animation/RendererSpawn.h"

#include "linux/renderer/Protocol.h"

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

namespace orken::desktop {

namespace {

/// What happens in the new process before the program runs.
class Preparation {
public:
    explicit Preparation(const RendererDescriptors& descriptors)
    {
        note(posix_spawn_file_actions_init(&actions_));
        note(posix_spawnattr_init(&attributes_));
        const std::pair<int, int> moves[] = {{descriptors.socket, renderer::kSocket},
                                             {descriptors.pixels, renderer::kPixels},
                                             {descriptors.document, renderer::kDocument}};
        // First aside, to numbers that are neither a place nor one of these, so that none is overwritten before it is
        // moved.
        const int firstAside =
            std::max({descriptors.socket, descriptors.pixels, descriptors.document, renderer::kDocument}) + 1;
        int aside = firstAside;
        for (const auto& [from, to] : moves) {
            note(posix_spawn_file_actions_adddup2(&actions_, from, aside++));
        }
        for (const auto& [from, to] : moves) {
            note(posix_spawn_file_actions_adddup2(&actions_, firstAside + to - renderer::kSocket, to));
        }
        note(posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0));
        note(posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0));
        note(posix_spawn_file_actions_addclosefrom_np(&actions_, renderer::kDocument + 1));

        sigset_t none;
        sigemptyset(&none);
        sigset_t all;
        sigfillset(&all);
        note(posix_spawnattr_setsigmask(&attributes_, &none));
        note(posix_spawnattr_setsigdefault(&attributes_, &all));
        note(posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF));
    }

    Preparation(const Preparation&) = delete;
    Preparation& operator=(const Preparation&) = delete;

    ~Preparation()
    {
        posix_spawn_file_actions_destroy(&actions_);
        posix_spawnattr_destroy(&attributes_);
    }

    /// Nothing of it was left out for want of memory.
    [[nodiscard]] bool isComplete() const { return isComplete_; }

    [[nodiscard]] const posix_spawn_file_actions_t* actions() const { return &actions_; }

    [[nodiscard]] const posix_spawnattr_t* attributes() const { return &attributes_; }

private:
    void note(int error) { isComplete_ = isComplete_ && error == 0; }

    bool isComplete_ = true;
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

} // namespace

std::optional<pid_t> spawnRenderer(const std::filesystem::path& program, const RendererDescriptors& descriptors)
{
    const Preparation preparation(descriptors);
    if (!preparation.isComplete()) {
        return std::nullopt;
    }
    std::string name = program.filename();
    char* arguments[] = {name.data(), nullptr};
    char* environment[] = {nullptr};
    pid_t process = 0;
    // Shares this process's memory until the program runs: nothing is copied, however large the client is.
    const int error =
        posix_spawn(&process, program.c_str(), preparation.actions(), preparation.attributes(), arguments, environment);
    return error == 0 ? std::optional(process) : std::nullopt;
}

} // namespace orken::desktop
