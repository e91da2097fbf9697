#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "deals/TestImport.h"
#include "platform/Files.h"

// An import that fails or is killed: each folder is there whole or not at all, and nothing that was there is changed.
class InterruptedImport : public TestImport {
protected:
    InterruptedImport() {
        for (const char* there : {"RVLX/RVLX.exe", "RVLX/Spellen/Spel 009", "aftavrin/QVT_Spel 005"}) {
            std::filesystem::create_directories(program.path("keep") / std::filesystem::path(there).parent_path());
            std::filesystem::copy(std::filesystem::path(SAMPLES_DIR) / there, program.path("keep") / there);
        }
        take_away_what_was_made();
        program.write("standaardtavrin.ini", "[Platform]\r\nProgramFiles=.\r\n");
        const std::string deal =
            "[Board \"3\"]\n[Deal \"N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. ...AKQJT98765432\"]\n"
            "[Declarer \"S\"]\n[Contract \"1S\"]\n";
        std::string play = "[Play \"W\"]\n";
        for (const char rank : std::string("AKQJT98765432")) {
            for (const char suit : {'C', 'S', 'H', 'D'})
                play += std::string(" ") + suit + rank + (rank == 'A' && suit == 'C' ? "{Kijk!}" : "");
            play += "\n";
        }
        program.write("club.pbn", deal + "[Play \"W\"]\nCA\n*\n\n" + deal + play);
    }

    // What the import made: the new folders, with their files.
    std::vector<std::string> made() const {
        std::vector<std::string> names;
        for (const char* folder : {"RVLX/Spellen/Spel 010", "aftavrin/QVT_Spel 011", "aftavrin/QVT_Spel 010"}) {
            if (!program.exists(folder)) continue;
            for (const std::string& entry : program.tree(folder))
                names.push_back(entry);
        }
        return names;
    }
    void take_away_what_was_made() {
        for (const char* folder : {"RVLX", "aftavrin"}) {
            std::filesystem::remove_all(program.path(folder));
            std::filesystem::copy(program.path("keep") / folder, program.path(folder),
                                  std::filesystem::copy_options::recursive);
        }
    }
    bool whole(const std::string& folder, std::size_t files) const {
        return !program.exists(folder) || program.tree(folder).size() == files;
    }
    // Everything but what was made is as it was, and no folder that was begun is on a list.
    void expect_nothing_lost() {
        EXPECT_TRUE(whole("RVLX/Spellen/Spel 010", 6));
        EXPECT_TRUE(whole("aftavrin/QVT_Spel 010", 8));
        EXPECT_TRUE(whole("aftavrin/QVT_Spel 011", 8));
        for (const char* folder : {"RVLX/Spellen", "aftavrin"}) {
            const std::filesystem::path kept = program.path("keep") / folder;
            for (const auto& entry : std::filesystem::recursive_directory_iterator(kept)) {
                if (entry.is_directory()) continue;
                const std::string path = entry.path().lexically_relative(program.path("keep")).generic_string();
                EXPECT_EQ(program.read(path), program.read("keep/" + path));
            }
            for (const std::string& name : platform::subfolders_of(program.path(folder).string()))
                EXPECT_TRUE(name.starts_with("Spel ") || name.starts_with("QVT_Spel ")) << name;
        }
    }
};
