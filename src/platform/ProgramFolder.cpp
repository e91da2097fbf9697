#include "platform/ProgramFolder.h"

#include <filesystem>

#include "base/Fout.h"
#include "platform/CodePage.h"
#include "platform/FileBeside.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/SpecialFolders.h"
#include "platform/SystemCalls.h"

namespace platform {

namespace {

constexpr const char* kName = "Zandolin Lomert";

bool is_there(const std::string& path) {
    system_calls::About about;
    return system_calls::status(find_case_blind(path), about) == 0;
}

void copy_tree(const std::string& from, const std::string& to) {
    make_folders(to);
    for (const std::string& name : files_of(from, "*"))
        copy_file(join_path(from, name), join_path(to, name));
    for (const std::string& name : subfolders_of(from))
        copy_tree(join_path(from, name), join_path(to, name));
}

// As far as that goes: a failure has been met already.
void remove_tree(const std::string& folder) try {
    for (const std::string& name : subfolders_of(folder))
        remove_tree(join_path(folder, name));
    for (const std::string& name : files_of(folder, "*"))
        delete_file(join_path(folder, name));
    remove_folder(folder);
} catch (const base::Fout&) {
}

// A link goes on being right when the program is renewed. A home folder on a disk without links gets a copy.
void add_manual(const std::string& manual, const std::string& folder) {
    if (!is_there(manual)) return;
    const std::string target = join_path(folder, "help.chm");
    if (system_calls::make_link(path_of(name_bytes(manual)), path_of(name_bytes(target))) != 0) {
        copy_file(manual, target);
    }
}

// Beside its place, so that a start that breaks off leaves nothing in it.
void make_folder_of(const std::string& installed, const std::string& home, const std::string& folder) {
    const std::string beside = join_path(home, beside_name());
    try {
        copy_tree(join_path(installed, "program"), beside);
        add_manual(join_path(installed, "help.chm"), beside);
        rename_path(beside, folder);
    } catch (const base::Fout&) {
        remove_tree(beside);
        if (!is_there(folder)) throw;  // A start at the same moment may have made it.
    }
}

}  // namespace

std::string find_program_folder() { return program_folder_of(executable_folder(), home_folder()); }

std::string program_folder_of(std::string_view executables, std::string_view home) {
    const std::filesystem::path prefix = path_of(name_bytes(executables)).parent_path();
    const std::string installed = path_text(prefix / "share" / "zandolin");
    if (!is_there(join_path(installed, "program"))) return std::string(executables);
    if (home.empty()) throw base::Fout(base::FoutNummer::PathNotFound, "HOME");
    std::string folder = join_path(home, kName);
    if (!is_there(folder)) make_folder_of(installed, std::string(home), folder);
    return folder;
}

}  // namespace platform
