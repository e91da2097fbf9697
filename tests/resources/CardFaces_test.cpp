#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Raster.h"
#include "resources/PictureTable.h"
#include "resources/drawing/SuitShapes.h"
#include "resources/faces/CourtCards.h"

using namespace resources;
using namespace resources::drawing;
using namespace resources::faces;

namespace {

// What overlapping cards leave in view, and the corner that holds the index alone; pixels.
struct SizeRow {
    int base;
    int column_step;
    int row_step;
    int index_right;
    int index_bottom;
};
constexpr SizeRow kSizes[] = {{2100, 20, 20, 17, 29}, {2200, 36, 31, 21, 34}};

constexpr double kScale = 2;  // dots a pixel
constexpr std::string_view kSuitLetters = "SHRK";

int rank_of(int card) { return (card - 1) % 13 + 2; }
bool is_court(int card) { return rank_of(card) >= 11 && rank_of(card) <= 13; }
bool is_red(int card) { return card > 13 && card <= 39; }
base::Colour colour_of(int card) { return is_red(card) ? base::Colour::rgb(255, 0, 0) : base::Colour{0}; }

bool in_index(const Patch& patch, const SizeRow& size) {
    return patch.left < size.index_right * kScale && patch.top < size.index_bottom * kScale;
}

Patch turned(const Patch& patch, const Raster& raster) {
    return {raster.width() - 1 - patch.right, raster.height() - 1 - patch.bottom, raster.width() - 1 - patch.left,
            raster.height() - 1 - patch.top};
}

Drawing upside_down(const Drawing& drawing) {
    Drawing result{drawing.width, drawing.height, {}};
    return result.add(drawing, Transform::turn(180, {drawing.width / 2, drawing.height / 2}));
}

bool on_its_head(const Patch& patch, const Raster& raster) { return patch.top + patch.bottom > raster.height() + 2; }

// The dots of a row of the patch; `share` runs from its top to its foot.
std::vector<bool> row_of(const Raster& raster, const Patch& patch, double share) {
    if (on_its_head(patch, raster)) share = 1 - share;
    const int y = patch.top + static_cast<int>((patch.bottom - patch.top) * share + 0.5);
    std::vector<bool> inked;
    for (int x = patch.left; x <= patch.right; ++x)
        inked.push_back(raster.at(x, y) == base::Colour{0} || raster.at(x, y) == base::Colour::rgb(255, 0, 0));
    return inked;
}

// A heart has two bows, a diamond no stem, and the top leaf of a club grows no wider downwards.
char suit_of(const Raster& raster, const Patch& patch) {
    const auto width = [&](double share) { return std::ranges::count(row_of(raster, patch, share), true); };
    const std::vector<bool> top = row_of(raster, patch, 0.06);
    if (!top[top.size() / 2]) return 'H';
    if (width(0.98) * 6 < std::ssize(top)) return 'R';
    return width(0.3) * 10 < width(0.2) * 13 ? 'K' : 'S';
}

// The shape of a character in five rows of three.
std::string shape_of(const Raster& raster, const Patch& patch) {
    std::string shape;
    for (const double share : {0.06, 0.28, 0.5, 0.72, 0.94}) {
        const std::vector<bool> row = row_of(raster, patch, share);
        for (int third = 0; third < 3; ++third) {
            const auto from = row.begin() + std::ssize(row) * third / 3;
            const auto to = row.begin() + std::ssize(row) * (third + 1) / 3;
            shape += std::count(from, to, true) * 5 > (to - from) * 2 ? '#' : '.';
        }
        if (share < 0.9) shape += ' ';
    }
    return shape;
}

std::vector<Patch> index_of(const Raster& raster, int card, const SizeRow& size) {
    std::vector<Patch> index;
    for (const Patch& patch : patches(raster, colour_of(card))) {
        if (in_index(patch, size)) index.push_back(patch);
    }
    std::ranges::sort(index, {}, [](const Patch& patch) { return patch.bottom * 1000 + patch.left; });
    return index;
}

// Where the colour changes, whatever the colours are: the drawing's lines in the upper half of the panel, beside the
// symbol in its corner.
std::vector<bool> outline(const Raster& raster) {
    std::vector<bool> edges;
    for (int y = 11; y < 76; ++y) {
        for (int x = 36; x < 83; ++x) {
            edges.push_back(raster.at(x, y) != raster.at(x + 1, y) || raster.at(x, y) != raster.at(x, y + 1));
        }
    }
    return edges;
}

}  // namespace

TEST(CardFaces, IndexStaysInViewWhereCardsOverlap) {
    for (const SizeRow& size : kSizes) {
        for (int card = 1; card <= 52; ++card) {
            const Raster raster(draw_picture(size.base + card), kScale);
            std::vector<Patch> index = index_of(raster, card, size);
            // One or two characters, below them the symbol.
            ASSERT_EQ(index.size(), rank_of(card) == 10 ? 3U : 2U) << size.base + card;
            const Patch symbol = index.back();
            index.pop_back();
            for (const Patch& character : index) {
                EXPECT_LT(character.bottom, size.row_step * kScale) << size.base + card;
                EXPECT_LT(character.bottom, symbol.top) << size.base + card;
                EXPECT_LE(character.right, size.column_step * kScale) << size.base + card;
            }
            EXPECT_LE(symbol.right, size.column_step * kScale) << size.base + card;
        }
    }
}

// Every symbol on every card is that of its suit, and the pips stand in the classic places.
TEST(CardFaces, PipsHaveTheShapeOfTheirSuitAndStandInTheirPlaces) {
    // Pips in the left, middle and right column, and above, on and below the middle.
    const std::map<int, std::array<int, 6>> kPlaces{
        {2, {0, 2, 0, 1, 0, 1}},  {3, {0, 3, 0, 1, 1, 1}}, {4, {2, 0, 2, 2, 0, 2}}, {5, {2, 1, 2, 2, 1, 2}},
        {6, {3, 0, 3, 2, 2, 2}},  {7, {3, 1, 3, 3, 2, 2}}, {8, {3, 2, 3, 3, 2, 3}}, {9, {4, 1, 4, 4, 1, 4}},
        {10, {4, 2, 4, 5, 0, 5}}, {14, {0, 1, 0, 0, 1, 0}}};
    for (const SizeRow& size : kSizes) {
        for (int card = 1; card <= 52; ++card) {
            if (is_court(card)) continue;
            const Raster raster(draw_picture(size.base + card), kScale);
            std::array<int, 6> places{};
            const auto side = [](int twice, int whole) {
                return twice * 10 < whole * 9 ? 0 : twice * 10 > whole * 11 ? 2 : 1;
            };
            for (const Patch& patch : patches(raster, colour_of(card))) {
                if (in_index(patch, size) || in_index(turned(patch, raster), size)) continue;
                if (rank_of(card) == 14 && places[1] == 1) continue;  // an ornament within the symbol
                ++places[side(patch.left + patch.right, raster.width())];
                ++places[3 + side(patch.top + patch.bottom, raster.height())];
                EXPECT_EQ(suit_of(raster, patch), kSuitLetters[(card - 1) / 13]) << size.base + card;
            }
            EXPECT_EQ(places, kPlaces.at(rank_of(card))) << size.base + card;
        }
    }
}

TEST(CardFaces, IndexHasTheShapeOfItsLetterAndSuit) {
    const std::map<int, std::vector<std::string>> kShapes{{2, {"### #.# .## ##. ###"}},
                                                          {3, {"### #.# .## #.# ###"}},
                                                          {4, {"..# .## #.# ### .##"}},
                                                          {5, {"### #.. ..# #.# ###"}},
                                                          {6, {".## #.. #.# #.# ###"}},
                                                          {7, {"### ..# .#. .#. .#."}},
                                                          {8, {"### #.# ### #.# ###"}},
                                                          {9, {"### #.# #.# ..# ##."}},
                                                          {10, {".## .## .## .## ###", ".## #.# #.# #.# .##"}},
                                                          {11, {"##. #.# ### #.# ###"}},
                                                          {12, {"#.# #.# .#. .#. .#."}},
                                                          {13, {"### #.# ### #.# ###"}},
                                                          {14, {".#. .#. .#. ..# #.#"}}};
    for (int card = 1; card <= 52; ++card) {
        const Raster raster(draw_picture(2200 + card), 6);
        SizeRow size = kSizes[1];
        size.index_right *= 3;
        size.index_bottom *= 3;
        std::vector<Patch> index = index_of(raster, card, size);
        EXPECT_EQ(suit_of(raster, index.back()), kSuitLetters[(card - 1) / 13]) << card;
        index.pop_back();
        std::vector<std::string> shapes;
        for (const Patch& patch : index)
            shapes.push_back(shape_of(raster, patch));
        EXPECT_EQ(shapes, kShapes.at(rank_of(card))) << card;
    }
    for (const int number : {106, 107, 108, 109}) {
        const Raster raster(draw_picture(number), 8);
        const base::Colour colour = number == 107 || number == 108 ? base::Colour::rgb(255, 0, 0) : base::Colour{0};
        EXPECT_EQ(suit_of(raster, patches(raster, colour).at(0)), kSuitLetters[109 - number]) << number;
    }
}

TEST(CardFaces, ReadTheSameFromBothSides) {
    EXPECT_LE(differing_dots(Raster(draw_picture(2253)), Raster(upside_down(draw_picture(2253)))), 4);
    for (const SizeRow& size : kSizes) {
        for (int card = 1; card <= 52; ++card) {
            const int rank = rank_of(card);
            const Raster raster(draw_picture(size.base + card));
            const Raster turned_raster(upside_down(draw_picture(size.base + card)));
            if (is_court(card) || rank == 2 || rank == 4 || rank == 10) {
                EXPECT_LE(differing_dots(raster, turned_raster), 4) << size.base + card;
                continue;
            }
            // A pip in the middle has one way up; the corners are symmetric on every card.
            for (int y = 0; y < size.index_bottom; ++y) {
                for (int x = 0; x < size.index_right; ++x) {
                    ASSERT_EQ(raster.at(x, y), turned_raster.at(x, y)) << size.base + card << " at " << x << "," << y;
                }
            }
        }
    }
}

TEST(CardFaces, AllAreDifferent) {
    for (const SizeRow& size : kSizes) {
        std::vector<Raster> faces;
        for (int card = 1; card <= 52; ++card) {
            Raster face(draw_picture(size.base + card));
            EXPECT_EQ(std::find(faces.begin(), faces.end(), face), faces.end()) << size.base + card;
            faces.push_back(std::move(face));
        }
    }
}

TEST(CardFaces, EveryCourtIsAFigureOfItsOwn) {
    std::map<int, std::vector<bool>> outlines;
    for (int card = 1; card <= 52; ++card) {
        if (is_court(card)) outlines[card] = outline(Raster(draw_picture(2200 + card)));
    }
    for (const auto& [card, one] : outlines) {
        for (const auto& [other_card, other] : outlines) {
            if (card >= other_card) continue;
            std::size_t differing = 0;
            for (std::size_t i = 0; i < one.size(); ++i)
                differing += one[i] != other[i];
            EXPECT_GT(differing, one.size() / 10) << card << " " << other_card;
        }
    }
}

TEST(CardFaces, CourtsShowTheFigureOfTheirRankAndSuit) {
    for (int card = 1; card <= 52; ++card) {
        if (!is_court(card)) continue;
        Drawing alone{104, 156, {}};
        alone.add(court_panel(static_cast<Suit>((card - 1) / 13), static_cast<Court>(rank_of(card) - 11)),
                  Transform::move((104 - kCourtPanelWidth) / 2, (156 - kCourtPanelHeight) / 2));
        EXPECT_EQ(outline(Raster(draw_picture(2200 + card))), outline(Raster(alone))) << card;
    }
}

TEST(CardFaces, CornersAreTransparentAndTheRestIsNot) {
    for (const int number : {2101, 2113, 2201, 2212, 2253}) {
        const Raster raster(draw_picture(number));
        const int right = raster.width() - 1;
        const int bottom = raster.height() - 1;
        for (const int x : {0, right}) {
            for (const int y : {0, bottom})
                EXPECT_FALSE(raster.at(x, y)) << number;
        }
        for (int y = 3; y <= bottom - 3; ++y) {
            for (int x = 3; x <= right - 3; ++x)
                EXPECT_TRUE(raster.at(x, y)) << number << " " << x << "," << y;
        }
    }
}
