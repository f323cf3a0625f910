#include "view/Screen.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <set>

namespace orken {
namespace {

constexpr std::size_t kParts = 5;

enum class Kind { nothing, text, row, column, layers, part };

/// An element that can be described again and changed a little.
struct Description {
    Kind kind = Kind::nothing;
    /// What a text says.
    char letter = 'x';
    bool boxed = false;
    std::size_t part = 0;
    std::vector<Description> children;
};

/// Views that hold the ones with higher numbers, and change at random.
class World {
public:
    struct Part;

    explicit World(unsigned seed) : random_(seed)
    {
        for (std::size_t part = 0; part < kParts; ++part) {
            parts_.at(part) = {.kind = Kind::column, .children = {make(part, 1), make(part, 1), make(part, 1)}};
        }
    }

    [[nodiscard]] std::size_t pick(std::size_t count) { return random_() % count; }

    void change(std::size_t part) { change(parts_.at(part), part, 0); }

    [[nodiscard]] Element describe(std::size_t part) { return describe(parts_.at(part)); }

    std::set<Part*> alive;

private:
    Description make(std::size_t part, int depth);
    void change(Description& description, std::size_t part, int depth);
    Element describe(const Description& description);

    std::mt19937 random_;
    std::array<Description, kParts> parts_;
};

struct World::Part final : View {
    Part(World& within, std::size_t part) : world(within), number(part) { world.alive.insert(this); }

    ~Part() override { world.alive.erase(this); }

    [[nodiscard]] Element body() override { return world.describe(number); }

    World& world;
    std::size_t number;
};

Description World::make(std::size_t part, int depth)
{
    Description made{.kind = static_cast<Kind>(pick(6)),
                     .letter = static_cast<char>('x' + pick(3)),
                     .boxed = pick(4) == 0,
                     .part = part + 1 + pick(kParts)};
    if ((made.kind == Kind::part && made.part >= kParts) || depth > 3) {
        made.kind = Kind::text;
    }
    if (made.kind == Kind::row || made.kind == Kind::column || made.kind == Kind::layers) {
        made.children.resize(pick(5));
        std::generate(made.children.begin(), made.children.end(), [&] { return make(part, depth + 1); });
    }
    return made;
}

void World::change(Description& description, std::size_t part, int depth)
{
    auto& children = description.children;
    const auto place = children.begin() + static_cast<std::ptrdiff_t>(pick(children.size() + 1));
    switch (pick(6)) {
    case 0:
        description = make(part, depth);
        break;
    case 1:
        std::shuffle(children.begin(), children.end(), random_);
        break;
    case 2:
        children.insert(place, make(part, depth + 1));
        break;
    case 3:
        children.erase(place, place == children.end() ? place : place + 1);
        break;
    default:
        if (place != children.end()) {
            change(*place, part, depth + 1);
        }
    }
}

Element World::describe(const Description& description)
{
    std::vector<Element> inside;
    for (const Description& child : description.children) {
        inside.push_back(describe(child));
    }
    const auto element = [&, part = description.part]() -> Element {
        switch (description.kind) {
        case Kind::nothing:
            return {};
        case Kind::text:
            return Text(std::string(1, description.letter));
        case Kind::row:
            return HStack(std::move(inside));
        case Kind::column:
            return VStack(std::move(inside));
        case Kind::layers:
            return ZStack(std::move(inside));
        case Kind::part:
            break;
        }
        return Nested<Part>([this, part] { return std::make_unique<Part>(*this, part); },
                            [part](Part& view) { view.number = part; });
    };
    const bool boxed = description.boxed && description.kind != Kind::nothing;
    return boxed ? element().background(Color::gray()) : element();
}

TEST(RandomTree, aRedrawnTreeIsTheTreeThatTheSameDescriptionGivesAnew)
{
    for (unsigned seed = 0; seed < 40; ++seed) {
        World world(seed);
        Screen screen(std::make_unique<World::Part>(world, 0));
        for (int round = 0; round < 15; ++round) {
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
                ASSERT_TRUE(screen.host.looksLike(fresh.host)) << "seed " << seed << " round " << round;
            }
            const auto mutations = screen.host.mutationCount();
            screen.redraw();
            ASSERT_EQ(screen.host.mutationCount(), mutations) << "a redraw without a change, seed " << seed;
        }
    }
}

} // namespace
} // namespace orken
