// The settings file, and the folders that it may name.
#include "platform/IniFile.h"

#include "platform/SpecialFolders.h"
#include "platform/SystemCalls.h"
#include "support/TemporaryFolder.h"

namespace {

class Ini : public TemporaryFolder {
protected:
    std::string read(const char* section, const char* key) { return platform::read_setting(in("s.ini"), section, key); }
    void write(const char* section, const char* key, const char* value) {
        platform::write_setting(in("s.ini"), section, key, value);
    }
};

TEST_F(Ini, ReadsTheValueOfTheSection) {
    put("s.ini",
        "; Snelheid=1\r\nSnelheid=2\r\n\r\n[Ander]\nSnelheid=3\n[ standaard ]\n[STANDAARD]\r\n;Snelheid=4\r\n"
        " snelheid = 500 \r\nSnelheid=6\r\nMap=\"a=b \"\r\nLeeg=\r\nEnkel='b '\r\nLos='x\r\nzonder "
        "teken\r\n[Platform]\r\nLeeg=7");
    const struct {
        const char* section;
        const char* key;
        const char* value;
    } cases[] = {{"Standaard", "Snelheid", "500"}, {"standaard", "SNELHEID", "500"}, {"Ander", "Snelheid", "3"},
                 {"Standaard", "Map", "a=b "},     {"Standaard", "Leeg", ""},        {"Standaard", "Los", "'x"},
                 {"Standaard", "Enkel", "b "},     {"Standaard", "Geen", ""},        {"Geen", "Snelheid", ""},
                 {"Platform", "Leeg", "7"},        {"Standaard", "zonder teken", ""}};
    for (const auto& each : cases)
        EXPECT_EQ(read(each.section, each.key), each.value) << each.section << each.key;
    std::filesystem::remove(folder / "s.ini");
    EXPECT_EQ(read("Standaard", "Snelheid"), "");
}

TEST_F(Ini, WritesOneLineAndKeepsTheOthers) {
    const struct {
        const char* before;
        const char* after;
    } cases[] = {
        {"", "[Standaard]\r\nSnelheid=100\r\n"},
        {"[Standaard]\r\nsnelheid=9\r\nx=1\r\n", "[Standaard]\r\nSnelheid=100\r\nx=1\r\n"},
        {"; mijn\n[standaard]\nraar\n\n; einde\n\n[Platform]\nSnelheid=1\n",
         "; mijn\r\n[standaard]\r\nraar\r\n\r\n; einde\r\nSnelheid=100\r\n\r\n[Platform]\r\nSnelheid=1\r\n"},
        {"[Platform]\r\nServer=x\r\n", "[Platform]\r\nServer=x\r\n[Standaard]\r\nSnelheid=100\r\n"},
        {"[Standaard]", "[Standaard]\r\nSnelheid=100\r\n"},
    };
    for (const auto& each : cases) {
        put("s.ini", each.before);
        write("Standaard", "Snelheid", "100");
        EXPECT_EQ(bytes_of("s.ini"), each.after);
        EXPECT_EQ(read("Standaard", "Snelheid"), "100");
    }
}

TEST_F(Ini, LosesTheLinesOfOneKeyAlone) {
    put("s.ini", "; mijn\nServer=0\n[platform]\nserver = 1\nServerNaam=2\n\nSERVER=3\n[Standaard]\nServer=4\n");
    platform::remove_setting(in("s.ini"), "Platform", "Server");
    EXPECT_EQ(bytes_of("s.ini"), "; mijn\r\nServer=0\r\n[platform]\r\nServerNaam=2\r\n\r\n[Standaard]\r\nServer=4\r\n");
}

TEST_F(Ini, IsMadeByTheFirstWriteAndKeepsItsSpelling) {
    put("S.INI", "[Standaard]\r\nLaatsteRVLX=\xC9\xE9n\r\n");
    write("Standaard", "Snelheid", "100");
    EXPECT_EQ(names(), std::vector<std::string>{"S.INI"});
    EXPECT_EQ(read("Standaard", "LaatsteRVLX"), "\xC9\xE9n");
    platform::write_setting(in("nieuw.ini"), "Standaard", "Snelheid", "1");
    EXPECT_EQ(bytes_of("nieuw.ini"), "[Standaard]\r\nSnelheid=1\r\n");
    EXPECT_EQ(failure_of([&] { platform::write_setting(in("geen/s.ini"), "a", "b", "c"); }), 76);
}

TEST_F(Ini, ThatCannotBeReadHasNoSettingsAndKeepsThem) {
    const std::string before = "[Standaard]\r\nSnelheid=5\r\n";
    put("s.ini", before);
    using platform::system_calls::Call;
    for (const Call call : {Call::Status, Call::Open, Call::Read}) {
        const platform::system_calls::HookScope bad([&](Call made, const char*) { return made == call ? EIO : 0; });
        EXPECT_EQ(read("Standaard", "Snelheid"), "");
        EXPECT_EQ(failure_of([&] { write("Standaard", "Snelheid", "6"); }), 57);
    }
    EXPECT_EQ(bytes_of("s.ini"), before);
}

TEST_F(Ini, NamesTheFoldersOfTheCompanion) {
    put("s.ini", "[Platform]\r\nProgramFiles=" + in("elders") + "\r\nProgramFilesX86=hier/daar\r\n");
    EXPECT_EQ(platform::special_folder_of(in("s.ini"), 38), in("elders"));
    EXPECT_EQ(platform::special_folder_of(in("s.ini"), 42), in("hier/daar"));
    EXPECT_EQ(platform::special_folder_of(in("s.ini"), 7), "");
    EXPECT_EQ(platform::special_folder_of(in("geen.ini"), 38), platform::special_folder_without_key(38));
}

}  // namespace
