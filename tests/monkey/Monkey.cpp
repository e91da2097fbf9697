#include "monkey/Monkey.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>

#include "base/Fout.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/FlexGrid.h"
#include "forms/Form.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "forms/VScrollBar.h"
#include "platform/Paths.h"
#include "platform/SpecialFolders.h"
#include "platform/SystemCalls.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kTrailLength = 60;
constexpr std::uintmax_t kEnoughFiles = 40;

std::string name_of(const forms::Control& control) {
    const std::string name = control.form().name() + "." + control.name();
    return control.index() == forms::Control::kNoIndex ? name : name + "(" + std::to_string(control.index()) + ")";
}

bool can_be_used(const forms::Control& control) { return control.visible_to_user() && control.enabled_for_user(); }

std::vector<fs::path> entries_below(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code ignored;
    for (const auto& entry :
         fs::recursive_directory_iterator(folder, fs::directory_options::skip_permission_denied, ignored)) {
        entries.push_back(entry.path());
    }
    std::ranges::sort(entries);
    return entries;
}

}  // namespace

Monkey::Monkey(fs::path folder, fs::path samples, unsigned seed, MakeStage make)
    : folder_(std::move(folder)), samples_(std::move(samples)), make_(std::move(make)), random_(seed) {
    restore_samples();
    start();
}

void Monkey::restore_samples() {
    std::error_code ignored;
    for (const char* part : {"RVLX", "aftavrin"}) {
        fs::remove_all(folder_ / part, ignored);
        fs::copy(samples_ / part, folder_ / part, fs::copy_options::recursive, ignored);
    }
    fs::create_directories(folder_ / "stick", ignored);
}

void Monkey::start() {
    interpreter_.reset();
    interpreter_ = std::make_unique<script::Interpreter>(make_(folder_));
    interpreter_->platform.special_folders[platform::kProgramFiles] = platform::path_text(folder_);
    interpreter_->platform.special_folders[platform::kProgramFilesX86] = "";
    interpreter_->platform.drive_list = {{platform::path_text(folder_ / "stick"), 2, "MONKEY"}};
    last_report_ = 0;
    ++starts_;
    interpreter_->run("start");
}

std::string Monkey::act() {
    if (interpreter_->programma.windows.ended()) start();
    if (one_in(300)) change_files();
    prepare_platform();
    const std::string command = next_command();
    trail_.push_back(command);
    if (trail_.size() > kTrailLength) trail_.erase(trail_.begin());
    return problem_of(command, run(command));
}

// Now and then one of the calls on files that the command makes fails.
std::string Monkey::run(const std::string& command) {
    if (!one_in(20)) return interpreter_->run(command);
    static constexpr std::array kErrors{EIO, ENOSPC, EACCES, ENOENT, EMFILE};
    const int error = one_of(kErrors);
    int left = below(40);
    const platform::system_calls::HookScope failing(
        [&](platform::system_calls::Call, const char*) { return left-- == 0 ? error : 0; });
    return interpreter_->run(command);
}

std::string Monkey::problem_of(const std::string& command, const std::string& answer) {
    // What lies behind another control is out of a mouse's reach.
    if (answer.starts_with("error") && !answer.starts_with("error: covered")) return command + ": " + answer;
    const services::Gedeeld& gedeeld = interpreter_->programma.gedeeld;
    if (gedeeld.foutNummer != 0 && gedeeld.foutNummer != last_report_) ++reports_;
    last_report_ = gedeeld.foutNummer;
    if (gedeeld.foutNummer == static_cast<int>(base::FoutNummer::Internal)) {
        return command + ": " + gedeeld.foutPlaats + ": " + gedeeld.foutNaam;
    }
    return {};
}

void Monkey::prepare_platform() {
    auto& platform = interpreter_->platform;
    platform.answers.clear();
    for (int i = 0; i < 4; ++i)
        platform.answers.push_back(one_in(2) ? platform::Answer::Yes : platform::Answer::No);
    platform.boxes.clear();
    platform.opened.clear();
    platform.keys.clear();
    if (one_in(200)) platform.online = !platform.online;
    if (one_in(200)) {
        platform.drive_list.clear();
        if (one_in(2)) platform.drive_list.push_back({platform::path_text(folder_ / "stick"), 2, "MONKEY"});
    }
}

std::string Monkey::next_command() {
    const std::vector<forms::Form*> order = interpreter_->programma.windows.in_front_order();
    std::vector<const forms::Form*> visible;
    std::ranges::copy_if(order, std::back_inserter(visible), [](const forms::Form* form) { return form->Visible(); });
    if (visible.empty()) return "quit";
    // Leaving the report ends the program: mostly the work goes on behind it.
    const std::size_t front = visible.front()->is_report() && visible.size() > 1 && !one_in(20) ? 1 : 0;
    return command_on(one_in(30) ? *one_of(visible) : *visible[front]);
}

std::string Monkey::command_on(const forms::Form& form) {
    if (one_in(400)) return "close " + form.name();
    if (one_in(200)) return "key " + form.name() + " escape";
    if (one_in(400)) return "key " + form.name() + " f1";
    if (one_in(400)) return "activate " + form.name();
    if (one_in(100)) return "wait " + std::to_string(below(4000));
    if (form.is_sizable() && one_in(10)) {
        return "resize " + form.name() + " " + std::to_string(1000 + below(30000)) + " " +
               std::to_string(1000 + below(20000));
    }
    std::vector<const forms::Control*> usable;
    std::ranges::copy_if(form.controls(), std::back_inserter(usable), [](const forms::Control* control) {
        const auto* timer = dynamic_cast<const forms::Timer*>(control);
        return timer ? timer->running() : can_be_used(*control);
    });
    if (!one_in(20))
        std::erase_if(usable, [](const forms::Control* control) { return control->name() == "cmdAfsluiten"; });
    if (usable.empty() || one_in(50)) return command_for(*one_of(form.controls()));
    // Screens are full of labels and pictures: what does something has its turn as often as they.
    std::vector<const forms::Control*> doing;
    std::ranges::copy_if(usable, std::back_inserter(doing), [](const forms::Control* control) {
        return !dynamic_cast<const forms::Container*>(control) && std::string_view(control->kind()) != "Label" &&
               std::string_view(control->kind()) != "Image";
    });
    return command_for(*(doing.empty() || one_in(2) ? one_of(usable) : one_of(doing)));
}

std::string Monkey::command_for(const forms::Control& control) {
    const std::string name = name_of(control);
    if (const auto* list = dynamic_cast<const forms::ListBox*>(&control)) {
        if (list->ListCount() == 0) return "click " + name;
        return "select " + name + " " + std::to_string(below(list->ListCount()));
    }
    if (dynamic_cast<const forms::TextBox*>(&control))
        return (one_in(2) ? "type " : "text ") + name + " " + some_text();
    if (dynamic_cast<const forms::Timer*>(&control)) return "tick " + name;
    if (const auto* bar = dynamic_cast<const forms::VScrollBar*>(&control)) {
        return "scroll " + name + " " + std::to_string(bar->Min() - 1 + below(bar->Max() - bar->Min() + 3));
    }
    if (const auto* grid = dynamic_cast<const forms::FlexGrid*>(&control)) {
        return "click " + name + "[" + std::to_string(below(grid->Rows())) + "," + std::to_string(below(grid->Cols())) +
               "]";
    }
    return "click " + name;
}

std::string Monkey::some_text() {
    static const char* const kTexts[] = {"7",     "012",     "99999999999",          "-1",  "Let op!\\r\\nNu.",
                                         "a|b~c", "\\t\\\\", "\xC3\xA9\xE2\x82\xAC", "   ", ""};
    if (one_in(20)) return std::string(static_cast<std::size_t>(below(700)), 'w');
    return one_of(kTexts);
}

// What other programs, a stick that is pulled out or a failing disk may do to the files.
void Monkey::change_files() {
    std::error_code ignored;
    std::vector<fs::path> entries = entries_below(folder_);
    if (entries.size() < kEnoughFiles || one_in(10)) {
        restore_samples();
        return;
    }
    const fs::path& chosen = one_of(entries);
    switch (below(6)) {
        case 0:
            fs::remove_all(chosen, ignored);
            break;
        case 1:
            if (fs::is_regular_file(chosen, ignored))
                fs::resize_file(chosen, static_cast<std::uintmax_t>(below(600)), ignored);
            break;
        case 2:
            if (fs::is_regular_file(chosen, ignored)) {
                std::ofstream(chosen, std::ios::binary)
                    << std::string(static_cast<std::size_t>(below(900)), '|') << "2341~\n1|";
            }
            break;
        case 3:
            fs::rename(chosen, chosen.parent_path() / ("QVT_Spel " + std::to_string(below(1000))), ignored);
            break;
        case 4:
            fs::create_symlink(one_of(entries), chosen.parent_path() / ("link " + std::to_string(below(100))), ignored);
            break;
        default:
            fs::remove_all(chosen, ignored);
            fs::create_directory(chosen, ignored);
    }
}
