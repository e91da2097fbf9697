#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class OpenFile;

// The work on files and folders. Every path is looked up without regard to case (see Paths.h). Failures: 53 no such
// file, 58 the target exists, 61 the disk is full, 70 no permission, 75 no plain file or no access, 76 no such folder,
// 57 any other error of the device.

// Whether a link in the place of a file is taken for the file that it leads to, or refused (75).
enum class Links { Follow, Refuse };

// Length in bytes of a plain file; -1 if there is none.
std::int64_t file_length(std::string_view path);

// Reads a text file line by line. A line ends in CR LF or LF, the last one may end with the file. A read that fails is
// a failure (57), never the end.
class LineReader {
public:
    explicit LineReader(std::string_view path);
    ~LineReader();
    bool at_end();
    std::string line();  // failure 62 past the end

private:
    std::string path_;
    std::unique_ptr<OpenFile> file_;
    std::string part_;  // what was read last
    std::size_t at_ = 0;
    bool ended_ = false;
};

// The records 1 to `count` of a file of fixed records, each padded with blanks where the file is too short.
std::vector<std::string> read_records(std::string_view path, std::size_t length, int count);
// Puts each text straight into its record, from the first on: padded with blanks, cut at the record's length. What the
// file holds behind the last of them stays.
void write_records(std::string_view path, std::size_t length, const std::vector<std::string>& texts);
// The bytes of one such record.
std::string record_bytes(std::string_view text, std::size_t length);

// The whole file; up to `most` bytes of it.
std::string read_file(std::string_view path, std::size_t most = static_cast<std::size_t>(-1));
// Writes straight into the file, which is emptied first. A link in its place is refused.
void write_file(std::string_view path, std::string_view bytes);
// The same with the bytes of another file, which are read before anything is emptied.
void copy_file(std::string_view from, std::string_view to);

// Writes beside the file, flushes to the disk, and renames over it with its mode: whatever happens, the old file or the
// new one is there whole. A file that may not be written is refused (70). The file beside has a hidden name of its own.
void replace_file(std::string_view path, std::string_view bytes);
// Removes files beside that were left behind in the folder, and folders beside with their files, if they are older than
// that.
using FileTime = std::chrono::system_clock::time_point;
void remove_leftovers(std::string_view folder, FileTime older_than = FileTime::max());
// Those that nobody is still making, as far as that goes.
void clear_leftovers(std::string_view folder) noexcept;

void delete_file(std::string_view path);
// A folder and the files in it; one that holds folders is a failure (75 or 58).
void remove_with_files(const std::filesystem::path& folder);
void remove_folder(std::string_view path);  // an empty one
// Of a file or a folder; a target that exists is failure 58.
void rename_path(std::string_view from, std::string_view to);
// Makes every folder of the path that is missing, as far as that goes; a folder that can't be made is no failure here.
void make_folders(std::string_view path);

// Failure 75 where what stands below the folder `root` on the way to `path`, or in its place, is a link: what is
// written, deleted or taken from a stranger there must not lie elsewhere. The path begins with the root's.
void refuse_links(std::string_view root, std::string_view path);
// The same where a link in the folder has any name of a pattern, a hidden one too. A folder that is not there has none.
void refuse_links_in(std::string_view folder, std::string_view pattern);

// Names of the subfolders, without those that are made beside others, and of the plain files that are not hidden; in
// ascending order without regard to case. `pattern` is "*" or "*.ending".
std::vector<std::string> subfolders_of(std::string_view folder);
std::vector<std::string> files_of(std::string_view folder, std::string_view pattern);

}  // namespace platform
