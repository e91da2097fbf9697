#include "platform/Files.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "base/Fout.h"
#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/FileBeside.h"
#include "platform/OpenFile.h"
#include "platform/Paths.h"
#include "platform/SystemCalls.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kPart = 65536;  // bytes that are read at a time

[[noreturn]] void fail(int error, const fs::path& path) {
    throw Fout::from({error, std::generic_category()}, path_text(path.filename()));
}

bool says_absent(int error) { return error == ENOENT || error == ENOTDIR; }

// What a path leads to; nothing where nothing is. A path that cannot be is a failure.
std::optional<struct stat> status_of(const fs::path& path) {
    struct stat about {};
    if (system_calls::status(path.c_str(), about) == 0) return about;
    if (!says_absent(errno)) fail(errno, path);
    return std::nullopt;
}

// The same of a link itself.
std::optional<struct stat> link_status_of(const fs::path& path) {
    struct stat about {};
    if (system_calls::link_status(path.c_str(), about) == 0) return about;
    if (!says_absent(errno)) fail(errno, path);
    return std::nullopt;
}

bool is_link(const fs::path& path) {
    const auto about = link_status_of(path);
    return about && S_ISLNK(about->st_mode);
}

bool is_folder(const fs::path& path) {
    const auto about = status_of(path.empty() ? "." : path);
    return about && S_ISDIR(about->st_mode);
}

// Only plain files are read: a folder, a pipe or a device in a package's place is refused before it is opened.
fs::path plain_file(std::string_view path) {
    fs::path found = find_case_blind(path);
    const auto about = status_of(found);
    if (about && S_ISREG(about->st_mode)) return found;
    if (about) throw Fout(FoutNummer::PathAccess, path_text(found.filename()));
    throw Fout(is_folder(found.parent_path()) ? FoutNummer::FileNotFound : FoutNummer::PathNotFound,
               path_text(found.filename()));
}

Target writable_target(std::string_view path) {
    Target target{find_case_blind(path), std::nullopt};
    target.about = status_of(target.path);
    if (target.about && !S_ISREG(target.about->st_mode)) {
        throw Fout(FoutNummer::PathAccess, path_text(target.path.filename()));
    }
    return target;
}

void write_straight(std::string_view path, std::string_view bytes, int flags) {
    OpenFile file(writable_target(path).path, O_WRONLY | O_CREAT | O_NOFOLLOW | flags);
    file.write(bytes);
    file.close();
}

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

template <class Action>
void for_each_entry(std::string_view folder, Action action) {
    const fs::path found = find_case_blind(folder);
    const std::unique_ptr<DIR, CloseFolder> open(system_calls::open_folder(found.c_str()));
    if (!open && says_absent(errno)) throw Fout(FoutNummer::PathNotFound, std::string(folder));
    if (!open) fail(errno, found);
    while (const dirent* entry = system_calls::read_folder(open.get(), found.c_str())) {
        const std::string_view name = static_cast<const char*>(entry->d_name);
        if (name != "." && name != "..") action(found, *entry, name);
    }
    if (errno != 0) fail(errno, found);
}

// The kind of an entry as the folder tells it; only where it doesn't, or for a link, the entry itself is asked. A link
// that leads nowhere is of no kind.
bool is_of_kind(const fs::path& folder, const dirent& entry, mode_t kind) {
    if (entry.d_type == DT_DIR) return kind == S_IFDIR;
    if (entry.d_type == DT_REG) return kind == S_IFREG;
    const fs::path path = folder / static_cast<const char*>(entry.d_name);
    struct stat about {};
    if (system_calls::status(path.c_str(), about) == 0) return (about.st_mode & S_IFMT) == kind;
    if (!says_absent(errno) && errno != ELOOP && errno != EACCES && errno != ENAMETOOLONG) fail(errno, path);
    return false;
}

// Names of the entries of a kind, in ascending order without regard to case.
std::vector<std::string> names_in(std::string_view folder, mode_t kind) {
    using SortedName = std::pair<std::string, std::string>;  // in front of the name what it is sorted by
    std::vector<SortedName> entries;
    for_each_entry(folder, [&](const fs::path& path, const dirent& entry, std::string_view name) {
        if (!is_of_kind(path, entry, kind)) return;
        std::string text = name_text(name);
        std::string key = lower_case(text);
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

bool hidden(const std::string& name) { return name.starts_with('.'); }

bool matches(const std::string& name, std::string_view pattern) {
    if (pattern == "*") return true;
    const std::string_view ending = pattern.substr(1);
    return name.size() >= ending.size() && equal_ignoring_case(right(name, ending.size()), ending);
}

template <class Concerns>
void refuse_links_that(std::string_view folder, Concerns concern) {
    if (!is_folder(find_case_blind(folder))) return;
    for_each_entry(folder, [&](const fs::path& path, const dirent& entry, std::string_view name) {
        if (entry.d_type != DT_LNK && (entry.d_type != DT_UNKNOWN || !is_link(path / name))) return;
        const std::string text = name_text(name);
        if (concern(text)) throw Fout(FoutNummer::PathAccess, text);
    });
}

}  // namespace

std::int64_t file_length(std::string_view path) {
    const fs::path found = find_case_blind(path);
    struct stat about {};
    if (system_calls::status(found.c_str(), about) == 0) return S_ISREG(about.st_mode) ? about.st_size : -1;
    if (!says_absent(errno) && errno != ENAMETOOLONG && errno != ELOOP) fail(errno, found);
    return -1;
}

LineReader::LineReader(std::string_view path)
    : path_(path), file_(std::make_unique<OpenFile>(plain_file(path), O_RDONLY)) {}

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
    if (at_end()) throw Fout(FoutNummer::ReadPastEnd, last_part(path_));
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
    OpenFile file(plain_file(path), O_RDONLY);
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
    write_straight(path, bytes, 0);
}

void write_file(std::string_view path, std::string_view bytes) { write_straight(path, bytes, O_TRUNC); }
void copy_file(std::string_view from, std::string_view to) { write_file(to, read_file(from)); }

void replace_file(std::string_view path, std::string_view bytes) {
    FileBeside beside(writable_target(path));
    beside.write(bytes);
    beside.flush_to_disk();
    beside.close();
    beside.take_place();
}

void remove_leftovers(std::string_view folder, FileTime older_than) {
    for_each_entry(folder, [&](const fs::path& path, const dirent&, std::string_view name) {
        if (!name.starts_with(kBesideName)) return;
        const fs::path left = path / name;
        const auto about = link_status_of(left);
        if (!about || !S_ISREG(about->st_mode)) return;
        if (std::chrono::system_clock::from_time_t(about->st_mtime) >= older_than) return;
        if (system_calls::remove(left.c_str()) != 0) fail(errno, left);
    });
}

void delete_file(std::string_view path) {
    const fs::path found = find_case_blind(path);
    if (system_calls::remove(found.c_str()) != 0) fail(errno, found);
}

void remove_folder(std::string_view path) {
    const fs::path found = find_case_blind(path);
    if (system_calls::remove_folder(found.c_str()) == 0) return;
    throw Fout(errno == ENOENT ? FoutNummer::PathNotFound : FoutNummer::PathAccess, path_text(found.filename()));
}

void rename_path(std::string_view from, std::string_view to) {
    const fs::path source = find_case_blind(from);
    const fs::path target = find_case_blind(to);
    if (!link_status_of(source)) throw Fout(FoutNummer::FileNotFound, last_part(from));
    if (link_status_of(target)) throw Fout(FoutNummer::FileExists, last_part(to));
    if (system_calls::rename(source.c_str(), target.c_str()) != 0) fail(errno, source);
}

void make_folders(std::string_view path) {
    std::string found = find_case_blind(path).string();
    for (std::size_t at = found.find(kPathSeparator, 1); at != std::string::npos;
         at = found.find(kPathSeparator, at + 1)) {
        found[at] = '\0';
        system_calls::make_folder(found.c_str());
        found[at] = kPathSeparator;
    }
    system_calls::make_folder(found.c_str());
}

void refuse_links(std::string_view root, std::string_view path) {
    fs::path found = find_case_blind(path);
    for (auto parts = std::ranges::count(path.substr(root.size()), kPathSeparator); parts > 0; --parts) {
        if (is_link(found)) throw Fout(FoutNummer::PathAccess, path_text(found.filename()));
        found = found.parent_path();
    }
}

void refuse_links_in(std::string_view folder, std::string_view pattern) {
    refuse_links_that(folder, [&](const std::string& link) { return matches(link, pattern); });
}

std::vector<std::string> subfolders_of(std::string_view folder) { return names_in(folder, S_IFDIR); }

std::vector<std::string> files_of(std::string_view folder, std::string_view pattern) {
    std::vector<std::string> files = names_in(folder, S_IFREG);
    std::erase_if(files, [&](const std::string& name) { return hidden(name) || !matches(name, pattern); });
    return files;
}
