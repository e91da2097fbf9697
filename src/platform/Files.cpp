#include "platform/Files.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <utility>

#include "base/Fout.h"
#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/Failure.h"
#include "platform/FileBeside.h"
#include "platform/OpenFile.h"
#include "platform/OpenFolder.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"

namespace platform {

namespace fs = std::filesystem;
using system_calls::About;
using system_calls::Entry;
using system_calls::Kind;
using system_calls::OpenFor;

namespace {

constexpr std::size_t kPart = 8192;  // bytes that are read at a time

// What a path leads to; nothing where nothing is. A path that cannot be is a failure.
std::optional<About> status_of(const fs::path& path) {
    About about;
    if (system_calls::status(path, about) == 0) return about;
    if (!says_absent(errno)) fail(errno, path);
    return std::nullopt;
}

// The same of a link itself.
std::optional<About> link_status_of(const fs::path& path) {
    About about;
    if (system_calls::link_status(path, about) == 0) return about;
    if (!says_absent(errno)) fail(errno, path);
    return std::nullopt;
}

bool is_link(const fs::path& path) {
    const auto about = link_status_of(path);
    return about && about->kind == Kind::Link;
}

bool is_folder(const fs::path& path) {
    const auto about = status_of(path.empty() ? "." : path);
    return about && about->kind == Kind::Folder;
}

// Only plain files are read: a folder, a pipe or a device in a package's place is refused before it is opened.
fs::path plain_file(std::string_view path) {
    fs::path found = find_case_blind(path);
    const auto about = status_of(found);
    if (about && about->kind == Kind::File) return found;
    if (about) throw base::Fout(base::FoutNummer::PathAccess, path_text(found.filename()));
    throw base::Fout(is_folder(found.parent_path()) ? base::FoutNummer::FileNotFound : base::FoutNummer::PathNotFound,
                     path_text(found.filename()));
}

Target writable_target(std::string_view path) {
    Target target{find_case_blind(path), std::nullopt};
    target.about = status_of(target.path);
    if (target.about && target.about->kind != Kind::File) {
        throw base::Fout(base::FoutNummer::PathAccess, path_text(target.path.filename()));
    }
    return target;
}

void write_straight(std::string_view path, std::string_view bytes, OpenFor purpose) {
    OpenFile file(writable_target(path).path, purpose);
    file.write(bytes);
    file.close();
}

template <class Action>
void for_each_entry(std::string_view folder, Action action) {
    OpenFolder open(find_case_blind(folder));
    if (!open.there()) throw base::Fout(base::FoutNummer::PathNotFound, std::string(folder));
    while (const Entry* entry = open.next())
        action(open.path(), *entry);
}

// The kind of an entry as the folder tells it; only where it doesn't, or for a link, the entry itself is asked. A link
// that leads nowhere is of no kind.
bool is_of_kind(const fs::path& folder, const Entry& entry, Kind kind) {
    if (entry.kind == Kind::Folder || entry.kind == Kind::File) return entry.kind == kind;
    const fs::path path = folder / path_of(entry.name);
    About about;
    if (system_calls::status(path, about) == 0) return about.kind == kind;
    if (!says_absent(errno) && errno != ELOOP && errno != EACCES && errno != ENAMETOOLONG) fail(errno, path);
    return false;
}

enum class Hidden { With, Without };

// Names of the entries of a kind, in ascending order without regard to case.
std::vector<std::string> names_in(std::string_view folder, Kind kind, Hidden hidden) {
    using SortedName = std::pair<std::string, std::string>;  // in front of the name what it is sorted by
    std::vector<SortedName> entries;
    for_each_entry(folder, [&](const fs::path& path, const Entry& entry) {
        if ((entry.hidden && hidden == Hidden::Without) || !is_of_kind(path, entry, kind)) return;
        std::string text = name_text(entry.name);
        std::string key = base::lower_case(text);
        entries.emplace_back(std::move(key), std::move(text));
    });
    std::vector<SortedName*> in_order;
    for (SortedName& entry : entries)
        in_order.push_back(&entry);
    std::ranges::sort(in_order, [](const SortedName* one, const SortedName* other) { return *one < *other; });
    std::vector<std::string> names;
    names.reserve(entries.size());
    for (SortedName* entry : in_order)
        names.push_back(std::move(entry->second));
    return names;
}

bool matches(const std::string& name, std::string_view pattern) {
    if (pattern == "*") return true;
    const std::string_view ending = pattern.substr(1);
    return name.size() >= ending.size() && base::equal_ignoring_case(base::right(name, ending.size()), ending);
}

template <class Concerns>
void refuse_links_that(std::string_view folder, Concerns concern) {
    if (!is_folder(find_case_blind(folder))) return;
    for_each_entry(folder, [&](const fs::path& path, const Entry& entry) {
        if (entry.kind != Kind::Link && (entry.kind != Kind::Unknown || !is_link(path / path_of(entry.name)))) return;
        const std::string text = name_text(entry.name);
        if (concern(text)) throw base::Fout(base::FoutNummer::PathAccess, text);
    });
}

}  // namespace

std::int64_t file_length(std::string_view path) {
    const fs::path found = find_case_blind(path);
    About about;
    if (system_calls::status(found, about) == 0) return about.kind == Kind::File ? about.length : -1;
    if (!says_absent(errno) && errno != ENAMETOOLONG && errno != ELOOP) fail(errno, found);
    return -1;
}

LineReader::LineReader(std::string_view path)
    : path_(path), file_(std::make_unique<OpenFile>(plain_file(path), OpenFor::Reading)) {}

LineReader::~LineReader() = default;

bool LineReader::at_end() {
    if (at_ == part_.size() && !ended_) {
        part_.resize(kPart);
        at_ = part_.size();
        part_.resize(file_->read(part_.data(), kPart));
        at_ = 0;
        ended_ = part_.empty();
    }
    return at_ == part_.size();
}

std::string LineReader::line() {
    if (at_end()) throw base::Fout(base::FoutNummer::ReadPastEnd, last_part(path_));
    std::string text;
    for (bool whole = false; !whole && !at_end();) {
        const std::size_t end = part_.find('\n', at_);
        whole = end != std::string::npos;
        text.append(part_, at_, end - at_);
        at_ = whole ? end + 1 : part_.size();
    }
    if (text.ends_with('\r')) text.pop_back();
    return text;
}

std::string read_file(std::string_view path, std::size_t most) {
    OpenFile file(plain_file(path), OpenFor::Reading);
    std::string bytes;
    for (std::string part(std::min(most, kPart), '\0'); bytes.size() < most;) {
        const std::size_t got = file.read(part.data(), std::min(part.size(), most - bytes.size()));
        if (got == 0) break;
        bytes.append(part, 0, got);
    }
    return bytes;
}

std::string record_bytes(std::string_view text, std::size_t length) {
    std::string record(text.substr(0, length));
    record.resize(length, ' ');
    return record;
}

std::vector<std::string> read_records(std::string_view path, std::size_t length, int count) {
    const std::string bytes = read_file(path, length * static_cast<std::size_t>(count));
    std::vector<std::string> records;
    for (std::size_t at = 0; records.size() < static_cast<std::size_t>(count); at += length) {
        records.push_back(record_bytes(std::string_view(bytes).substr(std::min(at, bytes.size())), length));
    }
    return records;
}

void write_records(std::string_view path, std::size_t length, const std::vector<std::string>& texts) {
    std::string bytes;
    for (const std::string& text : texts)
        bytes += record_bytes(text, length);
    write_straight(path, bytes, OpenFor::WritingAtStart);
}

void write_file(std::string_view path, std::string_view bytes) { write_straight(path, bytes, OpenFor::WritingAnew); }
void copy_file(std::string_view from, std::string_view to) { write_file(to, read_file(from)); }

void replace_file(std::string_view path, std::string_view bytes) {
    FileBeside beside(writable_target(path));
    beside.write(bytes);
    beside.flush_to_disk();
    beside.close();
    beside.take_place();
}

void remove_with_files(const fs::path& folder) {
    for_each_entry(path_text(folder), [](const fs::path& path, const Entry& entry) {
        const fs::path file = path / path_of(entry.name);
        if (entry.kind != Kind::Folder && system_calls::remove(file) != 0) fail(errno, file);
    });
    if (system_calls::remove_folder(folder) != 0) fail(errno, folder);
}

void remove_leftovers(std::string_view folder, FileTime older_than) {
    for_each_entry(folder, [&](const fs::path& path, const Entry& entry) {
        if (!entry.name.starts_with(kBesideName)) return;
        const fs::path left = path / path_of(entry.name);
        const auto about = link_status_of(left);
        if (!about || about->changed >= older_than) return;
        if (about->kind == Kind::Folder) {
            remove_with_files(left);
        } else if (about->kind == Kind::File && system_calls::remove(left) != 0) {
            fail(errno, left);
        }
    });
}

void clear_leftovers(std::string_view folder) noexcept {
    constexpr std::chrono::hours kStillMade{1};
    try {
        remove_leftovers(folder, std::chrono::system_clock::now() - kStillMade);
    } catch (const base::Fout&) {  // The folder is not there yet, or not ours to clear.
    }
}

void delete_file(std::string_view path) {
    const fs::path found = find_case_blind(path);
    if (system_calls::remove(found) != 0) fail(errno, found);
}

void remove_folder(std::string_view path) {
    const fs::path found = find_case_blind(path);
    if (system_calls::remove_folder(found) == 0) return;
    throw base::Fout(errno == ENOENT ? base::FoutNummer::PathNotFound : base::FoutNummer::PathAccess,
                     path_text(found.filename()));
}

void rename_path(std::string_view from, std::string_view to) {
    const fs::path source = find_case_blind(from);
    const fs::path target = find_case_blind(to);
    if (!link_status_of(source)) throw base::Fout(base::FoutNummer::FileNotFound, last_part(from));
    if (link_status_of(target)) throw base::Fout(base::FoutNummer::FileExists, last_part(to));
    if (system_calls::rename(source, target) != 0) fail(errno, source);
}

void make_folders(std::string_view path) {
    fs::path made;
    for (const fs::path& part : find_case_blind(path)) {
        made /= part;
        if (!part.empty() && made != made.root_path()) system_calls::make_folder(made);
    }
}

void refuse_links(std::string_view root, std::string_view path) {
    fs::path found = find_case_blind(path);
    for (auto parts = std::ranges::count(path.substr(root.size()), kPathSeparator); parts > 0; --parts) {
        if (is_link(found)) throw base::Fout(base::FoutNummer::PathAccess, path_text(found.filename()));
        found = found.parent_path();
    }
}

void refuse_links_in(std::string_view folder, std::string_view pattern) {
    refuse_links_that(folder, [&](const std::string& link) { return matches(link, pattern); });
}

std::vector<std::string> subfolders_of(std::string_view folder) {
    std::vector<std::string> names = names_in(folder, Kind::Folder, Hidden::With);
    std::erase_if(names, [](const std::string& name) { return name.starts_with(kBesideName); });
    return names;
}

std::vector<std::string> files_of(std::string_view folder, std::string_view pattern) {
    std::vector<std::string> files = names_in(folder, Kind::File, Hidden::Without);
    std::erase_if(files, [&](const std::string& name) { return !matches(name, pattern); });
    return files;
}

}  // namespace platform
