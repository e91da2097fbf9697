#include "page/Cards.h"

#include "exchange/DealWords.h"
#include "page/Html.h"
#include "page/Words.h"
#include "resources/drawing/SuitShapes.h"
#include "resources/drawing/Svg.h"
#include "resources/faces/CardFaces.h"

namespace page {

namespace {

using exchange::Suit;
namespace drawing = resources::drawing;
namespace faces = resources::faces;

std::string symbol_id(Suit suit) { return std::string("kleur-") + exchange::letter_of(suit); }

std::string suit_symbol(Suit suit) {
    constexpr double kSize = 20;
    const auto drawn = static_cast<drawing::Suit>(exchange::index_of(suit));
    drawing::Drawing picture{kSize, kSize, {}};
    picture.fill(drawing::suit_path(drawn, {kSize / 2, kSize / 2}, kSize), drawing::suit_colour(drawn));
    return drawing::svg_symbol(picture, symbol_id(suit));
}

std::string picture_of(Suit suit) {
    return element("svg", "<use" + attribute("href", "#" + symbol_id(suit)) + "/>", attribute("class", "suit"));
}

}  // namespace

std::string card_symbols() {
    std::string symbols;
    for (int card = 1; card <= exchange::kCardsInDeck; ++card)
        symbols += drawing::svg_symbol(faces::card_face(card, faces::CardSize::Large), "kaart-" + std::to_string(card));
    symbols += drawing::svg_symbol(faces::card_back(), "kaart-0");
    for (const Suit suit : exchange::kSuits)
        symbols += suit_symbol(suit);
    return element("svg", symbols, attribute("class", "symbols") + attribute("aria-hidden", "true"));
}

int number_of(const exchange::Card& card) {
    return exchange::index_of(card.suit) * exchange::kCardsInHand + card.rank - exchange::kLowestRank + 1;
}

std::string value_letter(int rank) {
    constexpr int kTen = 10;
    if (rank == kTen) return std::to_string(kTen);
    return {exchange::kValueLetters[static_cast<std::size_t>(rank - exchange::kLowestRank)]};
}

std::string spoken_name(const exchange::Card& card) {
    const bool has_word = card.rank > 10;
    return exchange::word_of(card.suit) + " " +
           (has_word ? exchange::kValueWords[exchange::value_of(card)] : std::to_string(card.rank));
}

std::string drawn(Suit suit) {
    return element("i", picture_of(suit), attribute("aria-hidden", "true")) + spoken(exchange::word_of(suit));
}

// Short: a page has hundreds of them.
std::string markup(const exchange::Card& card) {
    return element("i", picture_of(card.suit) + value_letter(card.rank), attribute("aria-hidden", "true")) +
           spoken(spoken_name(card));
}

std::string markup(const exchange::Call& call, SuitMarkup suit) {
    switch (call.kind) {
        case exchange::Call::Kind::Pass:
            return words::kPass;
        case exchange::Call::Kind::Double:
            return words::kDouble;
        case exchange::Call::Kind::Redouble:
            return words::kRedouble;
        case exchange::Call::Kind::Bid:
            break;
    }
    const auto named = exchange::trump_of(call.bid.strain);
    return std::to_string(call.bid.level) + " " + (named ? suit(*named) : exchange::word_of(call.bid.strain));
}

std::string markup(const exchange::Contract& contract, SuitMarkup suit) {
    const std::string doubling = contract.doubling == exchange::Doubling::None ? ""
                                 : contract.doubling == exchange::Doubling::Doubled
                                     ? std::string(" ") + words::kDoubled
                                     : std::string(" ") + words::kRedoubled;
    return exchange::word_of(contract.declarer) + ": " + markup(exchange::Call::of(contract.bid), suit) + doubling;
}

}  // namespace page
