#include "linux/animation/RendererProcess.h"

#include "linux/animation/RendererSpawn.h"

#include <fcntl.h>
#include <sys/socket.h>

#include <cassert>
#include <cerrno>
#include <csignal>
#include <utility>

namespace orken::desktop {

RendererProcess::RendererProcess(const std::filesystem::path& program, const std::string& document, Events events)
    : events_(std::move(events))
{
    const bool hasStarted = start(program, document);
    // Never from inside the constructor.
    deadline_ = Source::after(hasStarted ? kStartPatience : Seconds{0}, [this] { fail(); });
}

RendererProcess::~RendererProcess()
{
    if (process_ > 0) {
        // Not yet collected, so the number is still its own. Its end is watched for after this object has gone.
        kill(process_, SIGKILL);
        g_child_watch_add(
            process_, [](GPid, gint, gpointer) {}, nullptr);
    }
}

bool RendererProcess::start(const std::filesystem::path& program, const std::string& document)
{
    int ends[2] = {-1, -1};
    const FileDescriptor memory = documentInMemory(document);
    if (!pixels_ || !memory || socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) != 0) {
        return false;
    }
    socket_ = FileDescriptor(ends[0]);
    const FileDescriptor other(ends[1]);
    // The renderer waits for what is asked.
    if (fcntl(other.get(), F_SETFL, 0) != 0) {
        return false;
    }
    const auto process =
        spawnRenderer(program, {.socket = other.get(), .pixels = pixels_.descriptor(), .document = memory.get()});
    process_ = process.value_or(0);
    input_ = Source::onInput(socket_.get(), [this] { read(); });
    return process.has_value();
}

void RendererProcess::request(const renderer::Request& request)
{
    assert(!isBusy());
    request_ = request;
    if (isReady_) {
        send();
    }
}

void RendererProcess::send()
{
    // A renderer that has gone is found out by reading.
    (void)::send(socket_.get(), &*request_, sizeof *request_, MSG_NOSIGNAL);
    deadline_ = Source::after(kPatience, [this] { fail(); });
}

void RendererProcess::read()
{
    renderer::Answer answer{};
    const ssize_t count = recv(socket_.get(), &answer, sizeof answer, 0);
    if (count == static_cast<ssize_t>(sizeof answer)) {
        take(answer);
    } else if (count >= 0 || (errno != EAGAIN && errno != EINTR)) {
        fail();
    }
}

void RendererProcess::take(renderer::Answer answer)
{
    if (answer == renderer::Answer::ready && !isReady_) {
        isReady_ = true;
        deadline_.end();
        if (request_) {
            send();
        }
    } else if (answer == renderer::Answer::drawn && isReady_ && request_) {
        request_.reset();
        deadline_.end();
        // What is called may end this object.
        const auto drawn = events_.drawn;
        drawn();
    } else {
        fail();
    }
}

void RendererProcess::fail()
{
    deadline_.end();
    input_.end();
    if (const auto failed = std::exchange(events_.failed, nullptr)) {
        failed();
    }
}

} // namespace orken::desktop
