#include "script/ScriptPlatform.h"

#include <algorithm>

#include "platform/Files.h"
#include "platform/SpecialFolders.h"
#include "services/Settings.h"

namespace script {

std::string ScriptPlatform::special_folder(int number) const {
    const auto given = special_folders.find(number);
    return given == special_folders.end()
               ? platform::special_folder_of(services::settings_file(program_folder_), number)
               : given->second;
}

platform::Answer ScriptPlatform::message_box(int style, const std::string& title, const std::string& text) {
    if (while_box_stands) while_box_stands();
    const bool question = style == platform::box_style::kQuestion || style == platform::box_style::kInformationYesNo;
    platform::Answer answer = platform::Answer::Ok;
    if (!answers.empty()) {
        answer = answers.front();
        answers.pop_front();
    } else if (question) {
        throw NoAnswer{text};
    }
    boxes.push_back({style, title, text, answer});
    return answer;
}

void ScriptPlatform::open(const std::string& file, const std::string& parameters, const std::string& folder) {
    opened.push_back({file, parameters, folder});
}

bool ScriptPlatform::download(const std::string& url, const std::string& path) {
    const auto found = served.find(url);
    if (found == served.end() || found->second.empty()) return false;
    platform::copy_file(found->second, path);
    return true;
}

std::vector<std::string> ScriptPlatform::drives() {
    std::vector<std::string> roots;
    for (const Drive& drive : drive_list)
        roots.push_back(drive.root);
    return roots;
}

int ScriptPlatform::drive_type(const std::string& root) {
    const Drive* drive = find_drive(root);
    return drive ? drive->type : 1;
}

std::string ScriptPlatform::volume_label(const std::string& root) {
    const Drive* drive = find_drive(root);
    return drive ? drive->label : std::string();
}

void ScriptPlatform::send_keys(const std::vector<platform::KeyRecord>& records) {
    keys.insert(keys.end(), records.begin(), records.end());
    if (KeysSent) KeysSent(records);
}

const ScriptPlatform::Drive* ScriptPlatform::find_drive(const std::string& root) const {
    const auto found = std::ranges::find(drive_list, root, &Drive::root);
    return found == drive_list.end() ? nullptr : &*found;
}

}  // namespace script
