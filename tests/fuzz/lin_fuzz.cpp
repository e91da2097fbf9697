// A LIN file of any bytes: no board that is taken is against the rules, and its files have their form.
#include "Boards.h"
#include "exchange/LinReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::read_boards<exchange::LinReader>(fuzz::text_of(data, size));
    return 0;
}
