#include "script/Interpreter.h"

#include <utility>

#include "app/Start.h"
#include "base/Text.h"
#include "forms/FlexGrid.h"
#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "forms/User.h"
#include "forms/VScrollBar.h"
#include "platform/CodePage.h"
#include "script/Names.h"

namespace script {

namespace {

std::string outcome(forms::Refusal refusal) {
    switch (refusal) {
        case forms::Refusal::None:
            return "ok";
        case forms::Refusal::Hidden:
            return "refused: hidden";
        case forms::Refusal::Disabled:
            return "refused: disabled";
        case forms::Refusal::TimerOff:
            break;
    }
    return "refused: timer off";
}

// The first word and the rest of the line.
std::pair<std::string, std::string> word_and_rest(const std::string& line) {
    const std::size_t blank = line.find(' ');
    if (blank == std::string::npos) return {line, {}};
    return {line.substr(0, blank), line.substr(blank + 1)};
}

template <class Kind>
Kind& control_of(const Target& target, const std::string& name) {
    auto* control = dynamic_cast<Kind*>(target.control);
    if (!control) throw CommandError("not for this command: " + name);
    return *control;
}

template <class Kind>
Kind& find_control(const forms::Windows& windows, const std::string& name) {
    return control_of<Kind>(find_target(windows, name), name);
}

template <class Items, class Line>
std::string lines_of(const Items& items, Line line) {
    std::string answer;
    for (const auto& item : items)
        answer += line(item) + "\n";
    return answer + ".";
}

std::string value(const std::string& text) { return "= " + escaped(text); }

std::string style_word(platform::Answer answer) {
    return answer == platform::Answer::Yes ? "yes" : answer == platform::Answer::No ? "no" : "ok";
}

}  // namespace

Interpreter::Interpreter(std::unique_ptr<Stage> stage)
    : stage_(std::move(stage)), platform(stage_->platform()), programma(platform, *stage_) {
    stage_->attach(programma.windows);
}

const std::map<std::string, Interpreter::Command>& Interpreter::commands() {
    using I = Interpreter;
    static const std::map<std::string, Command> table{
        {"start", &I::start},       {"click", &I::click},       {"select", &I::select}, {"type", &I::type},
        {"text", &I::text},         {"scroll", &I::scroll},     {"key", &I::key},       {"close", &I::close},
        {"activate", &I::activate}, {"resize", &I::resize},     {"window", &I::window}, {"tick", &I::tick},
        {"wait", &I::wait},         {"answer", &I::answer},     {"get", &I::get},       {"dump", &I::dump},
        {"screens", &I::screens},   {"shared", &I::shared},     {"boxes", &I::boxes},   {"clipboard", &I::clipboard},
        {"opened", &I::opened},     {"keys", &I::keys},         {"online", &I::online}, {"serve", &I::serve},
        {"drive", &I::drive},       {"nodrives", &I::nodrives}, {"screen", &I::screen}, {"quit", &I::quit},
    };
    return table;
}

std::string Interpreter::run(const std::string& line) {
    const auto [word, rest] = word_and_rest(platform::from_utf8(line));
    if (base::trimmed(line).empty() || word.starts_with('#') || finished_) return {};
    const auto command = commands().find(word);
    const bool after_the_end = word == "clipboard" || word == "opened" || word == "boxes" || word == "quit";
    if (programma.windows.ended() && !after_the_end) return "ended";
    if (command == commands().end()) return error("no command " + word);
    std::string answer = carry_out(command->second, rest);
    if (answer.starts_with("error: ") || programma.windows.ended()) return answer;
    const std::string difference = stage_->difference();
    return difference.empty() ? answer : error(difference);
}

std::string Interpreter::error(const std::string& why) {
    failed_ = true;
    return "error: " + platform::to_utf8(escaped(why));
}

std::string Interpreter::carry_out(Command command, const std::string& arguments) {
    try {
        return platform::to_utf8((this->*command)(arguments));
    } catch (const CommandError& wrong) {
        return error(wrong.what());
    } catch (const std::exception& failure) {
        stage_->broken_off();
        return error(failure.what());
    } catch (const ScriptPlatform::NoAnswer& none) {
        stage_->broken_off();
        return error("no answer to " + none.question);
    }
}

std::string Interpreter::start(const std::string&) {
    app::start(programma);
    return "ok";
}

std::string Interpreter::click(const std::string& arguments) {
    const Target target = find_target(programma.windows, arguments);
    if (target.part) {
        return outcome(stage_->click_cell(control_of<forms::FlexGrid>(target, arguments), target.row, target.col));
    }
    return outcome(stage_->click(control_of<forms::Control>(target, arguments)));
}

std::string Interpreter::select(const std::string& arguments) {
    const auto [name, line] = word_and_rest(arguments);
    return outcome(stage_->select(find_control<forms::ListBox>(programma.windows, name), whole_number(line)));
}

std::string Interpreter::type(const std::string& arguments) {
    const auto [name, typed] = word_and_rest(arguments);
    return outcome(stage_->type(find_control<forms::TextBox>(programma.windows, name), unescaped(typed)));
}

std::string Interpreter::text(const std::string& arguments) {
    const auto [name, typed] = word_and_rest(arguments);
    return outcome(stage_->type_all(find_control<forms::TextBox>(programma.windows, name), unescaped(typed)));
}

std::string Interpreter::scroll(const std::string& arguments) {
    const auto [name, position] = word_and_rest(arguments);
    return outcome(stage_->scroll(find_control<forms::VScrollBar>(programma.windows, name), whole_number(position)));
}

std::string Interpreter::key(const std::string& arguments) {
    const auto [name, which] = word_and_rest(arguments);
    forms::Form& form = find_form(programma.windows, name);
    if (which == "escape") {
        stage_->escape(form);
    } else if (which == "f1") {
        stage_->help(form);
    } else {
        throw CommandError("no key " + which);
    }
    return "ok";
}

std::string Interpreter::close(const std::string& arguments) {
    stage_->close(find_form(programma.windows, arguments));
    return "ok";
}

std::string Interpreter::activate(const std::string& arguments) {
    stage_->activate(find_form(programma.windows, arguments));
    return "ok";
}

std::string Interpreter::resize(const std::string& arguments) {
    const auto [name, size] = word_and_rest(arguments);
    const auto [width, height] = word_and_rest(size);
    stage_->resize(find_form(programma.windows, name), number(width), number(height));
    return "ok";
}

std::string Interpreter::window(const std::string& arguments) {
    const auto [name, state] = word_and_rest(arguments);
    forms::Form& form = find_form(programma.windows, name);
    static const std::map<std::string, forms::WindowState> states{{"normal", forms::WindowState::Normal},
                                                                  {"minimised", forms::WindowState::Minimised},
                                                                  {"maximised", forms::WindowState::Maximised}};
    const auto wanted = states.find(state);
    if (wanted == states.end()) throw CommandError("no window state " + state);
    stage_->change_state(form, wanted->second);
    return "ok";
}

std::string Interpreter::tick(const std::string& arguments) {
    return outcome(forms::user::tick(find_control<forms::Timer>(programma.windows, arguments)));
}

std::string Interpreter::wait(const std::string& arguments) {
    const int milliseconds = whole_number(arguments);
    if (milliseconds < 0) throw CommandError("time does not go back");
    stage_->clock.wait(programma.windows, milliseconds);
    return "ok";
}

std::string Interpreter::answer(const std::string& arguments) {
    for (const platform::Answer answer : {platform::Answer::Yes, platform::Answer::No, platform::Answer::Ok}) {
        if (style_word(answer) != arguments) continue;
        platform.answers.push_back(answer);
        return "ok";
    }
    throw CommandError("no answer " + arguments);
}

std::string Interpreter::get(const std::string& arguments) { return value(property_of(programma.windows, arguments)); }

std::string Interpreter::dump(const std::string& arguments) {
    return lines_of(find_form(programma.windows, arguments).controls(),
                    [](const forms::Control* control) { return describe(*control); });
}

std::string Interpreter::screens(const std::string&) {
    return lines_of(programma.windows.in_front_order(),
                    [](const forms::Form* form) { return form->name() + (form->Visible() ? " visible" : " hidden"); });
}

std::string Interpreter::shared(const std::string& arguments) {
    std::string text;
    if (!services::gedeelde_variabele(programma.gedeeld, arguments, text))
        throw CommandError("no variable " + arguments);
    return value(text);
}

std::string Interpreter::boxes(const std::string&) {
    return lines_of(std::exchange(platform.boxes, {}), [](const ScriptPlatform::Box& box) {
        return std::to_string(box.style) + "\t" + escaped(box.title) + "\t" + escaped(box.text) + "\t" +
               style_word(box.answer);
    });
}

std::string Interpreter::clipboard(const std::string&) { return value(platform.clipboard); }

std::string Interpreter::opened(const std::string&) {
    return lines_of(std::exchange(platform.opened, {}), [](const ScriptPlatform::Opened& item) {
        return escaped(item.file) + "\t" + escaped(item.parameters) + "\t" + escaped(item.folder);
    });
}

std::string Interpreter::keys(const std::string&) {
    return lines_of(std::exchange(platform.keys, {}), [](const platform::KeyRecord& record) {
        return std::to_string(record.virtual_key) + " " + std::to_string(record.scan_code) + " " +
               std::to_string(record.flags);
    });
}

std::string Interpreter::online(const std::string& arguments) {
    if (arguments != "on" && arguments != "off") throw CommandError("on or off");
    platform.online = arguments == "on";
    return "ok";
}

std::string Interpreter::serve(const std::string& arguments) {
    const auto [url, file] = word_and_rest(arguments);
    platform.served[url] = file == "fail" ? std::string() : file;
    return "ok";
}

std::string Interpreter::drive(const std::string& arguments) {
    const auto [root, rest] = word_and_rest(arguments);
    const auto [type_number, label] = word_and_rest(rest);
    platform.drive_list.push_back({root, whole_number(type_number), label});
    return "ok";
}

std::string Interpreter::nodrives(const std::string&) {
    platform.drive_list.clear();
    return "ok";
}

std::string Interpreter::screen(const std::string& arguments) {
    const auto [width, height] = word_and_rest(arguments);
    stage_->screen = {number(width), number(height)};
    return "ok";
}

std::string Interpreter::quit(const std::string&) {
    finished_ = true;
    return "ok";
}

}  // namespace script
