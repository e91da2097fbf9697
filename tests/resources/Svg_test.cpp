#include "resources/drawing/Svg.h"

#include <gtest/gtest.h>

#include "resources/faces/CardFaces.h"

using namespace resources::drawing;

namespace {

constexpr base::Colour kRed = base::Colour::rgb(255, 0, 0);
constexpr base::Colour kSand = base::Colour::rgb(252, 222, 196);

std::string inside(const Drawing& drawing) {
    const std::string text = svg_symbol(drawing, "x");
    const std::size_t begin = text.find('>') + 1;
    return text.substr(begin, text.find("</symbol>") - begin);
}

}  // namespace

TEST(Svg, TellsEachStepFromTheOneBefore) {
    const struct {
        const char* path;
        const char* expected;
    } kPaths[] = {
        {"M 1 2 L 3 2.04 3 1", "M10 20l20 0 0-10"},
        {"M 1 2 L 1.01 2 5 5 Z M 0 0 L -1 -1", "M10 20l40 30zM0 0l-10-10"},
        {"M 1 1 C 2 1 3 2 3 3 C 3 4 2 5 1 5 Z L 0 0", "M10 10c10 0 20 10 20 20 0 10-10 20-20 20zl-10-10"},
        {"M 0.04 0 L 0.08 0 0.12 0 0.16 0", "M0 0l1 0 1 0"},
    };
    for (const auto& [path, expected] : kPaths) {
        EXPECT_EQ(inside(Drawing{10, 10, {}}.fill(Path(path), {0})), std::string("<path d=\"") + expected + "\"/>")
            << path;
    }
}

TEST(Svg, KeepsColoursLinesAndRules) {
    const Path path("M 1 1 L 2 1");
    Drawing drawing{10, 20, {}};
    drawing.fill(path, kSand, FillRule::EvenOdd).line(path, kRed, 0.7).outline(path, kRed, kSand, 1);
    EXPECT_EQ(
        svg_symbol(drawing, "x"),
        "<symbol id=\"x\" viewBox=\"0 0 100 200\" fill=\"#000\" stroke-linecap=\"round\" stroke-linejoin=\"round\">"
        "<path d=\"M10 10l10 0\" fill=\"#fcdec4\" fill-rule=\"evenodd\"/>"
        "<path d=\"M10 10l10 0\" fill=\"none\" stroke=\"#f00\" stroke-width=\"7\"/>"
        "<path d=\"M10 10l10 0\" fill=\"#f00\" stroke=\"#fcdec4\" stroke-width=\"10\"/></symbol>\n");
}

TEST(Svg, WritesAHalfOnceThatComesTurnedToo) {
    const Path one("M 1 1 L 2 1 1 3");
    const Path other("M 4 1 L 2 2 1 3");
    const Transform turn = Transform::turn(180, {5, 5});
    Drawing drawing{10, 10, {}};
    drawing.fill(one, kRed).line(other, kSand, 1);
    drawing.fill(one.transformed(turn), kRed).line(other.transformed(turn), kSand, 1).fill(one, kSand);
    EXPECT_EQ(inside(drawing),
              "<g id=\"x-1\"><path d=\"M10 10l10 0-10 20\" fill=\"#f00\"/>"
              "<path d=\"M40 10l-20 10-10 10\" fill=\"none\" stroke=\"#fcdec4\" stroke-width=\"10\"/></g>"
              "<use href=\"#x-1\" transform=\"rotate(180 50 50)\"/>"
              "<path d=\"M10 10l10 0-10 20\" fill=\"#fcdec4\"/>");
    // The king: index and figure are point-symmetric.
    EXPECT_NE(svg_symbol(resources::faces::card_face(12, resources::faces::CardSize::Large), "k").find("#k-2"),
              std::string::npos);
}
