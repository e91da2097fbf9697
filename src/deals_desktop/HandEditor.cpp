#include "deals_desktop/HandEditor.h"

#include <QGridLayout>

#include "deals_desktop/Notation.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

constexpr int kFieldLetters = 20;
constexpr int kProblemLines = 2;

QString ranks_of(const exchange::Hand& hand, exchange::Suit suit) {
    QString ranks;
    for (const exchange::Card& card : hand.cards(suit))
        ranks += text_of_rank(card.rank);
    return ranks;
}

}  // namespace

HandEditor::HandEditor(exchange::Seat seat) : QGroupBox(dutch_word(seat)) {
    auto* const grid = new QGridLayout(this);
    grid->setVerticalSpacing(2);
    for (const exchange::Suit suit : exchange::kSuits) {
        QLineEdit& field = suits_[static_cast<std::size_t>(index_of(suit))];
        field.setAccessibleName(dutch_word(seat) + QLatin1Char(' ') + spoken(suit));
        field.setMinimumWidth(field.fontMetrics().averageCharWidth() * kFieldLetters);
        auto* const symbol = new QLabel(coloured(symbol_of(suit), palette()));
        grid->addWidget(symbol, index_of(suit), 0);
        grid->addWidget(&field, index_of(suit), 1);
        connect(&field, &QLineEdit::textEdited, this, [this] { Changed(); });
    }
    problem_.setTextFormat(Qt::PlainText);
    problem_.setWordWrap(true);
    problem_.setMinimumHeight(problem_.fontMetrics().lineSpacing() * kProblemLines);
    problem_.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    grid->addWidget(&problem_, static_cast<int>(exchange::kSuits.size()), 0, 1, 2);
}

std::optional<exchange::Hand> HandEditor::hand() const {
    exchange::Hand all;
    for (const exchange::Suit suit : exchange::kSuits) {
        const auto held = typed_suit(suit, suits_[static_cast<std::size_t>(index_of(suit))].text());
        if (!held) return std::nullopt;
        for (const exchange::Card& card : held->cards())
            all.add(card);
    }
    return all;
}

void HandEditor::set_hand(const exchange::Hand& hand) {
    for (const exchange::Suit suit : exchange::kSuits)
        suits_[static_cast<std::size_t>(index_of(suit))].setText(ranks_of(hand, suit));
}

bool HandEditor::is_empty() const {
    return std::ranges::all_of(suits_, [](const QLineEdit& field) { return field.text().isEmpty(); });
}

void HandEditor::tell(const QString& problem) {
    QString told = problem;
    for (const exchange::Suit suit : exchange::kSuits) {
        QLineEdit& field = suits_[static_cast<std::size_t>(index_of(suit))];
        const bool readable = typed_suit(suit, field.text()).has_value();
        if (!readable) told = words::kNoCards.arg(symbol_of(suit), field.text());
        field.setAccessibleDescription(readable ? problem : words::kNoCards.arg(spoken(suit), field.text()));
    }
    problem_.setText(told);
}

}  // namespace deals_desktop
