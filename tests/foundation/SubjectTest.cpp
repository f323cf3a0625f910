#include "foundation/Subject.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace orken {
namespace {

/// A subject and what its subscribers heard, in order.
struct SubjectTest : testing::Test {
    std::optional<Subject<std::string>> subject{std::in_place};
    std::string heard;

    Subscription hear(const std::string& name, std::function<void()> then = {})
    {
        return subject->subscribe([this, name, then = std::move(then)](const std::string& value) {
            heard += name + value + " ";
            then ? then() : void();
        });
    }
};

TEST_F(SubjectTest, aCancelledSubscriberIsNotCalled)
{
    subject->send("0"); // replayed to nobody
    Subscription first, second, third;
    first = hear("a", [&] {
        first.cancel();
        third = {};
    });
    second = hear("b");
    third = hear("c");
    subject->send("1");
    subject->send("2");
    EXPECT_EQ(heard, "a1 b1 b2 ");
    second.cancel();
    second.cancel();
    EXPECT_EQ(subject->subscriberCount(), 0U);
}

TEST_F(SubjectTest, aSubscriberMayDestroyTheSubject)
{
    int calls = 0;
    Subscription late;
    auto first = hear("a", [&] {
        switch (++calls) {
        case 1:
            late = hear("n");
            break;
        case 2:
            subject->send("3");
            break;
        case 4:
            subject.reset();
        }
    });
    const auto second = hear("b");
    subject->send("1");
    EXPECT_EQ(std::exchange(heard, ""), "a1 b1 ") << "one that subscribes during a send waits for the next";
    subject->send("2");
    EXPECT_EQ(std::exchange(heard, ""), "a2 a3 b3 n3 b2 n2 ");
    subject->send("4");
    EXPECT_EQ(heard, "a4 b4 n4 ");
    first.cancel();
    EXPECT_FALSE(first);
}

TEST_F(SubjectTest, handlerLivesAsLongAsItsSubscription)
{
    const auto token = std::make_shared<int>();
    auto first = subject->subscribe([token](const std::string&) {});
    auto moved = std::move(first);
    subject.reset();
    EXPECT_EQ(token.use_count(), 2);
    moved = {};
    EXPECT_EQ(token.use_count(), 1);
}

} // namespace
} // namespace orken
