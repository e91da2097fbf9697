// What only POSIX has: names that differ in case alone, and the companion in another system's folders.
#include <cstdlib>

#include "platform/Files.h"
#include "platform/SpecialFolders.h"
#include "support/TemporaryFolder.h"

namespace {

class PosixFiles : public TemporaryFolder {};

TEST_F(PosixFiles, OfAnExactNameAreFoundFirstBelowAnySpellingOfTheirFolder) {
    for (const char* name : {"x.txt", "X.txt", "X.TXT"})
        put(std::string("Map/") + name, name);
    for (const char* name : {"x.txt", "X.txt", "X.TXT"})
        EXPECT_EQ(platform::read_file(in(std::string("mAP/") + name)), name);
}

TEST_F(PosixFiles, ThatAreNotThereLieInTheFolderThatIs) {
    put("Map/x", "x");
    EXPECT_EQ(platform::find_case_blind(in("MAP/nieuw/Niets.txt")), std::filesystem::path(in("Map/nieuw/Niets.txt")));
}

TEST(SpecialFolders, OfTheCompanionAreThoseOfItsHost) {
    const char* const home = std::getenv("HOME");
    set_environment("HOME", "/thuis");
    EXPECT_EQ(platform::special_folder_without_key(38), "/thuis/.wine/drive_c/Program Files");
    EXPECT_EQ(platform::special_folder_without_key(42), "/thuis/.wine/drive_c/Program Files (x86)");
    set_environment("HOME", home ? home : "");
}

}  // namespace
