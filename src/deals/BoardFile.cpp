#include "deals/BoardFile.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include "base/Fout.h"
#include "base/Text.h"
#include "exchange/LinReader.h"
#include "exchange/PbnReader.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"

namespace deals {

namespace {

// Nothing is taken off the stream, which may be a pipe.
bool begins_with_letter(std::istream& stream) {
    const int first = stream.peek();
    stream.clear();
    return (first >= 'a' && first <= 'z') || (first >= 'A' && first <= 'Z');
}

// Bytes; 0 where nobody knows.
std::size_t size_of(const std::string& path) {
    std::error_code unknown;
    const std::uintmax_t size = std::filesystem::file_size(platform::path_of(path), unknown);
    return unknown ? 0 : size;
}

template <class Reader>
void read_all(std::istream& stream, const std::string& path, const TakeBoard& take, const KnownContract& known,
              const Progress& progress) {
    Reader reader(stream);
    bool any = false;
    const std::size_t size = size_of(path);
    while (auto board = reader.next(known ? known() : std::nullopt)) {
        if (progress) {
            const std::streamoff read = stream.tellg();  // none once all of it is in memory
            progress(read >= 0 ? static_cast<std::size_t>(read) : size, size);
        }
        take(*board);
        any = true;
    }
    if (stream.bad()) throw base::Fout(base::FoutNummer::PathAccess, platform::name_text(path));
    if (!any) throw std::runtime_error("there are no boards in it");
}

}  // namespace

void read_boards(const std::string& path, const TakeBoard& take, const KnownContract& known, const Progress& progress) {
    std::ifstream stream(platform::path_of(path), std::ios::binary);
    if (!stream) throw base::Fout::from({errno, std::generic_category()}, platform::name_text(path));
    stream.peek();
    if (stream.bad()) throw base::Fout(base::FoutNummer::PathAccess, platform::name_text(path));
    stream.clear();
    const std::string ending = base::lower_case(base::right(path, 4));
    const bool lin = ending == ".lin" || (ending != ".pbn" && begins_with_letter(stream));
    if (lin) {
        read_all<exchange::LinReader>(stream, path, take, known, progress);
    } else {
        read_all<exchange::PbnReader>(stream, path, take, known, progress);
    }
}

}  // namespace deals
