#include "deals_desktop/Notation.h"

#include <QColor>
#include <QPalette>
#include <QStringList>
#include <array>

#include "deals_desktop/Words.h"
#include "exchange/DealWords.h"

namespace deals_desktop {

namespace {

constexpr std::array kSymbols{u'\u2660', u'\u2665', u'\u2666', u'\u2663'};
constexpr std::array<const char*, 4> kVulnerable{"niemand", "NZ", "OW", "allen"};
constexpr int kTen = 10;
constexpr int kHalfLight = 128;

// The letters of court cards in Dutch, as those in English.
QString in_english(QString text) {
    text = text.toUpper().remove(QLatin1Char(' ')).replace(QStringLiteral("10"), QStringLiteral("T"));
    return text.replace(QLatin1Char('H'), QLatin1Char('K'))
        .replace(QLatin1Char('V'), QLatin1Char('Q'))
        .replace(QLatin1Char('B'), QLatin1Char('J'));
}

QString dutch_letter(exchange::Suit suit) { return QString::fromStdString(exchange::word_of(suit)).left(1); }

bool is_red(exchange::Suit suit) { return suit == exchange::Suit::Hearts || suit == exchange::Suit::Diamonds; }

}  // namespace

QString dutch_letter(exchange::Seat seat) { return dutch_word(seat).left(1); }
QString dutch_word(exchange::Seat seat) { return QString::fromStdString(exchange::word_of(seat)); }
QString symbol_of(exchange::Suit suit) { return QChar(kSymbols[static_cast<std::size_t>(suit)]); }

QString spoken(exchange::Suit suit) { return QString::fromStdString(exchange::word_of(suit)).toLower(); }

QString text_of_rank(int rank) {
    if (rank == kTen) return QStringLiteral("10");
    return QChar::fromLatin1(exchange::kValueLetters[static_cast<std::size_t>(rank - exchange::kLowestRank)]);
}

QString dutch_text(const exchange::Card& card) { return symbol_of(card.suit) + text_of_rank(card.rank); }

QString spoken(const exchange::Card& card) {
    const QString value =
        card.rank == kTen ? text_of_rank(kTen) : QString::fromLatin1(exchange::kValueWords[exchange::value_of(card)]);
    return (QString::fromStdString(exchange::word_of(card.suit)) + QLatin1Char(' ') + value).toLower();
}

QString dutch_text(exchange::Strain strain) {
    const auto trump = exchange::trump_of(strain);
    return trump ? symbol_of(*trump) : QStringLiteral("SA");
}

QString spoken(exchange::Strain strain) {
    return strain == exchange::Strain::NoTrump ? words::kNoTrumpSpoken
                                               : QString::fromStdString(exchange::word_of(strain));
}

QString dutch_text(const exchange::Contract& contract) {
    const QString doubling = QString::fromStdString(exchange::text_of(contract.doubling));
    return QString::number(contract.bid.level) + dutch_text(contract.bid.strain) +
           (doubling.isEmpty() ? doubling : QLatin1Char(' ') + doubling);
}

QString spoken(const exchange::Contract& contract) {
    QStringList words{spoken(exchange::Call::of(contract.bid))};
    if (contract.doubling == exchange::Doubling::Doubled) words.append(words::kDoubleSpoken);
    if (contract.doubling == exchange::Doubling::Redoubled) words.append(words::kRedoubleSpoken);
    return words.join(QLatin1Char(' '));
}

QString dutch_text(const exchange::Call& call) {
    switch (call.kind) {
        case exchange::Call::Kind::Pass:
            return QStringLiteral("pas");
        case exchange::Call::Kind::Double:
            return QStringLiteral("X");
        case exchange::Call::Kind::Redouble:
            return QStringLiteral("XX");
        case exchange::Call::Kind::Bid:
            break;
    }
    return QString::number(call.bid.level) + dutch_text(call.bid.strain);
}

QString spoken(const exchange::Call& call) {
    switch (call.kind) {
        case exchange::Call::Kind::Double:
            return words::kDoubleSpoken;
        case exchange::Call::Kind::Redouble:
            return words::kRedoubleSpoken;
        case exchange::Call::Kind::Bid:
            return QString::number(call.bid.level) + QLatin1Char(' ') + spoken(call.bid.strain);
        default:
            return dutch_text(call);
    }
}

QString dutch_text(exchange::Vulnerable vulnerable) {
    return QString::fromLatin1(kVulnerable[static_cast<std::size_t>(vulnerable)]);
}

QString dutch_text(const exchange::Place& place, const exchange::Board& board) {
    switch (place.kind) {
        case exchange::Place::Kind::Question:
            return QStringLiteral("Vraag");
        case exchange::Place::Kind::Answer:
            return QStringLiteral("Antwoord");
        case exchange::Place::Kind::Card:
            break;
    }
    const int trick = (place.card - 1) / exchange::kSeatCount + 1;
    const auto at = static_cast<std::size_t>(place.card - 1);
    const bool played = board.play && at < board.play->cards.size();
    return QStringLiteral("Slag %1, %2").arg(trick).arg(played ? dutch_text(board.play->cards[at]) : QString());
}

std::optional<exchange::Hand> typed_suit(exchange::Suit suit, const QString& text) {
    exchange::Hand hand;
    const QString letters = in_english(text);
    if (letters == QStringLiteral("-")) return hand;
    for (const QChar letter : letters) {
        const auto rank = exchange::rank_of(letter.toLatin1());
        if (!rank || hand.holds(exchange::Card{suit, *rank})) return std::nullopt;
        hand.add({suit, *rank});
    }
    return hand;
}

std::optional<exchange::Card> typed_card(const QString& text) {
    const QString sign = text.left(1).toUpper();
    for (const exchange::Suit suit : exchange::kSuits) {
        if (sign != dutch_letter(suit) && sign != QLatin1Char(exchange::letter_of(suit)) && sign != symbol_of(suit))
            continue;
        const auto named = typed_suit(suit, text.mid(1));
        return named && named->count() == 1 ? std::optional(named->cards().front()) : std::nullopt;
    }
    return std::nullopt;
}

QString letters_of(const exchange::Card& card) { return dutch_letter(card.suit) + text_of_rank(card.rank); }

bool is_dark(const QPalette& palette) { return palette.color(QPalette::Base).lightness() < kHalfLight; }

QColor colour_of(exchange::Suit suit, const QPalette& palette) {
    if (!is_red(suit)) return palette.color(QPalette::Text);
    return is_dark(palette) ? QColor(0xFF, 0x7B, 0x72) : QColor(0xC0, 0x10, 0x10);
}

QString coloured(const QString& text, const QPalette& palette) {
    QString rich = text.toHtmlEscaped();
    for (const exchange::Suit suit : exchange::kSuits) {
        if (!is_red(suit)) continue;
        const QString symbol = symbol_of(suit);
        rich.replace(symbol,
                     QStringLiteral("<span style=\"color:%1\">%2</span>").arg(colour_of(suit, palette).name(), symbol));
    }
    return rich;
}

QString rich_bidding(const exchange::Auction& auction, const QPalette& palette) {
    constexpr exchange::Seat kFirst = exchange::Seat::West;
    const QString cell = QStringLiteral("<td>%1&nbsp;&nbsp;</td>");
    QString text = QStringLiteral("<table cellspacing=\"0\"><tr>");
    for (int place = 0; place < exchange::kSeatCount; ++place)
        text += QStringLiteral("<th align=\"left\">%1&nbsp;&nbsp;</th>").arg(dutch_letter(after(kFirst, place)));
    text += QStringLiteral("</tr><tr>");
    int column = distance(kFirst, auction.dealer);
    for (int i = 0; i < column; ++i)
        text += cell.arg(QString());
    for (const exchange::Call& call : auction.calls) {
        if (column++ == exchange::kSeatCount) {
            text += QStringLiteral("</tr><tr>");
            column = 1;
        }
        text += cell.arg(coloured(dutch_text(call), palette));
    }
    return text + QStringLiteral("</tr></table>");
}

QString spoken_bidding(const exchange::Auction& auction) {
    QStringList calls;
    for (std::size_t number = 0; number < auction.calls.size(); ++number)
        calls.append(dutch_word(auction.caller(number)) + QLatin1Char(' ') + spoken(auction.calls[number]));
    return words::kBidding + QStringLiteral(": ") + calls.join(QStringLiteral(", "));
}

}  // namespace deals_desktop
