#include "resources/drawing/Drawing.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "Raster.h"
#include "resources/drawing/Glyphs.h"
#include "resources/drawing/Pen.h"

using namespace resources;
using namespace resources::drawing;

namespace {

constexpr base::Colour kBlack{0};

int dots(const Drawing& drawing) {
    const Raster raster(drawing, 4);
    int count = 0;
    for (int y = 0; y < raster.height(); ++y) {
        for (int x = 0; x < raster.width(); ++x)
            count += raster.at(x, y).has_value();
    }
    return count;
}

Drawing sheet() { return {20, 20, {}}; }

}  // namespace

TEST(Path, FiguresHaveTheirArea) {
    EXPECT_NEAR(dots(sheet().fill(Path().circle({10, 10}, 8), kBlack)), 3217, 30);
    EXPECT_NEAR(dots(sheet().fill(Path().rounded_rectangle(2, 2, 16, 16, 8), kBlack)), 3217, 30);
    EXPECT_NEAR(dots(sheet().fill(Path("M 2 2 L 18 2 18 18 Z"), kBlack)), 2048, 40);
    EXPECT_NEAR(dots(sheet().line(Path("M 4 10 L 16 10"), kBlack, 4)), 16 * (48 + 12.6), 20) << "round ends";
    Path ring;
    ring.circle({10, 10}, 8).circle({10, 10}, 4);
    EXPECT_NEAR(dots(sheet().fill(ring, kBlack, FillRule::EvenOdd)), 2413, 30);
    EXPECT_NEAR(dots(sheet().fill(ring, kBlack)), 3217, 30);
}

TEST(Path, SmoothCurvesPassThroughTheirPoints) {
    const Path curve("M 0 0 R 4 8 10 2 L 20 2 Z O 1 1 9 1 5 7");
    const std::vector<Point>& points = curve.points();
    EXPECT_EQ(points[3], (Point{4, 8}));
    EXPECT_EQ(points[6], (Point{10, 2}));
    EXPECT_EQ(points.back(), (Point{1, 1}));
    EXPECT_TRUE(curve.flattened()[1].closed);
}

TEST(Path, UnreadableTextIsRefused) {
    for (const char* text : {"M 1", "M 1 2 3 4", "X 1 2", "M 0 0 C 1 1 2 2", "M 0 0 L 1 -", "R 1 1", "O 1 1 2 2"}) {
        EXPECT_THROW(Path{text}, std::invalid_argument) << text;
    }
    EXPECT_THROW(text_path("Q", 16), std::invalid_argument);
}

TEST(Drawing, CutKeepsOneSide) {
    const HalfPlane kUpper{{10, 10}, {0, -1}};
    const Drawing half = sheet().fill(Path().circle({10, 10}, 8), kBlack).cut(kUpper);
    EXPECT_NEAR(dots(half), 1608, 20);
    EXPECT_DOUBLE_EQ(half.bounds().bottom, 10);
    // An open line that goes out and comes back falls into two; a shape outside vanishes.
    const Drawing lines = sheet().line(Path("M 2 5 L 6 15 L 14 15 L 18 5"), kBlack, 1).cut(kUpper);
    ASSERT_EQ(lines.shapes.size(), 1U);
    EXPECT_EQ(lines.shapes[0].path.flattened().size(), 2U);
    EXPECT_TRUE(sheet().fill(Path().rectangle(2, 12, 5, 5), kBlack).cut(kUpper).shapes.empty());
}

TEST(Drawing, AddedDrawingsScaleWithTheirLines) {
    const Drawing line = sheet().line(Path("M 1 1 L 5 1"), kBlack, 2);
    const Drawing larger = sheet().add(line, Transform::scale(3, 3));
    EXPECT_DOUBLE_EQ(larger.shapes[0].stroke->width, 6);
    EXPECT_DOUBLE_EQ(larger.bounds().right, 18);
    const Transform half = Transform::turn(180, {10, 10});
    EXPECT_EQ(half({1, 4}), (Point{19, 16}));
    EXPECT_EQ(Transform::move(1, 0).then(Transform::scale(2, 2))({3, 3}), (Point{8, 6}));
}

TEST(Pen, WidthFollowsTheDirectionOrTheWay) {
    EXPECT_NEAR(dots(sheet().fill(pen_stroke(Path("M 10 2 L 10 18"), 1, 4), kBlack)), 16 * 64, 10) << "upright";
    EXPECT_NEAR(dots(sheet().fill(pen_stroke(Path("M 2 10 L 18 10"), 1, 4), kBlack)), 16 * 16, 10) << "level";
    EXPECT_NEAR(dots(sheet().fill(taper(Path("M 2 10 L 18 10"), 0, 8), kBlack)), 16 * 64, 20);
    EXPECT_NEAR(dots(sheet().fill(pen_stroke(Path().circle({10, 10}, 6), 2, 2), kBlack)), 16 * 75.4, 25) << "a ring";
}
