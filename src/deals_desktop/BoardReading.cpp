#include "deals_desktop/BoardReading.h"

#include <QElapsedTimer>
#include <algorithm>

#include "deals/BoardFile.h"
#include "deals/Telling.h"
#include "deals_desktop/FileNames.h"
#include "deals_desktop/Reasons.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

constexpr int kBetweenParts = 50;  // milliseconds

// The reading ends before the file does.
struct Enough {};

class Reading {
public:
    Reading(Work::Course& course, const ReadingTo& to) : course_(course), to_(to) { since_.start(); }

    void read(const std::string& path) {
        const QString name = name_of(path);
        int number = 0;
        percent_ = 0;
        try {
            const auto take_board = [&](exchange::Board& board) {
                if (course_.stopped()) throw Enough();
                take(board, path, name.toStdString(), ++number);
            };
            deals::read_boards(path, take_board, {}, [this](std::size_t bytes, std::size_t all) {
                percent_ = static_cast<int>(bytes * 100 / std::max<std::size_t>(all, 1));
            });
            tell(words::kRead.arg(name, number == 1 ? words::kOneDeal : words::kManyDeals.arg(number)));
        } catch (const Enough&) {
            tell(words::kStopped.arg(name));
        } catch (const std::exception& failure) {
            tell(name + QStringLiteral(": ") + dutch(failure));
        }
        hand_over();
    }

private:
    void take(exchange::Board& board, const std::string& path, const std::string& name, int number) {
        for (const exchange::Remark& note : board.notes)
            told_.push_back({deals::note_of(name, board, number, note), {}});
        if (board.error) told_.push_back({deals::note_of(name, board, number, *board.error), {}});
        Entry entry{.path = path, .number = number};
        entry.read = std::make_shared<const exchange::Board>(std::move(board));
        set_board(entry, entry.read);
        entries_.push_back(std::move(entry));
        if (since_.elapsed() >= kBetweenParts) hand_over();
    }

    void tell(const QString& text) { told_.push_back({{}, text}); }

    void hand_over() {
        since_.restart();
        course_.tell(percent_, 100);
        course_.in_window([to = to_, entries = std::move(entries_), told = std::move(told_)]() mutable {
            to.told(std::move(told));
            if (!entries.empty()) to.entries(std::move(entries));
        });
        entries_ = {};
        told_ = {};
    }

    Work::Course& course_;
    const ReadingTo& to_;
    QElapsedTimer since_;
    int percent_ = 0;  // of this file
    std::vector<Entry> entries_;
    std::vector<Messages::Told> told_;
};

}  // namespace

void read_files(const std::vector<std::string>& paths, Work::Course& course, const ReadingTo& to) {
    Reading reading(course, to);
    for (std::size_t file = 0; file < paths.size() && !course.stopped(); ++file)
        reading.read(paths[file]);
}

SharedBoard read_again(const Entry& entry, const std::optional<exchange::Contract>& known) {
    SharedBoard found;
    int number = 0;
    try {
        deals::read_boards(
            entry.path,
            [&](exchange::Board& board) {
                if (++number != entry.number) return;
                if (board.deal == entry.read->deal && board.board == entry.read->board)
                    found = std::make_shared<const exchange::Board>(std::move(board));
                throw Enough();
            },
            [&] { return number + 1 == entry.number ? known : std::nullopt; });
    } catch (const Enough&) {
    }
    return found;
}

}  // namespace deals_desktop
