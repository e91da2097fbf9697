#pragma once

#include <string>
#include <vector>

#include "deals/NewDeals.h"
#include "deals/Report.h"
#include "exchange/DealFiles.h"

namespace deals {

// What boards become: deals of the companion, lessons, or of each what it tells enough for.
enum class As { Deals, Lessons, Best };

struct ImportChoices {
    As as = As::Best;
    bool finish = false;  // plays that end early are played out
};

// Makes a deal or a lesson of each board that it is given, or tells why not.
class BoardImport {
public:
    // Both stay as long as this.
    BoardImport(NewDeals& deals, Report& report, ImportChoices choices)
        : deals_(deals), report_(report), choices_(choices) {}

    // `read` is as its file gives it; file and number are told (see where).
    void add(const exchange::Board& read, const exchange::Additions& additions, const std::string& file, int number);

private:
    // Where the board stands that is worked on.
    struct Source {
        const std::string& file;
        int number;
    };
    void add_lesson(exchange::Board& board, const Source& source);
    void add(NewDeals::Kind kind, const std::vector<exchange::DealFile>& files, const exchange::Board& board,
             const Source& source);
    void refuse(const exchange::Board& board, const Source& source, const exchange::Remark& why);
    bool becomes_lesson(const exchange::Board& board) const;

    NewDeals& deals_;
    Report& report_;
    const ImportChoices choices_;
};

}  // namespace deals
