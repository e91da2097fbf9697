#include "platform/Copies.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <utility>

#include "base/Fout.h"
#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/FileBeside.h"
#include "platform/FolderBeside.h"
#include "platform/OpenFile.h"
#include "platform/OpenFolder.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"

namespace platform {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kPart = 65536;  // bytes that are copied at a time

[[noreturn]] void refuse(const fs::path& path) {
    throw base::Fout(base::FoutNummer::PathAccess, path_text(path.filename()));
}

struct Entry {
    std::string bytes;  // its name in the folder
    bool link;
};
// The entries of a folder by their names in lower case; of two that differ in case only, each stands there.
using Entries = std::multimap<std::string, Entry>;

Entries entries_of(const fs::path& folder) {
    OpenFolder open(folder);
    if (!open.there()) throw base::Fout(base::FoutNummer::PathNotFound, path_text(folder.filename()));
    Entries entries;
    while (const system_calls::Entry* entry = open.next()) {
        entries.emplace(base::lower_case(name_text(entry->name)),
                        Entry{std::string(entry->name), entry->kind == system_calls::Kind::Link});
    }
    return entries;
}

// The entry of that very name, otherwise the first that differs in case only; null if there is none.
const Entry* find(const Entries& entries, const std::string& name) {
    const auto [first, end] = entries.equal_range(base::lower_case(name));
    const std::string exact = name_bytes(name);
    const auto same = std::find_if(first, end, [&](const auto& entry) { return entry.second.bytes == exact; });
    if (same != end) return &same->second;
    return first == end ? nullptr : &first->second;
}

// A file of a folder whose entries those are.
Target target_of(const fs::path& folder, const Entries& entries, const std::string& name) {
    const Entry* there = find(entries, name);
    Target target{folder / path_of(there ? there->bytes : name_bytes(name))};
    if (!there) return target;
    system_calls::About about;
    if (system_calls::link_status(target.path, about) != 0) fail(errno, target.path);
    if (about.kind != system_calls::Kind::File) refuse(target.path);  // a link too
    target.about = about;
    return target;
}

void copy(const fs::path& from, system_calls::OpenFor reading, auto& target) {
    OpenFile source(from, reading);
    std::string part(kPart, '\0');
    while (const std::size_t got = source.read(part.data(), part.size()))
        target.write(std::string_view(part).substr(0, got));
    target.flush_with_device();
    target.close();
}

}  // namespace

// A plain file that is copied.
struct Copies::Source {
    std::string name;
    fs::path path;
    system_calls::OpenFor reading;
    system_calls::About about{};
};

Copies::Copies() = default;
Copies::~Copies() = default;

void Copies::add_folder(std::string_view from, const std::vector<std::string>& names, std::string_view to,
                        Links links_in_from) {
    const fs::path source_folder = find_case_blind(from);
    const fs::path target_folder = find_case_blind(to);
    const Entries entries = entries_of(source_folder);
    const Entries targets = entries_of(target_folder);
    const bool follow = links_in_from == Links::Follow;
    std::vector<Source> sources;
    for (const std::string& name : names) {
        const Entry* entry = find(entries, name);
        if (!entry) throw base::Fout(base::FoutNummer::FileNotFound, name);
        if (entry->link && !follow) refuse(path_of(entry->bytes));
        Source& source = sources.emplace_back(
            Source{name, source_folder / path_of(entry->bytes),
                   follow ? system_calls::OpenFor::Reading : system_calls::OpenFor::ReadingNoLink});
        if (system_calls::status(source.path, source.about) != 0) fail(errno, source.path);
        if (source.about.kind != system_calls::Kind::File) refuse(source.path);
    }
    if (targets.empty() && !sources.empty()) {
        fill(target_folder, sources);
        return;
    }
    remove_leftovers(to);
    std::vector<std::unique_ptr<FileBeside>> added;
    for (const Source& source : sources) {
        Target target = target_of(target_folder, targets, source.name);
        const bool itself =
            target.about && target.about->device == source.about.device && target.about->number == source.about.number;
        if (itself) continue;
        FileBeside& beside = *added.emplace_back(std::make_unique<FileBeside>(std::move(target)));
        devices_.emplace(beside.device(), target_folder);
        copy(source.path, source.reading, beside);
    }
    std::ranges::move(added, std::back_inserter(files_));
}

// Two names that differ in case only may be one file there: the last of them stays, as over a file that is there.
void Copies::fill(const fs::path& empty_folder, const std::vector<Source>& sources) {
    const fs::path parent = empty_folder.parent_path();
    if (cleared_.insert(parent).second) clear_leftovers(path_text(parent));
    auto beside = std::make_unique<FolderBeside>(parent);
    devices_.emplace(beside->device(), parent);
    for (const Source& source : sources) {
        OpenFile target(beside->path() / path_of(name_bytes(source.name)), system_calls::OpenFor::WritingAnew);
        copy(source.path, source.reading, target);
    }
    folders_.push_back({std::move(beside), empty_folder});
}

void Copies::finish() {
    const auto files = std::exchange(files_, {});
    const auto folders = std::exchange(folders_, {});
    if (!files.empty() || !folders.empty()) flush();
    for (const auto& file : files)
        file->take_place();
    for (const NewFolder& folder : folders)
        folder.beside->take_place(folder.place);
}

void Copies::flush() {
    for (const auto& [device, folder] : devices_)
        flush_device(folder);
}

}  // namespace platform
