#include "deals/ImportOptions.h"

#include <algorithm>

#include "base/Text.h"
#include "deals/Arguments.h"

namespace deals {

namespace {

// A number from 1 on that stands alone; 0 for any other text.
int place_in(const std::string& text) {
    const bool digits = !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
    return digits ? base::numeric_value(text) : 0;
}

std::vector<std::pair<int, int>> places_in(const std::string& list) {
    std::vector<std::pair<int, int>> places;
    for (const std::string& piece : base::split(list, ",")) {
        const std::size_t dash = piece.find('-');
        const int first = place_in(piece.substr(0, dash));
        const int last = dash == std::string::npos ? first : place_in(piece.substr(dash + 1));
        if (first < 1 || last < first) throw WrongArguments("--deals has no such places: " + piece);
        places.emplace_back(first, last);
    }
    return places;
}

As kind_in(const std::string& text) {
    static const std::map<std::string, As> kKinds{{"deals", As::Deals}, {"lessons", As::Lessons}, {"best", As::Best}};
    const auto found = kKinds.find(text);
    if (found == kKinds.end()) throw WrongArguments("--as is deals, lessons or best, not " + text);
    return found->second;
}

// "S4H": declarer and contract.
std::optional<exchange::Contract> contract_in(const std::string& text) {
    const auto declarer = text.empty() ? std::nullopt : exchange::seat_of(text[0]);
    return declarer ? exchange::contract_of(text.substr(1), *declarer) : std::nullopt;
}

// For each "1=VALUE" of an option, several with a comma between them too.
template <class Take>
void for_each_place(const Arguments& arguments, const std::string& option, Take take) {
    const std::string cannot_be_read = option + " cannot be read: ";
    for (const std::string& list : arguments.values(option)) {
        for (const std::string& piece : base::split(list, ",")) {
            const std::size_t sign = piece.find('=');
            const int place = place_in(piece.substr(0, sign));
            if (place < 1 || sign == std::string::npos || !take(place, piece.substr(sign + 1)))
                throw WrongArguments(cannot_be_read + piece);
        }
    }
}

}  // namespace

bool ImportOptions::selects(int place) const {
    return places.empty() || std::ranges::any_of(places, [&](const auto& range) {
               return range.first <= place && place <= range.second;
           });
}

exchange::Additions ImportOptions::additions_of(int place) const {
    const auto found = additions.find(place);
    return found == additions.end() ? exchange::Additions{} : found->second;
}

int ImportOptions::highest_place() const {
    int highest = additions.empty() ? 0 : additions.rbegin()->first;
    for (const auto& [first, last] : places)
        highest = std::max(highest, last);
    return highest;
}

ImportOptions import_options(const std::vector<std::string>& words) {
    const Arguments arguments(words, {"--program", "--deals", "--as", "--contract", "--lead"}, {"--finish"});
    ImportOptions options;
    options.files = arguments.files();
    options.program_folder = arguments.program_folder();
    options.finish = arguments.has("--finish");
    if (const auto as = arguments.value("--as")) options.as = kind_in(*as);
    for (const std::string& list : arguments.values("--deals")) {
        const auto places = places_in(list);
        options.places.insert(options.places.end(), places.begin(), places.end());
    }
    for_each_place(arguments, "--contract", [&](int place, const std::string& text) {
        return (options.additions[place].contract = contract_in(text)).has_value();
    });
    for_each_place(arguments, "--lead", [&](int place, const std::string& text) {
        return (options.additions[place].lead = exchange::card_of(text)).has_value();
    });
    return options;
}

}  // namespace deals
