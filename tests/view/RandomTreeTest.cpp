#include "view/Screen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>

namespace orken {
namespace {

constexpr std::size_t kParts = 6;

/// Randomly described views, each of which may hold the ones with higher numbers.
class World {
public:
    class Part;

    explicit World(unsigned seed) : random_(seed)
    {
        for (std::size_t part = 0; part < kParts; ++part) {
            change(part);
        }
    }

    void change(std::size_t part) { seeds_.at(part) = random_(); }

    [[nodiscard]] unsigned pick(unsigned count) { return static_cast<unsigned>(random_() % count); }

    [[nodiscard]] Element describe(std::size_t part)
    {
        std::mt19937 random(seeds_.at(part));
        return describe(random, part, 0);
    }

    std::set<Part*> alive;

private:
    Element describe(std::mt19937& random, std::size_t part, int depth);
    Element bare(std::mt19937& random, std::size_t part, int depth);

    std::mt19937 random_;
    std::array<std::mt19937::result_type, kParts> seeds_{};
};

class World::Part final : public View {
public:
    Part(World& world, std::size_t part) : number(part), world_(world) { world_.alive.insert(this); }

    ~Part() override { world_.alive.erase(this); }

    [[nodiscard]] Element body() override { return world_.describe(number); }

    std::size_t number;

private:
    World& world_;
};

Element World::describe(std::mt19937& random, std::size_t part, int depth)
{
    Element element = bare(random, part, depth);
    if (element.isEmpty()) {
        return element;
    }
    switch (random() % 8) {
    case 0:
        return std::move(element).padding().background(Color::gray());
    case 1:
        return std::move(element).opacity(0.5).disabled(true);
    case 2:
    case 3:
    case 4: {
        std::string key(1, static_cast<char>('a' + random() % 4));
        return std::move(element).key(std::move(key)); // a key may occur twice among siblings
    }
    default:
        return element;
    }
}

Element World::bare(std::mt19937& random, std::size_t part, int depth)
{
    const auto kind = random() % 8;
    if (kind >= 6 && part + 1 < kParts) {
        const std::size_t inner = part + 1 + random() % (kParts - part - 1);
        return Nested<Part>([this, inner] { return std::make_unique<Part>(*this, inner); },
                            [inner](Part& view) { view.number = inner; });
    }
    if (kind >= 2 && depth < 3) {
        std::vector<Element> children(random() % 5);
        std::generate(children.begin(), children.end(), [&] { return describe(random, part, depth + 1); });
        return kind == 2   ? HStack(std::move(children))
               : kind == 3 ? ZStack(std::move(children))
                           : VStack(std::move(children));
    }
    return kind == 0 ? Element() : Text(std::string(1, static_cast<char>('x' + random() % 3)));
}

TEST(RandomTree, aRedrawnTreeIsTheTreeThatTheSameDescriptionGivesAnew)
{
    for (unsigned seed = 0; seed < 60; ++seed) {
        World world(seed);
        Screen screen(std::make_unique<World::Part>(world, 0));
        for (int round = 0; round < 12; ++round) {
            const auto changed = world.pick(kParts);
            world.change(changed);
            for (World::Part* part : world.alive) {
                if (part->number == changed) {
                    part->invalidation()->mark();
                }
            }
            screen.host.runFrame();
            {
                Screen fresh(std::make_unique<World::Part>(world, 0));
                ASSERT_EQ(screen.host.rendered(), fresh.host.rendered()) << "seed " << seed << " round " << round;
            }
            const auto mutations = screen.host.mutationCount();
            screen.redraw();
            ASSERT_EQ(screen.host.mutationCount(), mutations) << "a redraw without a change, seed " << seed;
        }
    }
}

} // namespace
} // namespace orken
