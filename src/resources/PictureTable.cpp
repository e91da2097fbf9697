#include "resources/PictureTable.h"

#include <array>
#include <string>
#include <utility>

#include "base/Fout.h"
#include "resources/Plaatje.h"
#include "resources/ScreenPictures.h"
#include "resources/drawing/Glyphs.h"
#include "resources/drawing/SuitShapes.h"
#include "resources/faces/CardFaces.h"

namespace resources {

namespace {

using namespace plaatje;

constexpr int kCards = 52;

bool is_face(int number, int base) { return number > base && number <= base + kCards; }

drawing::Drawing suit_symbol(drawing::Suit suit) {
    drawing::Drawing drawing{14, 14, {}};
    return drawing.fill(drawing::suit_path(suit, {7, 7}, 13), drawing::suit_colour(suit));
}

drawing::Drawing no_trump_letters() {
    constexpr double kHeight = 15;
    drawing::Drawing drawing{23, 18, {}};
    const double left = (drawing.width - drawing::text_width("SA", kHeight)) / 2;
    return drawing.fill(
        drawing::text_path("SA", kHeight).transformed(drawing::Transform::move(left, (drawing.height - kHeight) / 2)),
        base::Colour{0});
}

}  // namespace

bool has_picture(int number) {
    return (number >= kKlaveren && number <= kSansAtout) || is_face(number, kKleineKaarten) ||
           is_face(number, kGroteKaarten) || number == kKaartRug;
}

drawing::Drawing draw_picture(int number) {
    if (!has_picture(number)) throw base::Fout(base::FoutNummer::NoSuchResource, std::to_string(number));
    if (number == kSansAtout) return no_trump_letters();
    // The symbols rise with the rank of their suit, the cards go down.
    if (number < kSansAtout) return suit_symbol(static_cast<drawing::Suit>(kSansAtout - 1 - number));
    if (number == kKaartRug) return faces::card_back();
    return number > kGroteKaarten ? faces::card_face(number - kGroteKaarten, faces::CardSize::Large)
                                  : faces::card_face(number - kKleineKaarten, faces::CardSize::Small);
}

Size picture_size(int number) {
    if (!has_picture(number)) throw base::Fout(base::FoutNummer::NoSuchResource, std::to_string(number));
    if (number == kSansAtout) return {23, 18};
    if (number < kSansAtout) return {14, 14};
    return is_face(number, kKleineKaarten) ? Size{65, 97} : Size{104, 156};
}

drawing::Drawing draw_named_picture(std::string_view name) {
    using Draw = drawing::Drawing (*)();
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
    throw base::Fout(base::FoutNummer::NoSuchResource, std::string(name));
}

}  // namespace resources
