#include "services/Bas_Aftavrin.h"

#include <exception>

#include "forms/Form.h"
#include "platform/Files.h"
#include "platform/IniFile.h"
#include "platform/Paths.h"
#include "platform/SpecialFolders.h"
#include "resources/MessageTable.h"
#include "resources/PictureTable.h"
#include "services/Foutpad.h"

namespace services {

namespace Bas_Aftavrin {

std::string LeesResString(Programma& programma, int nummer) {
    std::string tekst;
    // The report names that other routine, and must.
    Foutpad(programma, "Bas_Aftavrin - General - DisplyDriveTypes", [&] {
        std::string cijfers = std::to_string(nummer);
        while (cijfers.size() < 3)
            cijfers.insert(0, "0");
        if (cijfers.size() != 5) cijfers.insert(0, std::to_string(programma.gedeeld.taalPrefix));
        tekst = resources::message_text(base::numeric_value(cijfers));
    });
    return tekst;
}

forms::Picture LaadPlaatje(int nummer) {
    if (!resources::has_picture(nummer)) throw base::Fout(base::FoutNummer::NoSuchResource, std::to_string(nummer));
    return {nummer, {}};
}

void SchrijfINI(Programma& programma, const std::string& sectie, const std::string& sleutel, const std::string& waarde,
                const std::string& bestand) {
    Foutpad(programma, "Bas_Aftavrin - General - SchrijfINI", [&] {
        try {
            platform::write_setting(bestand, sectie, sleutel, waarde);
        } catch (const base::Fout&) {  // A setting that can't be kept is no reason to stop.
        }
    });
}

std::string LeesIni(Programma& programma, const std::string& sectie, const std::string& sleutel,
                    const std::string& bestand) {
    constexpr std::size_t kMost = 254;
    programma.gedeeld.iniWaarde.clear();
    Foutpad(programma, "Bas_Aftavrin - General - LeesIni",
            [&] { programma.gedeeld.iniWaarde = base::left(platform::read_setting(bestand, sectie, sleutel), kMost); });
    return programma.gedeeld.iniWaarde;
}

std::string GetSpecialfolder(Programma& programma, int nummer) {
    std::string map;
    Foutpad(programma, "Bas_Aftavrin - General - GetSpecialfolder",
            [&] { map = programma.platform.special_folder(nummer); });
    return map;
}

std::string ZoekRVLX(Programma& programma) {
    for (const int nummer : {platform::kProgramFiles, platform::kProgramFilesX86}) {
        std::string map = base::trimmed(base::replaced(GetSpecialfolder(programma, nummer), std::string(1, '\0'), ""));
        if (!map.empty() && BestandStatus(platform::join_path(platform::join_path(map, "RVLX"), "RVLX.exe")) == 1)
            return map;
    }
    return {};
}

int BestandStatus(const std::string& pad) {
    try {
        return platform::file_length(pad) > 0 ? 1 : 0;
    } catch (const base::Fout&) {
        return 0;
    }
}

void MaakPad(std::string& pad) {
    if (!pad.ends_with(platform::kPathSeparator)) pad += platform::kPathSeparator;
    try {
        platform::make_folders(pad);
    } catch (const base::Fout&) {  // A folder that can't be made shows up when it is used.
    }
}

int GetListBoxIndex(Programma& programma, const forms::ListBox& lijst, const std::string& tekst, bool exact) {
    int regel = -1;
    Foutpad(programma, "Bas_Aftavrin - General - GetListBoxIndex",
            [&] { regel = lijst.find(tekst, exact ? forms::Match::Exact : forms::Match::Prefix); });
    return regel;
}

bool Internetverbinding(Programma& programma) {
    try {
        return programma.platform.connected();
    } catch (const std::exception&) {
        return false;
    }
}

std::string Server(Programma& programma) {
    const std::string server = platform::read_setting(programma.instellingen(), "Platform", "Server");
    return server.empty() ? "www.zandolin.example" : server;
}

void SluitAndereSchermen(Programma& programma) {
    for (forms::Form* scherm : programma.windows.loaded()) {
        // The first name is the main screen of a sibling program.
        const bool hoofdscherm = scherm->name() == "frmPYG01" || scherm->name() == "frmTavrin01";
        if (hoofdscherm || scherm->show_pending()) continue;
        try {
            scherm->Unload();
        } catch (const std::exception&) {  // The next screen has its turn all the same.
        }
    }
}

}  // namespace Bas_Aftavrin

}  // namespace services
