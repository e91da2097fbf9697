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

void copy(OpenFile& source, FileBeside& target) {
    std::string part(kPart, '\0');
    while (const std::size_t got = source.read(part.data(), part.size()))
        target.write(std::string_view(part).substr(0, got));
    target.flush_with_device();
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
        if (!source) throw base::Fout(base::FoutNummer::FileNotFound, name);
        if (source->link && links_in_from == Links::Refuse) refuse(path_of(source->bytes));
    }
    remove_leftovers(to);
    std::vector<std::unique_ptr<FileBeside>> added;
    for (const std::string& name : names) {
        const fs::path path = source_folder / path_of(find(sources, name)->bytes);
        system_calls::About about;
        if (system_calls::status(path, about) != 0) fail(errno, path);
        if (about.kind != system_calls::Kind::File) refuse(path);
        OpenFile source(path, links_in_from == Links::Refuse ? system_calls::OpenFor::ReadingNoLink
                                                             : system_calls::OpenFor::Reading);
        Target target = target_of(target_folder, targets, name);
        const bool itself =
            target.about && target.about->device == about.device && target.about->number == about.number;
        if (itself) continue;
        FileBeside& beside = *added.emplace_back(std::make_unique<FileBeside>(std::move(target)));
        devices_.emplace(beside.device(), target_folder);
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
        flush_device(folder);
}

}  // namespace platform
