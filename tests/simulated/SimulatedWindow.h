#pragma once

#include "platform/FullScreenTransition.h"
#include "platform/NotificationCenter.h"
#include "platform/WindowRegistry.h"
#include "simulated/Journal.h"
#include "simulated/MainLoop.h"
#include "simulated/StubViewHost.h"
#include "view/ViewTree.h"

#include <functional>
#include <memory>
#include <string>

namespace orken::simulated {

/// What kind of desktop the client finds itself on.
struct DesktopOptions {
    /// Whether the hidden alert panel that closes the window list is there.
    bool permanentPanel = true;
    /// Without one nobody carries out a change to full screen.
    bool windowManager = true;
};

class SimulatedWindow final : public Window, public std::enable_shared_from_this<SimulatedWindow> {
public:
    struct Surroundings {
        MainLoop& loop;
        NotificationCenter& notifications;
        Journal& journal;
        WindowRegistry& registry;
        DesktopOptions options;
    };

    SimulatedWindow(const Surroundings& surroundings, WindowKind kind, WindowStyleMask styleMask)
        : surroundings_(surroundings), kind_(kind), styleMask_(styleMask)
    {
    }

    ~SimulatedWindow() override { dropContent(); }

    [[nodiscard]] bool isVisible() const override { return visible_; }

    [[nodiscard]] WindowStyleMask styleMask() const override
    {
        return styleMask_ | (fullScreen_.isFullScreen() ? windowStyle::kFullScreen : 0U);
    }

    void setTitle(const std::string& title) override;

    void center() override { surroundings_.journal.add("center"); }

    void makeKeyAndOrderFront() override;
    void setContentView(std::unique_ptr<View> root) override;
    void toggleFullScreen() override;
    void close() override;

    // The desktop's side.
    [[nodiscard]] const std::string& title() const { return title_; }

    [[nodiscard]] StubViewHost& content() { return *content_; }

    void setVisible(bool visible) { visible_ = visible; }

    void dropContent();

    /// What a close by the program brings beyond the window's going off the screen.
    std::function<void()> onClose = [] {};

private:
    void post(FullScreenChange change) { surroundings_.notifications.post(notificationName(change)); }

    void endTransition(bool fullScreen);

    Surroundings surroundings_;
    WindowKind kind_;
    WindowStyleMask styleMask_;
    std::string title_;
    bool visible_ = false;
    FullScreenTransition fullScreen_;
    std::unique_ptr<StubViewHost> content_ = std::make_unique<StubViewHost>();
    std::shared_ptr<ViewTree> tree_;
};

} // namespace orken::simulated
