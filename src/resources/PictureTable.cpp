#include "resources/PictureTable.h"

#include <array>
#include <string>
#include <utility>

#include "base/Fout.h"
#include "resources/CardFaces.h"
#include "resources/Glyphs.h"
#include "resources/Plaatje.h"
#include "resources/ScreenPictures.h"
#include "resources/SuitShapes.h"

namespace resources {

namespace {

using namespace plaatje;

constexpr int kCards = 52;

bool is_face(int number, int base) { return number > base && number <= base + kCards; }

Drawing suit_symbol(Suit suit) {
    Drawing drawing{14, 14, {}};
    return drawing.fill(suit_path(suit, {7, 7}, 13), suit_colour(suit));
}

Drawing no_trump_letters() {
    constexpr double kHeight = 15;
    Drawing drawing{23, 18, {}};
    const double left = (drawing.width - text_width("SA", kHeight)) / 2;
    return drawing.fill(text_path("SA", kHeight).transformed(Transform::move(left, (drawing.height - kHeight) / 2)),
                        Colour{0});
}

}  // namespace

bool has_picture(int number) {
    return (number >= kKlaveren && number <= kSansAtout) || is_face(number, kKleineKaarten) ||
           is_face(number, kGroteKaarten) || number == kKaartRug;
}

Drawing draw_picture(int number) {
    if (!has_picture(number)) throw Fout(FoutNummer::NoSuchResource, std::to_string(number));
    if (number == kSansAtout) return no_trump_letters();
    // The symbols rise with the rank of their suit, the cards go down.
    if (number < kSansAtout) return suit_symbol(static_cast<Suit>(kSansAtout - 1 - number));
    if (number == kKaartRug) return card_back();
    return number > kGroteKaarten ? card_face(number - kGroteKaarten, CardSize::Large)
                                  : card_face(number - kKleineKaarten, CardSize::Small);
}

Size picture_size(int number) {
    if (!has_picture(number)) throw Fout(FoutNummer::NoSuchResource, std::to_string(number));
    if (number == kSansAtout) return {23, 18};
    if (number < kSansAtout) return {14, 14};
    return is_face(number, kKleineKaarten) ? Size{65, 97} : Size{104, 156};
}

Drawing draw_named_picture(std::string_view name) {
    using Draw = Drawing (*)();
    static constexpr std::array<std::pair<std::string_view, Draw>, 7> kNamed{{
        {"logo", draw_logo},
        {"maker", draw_maker},
        {"gezicht0", [] { return draw_error_face(Eyes::Open); }},
        {"gezicht1", [] { return draw_error_face(Eyes::Closed); }},
        {"ja", draw_marker_text},
        {"nee", draw_marker_empty},
        {"bezig", draw_marker_busy},
    }};
    for (const auto& [known, draw] : kNamed) {
        if (known == name) return draw();
    }
    throw Fout(FoutNummer::NoSuchResource, std::string(name));
}

}  // namespace resources
