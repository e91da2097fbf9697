#include "exchange/PbnGame.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/Text.h"

namespace exchange {

namespace {

constexpr std::string_view kBlanks = " \t\v\f";

// One of these, for the second time, belongs to the next game.
constexpr std::array kFirstTags{"Event", "Board", "Deal"};

bool blank(std::string_view text) { return text.find_first_not_of(kBlanks) == std::string_view::npos; }

std::string without_blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(kBlanks) - first + 1));
}

// Whether the line begins with one of the first tags.
bool begins_game(std::string_view line) {
    return std::ranges::any_of(kFirstTags, [&](const std::string& name) {
        const std::string tag = "[" + name + " \"";
        return base::equal_ignoring_case(line.substr(0, tag.size()), tag);
    });
}

// A comment's lines, each without the blanks around it.
std::string comment_text(std::string_view raw) {
    std::string text;
    for (const std::string& line : base::split(raw, "\n"))
        text += without_blanks(line) + "\n";
    const std::size_t first = text.find_first_not_of('\n');
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of('\n') - first + 1);
}

}  // namespace

const PbnTag* PbnGame::find(std::string_view name) const {
    const auto found =
        std::ranges::find_if(tags, [&](const PbnTag& tag) { return base::equal_ignoring_case(tag.name, name); });
    return found == tags.end() ? nullptr : &*found;
}

std::optional<PbnGame> PbnGames::next() {
    while (ready_.empty()) {
        const auto line = lines_.next();
        if (!line) break;
        if (std::exchange(behind_empty_line_, blank(*line)) && state_ != State::Outside && begins_game(*line)) {
            break_off();
            if (!game_.tags.empty()) finish_game();
        }
        if (state_ == State::Outside && blank(*line)) {
            if (!game_.tags.empty()) finish_game();
            continue;
        }
        // A line that begins with % is for other programs.
        if (state_ != State::Comment && line->starts_with('%')) continue;
        take_line(*line);
    }
    if (ready_.empty()) {
        break_off();
        if (game_.tags.empty() && game_.problems.empty()) return std::nullopt;
        finish_game();
    }
    PbnGame game = std::move(ready_.front());
    ready_.pop_front();
    return game;
}

void PbnGames::finish_game() { ready_.push_back(std::exchange(game_, {})); }

void PbnGames::break_off() {
    if (state_ == State::Outside) return;
    const bool comment = state_ == State::Comment;
    if (comment) add_token(PbnToken::Kind::Comment, comment_text(text_), began_);
    game_.problems.push_back({began_, comment ? "a comment that does not end" : "a tag that does not end"});
    state_ = State::Outside;
}

void PbnGames::add_token(PbnToken::Kind kind, std::string text, int line) {
    auto& tokens = game_.tags.empty() ? game_.before : game_.tags.back().tokens;
    tokens.push_back({kind, std::move(text), line, row_});
}

void PbnGames::take_line(std::string_view line) {
    if (state_ == State::Outside) ++row_;
    if (game_.line == 0) game_.line = lines_.number();
    // A tag whose closing quote or bracket is missing does not swallow the tags behind it.
    if (state_ == State::Tag && line.starts_with('[') && line.find('"') != std::string_view::npos) break_off();
    if (state_ != State::Outside) text_ += '\n';
    for (std::size_t at = 0; at < line.size();) {
        if (state_ == State::Comment) {
            at = take_comment(line, at);
        } else if (state_ == State::Tag) {
            at = take_tag(line, at);
        } else if (kBlanks.find(line[at]) != std::string_view::npos) {
            ++at;
        } else if (line[at] == '{' || line[at] == '[') {
            state_ = line[at] == '{' ? State::Comment : State::Tag;
            began_ = lines_.number();
            in_quotes_ = false;
            text_.clear();
            ++at;
        } else if (line[at] == ';') {
            add_token(PbnToken::Kind::Comment, without_blanks(line.substr(at + 1)), lines_.number());
            return;
        } else {
            const std::size_t end = std::min(line.find_first_of(" \t\v\f{[;", at), line.size());
            add_token(PbnToken::Kind::Word, std::string(line.substr(at, end - at)), lines_.number());
            at = end;
        }
    }
}

std::size_t PbnGames::take_comment(std::string_view line, std::size_t at) {
    const std::size_t end = line.find('}', at);
    text_ += line.substr(at, end - at);
    if (end == std::string_view::npos) return line.size();
    state_ = State::Outside;
    add_token(PbnToken::Kind::Comment, comment_text(text_), began_);
    return end + 1;
}

// A bracket within the quotes of the value does not end the tag.
std::size_t PbnGames::take_tag(std::string_view line, std::size_t at) {
    for (; at < line.size(); ++at) {
        const char character = line[at];
        if (character == '\\' && in_quotes_ && at + 1 < line.size() && (line[at + 1] == '"' || line[at + 1] == '\\')) {
            text_ += character;
            text_ += line[++at];
            continue;
        }
        if (character == '"') in_quotes_ = !in_quotes_;
        if (character == ']' && !in_quotes_) {
            state_ = State::Outside;
            finish_tag();
            return at + 1;
        }
        text_ += character;
    }
    return at;
}

void PbnGames::finish_tag() {
    const std::size_t quote = text_.find('"');
    const std::size_t last = text_.rfind('"');
    const std::string name = without_blanks(base::replaced(text_.substr(0, quote), "\n", " "));
    if (name.empty() || quote == std::string::npos || quote == last) {
        game_.problems.push_back({began_, "not a tag: [" + text_ + "]"});
        return;
    }
    std::string value;
    for (std::size_t at = quote + 1; at < last; ++at) {
        if (text_[at] == '\\' && at + 1 < last && (text_[at + 1] == '"' || text_[at + 1] == '\\')) ++at;
        value += text_[at] == '\n' ? ' ' : text_[at];
    }
    for (const char* begins : kFirstTags) {
        if (!base::equal_ignoring_case(name, begins) || !game_.find(name)) continue;
        finish_game();
        game_.line = began_;
    }
    game_.tags.push_back({name, value, began_, {}});
}

}  // namespace exchange
