#include "deals/Telling.h"

#include <algorithm>
#include <map>

#include "base/Fout.h"
#include "platform/CodePage.h"

namespace deals {

std::string where(const std::string& file, const exchange::Board& board, int number, int line) {
    const std::string name = board.board.empty() ? "deal " + std::to_string(number) : "board " + board.board;
    return (file.empty() ? "" : file + ": ") + name + ", line " + std::to_string(line) + ": ";
}

std::string one_line(std::string text) {
    std::ranges::replace_if(
        text, [](unsigned char sign) { return sign < ' ' || sign == 0x7F; }, ' ');
    return text;
}

std::string note_of(const std::string& file, const exchange::Board& board, int number, const exchange::Remark& note) {
    return one_line(where(file, board, number, note.line) + note.text);
}

std::string english(const std::exception& failure) {
    static const std::map<int, const char*> kTexts{
        {static_cast<int>(base::FoutNummer::FileNotFound), "no such file"},
        {static_cast<int>(base::FoutNummer::DeviceError), "cannot be read or written"},
        {static_cast<int>(base::FoutNummer::FileExists), "is there already"},
        {static_cast<int>(base::FoutNummer::DiskFull), "the disk is full"},
        {static_cast<int>(base::FoutNummer::PermissionDenied), "no permission"},
        {static_cast<int>(base::FoutNummer::PathAccess), "is no plain file, or cannot be reached"},
        {static_cast<int>(base::FoutNummer::PathNotFound), "no such folder"},
    };
    std::string own = platform::to_utf8(failure.what());
    const auto* const fout = dynamic_cast<const base::Fout*>(&failure);
    if (!fout) return own;
    const auto text = kTexts.find(fout->nummer());
    if (text == kTexts.end()) return own;
    const std::size_t detail = own.find(" (");
    return std::string(text->second) + (detail == std::string::npos ? "" : own.substr(detail));
}

}  // namespace deals
