#pragma once

#include <deque>
#include <string>
#include <vector>

#include "deals/Report.h"
#include "exchange/DealFiles.h"
#include "exchange/Shelf.h"
#include "platform/NewFolders.h"

namespace deals {

// The deals and lessons that an import makes; each is told, in their order. They take their places a thousand at a
// time: a flush costs as much for one as for all.
class NewDeals {
public:
    // `report` stays as long as this.
    NewDeals(const std::string& program_folder, Report& report);

    enum class Kind { Deal, Lesson };
    // A new folder with those files, whose names begin with the folder's. `where` is told in front of a failure.
    void add(Kind kind, const std::vector<exchange::DealFile>& files, const std::string& where);
    void refuse(const std::string& text);
    void finish();

    int made() const { return made_; }
    int refused() const { return refused_; }
    const std::string& deals_folder() const { return companion_.deals(); }

private:
    struct Line {
        std::string text{};   // what is told
        int number = 0;       // of a folder that has no place yet; 0 for none
        std::string where{};  // in front of its failure
    };
    void tell_refusal(const std::string& text);
    void tell_notes();
    void prepare(Kind kind);

    Report& report_;
    exchange::CompanionFolder companion_;
    std::string lessons_;
    exchange::DealNumbers numbers_;
    platform::NewFolders folders_;
    std::deque<Line> lines_;
    int made_ = 0;
    int refused_ = 0;
};

}  // namespace deals
