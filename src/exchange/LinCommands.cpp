#include "exchange/LinCommands.h"

#include <utility>

#include "base/Text.h"

namespace exchange {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

}  // namespace

namespace lin {

std::string without_blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(kBlanks) - first + 1));
}

int number_in(std::string_view text) {
    const std::size_t digits = text.find_first_of("0123456789");
    return digits == std::string_view::npos ? 0 : base::numeric_value(text.substr(digits));
}

}  // namespace lin

std::optional<std::string> LinCommands::field() {
    std::string text;
    bool any = false;
    for (;;) {
        if (!open_) {
            auto line = lines_.next();
            if (!line) return any && !lin::without_blanks(text).empty() ? std::optional(std::move(text)) : std::nullopt;
            if (line->starts_with('%')) continue;
            if (any) text += '\n';
            rest_ = std::move(*line);
            at_ = 0;
            open_ = true;
        }
        if (!any) line_ = lines_.number();
        any = true;
        const std::size_t bar = rest_.find('|', at_);
        text += rest_.substr(at_, bar - at_);
        if (bar == std::string::npos) {
            open_ = false;
            continue;
        }
        at_ = bar + 1;
        if (at_ >= rest_.size()) open_ = false;
        return text;
    }
}

std::optional<LinCommand> LinCommands::next() {
    auto name = name_ ? std::exchange(name_, std::nullopt) : field();
    if (!name) return std::nullopt;
    LinCommand command{lin::without_blanks(*name), {}, line_};
    if (command.name.size() == lin::kNameLength) command.name = base::lower_case(command.name);
    auto value = field();
    const std::string word = base::lower_case(lin::without_blanks(value.value_or("")));
    if (word == "qx" || word == "md") {
        name_ = word;
    } else {
        command.value = value.value_or("");
    }
    return command;
}

}  // namespace exchange
