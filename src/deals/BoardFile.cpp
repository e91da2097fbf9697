#include "deals/BoardFile.h"

#include <cerrno>
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

template <class Reader>
void read_all(std::istream& stream, const std::string& path, const TakeBoard& take, const KnownContract& known) {
    Reader reader(stream);
    bool any = false;
    while (auto board = reader.next(known ? known() : std::nullopt)) {
        take(*board);
        any = true;
    }
    if (stream.bad()) throw base::Fout(base::FoutNummer::PathAccess, platform::name_text(path));
    if (!any) throw std::runtime_error("there are no boards in it");
}

}  // namespace

void read_boards(const std::string& path, const TakeBoard& take, const KnownContract& known) {
    std::ifstream stream(platform::path_of(path), std::ios::binary);
    if (!stream) throw base::Fout::from({errno, std::generic_category()}, platform::name_text(path));
    stream.peek();
    if (stream.bad()) throw base::Fout(base::FoutNummer::PathAccess, platform::name_text(path));
    stream.clear();
    const std::string ending = base::lower_case(base::right(path, 4));
    const bool lin = ending == ".lin" || (ending != ".pbn" && begins_with_letter(stream));
    if (lin) {
        read_all<exchange::LinReader>(stream, path, take, known);
    } else {
        read_all<exchange::PbnReader>(stream, path, take, known);
    }
}

}  // namespace deals
