#include "contract/ContractDesktop.h"

namespace orken {

namespace {

/// Answers a server's certificate in one of three ways, and counts how its page's load ended.
class Judge final : public NavigationDelegate {
public:
    Judge(bool makesExceptions, ChallengeDisposition answer) : makesExceptions_(makesExceptions), answer_(answer) {}

    void didFailNavigation(BrowserView&, const PlatformError&) override { ++failed; }

    void didFailProvisionalNavigation(BrowserView&, const PlatformError&) override { ++failed; }

    void didFinishNavigation(BrowserView&) override { ++finished; }

    void didReceiveAuthenticationChallenge(BrowserView&, const AuthenticationChallenge& challenge,
                                           std::function<void(ChallengeDisposition)> decide) override
    {
        ASSERT_TRUE(challenge.serverTrust);
        if (makesExceptions_) {
            challenge.serverTrust->setOwnExceptions();
        }
        decide(answer_);
    }

    void decidePolicyForNavigationAction(BrowserView&, const NavigationAction&,
                                         std::function<void(NavigationPolicy)> decide) override
    {
        decide(NavigationPolicy::allow);
    }

    int failed = 0;
    int finished = 0;

private:
    bool makesExceptions_;
    ChallengeDisposition answer_;
};

} // namespace

TEST_P(Contract, anUntrustedServerPassesByTheDelegatesExceptionAlone)
{
    launch();
    const std::string page = desktop->untrustedPage();
    const std::tuple<bool, ChallengeDisposition, bool> cases[] = {
        {true, ChallengeDisposition::cancelAuthenticationChallenge, false},
        {false, ChallengeDisposition::useCredential, false},
        {true, ChallengeDisposition::useCredential, true},
    };
    for (const auto& [makesExceptions, answer, passes] : cases) {
        const auto view = ports.browserViews.make();
        const auto judge = std::make_shared<Judge>(makesExceptions, answer);
        view->setNavigationDelegate(judge);
        view->load({.url = page});
        EXPECT_TRUE(runUntil([&] { return judge->failed + judge->finished > 0; }));
        settle();
        EXPECT_EQ(judge->finished, passes ? 1 : 0);
        EXPECT_EQ(judge->failed, passes ? 0 : 1);
    }
}

} // namespace orken
