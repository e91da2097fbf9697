// The dump of a screen state, read by the hidden button.
#include "Harness.h"
#include "prepare/frmTavrin03.h"

#include <fstream>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto folder = fuzz::fresh_program_folder();
    std::ofstream(folder / "test.txt", std::ios::binary) << fuzz::text_of(data, size);
    fuzz::Run run(folder);
    run({"start"});
    auto& screen = dynamic_cast<prepare::frmTavrin03&>(run.programma().schermen.laad("frmTavrin03"));
    run.programma().windows.dispatch([&] { screen.cmdOphalen.Click(); });
    fuzz::require(run.programma().gedeeld.foutNummer != static_cast<int>(base::FoutNummer::Internal),
                  run.programma().gedeeld.foutNaam);
    return 0;
}
