#include "services/Programma.h"

#include <utility>

#include "base/Fout.h"
#include "platform/Paths.h"

namespace services {

std::vector<std::string> Programma::Mappen::subfolders(const std::string& folder) {
    return platform::subfolders_of(folder);
}

std::vector<std::string> Programma::Mappen::files(const std::string& folder, const std::string& pattern) {
    return platform::files_of(folder, pattern);
}

Programma::Programma(platform::Platform& on_platform, forms::Host& host)
    : platform(on_platform), windows(host, mappen_), schermen(*this, windows) {}

std::string Programma::pad(std::string_view naam) const { return platform::join_path(platform.program_folder(), naam); }
std::string Programma::pakket(std::string_view spel) const { return platform::join_path(pakketten(), spel); }

void Programma::ruim_resten_op() {
    if (std::exchange(opgeruimd_, true)) return;
    const auto ruim_op = [&](const std::string& wortel, const std::string& map) {
        try {
            platform::refuse_links(wortel, map);
            platform::remove_leftovers(map, begonnen_);
        } catch (const base::Fout&) {  // What cannot go stays hidden.
        }
    };
    ruim_op(platform.program_folder(), platform.program_folder());
    ruim_op(pakketten(), pakketten());
    try {
        for (const std::string& spel : platform::subfolders_of(pakketten()))
            ruim_op(pakketten(), pakket(spel));
    } catch (const base::Fout&) {
    }
}

void beeindig_programma() { throw forms::EndOfProgram(); }

}  // namespace services
