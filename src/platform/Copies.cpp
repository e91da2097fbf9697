#include "platform/Copies.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "base/Fout.h"
#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/FileBeside.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kPart = 65536;  // bytes that are copied at a time

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

[[noreturn]] void fail(const fs::path& path) {
    throw Fout::from({errno, std::generic_category()}, path_text(path.filename()));
}
[[noreturn]] void refuse(const fs::path& path) { throw Fout(FoutNummer::PathAccess, path_text(path.filename())); }

struct Entry {
    std::string bytes;  // its name in the folder
    bool link;
};
// The entries of a folder by their names in lower case; of two that differ in case only, each stands there.
using Entries = std::multimap<std::string, Entry>;

Entries entries_of(const fs::path& folder) {
    const std::unique_ptr<DIR, CloseFolder> open(system_calls::open_folder(folder.c_str()));
    if (!open && errno == ENOENT) throw Fout(FoutNummer::PathNotFound, path_text(folder.filename()));
    if (!open) fail(folder);
    Entries entries;
    while (const dirent* entry = system_calls::read_folder(open.get(), folder.c_str())) {
        const char* name = static_cast<const char*>(entry->d_name);
        entries.emplace(lower_case(name_text(name)), Entry{name, entry->d_type == DT_LNK});
    }
    if (errno != 0) fail(folder);
    return entries;
}

// The entry of that very name, otherwise the first that differs in case only; null if there is none.
const Entry* find(const Entries& entries, const std::string& name) {
    const auto [first, end] = entries.equal_range(lower_case(name));
    const std::string exact = name_bytes(name);
    const auto same = std::find_if(first, end, [&](const auto& entry) { return entry.second.bytes == exact; });
    if (same != end) return &same->second;
    return first == end ? nullptr : &first->second;
}

Target target_of(const fs::path& folder, const Entries& entries, const std::string& name) {
    const Entry* there = find(entries, name);
    Target target{folder / (there ? there->bytes : name_bytes(name))};
    if (!there) return target;
    struct stat about {};
    if (system_calls::link_status(target.path.c_str(), about) != 0) fail(target.path);
    if (!S_ISREG(about.st_mode)) refuse(target.path);  // a link too
    target.about = about;
    return target;
}

void copy(OpenFile& source, FileBeside& target) {
    std::string part(kPart, '\0');
    while (const std::size_t got = source.read(part.data(), part.size()))
        target.write(std::string_view(part).substr(0, got));
    target.close();
}

}  // namespace

Copies::Copies() = default;
Copies::~Copies() = default;

void Copies::add_folder(std::string_view from, const std::vector<std::string>& names, std::string_view to,
                        Links links_in_from) {
    const fs::path source_folder = find_case_blind(from);
    const fs::path target_folder = find_case_blind(to);
    const Entries sources = entries_of(source_folder);
    const Entries targets = entries_of(target_folder);
    for (const std::string& name : names) {
        const Entry* source = find(sources, name);
        if (!source) throw Fout(FoutNummer::FileNotFound, name);
        if (source->link && links_in_from == Links::Refuse) refuse(source->bytes);
    }
    remove_leftovers(to);
    std::vector<std::unique_ptr<FileBeside>> added;
    for (const std::string& name : names) {
        const fs::path path = source_folder / find(sources, name)->bytes;
        struct stat about {};
        if (system_calls::status(path.c_str(), about) != 0) fail(path);
        if (!S_ISREG(about.st_mode)) refuse(path);
        OpenFile source(path, O_RDONLY | (links_in_from == Links::Refuse ? O_NOFOLLOW : 0));
        Target target = target_of(target_folder, targets, name);
        const bool itself =
            target.about && target.about->st_dev == about.st_dev && target.about->st_ino == about.st_ino;
        if (itself) continue;
        FileBeside& beside = *added.emplace_back(std::make_unique<FileBeside>(std::move(target)));
        devices_.emplace(beside.device(), target_folder.string());
        copy(source, beside);
    }
    std::ranges::move(added, std::back_inserter(files_));
}

void Copies::finish() {
    const auto files = std::exchange(files_, {});
    if (!files.empty()) flush();
    for (const auto& file : files)
        file->take_place();
}

void Copies::flush() {
    for (const auto& [device, folder] : devices_)
        OpenFile(folder, O_RDONLY | O_DIRECTORY).flush_device();
}
