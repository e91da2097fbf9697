#include "deals_desktop/Entry.h"

#include <QStringList>

#include "deals_desktop/Reasons.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

std::optional<int> made(const exchange::Board& board) {
    if (board.result || !board.contract || !board.play || !board.play->complete()) return board.result;
    return board.play->tricks_of(board.contract->declarer, board.contract->trump());
}

bool may_be_told_more(const exchange::Board& board) {
    return board.deal && !board.error && !board.unfit && !board.passed_out;
}

}  // namespace

void set_board(Entry& entry, SharedBoard board) {
    entry.made = made(*board);
    entry.board = std::move(board);
}

QString remark_of(const Entry& entry) {
    QStringList remarks;
    for (const std::string& problem : entry.problems)
        remarks.append(dutch(problem));
    const exchange::Board& board = *entry.board;
    if (board.error) remarks.append(dutch(board.error->text));
    if (board.unfit) remarks.append(dutch(board.unfit->text));
    if (may_be_told_more(board) && entry.name.isEmpty()) {
        if (!board.contract) remarks.append(words::kNoContract);
        if (!exchange::lead_of(board)) remarks.append(words::kNoLead);
    }
    return remarks.join(QStringLiteral("; "));
}

bool lacks_contract(const Entry& entry) {
    return may_be_told_more(*entry.read) && entry.name.isEmpty() && (entry.additions.contract || !entry.read->contract);
}

bool lacks_lead(const Entry& entry) {
    return may_be_told_more(*entry.read) && entry.name.isEmpty() &&
           (entry.additions.lead || !exchange::lead_of(*entry.read));
}

}  // namespace deals_desktop
