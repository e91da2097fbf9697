#include "platform/NewFolders.h"

#include <cerrno>
#include <set>

#include "base/Fout.h"
#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/FileBeside.h"
#include "platform/Files.h"
#include "platform/OpenFile.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

void refuse_taken(const fs::path& place) {
    system_calls::About about;
    if (system_calls::link_status(place, about) == 0)
        throw base::Fout(base::FoutNummer::FileExists, path_text(place.filename()));
    if (errno != ENOENT) fail(errno, place);
}

void remove_quietly(const fs::path& folder) noexcept {
    try {
        remove_with_files(folder);
    } catch (const base::Fout&) {  // The next import takes it away.
    }
}

}  // namespace

NewFolders::~NewFolders() { remove_those_left(); }

void NewFolders::add(std::string_view parent, const std::string& name, const std::vector<NewFile>& files) {
    const fs::path folder = find_case_blind(parent);
    fs::path beside;
    do {
        beside = folder / beside_name(number_++);
        if (system_calls::make_folder(beside) == 0) break;
        if (errno == ENOENT) throw base::Fout(base::FoutNummer::PathNotFound, path_text(folder.filename()));
        if (errno != EEXIST) fail(errno, folder);
    } while (true);
    try {
        for (const NewFile& file : files) {
            OpenFile open(beside / path_of(name_bytes(file.name)), system_calls::OpenFor::WritingNew);
            open.write(file.bytes);
            open.flush_with_device();
            open.close();
        }
    } catch (...) {
        remove_quietly(beside);
        throw;
    }
    folders_.push_back({beside, folder / path_of(name_bytes(name))});
}

void NewFolders::flush() const {
    std::set<fs::path> parents;
    for (const Folder& folder : folders_)
        parents.insert(folder.place.parent_path());
    for (const fs::path& parent : parents)
        flush_device(parent);
}

void NewFolders::finish() {
    placed_ = 0;
    try {
        if (!folders_.empty()) flush();
        for (Folder& folder : folders_) {
            refuse_taken(folder.place);
            if (system_calls::rename(folder.beside, folder.place) != 0) fail(errno, folder.place);
            folder.beside.clear();
            ++placed_;
        }
    } catch (...) {
        remove_those_left();
        throw;
    }
    folders_.clear();
}

void NewFolders::remove_those_left() noexcept {
    for (const Folder& folder : folders_) {
        if (!folder.beside.empty()) remove_quietly(folder.beside);
    }
    folders_.clear();
}

}  // namespace platform
