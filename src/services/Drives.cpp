#include "services/Drives.h"

#include <exception>

#include "base/Text.h"
#include "services/Foutpad.h"

namespace services {

namespace Bas_Aftavrin {

namespace {

constexpr char kNul = '\0';

// A folder below a letter may be a stick too, and stays as it is spelled.
bool heeft_letter(const std::string& schijf) { return (schijf.size() == 2 || schijf.size() == 3) && schijf[1] == ':'; }

std::string naam_van_volume(Programma& programma, const std::string& schijf) {
    try {
        const std::string naam = programma.platform.volume_label(schijf);
        return naam.substr(0, naam.find(kNul));
    } catch (const std::exception&) {  // A drive without a disk in it has no label.
        return {};
    }
}

}  // namespace

std::string GetDriveStrings(Programma& programma) {
    std::string schijven;
    Foutpad(programma, "Bas_Aftavrin - General - GetDriveStrings", [&] {
        std::string gevonden;
        for (const std::string& schijf : programma.platform.drives())
            gevonden += schijf + kNul;
        schijven = gevonden + kNul;
    });
    return schijven;
}

void DisplyDriveTypes(Programma& programma, forms::ListBox& lstDriveType, forms::ListBox& lstDriveNaam,
                      const std::string& schijven) {
    Foutpad(programma, "Bas_Aftavrin - General - DisplyDriveTypes", [&] {
        if (schijven.empty()) return;
        lstDriveType.Clear();
        lstDriveNaam.Clear();
        for (std::size_t at = 0; at < schijven.size() && schijven[at] != kNul;) {
            const std::string schijf = schijven.substr(at, schijven.find(kNul, at) - at);
            lstDriveType.AddItem(heeft_letter(schijf) ? base::upper_case(schijf) : schijf);
            at += schijf.size() + 1;
        }
        for (int i = 0; i < lstDriveType.ListCount(); ++i) {
            const std::string& schijf = lstDriveType.List(i);
            lstDriveNaam.AddItem(schijf + " [" + WatVoorDriveType(programma, schijf) + "] " +
                                 naam_van_volume(programma, schijf));
        }
    });
}

std::string WatVoorDriveType(Programma& programma, const std::string& schijf) {
    std::string woord;
    Foutpad(programma, "Bas_Aftavrin - General - WatVoorDriveType", [&] {
        switch (programma.platform.drive_type(schijf)) {
            case 2: {
                const bool diskette = heeft_letter(schijf) && base::upper_case(schijf) < "C";
                woord = diskette ? "" : "USB-Drive";
                break;
            }
            case 3:
                woord = "Vaste schijf";
                break;
            case 4:
                woord = "Extern";
                break;
            case 5:
                woord = "CD/DVD";
                break;
            case 6:
                woord = "Ram disk";
                break;
            default:
                woord = "Onbekend";
        }
    });
    return woord;
}

}  // namespace Bas_Aftavrin

}  // namespace services
