#include "exchange/Board.h"

#include <algorithm>

namespace exchange {

void Board::add_text(const PlacedText& text) {
    const auto same = std::ranges::find(texts, text.place, &PlacedText::place);
    if (same == texts.end()) {
        texts.push_back(text);
    } else {
        same->text += "\n" + text.text;
    }
}

}  // namespace exchange
