#include "services/Programma.h"

#include "platform/Files.h"
#include "platform/Paths.h"

std::vector<std::string> Programma::Mappen::subfolders(const std::string& folder) { return subfolders_of(folder); }

std::vector<std::string> Programma::Mappen::files(const std::string& folder, const std::string& pattern) {
    return files_of(folder, pattern);
}

Programma::Programma(Platform& on_platform, forms::Host& host)
    : platform(on_platform), windows(host, mappen_), schermen(*this, windows) {}

std::string Programma::pad(std::string_view naam) const { return join_path(platform.program_folder(), naam); }
std::string Programma::pakket(std::string_view spel) const { return join_path(pakketten(), spel); }

void beeindig_programma() { throw forms::EndOfProgram(); }
