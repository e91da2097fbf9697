#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <vector>

#include "Raster.h"
#include "resources/PictureTable.h"

using namespace resources;

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

int rank_of(int card) { return (card - 1) % 13 + 2; }
bool is_court(int card) { return rank_of(card) >= 11 && rank_of(card) <= 13; }
bool is_red(int card) { return card > 13 && card <= 39; }
Colour colour_of(int card) { return is_red(card) ? Colour::rgb(255, 0, 0) : Colour{0}; }

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
            std::vector<Patch> index;
            for (const Patch& patch : patches(raster, colour_of(card))) {
                if (in_index(patch, size)) index.push_back(patch);
            }
            // One or two characters, below them the symbol.
            ASSERT_EQ(index.size(), rank_of(card) == 10 ? 3U : 2U) << size.base + card;
            std::sort(index.begin(), index.end(), [](const Patch& a, const Patch& b) { return a.bottom < b.bottom; });
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

TEST(CardFaces, PipsAreAsManyAsTheRank) {
    for (const SizeRow& size : kSizes) {
        for (int card = 1; card <= 52; ++card) {
            if (rank_of(card) > 10) continue;
            const Raster raster(draw_picture(size.base + card), kScale);
            const std::vector<Patch> all = patches(raster, colour_of(card));
            const auto pips = std::count_if(all.begin(), all.end(), [&](const Patch& patch) {
                return !in_index(patch, size) && !in_index(turned(patch, raster), size);
            });
            EXPECT_EQ(pips, rank_of(card)) << size.base + card;
        }
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
