// Any text in the language of key strokes: what goes down comes up again.
#include <algorithm>
#include <cctype>
#include <map>

#include "Harness.h"
#include "services/MSendInput.h"

namespace {

// A repeat count has no bound of its own, so that a long number is a matter of memory and not of this target.
bool has_long_number(std::string_view text) {
    std::size_t digits = 0;
    return std::ranges::any_of(text, [&](char character) {
        digits = std::isdigit(static_cast<unsigned char>(character)) != 0 ? digits + 1 : 0;
        return digits > 3;
    });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = fuzz::text_of(data, size);
    if (has_long_number(text)) return 0;
    fuzz::Run run("/nowhere");
    run.platform().caps_lock_on = size % 2 == 1;
    services::MSendInput::VerstuurToetsen(run.programma(), std::string(text), false);
    std::map<std::pair<int, int>, int> down;
    for (const platform::KeyRecord& record : run.platform().keys) {
        const int scan = record.virtual_key == 0 ? record.scan_code : 0;
        down[{record.virtual_key, scan}] += (record.flags & 2U) != 0 ? -1 : 1;
    }
    for (const auto& [key, times] : down)
        fuzz::require(times == 0, "every key that goes down comes up");
    return 0;
}
