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

TEST(Modifiers, eachWorksOnWhatStandsBeforeIt)
{
    const Color gray = Color::gray();
    const Insets doubled{.top = 32, .leading = 32, .bottom = 32, .trailing = 32};

    const std::tuple<const char*, Element, std::vector<Modifiers>> cases[] = {
        {"padding twice", Text("").padding().padding(), {{.padding = doubled}}},
        {"padding, frame", Text("").padding().frame(kFrame), {{.innerPadding = kAround, .frame = kFrame}}},
        {"background, padding", Text("").background(gray).padding(), {{.background = gray, .padding = kAround}}},
        {"background, frame", Text("").background(gray).frame(kFrame), {{.frame = kFrame}, {.background = gray}}},
        {"frame, padding, background",
         Text("").frame(kFrame).padding().background(gray),
         {{.background = gray}, {.frame = kFrame, .padding = kAround}}},
        {"padding, background, padding",
         Text("").padding().background(gray).padding(),
         {{.innerPadding = kAround, .background = gray, .padding = kAround}}},
    };

    for (const auto& [order, element, expected] : cases) {
        EXPECT_EQ(layers(element), expected) << order;
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

TEST(Modifiers, whatIsDisabledInsideStaysDisabled)
{
    EXPECT_FALSE(Text("").disabled(true).disabled(false).modifiers().enabled);
}

} // namespace
} // namespace orken
