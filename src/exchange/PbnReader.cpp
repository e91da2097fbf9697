#include "exchange/PbnReader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/Text.h"
#include "exchange/OwnParts.h"
#include "exchange/Texts.h"

namespace exchange {

namespace {

// Values that hold for one game only, whatever stands in front of them.
constexpr std::array kNeverLasting{"dealer", "vulnerable", "deal", "declarer", "contract", "auction", "play", "note"};

std::optional<Vulnerable> vulnerable_of(const std::string& value) {
    static const std::map<std::string, Vulnerable> kWords{
        {"none", Vulnerable::None},     {"love", Vulnerable::None},      {"-", Vulnerable::None},
        {"ns", Vulnerable::NorthSouth}, {"n-s", Vulnerable::NorthSouth}, {"ew", Vulnerable::EastWest},
        {"e-w", Vulnerable::EastWest},  {"all", Vulnerable::Both},       {"both", Vulnerable::Both}};
    const auto found = kWords.find(base::lower_case(value));
    return found == kWords.end() ? std::nullopt : std::optional(found->second);
}

std::vector<std::string> words_of(const std::string& text) {
    std::vector<std::string> words;
    for (const std::string& word : base::split(base::replaced(text, "\t", " "), " ")) {
        if (!word.empty()) words.push_back(word);
    }
    return words;
}

// Cards of one hand, suits with a point between them. False for anything else.
bool read_hand(const std::string& text, Hand& hand) {
    const base::Pieces suits = base::split(text, ".");
    if (suits.last() != 3) return false;
    for (const Suit suit : kSuits) {
        const std::string ranks = base::replaced(suits[index_of(suit)], "10", "T");
        for (const char letter : ranks) {
            const auto rank = rank_of(letter);
            if (!rank || hand.holds(Card{suit, *rank})) return false;
            hand.add({suit, *rank});
        }
    }
    return true;
}

// Number, dealer and vulnerability.
void read_head(const PbnGame& game, Board& board) {
    if (const PbnTag* tag = game.find("Board")) board.board = tag->value;
    if (const PbnTag* tag = game.find("Dealer"); tag && pbn::tells_something(tag->value)) {
        if (tag->value.size() == 1) board.dealer = seat_of(tag->value[0]);
        if (!board.dealer) board.note(tag->line, "not a dealer: " + tag->value);
    }
    if (const PbnTag* tag = game.find("Vulnerable")) {
        board.vulnerable = vulnerable_of(tag->value);
        if (!board.vulnerable && pbn::tells_something(tag->value))
            board.note(tag->line, "not a vulnerability: " + tag->value);
    }
}

}  // namespace

namespace pbn {

bool tells_something(const std::string& value) { return !value.empty() && value != "?" && value != "-"; }

void read_deal(const PbnTag& tag, Board& board) {
    const std::string& value = tag.value;
    const auto first = value.size() > 2 && value[1] == ':' ? seat_of(value[0]) : std::nullopt;
    const auto hands = words_of(first ? value.substr(2) : "");
    if (!first || hands.size() != kSeatCount) return board.fail(tag.line, "not a deal: " + value);
    Deal deal;
    for (int i = 0; i < kSeatCount; ++i) {
        const std::string& hand = hands[static_cast<std::size_t>(i)];
        if (hand != "-" && !read_hand(hand, deal.of(after(*first, i)))) {
            return board.fail(tag.line, std::string("not a hand of ") + letter_of(after(*first, i)) + ": " + hand);
        }
    }
    deal.complete();
    const auto unknown = std::ranges::count_if(kSeats, [&](Seat seat) { return deal.of(seat).empty(); });
    const bool fewer = std::ranges::all_of(kSeats, [&](Seat seat) { return deal.of(seat).count() < kCardsInHand; });
    if (unknown > 1) {
        board.unfit = Remark{tag.line, "more than one hand is unknown"};
    } else if (fewer) {
        board.unfit = Remark{tag.line, "an end position"};
        board.note(tag.line, "an end position is left out");
    } else if (const std::string problem = deal.problem(); !problem.empty()) {
        return board.fail(tag.line, problem);
    }
    board.deal = deal;
}

void add_text(Board& board, const Place& place, const PbnToken& text) {
    if (!text.text.empty()) board.texts.push_back({place, with_symbols_of_pbn(text.text), text.line});
}

void join_texts(Board& board) {
    std::vector<PlacedText> texts = std::exchange(board.texts, {});
    std::ranges::stable_sort(texts, {}, &PlacedText::line);
    for (const PlacedText& text : texts)
        board.add_text(text);
    std::ranges::sort(board.texts, {}, &PlacedText::place);
}

MarkedWord without_marks(const std::string& word) {
    MarkedWord marked{word, {}};
    if (const std::size_t at = word.find('='); at != std::string::npos) {
        marked.note = word.substr(at + 1, word.find('=', at + 1) - at - 1);
        marked.word = word.substr(0, at);
    }
    marked.word = marked.word.substr(0, marked.word.find('$'));
    while (marked.word.ends_with('!') || marked.word.ends_with('?'))
        marked.word.pop_back();
    return marked;
}

std::optional<Card> first_card_of(const PbnTag& section) {
    const auto word = std::ranges::find(section.tokens, PbnToken::Kind::Word, &PbnToken::kind);
    return word == section.tokens.end() ? std::nullopt : card_of(without_marks(word->text).word);
}

std::map<std::string, std::string> notes_behind(const PbnGame& game, const PbnTag& section) {
    std::map<std::string, std::string> notes;
    const auto from = std::ranges::find_if(game.tags, [&](const PbnTag& tag) { return &tag == &section; });
    for (auto tag = from + 1; tag != game.tags.end() && base::equal_ignoring_case(tag->name, "Note"); ++tag) {
        const std::size_t colon = tag->value.find(':');
        if (colon != std::string::npos)
            notes[base::trimmed(tag->value.substr(0, colon))] = base::trimmed(tag->value.substr(colon + 1));
    }
    return notes;
}

// All comments stand in front of the play in a game that has none; so do those of an auction or a play that has nothing
// else.
void read_comments(const PbnGame& game, Board& board) {
    const auto is = [](const PbnTag& tag, const char* name) { return base::equal_ignoring_case(tag.name, name); };
    Place place{Place::Kind::Question, 0};
    const auto take = [&](const std::vector<PbnToken>& tokens) {
        for (const PbnToken& token : tokens) {
            if (token.kind == PbnToken::Kind::Comment) add_text(board, place, token);
        }
    };
    take(game.before);
    for (const PbnTag& tag : game.tags) {
        if (is(tag, "Play") && board.play && !board.play->cards.empty()) {
            place.kind = Place::Kind::Answer;  // the play's own comments were read with it
        } else if (!is(tag, "Auction") || !board.auction) {
            take(tag.tokens);
        }
    }
}

}  // namespace pbn

std::optional<Board> PbnReader::next(const std::optional<Contract>& known) {
    auto game = games_.next();
    if (!game) return std::nullopt;
    inherit(*game);
    Board board;
    board.line = game->line;
    for (const Remark& problem : game->problems)
        board.note(problem.line, problem.text);
    read_head(*game, board);
    if (const PbnTag* tag = game->find("Deal"); tag && pbn::tells_something(tag->value)) {
        pbn::read_deal(*tag, board);
    } else {
        carry_deal_over(*game, board);
    }
    if (!board.error && !board.unfit) {
        pbn::read_contract(*game, board);
        pbn::read_auction(*game, board);
        if (known) pbn::take_known_contract(*game, *known, board);
        pbn::read_play(*game, board);
    }
    pbn::read_comments(*game, board);
    for (const PbnTag& tag : game->tags) {
        if (auto part = own_part_of(tag, board.notes)) board.own.push_back(std::move(*part));
    }
    pbn::join_texts(board);
    if (board.board != previous_board_ || board.deal) previous_deal_ = board.unfit ? std::nullopt : board.deal;
    previous_board_ = board.board;
    return board;
}

// "#" takes over the value of the game before; "##text" sets one for all games to come.
void PbnReader::inherit(PbnGame& game) {
    std::map<std::string, std::string> values;
    for (PbnTag& tag : game.tags) {
        const std::string name = base::lower_case(tag.name);
        const bool may_last = std::ranges::find(kNeverLasting, name) == kNeverLasting.end();
        if (tag.value == "#") {
            tag.value = previous_[name];
        } else if (tag.value.starts_with("##")) {
            tag.value.erase(0, 2);
            if (may_last) lasting_[name] = tag.value;
        }
        values.emplace(name, tag.value);
    }
    for (const auto& [name, value] : lasting_) {
        if (values.emplace(name, value).second) game.tags.insert(game.tags.begin(), {name, value, game.line, {}});
    }
    previous_ = std::move(values);
}

// A second table of a board does not repeat the deal.
void PbnReader::carry_deal_over(const PbnGame& game, Board& board) {
    if (!board.board.empty() && board.board == previous_board_ && previous_deal_) {
        board.deal = previous_deal_;
    } else {
        board.unfit = Remark{game.line, "no deal"};
    }
}

}  // namespace exchange
