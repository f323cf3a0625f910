#pragma once

#include "platform/Ports.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

namespace orken {

/// One desktop under the tests that every desktop has to pass: its ports, and what only its outside can do.
class ContractDesktop {
public:
    virtual ~ContractDesktop() = default;

    /// Starts the application. The group's window is on the screen when this returns, and the main loop is served by
    /// `runUntil` alone.
    virtual void launch(ApplicationDelegate& delegate, const WindowGroup& group) = 0;
    /// Serves the main loop and the background queue; false when the limit came first.
    [[nodiscard]] virtual bool runUntil(const std::function<bool()>& done, Seconds limit) = 0;
    /// The user presses this button, counted from 0, of the next alert.
    virtual void answerNextAlert(std::size_t button) = 0;
    /// A new folder with the file "a" and the folder "b", which holds the file "c".
    [[nodiscard]] virtual std::filesystem::path makeFolder() = 0;
    /// An http address at which nobody listens.
    [[nodiscard]] virtual std::string refusedAddress() = 0;
    /// An https address of a page whose server shows a certificate that nobody vouches for.
    [[nodiscard]] virtual std::string untrustedPage() = 0;

    [[nodiscard]] virtual Ports ports() = 0;
};

/// Each test of the suite gets a desktop of its own. An executable with the suite names its maker:
/// `INSTANTIATE_TEST_SUITE_P(simulated, Contract, testing::Values(&makeSimulatedDesktop));`
class Contract : public testing::TestWithParam<std::unique_ptr<ContractDesktop> (*)()> {
protected:
    /// A window's content that counts how often it was described and has appeared.
    class Content final : public View {
    public:
        explicit Content(Contract& test) : test_(test) { test.text = makeState(std::string("before")); }

        [[nodiscard]] Element body() override
        {
            ++test_.bodies;
            return Text(test_.text->get()).onAppear([this] { ++test_.appeared; });
        }

    private:
        Contract& test_;
    };

    class Delegate final : public ApplicationDelegate {
    public:
        void applicationWillTerminate() override { ++terminations; }

        int terminations = 0;
    };

    void launch()
    {
        desktop->launch(delegate, {.title = "start", .content = [this] { return std::make_unique<Content>(*this); }});
    }

    /// An ordinary window, hidden.
    [[nodiscard]] std::shared_ptr<Window> makeWindow()
    {
        return ports.windows.makeWindow({.width = 640, .height = 480}, windowStyle::kTitled | windowStyle::kResizable);
    }

    [[nodiscard]] bool runUntil(const std::function<bool()>& done) { return desktop->runUntil(done, Seconds{10}); }

    /// Lets everything happen that is on its way.
    void settle()
    {
        (void)desktop->runUntil([] { return false; }, Seconds{0.5});
    }

    // Filled by the content and the delegate, which the desktop may hold to its end.
    std::optional<State<std::string>> text;
    int bodies = 0;
    int appeared = 0;
    Delegate delegate;
    std::unique_ptr<ContractDesktop> desktop = GetParam()();
    Ports ports = desktop->ports();
};

} // namespace orken
