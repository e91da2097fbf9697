#include "resources/PictureTable.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "Raster.h"
#include "base/Fout.h"
#include "resources/Icon.h"

using namespace resources;
using namespace resources::drawing;

namespace {

constexpr int kFirst = -1;
constexpr int kLast = 2400;

void expect_inside_its_box(const Drawing& drawing, const std::string& what) {
    const Bounds bounds = drawing.bounds();
    EXPECT_GE(bounds.left, 0) << what;
    EXPECT_GE(bounds.top, 0) << what;
    EXPECT_LE(bounds.right, drawing.width) << what;
    EXPECT_LE(bounds.bottom, drawing.height) << what;
}

template <typename Action>
int failure_of(Action action) {
    try {
        action();
    } catch (const base::Fout& fout) {
        return fout.nummer();
    }
    return 0;
}

std::set<base::Colour> colours(const Drawing& drawing) {
    std::set<base::Colour> found;
    for (const Shape& shape : drawing.shapes) {
        if (shape.stroke) found.insert(shape.stroke->colour);
    }
    return found;
}

}  // namespace

TEST(PictureTable, HoldsHundredAndTenPicturesInFourSizes) {
    std::map<std::pair<int, int>, int> count;
    for (int number = kFirst; number <= kLast; ++number) {
        if (!has_picture(number)) {
            EXPECT_EQ(failure_of([&] { draw_picture(number); }), 326) << number;
            EXPECT_EQ(failure_of([&] { picture_size(number); }), 326) << number;
            continue;
        }
        const Drawing drawing = draw_picture(number);
        const Size size = picture_size(number);
        EXPECT_EQ(drawing.width, size.width) << number;
        EXPECT_EQ(drawing.height, size.height) << number;
        expect_inside_its_box(drawing, std::to_string(number));
        ++count[{size.width, size.height}];
    }
    for (const int number : {105, 111, 2100, 2153, 2200, 2254})
        EXPECT_FALSE(has_picture(number)) << number;
    EXPECT_EQ(count,
              (std::map<std::pair<int, int>, int>{{{14, 14}, 4}, {{23, 18}, 1}, {{65, 97}, 52}, {{104, 156}, 53}}));
}

TEST(PictureTable, SuitSymbolsFillTheirBoxInTheirColour) {
    const std::map<int, base::Colour> kColours{
        {106, {0}}, {107, base::Colour::rgb(255, 0, 0)}, {108, base::Colour::rgb(255, 0, 0)}, {109, {0}}};
    for (const auto& [number, colour] : kColours) {
        const std::vector<Patch> found = patches(Raster(draw_picture(number), 8), colour);
        ASSERT_EQ(found.size(), 1U) << number;
        EXPECT_GE(found[0].bottom - found[0].top, 100) << number;
        EXPECT_GE(found[0].right - found[0].left, 80) << number;
    }
    EXPECT_EQ(patches(Raster(draw_picture(110), 8), {0}).size(), 2U) << "two letters";
}

TEST(ScreenPictures, SizesAndNames) {
    const std::map<std::string, Size> kSizes{{"logo", {208, 54}},      {"maker", {110, 110}}, {"gezicht0", {140, 128}},
                                             {"gezicht1", {140, 128}}, {"ja", {30, 30}},      {"nee", {30, 30}},
                                             {"bezig", {30, 30}}};
    for (const auto& [name, size] : kSizes) {
        const Drawing drawing = draw_named_picture(name);
        EXPECT_EQ(drawing.width, size.width) << name;
        EXPECT_EQ(drawing.height, size.height) << name;
        expect_inside_its_box(drawing, name);
    }
    for (const char* name : {"", "Logo", "gezicht2", "gezicht"}) {
        EXPECT_EQ(failure_of([&] { draw_named_picture(name); }), 326) << name;
    }
}

TEST(ScreenPictures, BlinkChangesTheEyesAlone) {
    const Raster open(draw_named_picture("gezicht0"));
    const Raster closed(draw_named_picture("gezicht1"));
    int in_eyes = 0;
    int elsewhere = 0;
    for (int y = 0; y < open.height(); ++y) {
        for (int x = 0; x < open.width(); ++x) {
            if (open.at(x, y) != closed.at(x, y)) ++(y >= 35 && y <= 71 ? in_eyes : elsewhere);
        }
    }
    EXPECT_GT(in_eyes, 500);
    EXPECT_EQ(elsewhere, 0);
}

TEST(ScreenPictures, MarkersDifferInShapeAndColour) {
    EXPECT_TRUE(colours(draw_named_picture("ja")).contains(base::Colour::rgb(28, 132, 62))) << "green tells of a text";
    const char* kMarkers[] = {"ja", "nee", "bezig"};
    for (const char* one : kMarkers) {
        for (const char* other : kMarkers) {
            if (one == other) continue;
            const Raster first(draw_named_picture(one));
            const Raster second(draw_named_picture(other));
            int differing = 0;
            for (int y = 0; y < 30; ++y) {
                for (int x = 0; x < 30; ++x)
                    differing += first.at(x, y).has_value() != second.at(x, y).has_value();
            }
            EXPECT_GT(differing, 90) << one << " " << other << ": a tenth of the box";
            for (const base::Colour colour : colours(draw_named_picture(one))) {
                EXPECT_FALSE(colours(draw_named_picture(other)).contains(colour)) << one << " " << other;
            }
        }
    }
}

TEST(Icon, EverySizeOfTheGroup) {
    for (const int size : kIconSizes) {
        EXPECT_EQ(draw_icon(size).width, size);
        EXPECT_EQ(draw_icon(size).height, size);
        expect_inside_its_box(draw_icon(size), std::to_string(size));
    }
    EXPECT_EQ(failure_of([] { draw_icon(64); }), 326);
    EXPECT_EQ(icon_palette_colour(base::Colour::rgb(25, 26, 255)), base::Colour::rgb(0, 51, 255));
}
