// Any number asked of the message table, and any text shown by the report.
#include "Harness.h"
#include "base/Text.h"
#include "services/Bas_Aftavrin.h"
#include "services/Foutpad.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input = fuzz::text_of(data, size);
    static const auto folder = fuzz::fresh_program_folder();
    fuzz::Run run(folder);
    run({"start"});
    services::Programma& programma = run.programma();
    const int number = base::numeric_value(input);
    // A run with this number counts as a fault of the program itself.
    if (number == static_cast<int>(base::FoutNummer::Internal)) return 0;
    programma.windows.dispatch([&] {
        const std::string text = services::Bas_Aftavrin::LeesResString(programma, number);
        fuzz::require(
            text.empty() == (programma.gedeeld.foutNummer == static_cast<int>(base::FoutNummer::NoSuchResource)),
            "a number has a text, or is reported");
        services::meld_fout(programma, std::string(input), number, std::string(input));
    });
    run({"wait 5000"});
    return 0;
}
