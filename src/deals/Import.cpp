#include "deals/Import.h"

#include <filesystem>
#include <iostream>

#include "deals/Arguments.h"
#include "deals/BoardFile.h"
#include "deals/BoardImport.h"
#include "deals/DealFolder.h"
#include "deals/ImportOptions.h"
#include "deals/NewDeals.h"
#include "deals/Telling.h"
#include "platform/Paths.h"

namespace deals {

namespace {

using exchange::Board;

class Importer {
public:
    explicit Importer(ImportOptions options) : options_(std::move(options)) {}

    int run() {
        for (const std::string& file : options_.files) {
            file_ = options_.files.size() > 1 ? file : "";
            try {
                if (std::filesystem::is_directory(platform::path_of(file))) {
                    copy_deals(file);
                } else {
                    read_boards(
                        file, [&](Board& board) { take(board); },
                        [&] { return options_.additions_of(place_ + 1).contract; });
                }
            } catch (const std::exception& failure) {
                std::cerr << "error: " << (file_.empty() ? "" : file_ + ": ") << english(failure) << "\n";
                failed_ = true;
            }
        }
        deals_.finish();
        if (options_.highest_place() > place_) {
            std::cerr << "error: there is no deal " << options_.highest_place() << "; the last is " << place_ << "\n";
            failed_ = true;
        }
        if (deals_.made() == 0) return kNothingDone;
        return failed_ || deals_.refused() > 0 ? kSomeRefused : kDone;
    }

private:
    void take(const Board& read) {
        if (options_.selects(++place_)) import_.add(read, options_.additions_of(place_), file_, place_);
    }

    void copy_deals(const std::string& folder) {
        for (const CompanionDeal& deal : deals_in(folder, deals_.deals_folder())) {
            if (!options_.selects(++place_)) continue;
            const std::string at = (file_.empty() ? "" : file_ + ": ") + deal.name + ": ";
            const auto additions = options_.additions_of(place_);
            if (additions.contract || additions.lead) {
                deals_.refuse(at + "a deal of the companion has its contract and its lead");
            } else if (options_.as == As::Lessons) {
                deals_.refuse(at + "the play is not complete");
            } else {
                copy_deal(deal, at);
            }
        }
    }

    void copy_deal(const CompanionDeal& deal, const std::string& at) {
        try {
            deals_.add(NewDeals::Kind::Deal, files_of(deal), at);
        } catch (const std::exception& failure) {
            deals_.refuse(at + english(failure));
        }
    }

    const ImportOptions options_;
    PrintedReport report_;
    NewDeals deals_{options_.program_folder, report_};
    BoardImport import_{deals_, report_, {.as = options_.as, .finish = options_.finish}};
    std::string file_;  // that is being read, where there are several
    int place_ = 0;     // of the deal that was read last
    bool failed_ = false;
};

}  // namespace

int import(const std::vector<std::string>& words) { return Importer(import_options(words)).run(); }

}  // namespace deals
