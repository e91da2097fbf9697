// A package with any bytes in its files is taken up on the preparation screen, stepped back and saved.
#include "Harness.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto folder = fuzz::fresh_program_folder();
    fuzz::write_deal(folder / "aftavrin", "QVT_Spel 001",
                     {" aftavrin.txt", " Contract.txt", " Uitkomst.txt", " bieding.txt", " handen.txt", " vraag.txt",
                      " antwoord.txt"},
                     fuzz::files_of(fuzz::text_of(data, size), 7));
    fuzz::Run run(folder);
    run({"start", "click frmTavrin01.cmdNieuwSpel", "select frmTavrin03.lstAfTavrin 0",
         "click frmTavrin03.msfgTavrin[7,2]", "click frmTavrin03.msfgTavrin[1,1]",
         "click frmTavrin03.lblSchoppenNoord(0)", "click frmTavrin03.lblHartenZuid(0)",
         "click frmTavrin03.cmdOpslaan"});
    return 0;
}
