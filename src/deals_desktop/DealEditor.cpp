#include "deals_desktop/DealEditor.h"

#include <QApplication>
#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollBar>

#include "deals_desktop/Asking.h"
#include "deals_desktop/Notation.h"
#include "deals_desktop/Words.h"
#include "exchange/DealFiles.h"

namespace deals_desktop {

namespace {

constexpr int kTextLines = 3;
constexpr QSize kFrame(10, 40);  // that a window manager may put around it

using exchange::Place;

QString text_at(const exchange::Board& board, Place::Kind kind) {
    const auto found = std::ranges::find(board.texts, Place{kind, 0}, &exchange::PlacedText::place);
    return found == board.texts.end() ? QString() : QString::fromStdString(found->text);
}

void put_text(exchange::Board& board, Place::Kind kind, const QString& text) {
    std::erase_if(board.texts, [&](const exchange::PlacedText& each) { return each.place == Place{kind, 0}; });
    if (!text.trimmed().isEmpty()) board.add_text({{kind, 0}, text.toStdString(), 0});
    std::ranges::sort(board.texts, {}, &exchange::PlacedText::place);
}

// The other hand that holds a card of this one too.
QString held_twice(const exchange::Deal& deal, exchange::Seat seat) {
    for (const exchange::Card& card : deal.of(seat).cards()) {
        for (const exchange::Seat other : exchange::kSeats) {
            if (other != seat && deal.of(other).holds(card))
                return words::kHeldTwice.arg(dutch_text(card), dutch_word(other));
        }
    }
    return {};
}

bool is_behind(const exchange::PlacedText& text, const std::optional<exchange::Play>& play) {
    const std::size_t cards = play ? play->cards.size() : 0;
    return text.place.kind == Place::Kind::Card && static_cast<std::size_t>(text.place.card) > cards;
}

// Whether the tricks that were told of the one board are those of the other.
bool keeps_result(const exchange::Board& before, const exchange::Board& now) {
    if (now.play && now.play == before.play) return true;
    const bool same_deal = now.deal == before.deal && now.contract == before.contract;
    return same_deal && !(now.play && now.play->complete());
}

}  // namespace

DealEditor::DealEditor(QWidget* parent, exchange::Board board)
    : QDialog(parent),
      board_(std::move(board)),
      hands_{HandEditor(exchange::Seat::North), HandEditor(exchange::Seat::East), HandEditor(exchange::Seat::South),
             HandEditor(exchange::Seat::West)},
      take_(words::kTake) {
    setWindowTitle(board_.deal ? words::kChangeTitle : words::kNewTitle);
    make_fields();
    fill_fields();
    look();
    for (const auto& text : {&question_, &answer_})
        connect(text, &QPlainTextEdit::textChanged, this, [this] { changed_ = true; });
    connect(&number_, &QLineEdit::textEdited, this, [this] { changed_ = true; });
    fit();
}

void DealEditor::make_fields() {
    auto* const inner = new QWidget;
    auto* const all = new QGridLayout(inner);
    auto* const hands = new QGridLayout;
    for (const exchange::Seat seat : exchange::kSeats) {
        HandEditor& hand = hands_[static_cast<std::size_t>(index_of(seat))];
        hands->addWidget(&hand, index_of(seat) / 2, index_of(seat) % 2);
        hand.Changed = [this, seat] {
            if (filled_ == seat) filled_.reset();
            change();
        };
    }
    all->addLayout(hands, 0, 0);
    auto* const bidding = new QVBoxLayout;
    bidding->addWidget(&bidding_);
    bidding_problem_.setTextFormat(Qt::PlainText);
    bidding_problem_.setWordWrap(true);
    bidding->addWidget(&bidding_problem_);
    all->addLayout(bidding, 0, 1);
    all->addWidget(&play_, 0, 2);
    all->setColumnStretch(2, 1);
    all->addWidget(make_rows(), 1, 0, 1, 3);
    fields_.setWidget(inner);
    fields_.setWidgetResizable(true);
    fields_.setFocusPolicy(Qt::NoFocus);
    fields_.setFrameShape(QFrame::NoFrame);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(&fields_, 1);
    column->addLayout(make_buttons());
    bidding_.Changed = [this] { change(); };
    play_.Changed = [this] { change(); };
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, QWidget* now) {
        if (now && fields_.widget()->isAncestorOf(now)) fields_.ensureWidgetVisible(now);
    });
}

QWidget* DealEditor::make_rows() {
    auto* const rows = new QWidget;
    auto* const form = new QFormLayout(rows);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(words::kNumberKey, &number_);
    form->addRow(words::kFillContract, &contract_);
    form->addRow(words::kFillLead, &lead_);
    for (const auto& [name, text] : {std::pair{words::kQuestionKey, &question_}, {words::kAnswerKey, &answer_}}) {
        text->setTabChangesFocus(true);
        text->setFixedHeight(text->fontMetrics().lineSpacing() * kTextLines);
        form->addRow(name, text);
    }
    contract_.Changed = [this] {
        chosen_contract_ = contract_.contract();
        change();
    };
    connect(&lead_, &QComboBox::activated, this, [this] {
        chosen_lead_ = exchange::card_of(lead_.currentData().toString().toStdString());
        changed_ = true;
        look_at_play();
    });
    return rows;
}

QLayout* DealEditor::make_buttons() {
    auto* const buttons = new QHBoxLayout;
    auto* const cancel = new QPushButton(words::kCancel);
    take_.setDefault(true);
    buttons->addStretch();
    buttons->addWidget(&take_);
    buttons->addWidget(cancel);
    connect(&take_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    return buttons;
}

// As large as its fields, where the screen has the room: otherwise they scroll.
void DealEditor::fit() {
    const QSize around = layout()->sizeHint() - fields_.sizeHint();
    const QSize bar(fields_.verticalScrollBar()->sizeHint().width(), 0);
    resize((fields_.widget()->sizeHint() + around + bar).boundedTo(screen()->availableSize() - kFrame));
}

void DealEditor::fill_fields() {
    number_.setText(QString::fromStdString(board_.board));
    if (board_.deal) {
        for (const exchange::Seat seat : exchange::kSeats)
            hands_[static_cast<std::size_t>(index_of(seat))].set_hand(board_.deal->of(seat));
    }
    const auto dealer = board_.dealer.value_or(exchange::Seat::North);
    bidding_.set_auction(board_.auction.value_or(exchange::Auction{dealer, {}}));
    chosen_contract_ = board_.contract;
    chosen_lead_ = exchange::lead_of(board_);
    if (board_.play && board_.play->cards.size() > 1) play_.set_cards(board_.play->cards);
    question_.setPlainText(text_at(board_, Place::Kind::Question));
    answer_.setPlainText(text_at(board_, Place::Kind::Answer));
}

void DealEditor::change() {
    changed_ = true;
    look();
}

void DealEditor::look() {
    const bool hands = look_at_hands();
    const bool bidding = look_at_bidding();
    const bool contract = look_at_contract();
    show_leads();
    const bool play = look_at_play();
    take_.setEnabled(hands && bidding && contract && play);
}

bool DealEditor::look_at_hands() {
    exchange::Deal deal;
    bool readable = true;
    for (const exchange::Seat seat : exchange::kSeats) {
        if (seat == filled_) continue;
        const auto hand = hands_[static_cast<std::size_t>(index_of(seat))].hand();
        readable = readable && hand;
        if (hand) deal.of(seat) = *hand;
    }
    const exchange::Deal typed = deal;
    if (readable) deal.complete();
    for (const exchange::Seat seat : exchange::kSeats) {
        HandEditor& hand = hands_[static_cast<std::size_t>(index_of(seat))];
        const bool fills = deal.of(seat) != typed.of(seat);
        if (fills || seat == filled_) {
            hand.set_hand(deal.of(seat));
            filled_ = fills ? std::optional(seat) : std::nullopt;
        }
        const int count = deal.of(seat).count();
        QString problem = held_twice(deal, seat);
        if (problem.isEmpty() && count != exchange::kCardsInHand && !hand.is_empty())
            problem = words::kCountOfCards.arg(count);
        hand.tell(problem);
    }
    const bool whole = readable && deal.problem().empty();
    deal_ = whole ? std::optional(deal) : std::nullopt;
    return whole;
}

bool DealEditor::look_at_bidding() {
    const exchange::Auction& auction = bidding_.auction();
    const bool finished = auction.calls.empty() || auction.over();
    const auto contract = auction.contract();
    QString told = finished ? QString() : words::kBiddingGoesOn;
    if (finished && contract) told = words::kBy.arg(dutch_text(*contract), dutch_word(contract->declarer));
    if (auction.passed_out()) told = words::kPassedOut;
    bidding_problem_.setText(told);
    return finished;
}

bool DealEditor::look_at_play() {
    const auto played = play();
    return play_.look(deal_, contract(), std::ranges::count_if(board_.texts, [&](const exchange::PlacedText& text) {
                          return is_behind(text, played);
                      }));
}

// It follows from the bidding where there is one.
bool DealEditor::look_at_contract() {
    const bool chosen = bidding_.auction().calls.empty();
    if (!chosen || contract_.problem().isEmpty()) contract_.set_contract(contract());
    contract_.setEnabled(chosen);
    return contract_.problem().isEmpty();
}

std::optional<exchange::Contract> DealEditor::contract() const {
    const exchange::Auction& auction = bidding_.auction();
    if (auction.calls.empty()) return chosen_contract_;
    return auction.over() ? auction.contract() : std::nullopt;
}

std::optional<exchange::Play> DealEditor::play() const {
    std::vector<exchange::Card> cards = play_.cards();
    const auto lead = exchange::card_of(lead_.currentData().toString().toStdString());
    if (play_.is_empty() && lead) cards.push_back(*lead);
    if (cards.empty() || !contract()) return std::nullopt;
    return exchange::Play{contract()->leader(), cards};
}

void DealEditor::show_leads() {
    lead_.clear();
    lead_.addItem(QStringLiteral("-"), QString());
    const bool known = deal_ && contract();
    lead_.setEnabled(known && play_.is_empty());
    if (!known) return;
    auto chosen = chosen_lead_;
    if (const auto typed = play_.cards(); !play_.is_empty())
        chosen = typed.empty() ? std::nullopt : std::optional(typed.front());
    for (const exchange::Card& card : deal_->of(contract()->leader()).cards()) {
        lead_.addItem(dutch_text(card), QString::fromStdString(exchange::text_of(card)));
        lead_.setItemData(lead_.count() - 1, spoken(card), Qt::AccessibleTextRole);
        if (card == chosen) lead_.setCurrentIndex(lead_.count() - 1);
    }
}

exchange::Board DealEditor::typed() const {
    const exchange::Auction& auction = bidding_.auction();
    exchange::Board board = board_;
    board.board = number_.text().trimmed().toStdString();
    board.dealer = auction.dealer;
    board.deal = deal_;
    board.error.reset();
    board.unfit.reset();
    board.notes.clear();
    board.own.clear();
    board.auction = auction.calls.empty() ? std::nullopt : std::optional(auction);
    board.contract = contract();
    board.passed_out = auction.passed_out() || (board_.passed_out && !board_.auction && !board.contract);
    board.play = play();
    if (!keeps_result(board_, board)) board.result.reset();
    std::erase_if(board.texts, [&](const exchange::PlacedText& text) { return is_behind(text, board.play); });
    put_text(board, Place::Kind::Question, question_.toPlainText());
    put_text(board, Place::Kind::Answer, answer_.toPlainText());
    return board;
}

void DealEditor::accept() {
    const exchange::Board board = typed();
    QDialog::accept();
    Taken(board);
}

void DealEditor::reject() {
    if (changed_ && ask(this, words::kTypingGoes, {words::kThrowAway, words::kTypeOn}) != words::kThrowAway) return;
    QDialog::reject();
}

}  // namespace deals_desktop
