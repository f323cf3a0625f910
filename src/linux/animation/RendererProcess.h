#pragma once

#include "linux/animation/FramePixels.h"
#include "linux/loop/Source.h"
#include "linux/renderer/Protocol.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <sys/types.h>

namespace orken::desktop {

/// A renderer at work on one document: a process of its own, which ends with this object. Main thread only.
class RendererProcess {
public:
    struct Events {
        /// The frame that was asked for is in `pixels`, until the next request.
        std::function<void()> drawn;
        /// Once, instead of an answer or at any other time: the renderer cannot start, crashed, went over a limit, did
        /// not answer in time or cannot use the document. Both may destroy this object.
        std::function<void()> failed;
    };

    /// From a request to its answer.
    static constexpr Seconds kPatience{0.5};
    /// For the program to come up, on however busy a machine.
    static constexpr Seconds kStartPatience{10};

    RendererProcess(const std::filesystem::path& program, const std::string& document, Events events);
    ~RendererProcess();

    RendererProcess(const RendererProcess&) = delete;
    RendererProcess& operator=(const RendererProcess&) = delete;

    /// One at a time. It waits for the renderer to be ready.
    void request(const renderer::Request& request);

    [[nodiscard]] bool isBusy() const { return request_.has_value(); }

    [[nodiscard]] const void* pixels() const { return pixels_.get(); }

private:
    [[nodiscard]] bool start(const std::filesystem::path& program, const std::string& document);
    void send();
    void read();
    void take(renderer::Answer answer);
    void fail();

    Events events_;
    FramePixels pixels_;
    FileDescriptor socket_;
    pid_t process_ = 0;
    bool isReady_ = false;
    std::optional<renderer::Request> request_;
    Source input_;
    Source deadline_;
};

} // namespace orken::desktop
