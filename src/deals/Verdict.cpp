#include "deals/Verdict.h"

#include "deals/Json.h"
#include "deals/Telling.h"

namespace deals {

namespace {

using exchange::CostlyCard;

int trick_of(const CostlyCard& costly) { return (costly.number - 1) / exchange::kSeatCount + 1; }

template <class Items, class Text>
std::string joined(const Items& items, const char* between, Text text) {
    std::string all;
    for (const auto& item : items)
        all += (all.empty() ? "" : between) + text(item);
    return all;
}

}  // namespace

Verdict verdict_of(std::string name, exchange::Board board) {
    Verdict verdict{.name = std::move(name)};
    if (board.error) {
        verdict.problems.push_back(board.error->text);
    } else if (board.unfit) {
        verdict.unfit = board.unfit->text;
    } else if (board.passed_out) {
        verdict.unfit = "passed out";
    } else if (!board.contract) {
        verdict.unfit = "no contract";
    }
    verdict.board = std::move(board);
    return verdict;
}

void look_into(Verdict& verdict) {
    const exchange::Board& board = verdict.board;
    const bool possible = verdict.unfit.empty() && !board.error && board.contract && board.deal;
    if (possible && board.deal->problem().empty()) verdict.best_play = exchange::best_play(board);
}

std::string text_of(const Verdict& verdict) {
    if (!verdict.unfit.empty()) return one_line(verdict.name) + ": nothing to check: " + verdict.unfit + "\n";
    std::string text = one_line(verdict.name) + ": ";
    if (const auto& contract = verdict.board.contract)
        text += text_of(*contract) + " by " + letter_of(contract->declarer) + ", ";
    text += verdict.sound() ? "sound" : "against the rules: " + joined(verdict.problems, "; ", one_line);
    if (!verdict.best_play) return text + "\n";
    text += "; best play makes " + std::to_string(verdict.best_play->tricks);
    if (verdict.best_play->played) text += ", the record " + std::to_string(*verdict.best_play->played);
    text += "\n";
    for (const CostlyCard& costly : verdict.best_play->costly) {
        text += "  card " + std::to_string(costly.number) + ", trick " + std::to_string(trick_of(costly)) + ": " +
                letter_of(costly.seat) + " plays " + text_of(costly.card) + " and gives " +
                std::to_string(costly.tricks) + (costly.tricks == 1 ? " trick" : " tricks") +
                " away; best: " + joined(costly.best, " ", [](const exchange::Card& card) { return text_of(card); }) +
                "\n";
    }
    return text;
}

std::string json_of(const Verdict& verdict) {
    const auto& contract = verdict.board.contract;
    const auto& best = verdict.best_play;
    std::string json = "{\"deal\":" + quoted(verdict.name);
    const auto add = [&](const char* name, const std::string& value) {
        json += ",\"" + std::string(name) + "\":" + value;
    };
    add("contract", contract ? quoted(text_of(*contract)) : "null");
    add("declarer", contract ? quoted(std::string(1, letter_of(contract->declarer))) : "null");
    add("sound", !verdict.unfit.empty() ? "null" : verdict.sound() ? "true" : "false");
    add("problems", array_of(verdict.problems, quoted));
    add("unfit", verdict.unfit.empty() ? "null" : quoted(verdict.unfit));
    add("best", best ? std::to_string(best->tricks) : "null");
    add("played", best && best->played ? std::to_string(*best->played) : "null");
    add("costly", array_of(best ? best->costly : std::vector<CostlyCard>(), [](const CostlyCard& costly) {
            return "{\"number\":" + std::to_string(costly.number) + ",\"trick\":" + std::to_string(trick_of(costly)) +
                   ",\"seat\":" + quoted(std::string(1, letter_of(costly.seat))) +
                   ",\"card\":" + quoted(text_of(costly.card)) + ",\"tricks\":" + std::to_string(costly.tricks) +
                   ",\"best\":" +
                   array_of(costly.best, [](const exchange::Card& card) { return quoted(text_of(card)); }) + "}";
        }));
    return json + "}";
}

}  // namespace deals
