#include "deals_desktop/PlayEditor.h"

#include <QRegularExpression>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "deals_desktop/Notation.h"
#include "deals_desktop/Reasons.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

constexpr int kToldLines = 3;
constexpr int kLineLetters = 30;
constexpr int kToldLetters = 20;  // of a word that is no card

QStringList words_in(const QPlainTextEdit& box) {
    static const QRegularExpression between(QStringLiteral("[\\s,]+"));
    return box.toPlainText().split(between, Qt::SkipEmptyParts);
}

std::size_t trick_of(std::size_t card) { return (card - 1) / exchange::kSeatCount + 1; }

QString how_far(const exchange::Play& play, const exchange::Contract& contract) {
    if (play.complete()) return words::kPlayEnds.arg(play.tricks_of(contract.declarer, contract.trump()));
    const exchange::Trick last = play.tricks(contract.trump()).back();
    const exchange::Seat next = last.complete() ? last.winner(contract.trump()) : last.turn();
    return words::kPlayGoesOn.arg(trick_of(play.cards.size() + 1)).arg(dutch_word(next));
}

}  // namespace

PlayEditor::PlayEditor() : QGroupBox(words::kPlay) {
    auto* const column = new QVBoxLayout(this);
    typed_.setAccessibleName(words::kPlaySpoken);
    typed_.setPlaceholderText(words::kPlayExample);
    typed_.setTabChangesFocus(true);
    typed_.setMinimumWidth(typed_.fontMetrics().averageCharWidth() * kLineLetters);
    typed_.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    told_.setTextFormat(Qt::PlainText);
    told_.setWordWrap(true);
    told_.setMinimumHeight(told_.fontMetrics().lineSpacing() * kToldLines);
    told_.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    column->addWidget(&typed_, 1);
    column->addWidget(&told_);
    connect(&typed_, &QPlainTextEdit::textChanged, this, [this] { Changed(); });
}

std::vector<exchange::Card> PlayEditor::cards() const {
    std::vector<exchange::Card> cards;
    for (const QString& word : words_in(typed_)) {
        const auto card = typed_card(word);
        if (!card) break;
        cards.push_back(*card);
    }
    return cards;
}

void PlayEditor::set_cards(const std::vector<exchange::Card>& cards) {
    QString text;
    for (std::size_t at = 0; at < cards.size(); ++at) {
        if (at > 0) text += QLatin1Char(at % exchange::kSeatCount == 0 ? '\n' : ' ');
        text += letters_of(cards[at]);
    }
    const QSignalBlocker blocker(typed_);  // the user has changed nothing
    typed_.setPlainText(text);
}

bool PlayEditor::is_empty() const { return words_in(typed_).isEmpty(); }

bool PlayEditor::look(const std::optional<exchange::Deal>& deal, const std::optional<exchange::Contract>& contract,
                      std::ptrdiff_t texts_that_go) {
    const QString wrong = problem(deal, contract);
    QStringList told;
    if (!wrong.isEmpty()) {
        told.append(wrong);
    } else if (!is_empty()) {
        told.append(how_far({contract->leader(), cards()}, *contract));
    }
    if (wrong.isEmpty() && texts_that_go > 0) told.append(words::kTextsGo.arg(texts_that_go));
    told_.setText(told.join(QLatin1Char('\n')));
    typed_.setAccessibleDescription(told_.text());
    return wrong.isEmpty();
}

QString PlayEditor::problem(const std::optional<exchange::Deal>& deal,
                            const std::optional<exchange::Contract>& contract) const {
    const QStringList typed = words_in(typed_);
    const exchange::Play play{contract ? contract->leader() : exchange::Seat::North, cards()};
    if (deal && contract) {
        if (const auto fault = play.fault(*deal, contract->trump()))
            return words::kFaultInTrick.arg(trick_of(fault->card)).arg(dutch(fault->text));
    }
    const std::size_t read = play.cards.size();
    if (const auto at = static_cast<qsizetype>(read); at < typed.size())
        return words::kNoCard.arg(trick_of(read + 1)).arg(read + 1).arg(typed[at].left(kToldLetters));
    return typed.isEmpty() || (deal && contract) ? QString() : words::kPlayWaits;
}

}  // namespace deals_desktop
