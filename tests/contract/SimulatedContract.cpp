#include "contract/ContractDesktop.h"
#include "simulated/SimulatedDesktop.h"

namespace orken::simulated {
namespace {

class ContractSide final : public ContractDesktop {
public:
    void launch(ApplicationDelegate& delegate, const WindowGroup& group) override
    {
        EXPECT_EQ(desktop_.application.run(delegate, group), 0);
    }

    [[nodiscard]] bool runUntil(const std::function<bool()>& done, Seconds limit) override
    {
        return desktop_.loop.runUntil(
            [&] {
                desktop_.loop.runBackground();
                return done();
            },
            limit);
    }

    void answerNextAlert(std::size_t button) override { desktop_.alerts.answerNext(button == 0 ? "Evet" : "Hayır"); }

    [[nodiscard]] std::filesystem::path makeFolder() override
    {
        desktop_.files.addFile("/folder/a");
        desktop_.files.addFile("/folder/b/c");
        return "/folder";
    }

    [[nodiscard]] std::string refusedAddress() override { return "http://refused.example/"; }

    [[nodiscard]] std::string untrustedPage() override
    {
        std::string address = "https://untrusted.example/";
        desktop_.browserViews.site[address] = {.untrusted = true};
        return address;
    }

    [[nodiscard]] Ports ports() override { return portsOf(desktop_); }

private:
    SimulatedDesktop desktop_;
};

std::unique_ptr<ContractDesktop> makeDesktop()
{
    return std::make_unique<ContractSide>();
}

} // namespace
} // namespace orken::simulated

namespace orken {

INSTANTIATE_TEST_SUITE_P(simulated, Contract, testing::Values(&simulated::makeDesktop),
                         [](const auto&) { return "desktop"; });

} // namespace orken
