// Any play and any texts in the editor: choosing, previewing, storing and wiping.
#include "Harness.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto folder = fuzz::fresh_program_folder();
    fuzz::write_deal(folder / "aftavrin", "QVT_Spel 001", {" informatie.txt", " aftavrin.txt", " Contract.txt"},
                     fuzz::files_of(fuzz::text_of(data, size), 3));
    fuzz::Run run(folder);
    run({"start", "select frmTavrin01.lstSpellen 0", "click frmTavrin01.cmdKaartenEditor",
         "select frmTavrin05.lstSpellen 0", "scroll frmTavrin05.vscrSlag 3", "click frmTavrin05.picYesNo(5)"});
    run({"text frmTavrin05.txtInformatie Let op!\\r\\nNu.", "click frmTavrin05.cmdVoorBeeld",
         "click frmTavrin05.cmdSluiten", "text frmTavrin05.txtInformatie Let op!\\r\\nNu.",
         "click frmTavrin05.cmdGebruiken", "click frmTavrin05.picYesNo(5)"});
    run({"click frmTavrin05.cmdWissen", "click frmTavrin05.lblKaartNummer(2)", "scroll frmTavrin05.vscrSlag 13"});
    return 0;
}
