#include "deals/BoardFile.h"

#include <cerrno>
#include <fstream>
#include <system_error>

#include "base/Fout.h"
#include "base/Text.h"
#include "exchange/LinReader.h"
#include "exchange/PbnReader.h"

namespace deals {

namespace {

bool looks_like_pbn(std::istream& stream) {
    char first = 0;
    stream >> std::ws;
    stream.get(first);
    const bool marked = first == '\xEF' || first == '\xFF' || first == '\xFE';  // a byte order mark
    stream.clear();
    stream.seekg(0);
    return marked || first == '[' || first == '{' || first == ';' || first == '%';
}

template <class Reader>
void read_all(std::istream& stream, const std::function<void(exchange::Board&)>& take) {
    Reader reader(stream);
    while (auto board = reader.next())
        take(*board);
}

}  // namespace

void read_boards(const std::string& path, const std::function<void(exchange::Board&)>& take) {
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw Fout::from({errno, std::generic_category()}, path);
    stream.peek();
    if (stream.bad()) throw Fout(FoutNummer::PathAccess, path);
    stream.clear();
    const std::string ending = lower_case(right(path, 4));
    const bool lin = ending == ".lin" || (ending != ".pbn" && !looks_like_pbn(stream));
    if (lin) {
        read_all<exchange::LinReader>(stream, take);
    } else {
        read_all<exchange::PbnReader>(stream, take);
    }
}

}  // namespace deals
