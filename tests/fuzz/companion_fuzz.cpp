// A deal of the companion with any bytes in its files is loaded, and every card is clicked as long as one is taken.
#include <array>

#include "Harness.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto folder = fuzz::fresh_program_folder();
    fuzz::write_deal(folder / "RVLX" / "Spellen", "Spel 001",
                     {" handen.txt", " Contract.txt", " Uitkomst.txt", " bieding.txt", " vraag.txt", " antwoord.txt"},
                     fuzz::files_of(fuzz::text_of(data, size), 6));
    fuzz::Run run(folder);
    run({"start", "click frmTavrin01.cmdNieuwSpel", "select frmTavrin03.lstRVLX 0"});
    constexpr std::array kSuits{"Schoppen", "Harten", "Ruiten", "Klaveren"};
    constexpr std::array kSeats{"Noord", "Oost", "Zuid", "West"};
    for (std::size_t step = 0; step < 4 * kSuits.size() * kSeats.size(); ++step) {
        const std::string label = std::string("frmTavrin03.lbl") + kSuits[step / 4 % 4] + kSeats[step % 4];
        run({"click " + label + "(" + std::to_string(step / 16) + ")"});
    }
    run({"click frmTavrin03.msfgTavrin[2,1]", "click frmTavrin03.cmdOpslaan"});
    return 0;
}
