// A package with any bytes in its files is replayed to its end, and looked at in the overview.
#include "Harness.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto folder = fuzz::fresh_program_folder();
    fuzz::write_deal(
        folder / "aftavrin", "QVT_Spel 001",
        {" aftavrin.txt", " informatie.txt", " Contract.txt", " Uitkomst.txt", " bieding.txt", " vraag.txt"},
        fuzz::files_of(fuzz::text_of(data, size), 6));
    {
        fuzz::Run run(folder);
        run({"start", "select frmTavrin01.lstSpellen 0", "click frmTavrin01.cmdTavrin", "click frmTavrin02.cmdStart"});
        for (int card = 0; card < 54; ++card)
            run({"tick frmTavrin02.timSpeelKaart", "click frmTavrin02.cmdVerder"});
    }
    fuzz::Run run(folder);
    run({"start", "select frmTavrin01.lstSpellen 0", "click frmTavrin01.cmdKaartenEditor",
         "select frmTavrin05.lstSpellen 0", "click frmTavrin05.cmdToonSpel"});
    return 0;
}
