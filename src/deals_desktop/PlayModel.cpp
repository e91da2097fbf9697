#include "deals_desktop/PlayModel.h"

#include <QColor>
#include <QFont>
#include <QStringList>
#include <algorithm>

#include "deals_desktop/Notation.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

constexpr QChar kCostlyMark = u'\u25BC';
constexpr QChar kLeadMark = u'\u2022';

QColor costly_colour(const QPalette& palette) {
    return is_dark(palette) ? QColor(0x4A, 0x33, 0x00) : QColor(0xFF, 0xE0, 0x94);
}

QString count_of_tricks(int tricks) { return tricks == 1 ? words::kOneTrick : words::kTricks.arg(tricks); }

QString letter_of_winner(const exchange::Trick& trick, const exchange::Board& board) {
    return trick.complete() ? dutch_letter(trick.winner(board.contract->trump())) : QString();
}

}  // namespace

void PlayModel::show(const SharedBoard& board, const std::optional<exchange::BestPlay>& best, const QPalette& palette) {
    beginResetModel();
    board_ = board;
    best_ = best;
    palette_ = palette;
    tricks_.clear();
    if (board && board->play && board->contract) tricks_ = board->play->tricks(board->contract->trump());
    endResetModel();
}

int PlayModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(tricks_.size());
}
int PlayModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : ColumnCount; }

const exchange::CostlyCard* PlayModel::costly_at(int number) const {
    if (!best_) return nullptr;
    const auto found = std::ranges::find(best_->costly, number, &exchange::CostlyCard::number);
    return found == best_->costly.end() ? nullptr : &*found;
}

int PlayModel::best_behind(int row) const {
    int tricks = best_->tricks;
    for (const exchange::CostlyCard& costly : best_->costly) {
        if (costly.number > (row + 1) * exchange::kSeatCount) break;
        tricks += same_side(costly.seat, board_->contract->declarer) ? -costly.tricks : costly.tricks;
    }
    return tricks;
}

QString PlayModel::spoken_of(const exchange::Card& card, exchange::Seat seat, bool leads, int number, int role) const {
    QString text = (leads ? words::kLeads : words::kPlaysCard).arg(dutch_word(seat), spoken(card));
    if (const auto* const costly = costly_at(number)) {
        QStringList better;
        for (const exchange::Card& best : costly->best)
            better.append(role == Qt::AccessibleTextRole ? spoken(best) : dutch_text(best));
        text = words::kCosts.arg(text, count_of_tricks(costly->tricks), better.join(QStringLiteral(", ")));
    }
    return text;
}

QVariant PlayModel::card_data(int row, exchange::Seat seat, int role) const {
    const exchange::Trick& trick = tricks_[static_cast<std::size_t>(row)];
    const auto card = trick.card_of(seat);
    if (!card) return {};
    const bool leads = seat == trick.leader;
    const int number = row * exchange::kSeatCount + distance(trick.leader, seat) + 1;
    const auto* const costly = costly_at(number);
    switch (role) {
        case Qt::DisplayRole:
            return (leads ? QString(kLeadMark) : QString()) + dutch_text(*card) +
                   (costly ? QStringLiteral(" %1%2").arg(kCostlyMark).arg(costly->tricks) : QString());
        case Qt::ForegroundRole:
            return colour_of(card->suit, palette_);
        case Qt::BackgroundRole:
            return costly ? QVariant(costly_colour(palette_)) : QVariant();
        case Qt::ToolTipRole:
        case Qt::AccessibleTextRole:
            return spoken_of(*card, seat, leads, number, role);
        case Qt::FontRole: {
            QFont font;
            font.setBold(costly != nullptr);
            return font;
        }
        default:
            return {};
    }
}

QVariant PlayModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const int row = index.row();
    const int column = index.column();
    if (column >= North && column <= West) return card_data(row, static_cast<exchange::Seat>(column - North), role);
    if (role == Qt::TextAlignmentRole) return Qt::AlignCenter;
    const exchange::Trick& trick = tricks_[static_cast<std::size_t>(row)];
    if (role == Qt::AccessibleTextRole && column == Trick) return words::kTrick.arg(row + 1);
    if (role == Qt::AccessibleTextRole && column == Winner && trick.complete())
        return dutch_word(trick.winner(board_->contract->trump()));
    if (role == Qt::ToolTipRole && column == Best && best_) return words::kBestBehind.arg(best_behind(row));
    if (role != Qt::DisplayRole) return {};
    if (column == Trick) return row + 1;
    if (column == Winner) return letter_of_winner(trick, *board_);
    return best_ ? QVariant(best_behind(row)) : QVariant();
}

QVariant PlayModel::headerData(int section, Qt::Orientation orientation, int role) const {
    return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(words::kPlayColumns[section])
                                                                    : QVariant();
}

}  // namespace deals_desktop
