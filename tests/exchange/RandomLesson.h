#pragma once

#include <string>
#include <vector>

#include "base/Text.h"
#include "exchange/DealFiles.h"
#include "exchange/RandomBoard.h"
#include "platform/Files.h"

// Random files of lessons: what the preparation saves, with all that the companion's files, the editor and a teacher
// who takes cards back can bring into them.
namespace test {

// Words, line breaks, and what means something in one of the files.
inline std::string random_text(Random& random, std::size_t length) {
    static const std::vector<std::string> kPieces{
        "Speel", "de",       " ",         " ",        " ",    "\r\n", "\r\n\r\n", "|",    "~", "{", "}",
        "%",     ";",        "[Deal ",    "\"]",      "\\S",  "!H",   "@",        "  ",   "*", "#", "=1=",
        "\xE9",  "\xC3\xA9", "\x93q\x94", "\x81\x8D", "\x7F", "S\r",  "5",        "slag", ",", "."};
    std::string text;
    while (text.size() < length)
        text += kPieces[random() % kPieces.size()];
    return base::left(text, length);
}

inline exchange::DealFile& file(std::vector<exchange::DealFile>& files, const std::string& suffix) {
    return *std::ranges::find_if(files, [&](const exchange::DealFile& each) { return each.suffix == suffix; });
}

// As the editor stores them: some with a head that is no number of their own.
inline std::string random_records(Random& random) {
    std::string records;
    for (int card = 1; card <= exchange::kCardsInDeck; ++card) {
        std::string text;
        if (below(random, 5) == 0) text = random_text(random, random() % (below(random, 9) == 0 ? 540 : 256));
        records += platform::record_bytes(std::to_string(below(random, 300) == 0 ? 77 : card) + "|" + text, 532);
    }
    return records;
}

// A line of the play with something that the rules forbid, or that was never recorded.
inline void spoil_play(Random& random, std::string& rows) {
    const std::size_t row = random() % 13 * 26;
    switch (below(random, 4)) {
        case 0:
            rows.replace(row, rows.size() - row,
                         base::replaced(std::string((rows.size() - row) / 26, 'x'), "x", "|0|0|0|0\r\n"));
            break;
        case 1:
            rows.replace(row, 4, rows.substr(row, 4) == "1234" ? "2341" : "1234");
            break;
        case 2:
            rows.replace(row + 5 + 5 * (random() % 4), 4, "0");
            break;
        default:
            std::swap_ranges(rows.begin() + static_cast<std::ptrdiff_t>(row) + 5,
                             rows.begin() + static_cast<std::ptrdiff_t>(row) + 9,
                             rows.begin() + static_cast<std::ptrdiff_t>((row + 26) % 338) + 5);
    }
}

inline std::vector<exchange::DealFile> random_lesson(Random& random) {
    std::vector<exchange::Remark> notes;
    auto files = exchange::files_as_told(random_board(random), notes);
    const auto bytes = [&](const char* suffix) -> std::string& { return file(files, suffix).bytes; };
    const auto sometimes = [&](int count) { return below(random, count) == 0; };
    for (const char* const suffix : {" vraag.txt", " antwoord.txt"}) {
        bytes(suffix) =
            (sometimes(2) ? "\r\n" : "") + random_text(random, random() % 700) + (sometimes(2) ? "\r\n" : "");
        if (sometimes(9)) bytes(suffix).clear();
    }
    bytes(" informatie.txt") = random_records(random);
    if (sometimes(9)) bytes(" informatie.txt").resize(random() % 27664);
    std::string& bidding = bytes(" bieding.txt");
    if (sometimes(3)) bidding = base::replaced(bidding, "pas~~", "Pas~~");
    if (sometimes(3)) bidding = base::replaced(bidding, "~3~", "~3~*");
    if (sometimes(9)) bidding = base::replaced(bidding, "dbl~~", "double?~~");
    if (sometimes(9)) bidding = base::replaced(bidding, "pas~~", "~~");
    if (sometimes(5)) bidding = "Spel 12 " + bidding;
    if (sometimes(9)) bytes(" Contract.txt") = "Zuid 3 SA\r\n";
    if (sometimes(9)) bytes(" Uitkomst.txt") = "West - 0Aas";
    if (sometimes(5)) spoil_play(random, bytes(" aftavrin.txt"));
    if (sometimes(9)) bytes(" handen.txt") = base::replaced(bytes(" handen.txt"), "\r\n", "\n");
    if (sometimes(9)) files.erase(files.begin() + below(random, 6));
    return files;
}

}  // namespace test
