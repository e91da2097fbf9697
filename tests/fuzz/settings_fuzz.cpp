// A settings file of any bytes: what is written is read again, and every other key keeps its value.
#include <fstream>

#include "Harness.h"
#include "platform/IniFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto folder = fuzz::fresh_program_folder();
    const std::string file = folder / "standaardtavrin.ini";
    std::ofstream(file, std::ios::binary) << fuzz::text_of(data, size);
    const std::string server = platform::read_setting(file, "Platform", "Server");
    const std::string sorted = platform::read_setting(file, "Standaard", "chkSorteerRVLX");
    platform::write_setting(file, "Standaard", "Snelheid", "700");
    fuzz::require(platform::read_setting(file, "Standaard", "Snelheid") == "700", "a written value is read again");
    fuzz::require(platform::read_setting(file, "Platform", "Server") == server, "another section keeps its value");
    fuzz::require(platform::read_setting(file, "Standaard", "chkSorteerRVLX") == sorted, "another key keeps its value");
    return 0;
}
