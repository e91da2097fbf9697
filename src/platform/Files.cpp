#include "platform/Files.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#include "base/Fout.h"
#include "base/Text.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const std::error_code& error, const fs::path& path) {
    throw Fout::from(error, path_text(path.filename()));
}
[[noreturn]] void fail_with_errno(const fs::path& path) { fail({errno, std::generic_category()}, path); }

// Only plain files are read: a folder, a pipe or a device in a package's place is refused before it is opened.
fs::path plain_file(std::string_view path) {
    fs::path found = find_case_blind(path);
    std::error_code error;
    const fs::file_status status = fs::status(found, error);
    if (fs::is_regular_file(status)) return found;
    if (error && error != std::errc::no_such_file_or_directory) fail(error, found);
    if (fs::exists(status)) throw Fout(FoutNummer::PathAccess, path_text(found.filename()));
    const bool has_folder = fs::is_directory(found.parent_path(), error) || found.parent_path().empty();
    throw Fout(has_folder ? FoutNummer::FileNotFound : FoutNummer::PathNotFound, path_text(found.filename()));
}

fs::path writable_target(std::string_view path) {
    fs::path target = find_case_blind(path);
    std::error_code ignored;
    const fs::file_status status = fs::status(target, ignored);
    if (fs::exists(status) && !fs::is_regular_file(status)) {
        throw Fout(FoutNummer::PathAccess, path_text(target.filename()));
    }
    return target;
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File open_file(const fs::path& path, const char* mode) {
    File file(std::fopen(path.c_str(), mode));
    if (file) return file;
    if (errno == ENOENT) throw Fout(FoutNummer::PathNotFound, path_text(path.filename()));
    fail_with_errno(path);
}

// A link in the file's own place is not followed.
File open_unlinked(const fs::path& path, int flags, const char* mode) {
    const int descriptor = ::open(path.c_str(), flags | O_NOFOLLOW | O_CLOEXEC, 0666);
    if (descriptor >= 0) return File(fdopen(descriptor, mode));
    if (errno == ENOENT) throw Fout(FoutNummer::PathNotFound, path_text(path.filename()));
    fail_with_errno(path);
}

bool same_file(std::FILE* one, std::FILE* other) {
    struct stat first {};
    struct stat second {};
    return fstat(fileno(one), &first) == 0 && fstat(fileno(other), &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

void write_all(File file, std::string_view bytes, const fs::path& path, bool flush_to_disk) {
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
                         std::fflush(file.get()) == 0 && (!flush_to_disk || fsync(fileno(file.get())) == 0);
    if (!written) fail_with_errno(path);
    if (std::fclose(file.release()) != 0) fail_with_errno(path);
}

// A name, and in front of it what it is sorted by.
using SortedName = std::pair<std::string, std::string>;

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

// The kind of an entry as the folder tells it; only where it doesn't, or for a link, the entry itself is asked.
bool is_of_kind(const fs::path& folder, const dirent& entry, fs::file_type kind) {
    if (entry.d_type == DT_DIR) return kind == fs::file_type::directory;
    if (entry.d_type == DT_REG) return kind == fs::file_type::regular;
    std::error_code ignored;
    return fs::status(folder / static_cast<const char*>(entry.d_name), ignored).type() == kind;
}

// Names of the entries of a kind, in ascending order without regard to case.
std::vector<std::string> names_in(std::string_view folder, fs::file_type kind) {
    const fs::path found = find_case_blind(folder);
    const std::unique_ptr<DIR, CloseFolder> open(opendir(found.c_str()));
    if (!open && (errno == ENOENT || errno == ENOTDIR)) throw Fout(FoutNummer::PathNotFound, std::string(folder));
    if (!open) fail_with_errno(found);

    std::vector<SortedName> entries;
    while (const dirent* entry = readdir(open.get())) {
        const std::string_view name = static_cast<const char*>(entry->d_name);
        if (name == "." || name == ".." || !is_of_kind(found, *entry, kind)) continue;
        std::string text = from_utf8(name);
        std::string key = lower_case(text);
        entries.emplace_back(std::move(key), std::move(text));
    }
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

}  // namespace

std::int64_t file_length(std::string_view path) {
    const fs::path found = find_case_blind(path);
    std::error_code error;
    if (!fs::is_regular_file(found, error)) return -1;
    const std::uintmax_t length = fs::file_size(found, error);
    return error ? -1 : static_cast<std::int64_t>(length);
}

bool folder_exists(std::string_view path) {
    std::error_code ignored;
    return fs::is_directory(find_case_blind(path), ignored);
}

LineReader::LineReader(std::string_view path) : path_(path) {
    const fs::path found = plain_file(path);
    errno = 0;
    stream_.open(found, std::ios::binary);
    if (!stream_) fail_with_errno(found);
}

bool LineReader::at_end() { return stream_.peek() == std::ifstream::traits_type::eof(); }

std::string LineReader::line() {
    std::string text;
    if (!std::getline(stream_, text)) {
        throw Fout(stream_.bad() ? FoutNummer::DeviceError : FoutNummer::ReadPastEnd, last_part(path_));
    }
    if (text.ends_with('\r')) text.pop_back();
    return text;
}

std::string read_file(std::string_view path, std::size_t most) {
    const fs::path found = plain_file(path);
    const File file = open_file(found, "rb");
    std::string bytes;
    for (std::string part(std::min<std::size_t>(most, 65536), '\0'); bytes.size() < most;) {
        const std::size_t got = std::fread(part.data(), 1, std::min(part.size(), most - bytes.size()), file.get());
        if (got == 0) break;
        bytes.append(part, 0, got);
    }
    if (std::ferror(file.get())) throw Fout(FoutNummer::DeviceError, last_part(path));
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
    const fs::path target = writable_target(path);
    std::string bytes;
    for (const std::string& text : texts)
        bytes += record_bytes(text, length);
    std::error_code ignored;
    write_all(open_file(target, fs::exists(target, ignored) ? "r+b" : "wb"), bytes, target, false);
}

void write_file(std::string_view path, std::string_view bytes) {
    const fs::path target = writable_target(path);
    write_all(open_file(target, "wb"), bytes, target, false);
}

void replace_file(std::string_view path, std::string_view bytes) {
    const fs::path target = writable_target(path);
    fs::path beside = target;
    beside += ".nieuw";
    File file = open_file(beside, "wb");
    try {
        write_all(std::move(file), bytes, beside, true);
        std::error_code error;
        fs::rename(beside, target, error);
        if (error) fail(error, target);
    } catch (...) {
        std::error_code ignored;
        fs::remove(beside, ignored);
        throw;
    }
}

void delete_file(std::string_view path) {
    const fs::path found = find_case_blind(path);
    std::error_code error;
    if (!fs::remove(found, error)) {
        fail(error ? error : std::make_error_code(std::errc::no_such_file_or_directory), found);
    }
}

void remove_folder(std::string_view path) {
    const fs::path found = find_case_blind(path);
    if (rmdir(found.c_str()) == 0) return;
    if (errno == ENOENT) throw Fout(FoutNummer::PathNotFound, path_text(found.filename()));
    throw Fout(FoutNummer::PathAccess, path_text(found.filename()));
}

void refuse_link(std::string_view path) {
    std::error_code ignored;
    if (fs::is_symlink(find_case_blind(path), ignored)) throw Fout(FoutNummer::PathAccess, last_part(path));
}

void copy_file(std::string_view from, std::string_view to) {
    const fs::path source_path = plain_file(from);
    const fs::path target_path = writable_target(to);
    const File source = open_unlinked(source_path, O_RDONLY, "rb");
    File target = open_unlinked(target_path, O_WRONLY | O_CREAT, "wb");
    if (same_file(source.get(), target.get())) return;
    if (ftruncate(fileno(target.get()), 0) != 0) fail_with_errno(target_path);
    std::string part(65536, '\0');
    while (const std::size_t got = std::fread(part.data(), 1, part.size(), source.get())) {
        if (std::fwrite(part.data(), 1, got, target.get()) != got) fail_with_errno(target_path);
    }
    if (std::ferror(source.get())) throw Fout(FoutNummer::DeviceError, last_part(from));
    if (std::fclose(target.release()) != 0) fail_with_errno(target_path);
}

void rename_path(std::string_view from, std::string_view to) {
    const fs::path source = find_case_blind(from);
    const fs::path target = find_case_blind(to);
    std::error_code error;
    if (!fs::exists(fs::symlink_status(source, error))) throw Fout(FoutNummer::FileNotFound, last_part(from));
    if (fs::exists(fs::symlink_status(target, error))) throw Fout(FoutNummer::FileExists, last_part(to));
    fs::rename(source, target, error);
    if (error) fail(error, source);
}

void make_folder(std::string_view path) {
    std::error_code error;
    const fs::path target = find_case_blind(path);
    fs::create_directory(target, error);
    if (error == std::errc::no_such_file_or_directory) {
        throw Fout(FoutNummer::PathNotFound, path_text(target.filename()));
    }
    if (error) fail(error, target);
}

std::vector<std::string> subfolders_of(std::string_view folder) { return names_in(folder, fs::file_type::directory); }

std::vector<std::string> files_of(std::string_view folder, std::string_view pattern) {
    std::vector<std::string> files = names_in(folder, fs::file_type::regular);
    std::erase_if(files, [&](const std::string& name) { return hidden(name) || !matches(name, pattern); });
    return files;
}
