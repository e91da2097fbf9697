#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

// The work on files and folders. Every path is looked up without regard to case (see Paths.h). Failures: 53 no such
// file, 58 the target exists, 61 the disk is full, 70 no permission, 75 no plain file or no access, 76 no such folder,
// 57 any other error of the device.

// Length in bytes of a plain file; -1 if there is none.
std::int64_t file_length(std::string_view path);
bool folder_exists(std::string_view path);

// Reads a text file line by line. A line ends in CR LF or LF, the last one may end with the file.
class LineReader {
public:
    explicit LineReader(std::string_view path);
    bool at_end();
    std::string line();  // failure 62 past the end

private:
    std::ifstream stream_;
    std::string path_;
};

// The records 1 to `count` of a file of fixed records, each padded with blanks where the file is too short.
std::vector<std::string> read_records(std::string_view path, std::size_t length, int count);
// Puts each text into its record, from the first on: padded with blanks, cut at the record's length. What the file
// holds behind the last of them stays.
void write_records(std::string_view path, std::size_t length, const std::vector<std::string>& texts);
// The bytes of one such record.
std::string record_bytes(std::string_view text, std::size_t length);

// The whole file; up to `most` bytes of it.
std::string read_file(std::string_view path, std::size_t most = static_cast<std::size_t>(-1));
// Writes straight into the file, which is emptied first.
void write_file(std::string_view path, std::string_view bytes);
// Writes beside the file, flushes, and renames over it: a failure leaves the old file as it was.
void replace_file(std::string_view path, std::string_view bytes);

void delete_file(std::string_view path);
void remove_folder(std::string_view path);  // an empty one
// Failure 75 where a link stands in the path's place: what a stranger's stick holds must not lead elsewhere.
void refuse_link(std::string_view path);
// Overwrites what is there. A link in the place of either file is refused (75), never followed.
void copy_file(std::string_view from, std::string_view to);
// Of a file or a folder; a target that exists is failure 58.
void rename_path(std::string_view from, std::string_view to);
void make_folder(std::string_view path);

// Names of the subfolders, and of the plain files that are not hidden; in ascending order without regard
// to case. `pattern` is "*" or "*.ending".
std::vector<std::string> subfolders_of(std::string_view folder);
std::vector<std::string> files_of(std::string_view folder, std::string_view pattern);
