#include "services/Knip_Tekst.h"

#include <string>

#include "base/Text.h"

namespace services {

namespace {

std::string without_carriage_return(std::string line, std::size_t shortest) {
    if (line.size() >= shortest && line.ends_with('\r')) line.pop_back();
    return line;
}

}  // namespace

void Knip_Tekst(const forms::TextBox& doos, forms::ListBox& lstKnipTekst) {
    const std::string& text = doos.Text();
    const int lines = doos.LineCount();
    for (int i = 0; i < lines; ++i) {
        const auto begin = static_cast<std::size_t>(doos.LineIndex(i));
        const int next = doos.LineIndex(i + 1);
        if (next < 1) {
            lstKnipTekst.AddItem(without_carriage_return(base::trimmed(text.substr(begin)), 2));
            continue;
        }
        // The line's last character is left out: the blank of a soft break, or the line feed of a hard one.
        const std::string line = text.substr(begin, static_cast<std::size_t>(next) - 1 - begin);
        lstKnipTekst.AddItem(without_carriage_return(base::trimmed(line), 1));
    }
}

std::string met_regeleinden(const forms::ListBox& lstKnipTekst) {
    std::string tekst;
    for (int i = 0; i < lstKnipTekst.ListCount(); ++i)
        tekst += lstKnipTekst.List(i) + "\r\n";
    return tekst;
}

}  // namespace services
