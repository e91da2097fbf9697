#include "platform/NewFolders.h"

#include <cerrno>
#include <set>
#include <utility>

#include "base/Fout.h"
#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/FolderBeside.h"
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

}  // namespace

NewFolders::NewFolders() = default;
NewFolders::~NewFolders() = default;

void NewFolders::add(std::string_view parent, const std::string& name, const std::vector<NewFile>& files) {
    const fs::path folder = find_case_blind(parent);
    auto beside = std::make_unique<FolderBeside>(folder);
    for (const NewFile& file : files) {
        OpenFile open(beside->path() / path_of(name_bytes(file.name)), system_calls::OpenFor::WritingNew);
        open.write(file.bytes);
        open.flush_with_device();
        open.close();
    }
    folders_.push_back({std::move(beside), folder / path_of(name_bytes(name))});
}

void NewFolders::finish() {
    placed_ = 0;
    const std::vector<Folder> folders = std::exchange(folders_, {});
    std::set<fs::path> parents;
    for (const Folder& folder : folders)
        parents.insert(folder.place.parent_path());
    for (const fs::path& parent : parents)
        flush_device(parent);
    for (const Folder& folder : folders) {
        refuse_taken(folder.place);
        folder.beside->take_place(folder.place);
        ++placed_;
    }
}

}  // namespace platform
