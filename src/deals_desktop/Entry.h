#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "exchange/BestPlay.h"
#include "exchange/DealFiles.h"

namespace deals_desktop {

// Threads read boards side by side, so that nobody changes one.
using SharedBoard = std::shared_ptr<const exchange::Board>;

// A line of a list: a board of a file, or a lesson.
struct Entry {
    std::string path{};  // of the file, or of the lesson's folder; bytes as the system has them
    int number = 0;      // in its file, from 1
    QString name{};      // of a lesson
    SharedBoard read{};  // as the file gives it
    exchange::Additions additions{};
    SharedBoard board{};                  // with them
    std::optional<int> made{};            // tricks of the declarer: as told, or as played
    std::vector<std::string> problems{};  // of a lesson's record
    std::size_t state = 0;                // of a lesson's files: another one where they changed
    std::optional<exchange::BestPlay> best{};
    bool ticked = false;
    bool unsaved = false;  // typed in, and in no file yet
};

// Gives the entry that board, and what is worked out of it once.
void set_board(Entry& entry, SharedBoard board);

// What keeps it from being a deal, or what of a lesson is against the rules; in Dutch, empty where it is sound.
QString remark_of(const Entry& entry);

// What the file does not tell of a board and the user has to, whether he did or not.
bool lacks_contract(const Entry& entry);
bool lacks_lead(const Entry& entry);

}  // namespace deals_desktop
