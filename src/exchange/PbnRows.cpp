#include "exchange/PbnRows.h"

#include <algorithm>

#include "exchange/PbnReader.h"

namespace exchange::pbn {

namespace {

void take_text(const PbnToken& text, bool ended, WrittenPlay& written) {
    if (ended) {
        written.behind.push_back(text);
    } else if (written.rows.empty()) {
        written.before.push_back(text);
    } else {
        written.texts.push_back({written.rows.size() - 1, written.rows.back().size() - 1, text});
    }
}

}  // namespace

RowReader::RowReader(const PbnGame& game, const PbnTag& tag, Board& board)
    : tag_(tag), board_(board), notes_(notes_behind(game, tag)), cards_(cards_by_line()) {}

bool RowReader::has_rows_in_lines() const {
    return std::ranges::all_of(cards_, [](const auto& line) { return line.second <= kSeatCount; });
}

// How many cards, or marks of missing ones, each line has.
std::map<int, std::size_t> RowReader::cards_by_line() const {
    std::map<int, std::size_t> cards;
    for (const PbnToken& token : tag_.tokens) {
        const bool mark = token.text == "+" || token.text == "*" || without_marks(token.text).word.empty();
        if (token.kind == PbnToken::Kind::Word && !mark) ++cards[token.row];
    }
    return cards;
}

// "+" stands in the column of the card that was to come next, or behind a row.
bool RowReader::stands_for_a_card(const PbnToken& token) const {
    const auto line = cards_.find(token.row);
    return line != cards_.end() && line->second < kSeatCount;
}

std::optional<WrittenPlay> RowReader::read(Rows rows) {
    WrittenPlay written;
    bool ended = false;
    line_ = 0;
    for (const PbnToken& token : tag_.tokens) {
        if (token.kind == PbnToken::Kind::Comment) {
            take_text(token, ended, written);
        } else if (token.text == "*") {
            ended = true;
        } else if (!ended && !take_word(token, rows, written)) {
            return std::nullopt;
        }
    }
    return written;
}

bool RowReader::take_word(const PbnToken& token, Rows rows, WrittenPlay& written) {
    if (token.text.starts_with('^')) {
        board_.fail(token.line, "an irregular card: " + token.text);
        return false;
    }
    const MarkedWord marked = without_marks(token.text);
    const bool next = marked.word == "+";
    if (!marked.word.empty() && (!next || stands_for_a_card(token))) {
        const auto card = card_of(marked.word);
        if (!card && marked.word != "-" && !next) {
            board_.fail(token.line, "not a card: " + token.text);
            return false;
        }
        const bool new_line = rows == Rows::Lines && token.row != line_;
        if (written.rows.empty() || written.rows.back().size() == kSeatCount || new_line) written.rows.emplace_back();
        line_ = token.row;
        written.rows.back().push_back({card, token.line});
    }
    if (const auto note = notes_.find(marked.note); note != notes_.end())
        take_text({PbnToken::Kind::Comment, note->second, token.line}, false, written);
    return true;
}

}  // namespace exchange::pbn
