#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/Windows.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "services/Gedeeld.h"
#include "services/Schermen.h"
#include "services/Settings.h"

namespace services {

// What the rescaler keeps of one control: twips and points.
struct Maat {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    float font_size = 0;
};

// The rescaler's table; one form at a time uses it.
struct Maten {
    std::vector<Maat> records;  // by the control's place among the form's controls
    float bewaardeBreedte = 0;
    float bewaardeHoogte = 0;
    double maxLetterGrootte = 0;
};

// One run of the program: the shared variables, the screens and the platform. Nothing is global; two of them never
// meet.
class Programma {
public:
    Programma(platform::Platform& platform, forms::Host& host);

    platform::Platform& platform;
    Gedeeld gedeeld;
    Maten maten;

private:
    // Lists folders from the file system.
    class Mappen final : public forms::FolderReader {
        std::vector<std::string> subfolders(const std::string& folder) override;
        std::vector<std::string> files(const std::string& folder, const std::string& pattern) override;
    };
    Mappen mappen_;

public:
    forms::Windows windows;
    Schermen schermen;

    // A file or folder in the program folder.
    std::string pad(std::string_view naam) const;
    std::string instellingen() const { return settings_file(platform.program_folder()); }
    // Folder of all packages, or of the package of that name.
    std::string pakketten() const { return pad("aftavrin"); }
    std::string pakket(std::string_view spel) const;

    // Removes, once in a run, what a program that was broken off left beside its files before this one began. Failures
    // are ignored.
    void ruim_resten_op();

private:
    platform::FileTime begonnen_ = std::chrono::system_clock::now();
    bool opgeruimd_ = false;
};

// Ends the program: no statement after it runs.
[[noreturn]] void beeindig_programma();

}  // namespace services
