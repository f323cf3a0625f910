#include "view/Element.h"

#include <gtest/gtest.h>

namespace orken {
namespace {

constexpr Insets kAround{.top = 16, .leading = 16, .bottom = 16, .trailing = 16};
constexpr Frame kFrame{.width = 300, .height = 50};

/// The modifiers from the outside in.
std::vector<Modifiers> layers(const Element& element)
{
    std::vector<Modifiers> result{element.modifiers()};
    if (!element.children().empty()) {
        const auto inside = layers(element.children().front());
        result.insert(result.end(), inside.begin(), inside.end());
    }
    return result;
}

Modifiers with(Insets inner, std::optional<Frame> frame, std::optional<Color> background, Insets outer)
{
    Modifiers modifiers;
    modifiers.innerPadding = inner;
    modifiers.frame = frame;
    modifiers.background = background;
    modifiers.padding = outer;
    return modifiers;
}

TEST(Modifiers, eachWorksOnWhatStandsBeforeIt)
{
    const Color gray = Color::gray();
    const Insets doubled{.top = 32, .leading = 32, .bottom = 32, .trailing = 32};

    const struct {
        const char* order;
        Element element;
        std::vector<Modifiers> layers;
    } cases[] = {
        {"padding twice", Text("").padding().padding(), {with({}, {}, {}, doubled)}},
        {"frame, background", Text("").frame(kFrame).background(gray), {with({}, kFrame, gray, {})}},
        {"padding, frame", Text("").padding().frame(kFrame), {with(kAround, kFrame, {}, {})}},
        {"frame, padding", Text("").frame(kFrame).padding(), {with({}, kFrame, {}, kAround)}},
        {"padding, background", Text("").padding().background(gray), {with(kAround, {}, gray, {})}},
        {"background, padding", Text("").background(gray).padding(), {with({}, {}, gray, kAround)}},
        {"background, frame",
         Text("").background(gray).frame(kFrame),
         {with({}, kFrame, {}, {}), with({}, {}, gray, {})}},
        {"frame, padding, background",
         Text("").frame(kFrame).padding().background(gray),
         {with({}, {}, gray, {}), with({}, kFrame, {}, kAround)}},
    };

    for (const auto& one : cases) {
        EXPECT_EQ(layers(one.element), one.layers) << one.order;
    }
}

TEST(Modifiers, anInnerFontOrColourWinsOverAnOuterOne)
{
    const Element stack = VStack({Text("own").font(Font::caption).foreground(Color::gray()), Text("none")})
                              .font(Font::headline)
                              .foreground(Color::destructive());
    EXPECT_EQ(stack.children()[0].modifiers().font, Font::caption);
    EXPECT_EQ(stack.children()[0].modifiers().foreground, Color::gray());
    EXPECT_EQ(stack.children()[1].modifiers().font, Font::headline);
    EXPECT_EQ(stack.children()[1].modifiers().foreground, Color::destructive());
}

TEST(Modifiers, opacityMultipliesAndNothingEnablesWhatIsDisabled)
{
    const Element text = Text("").opacity(0.5).opacity(0.5).disabled(true).disabled(false);
    EXPECT_DOUBLE_EQ(text.modifiers().opacity, 0.25);
    EXPECT_FALSE(text.modifiers().enabled);
}

TEST(Modifiers, theKeyBelongsToTheOutermostLayer)
{
    const Element text = Text("").key("k").background(Color::gray()).frame(kFrame);
    EXPECT_EQ(text.identity(), "k");
    EXPECT_EQ(text.children().front().identity(), std::nullopt);
}

} // namespace
} // namespace orken
