#include "deals_desktop/DealPane.h"

#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "deals_desktop/FileNames.h"
#include "deals_desktop/Notation.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

// Where the hands stand round the table: row and column.
constexpr std::array<std::pair<int, int>, exchange::kSeatCount> kPlaces{{{0, 1}, {1, 2}, {2, 1}, {1, 0}}};
constexpr int kBiddingColumn = 3;
constexpr int kPlayLetters = 66;

// Text that a user can copy, and come to with Tab.
void make_readable(QLabel& label, const QString& accessible_name) {
    label.setTextFormat(Qt::RichText);
    label.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label.setAccessibleName(accessible_name);
}

QString ranks(const exchange::Hand& hand, exchange::Suit suit) {
    QStringList ranks;
    for (const exchange::Card& card : hand.cards(suit))
        ranks.append(text_of_rank(card.rank));
    return ranks.join(QLatin1Char(' '));
}

QString rich_hand(const exchange::Hand& hand, exchange::Seat seat, const QPalette& palette) {
    QString text = QStringLiteral("<b>%1</b>").arg(dutch_word(seat));
    if (hand.empty()) return text + QStringLiteral("<br>") + words::kHandUnknown;
    for (const exchange::Suit suit : exchange::kSuits) {
        const QString held = ranks(hand, suit);
        text += QStringLiteral("<br>") + coloured(symbol_of(suit), palette) + QLatin1Char(' ') +
                (held.isEmpty() ? QStringLiteral("-") : held);
    }
    return text;
}

QString spoken_hand(const exchange::Hand& hand, exchange::Seat seat) {
    QStringList suits;
    for (const exchange::Suit suit : exchange::kSuits) {
        const QString held = ranks(hand, suit);
        suits.append(spoken(suit) + QLatin1Char(' ') + (held.isEmpty() ? words::kVoid : held));
    }
    return dutch_word(seat) + QStringLiteral(": ") +
           (hand.empty() ? words::kHandUnknown : suits.join(QStringLiteral(", ")));
}

QString best_text(const exchange::BestPlay& best) {
    const auto costly = static_cast<int>(best.costly.size());
    QString text =
        best.played ? words::kBestAndPlayed.arg(best.tricks).arg(*best.played) : words::kBest.arg(best.tricks);
    if (costly == 1) text += words::kOneGivenAway;
    if (costly > 1) text += words::kGivenAway.arg(words::kCards.arg(costly));
    return text;
}

}  // namespace

DealPane::DealPane() {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    title_.setTextFormat(Qt::RichText);
    title_.setWordWrap(true);
    layout->addWidget(&title_);
    layout->addWidget(make_table());
    best_.setTextFormat(Qt::PlainText);
    best_.setWordWrap(true);
    layout->addWidget(&best_);
    play_.setModel(&play_model_);
    play_.setAccessibleName(words::kPlaySpoken);
    play_.verticalHeader()->hide();
    play_.setTabKeyNavigation(false);
    for (int column = 0; column < PlayModel::ColumnCount; ++column) {
        const bool card = column >= PlayModel::North && column <= PlayModel::West;
        play_.horizontalHeader()->setSectionResizeMode(column,
                                                       card ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    }
    play_.verticalHeader()->setMinimumSectionSize(1);
    fit_to_font();
    texts_.setReadOnly(true);
    texts_.setTabChangesFocus(true);
    texts_.setAccessibleName(words::kTextsSpoken);
    tabs_.addTab(&play_, words::kPlay);
    tabs_.addTab(&texts_, words::kTexts);
    tabs_.setDocumentMode(true);
    layout->addWidget(&tabs_, 1);
    show_all();
}

void DealPane::fit_to_font() {
    play_.setMinimumWidth(fontMetrics().averageCharWidth() * kPlayLetters);  // a card with both marks is seen
    play_.verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 5 / 4);
}

QWidget* DealPane::make_table() {
    auto* const table = new QWidget;
    auto* const grid = new QGridLayout(table);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(0);
    for (const exchange::Seat seat : exchange::kSeats) {
        QLabel& hand = hands_[static_cast<std::size_t>(index_of(seat))];
        make_readable(hand, dutch_word(seat));
        const auto [row, column] = kPlaces[static_cast<std::size_t>(index_of(seat))];
        grid->addWidget(&hand, row, column);
    }
    middle_.setTextFormat(Qt::PlainText);
    middle_.setAlignment(Qt::AlignCenter);
    grid->addWidget(&middle_, 1, 1);
    make_readable(bidding_, words::kBidding);
    grid->addWidget(&bidding_, 0, kBiddingColumn, 3, 1);
    for (int column = 0; column <= kBiddingColumn; ++column)
        grid->setColumnStretch(column, 1);
    return table;
}

void DealPane::show_entry(const Entry* entry, const QString& name) {
    const bool other_board = !entry || entry->board != shown_.board;
    shown_ = entry ? *entry : Entry();
    name_ = name;
    if (other_board) {
        show_all();
    } else {
        show_play();
    }
}

void DealPane::show_all() {
    const bool any = shown_.board != nullptr;
    for (QWidget* const widget : std::initializer_list<QWidget*>{&middle_, &bidding_, &tabs_})
        widget->setVisible(any);
    for (QLabel& hand : hands_)
        hand.setVisible(any && shown_.board->deal);
    title_.setText(words::kNothingChosen);
    texts_.clear();
    show_play();
    if (!any) return;
    const exchange::Board& board = *shown_.board;
    QString title = QStringLiteral("<b>%1</b>").arg(name_.toHtmlEscaped());
    if (board.contract) {
        title += QStringLiteral(": ") +
                 coloured(words::kBy.arg(dutch_text(*board.contract), dutch_word(board.contract->declarer)), palette());
    }
    if (shown_.name.isEmpty() && !shown_.path.empty())
        title += QStringLiteral(" \u2013 ") + deals_desktop::name_of(shown_.path).toHtmlEscaped();
    const QString remark = remark_of(shown_);
    title_.setText(remark.isEmpty() ? title : title + QStringLiteral("<br>") + coloured(remark, palette()));
    show_hands(board);
    show_bidding(board);
    show_texts(board);
}

void DealPane::show_hands(const exchange::Board& board) {
    if (board.deal) {
        for (const exchange::Seat seat : exchange::kSeats) {
            QLabel& label = hands_[static_cast<std::size_t>(index_of(seat))];
            label.setText(rich_hand(board.deal->of(seat), seat, palette()));
            label.setAccessibleName(spoken_hand(board.deal->of(seat), seat));
        }
    }
    QStringList middle;
    if (board.dealer) middle.append(words::kDealer.arg(dutch_word(*board.dealer)));
    if (board.vulnerable) middle.append(words::kVulnerable.arg(dutch_text(*board.vulnerable)));
    middle_.setText(middle.join(QLatin1Char('\n')));
}

void DealPane::show_bidding(const exchange::Board& board) {
    bidding_.setText(board.auction ? rich_bidding(*board.auction, palette()) : words::kNoBidding);
    bidding_.setWordWrap(!board.auction);
    bidding_.setAccessibleName(board.auction ? spoken_bidding(*board.auction) : words::kNoBidding);
}

void DealPane::show_texts(const exchange::Board& board) {
    QString all;
    for (const exchange::PlacedText& text : board.texts) {
        all += (all.isEmpty() ? QString() : QStringLiteral("\n\n")) + dutch_text(text.place, board) +
               QStringLiteral(":\n") + QString::fromStdString(text.text);
    }
    texts_.setPlainText(all);
}

void DealPane::show_play() {
    play_model_.show(shown_.board, shown_.best, palette());
    best_.setText(shown_.best ? best_text(*shown_.best) : QString());
    best_.setVisible(shown_.best.has_value());
}

void DealPane::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) show_all();
    if (event->type() == QEvent::FontChange) fit_to_font();
}

}  // namespace deals_desktop
