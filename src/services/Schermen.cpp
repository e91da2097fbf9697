#include "services/Schermen.h"

#include "base/Fout.h"

forms::Form& Schermen::laad(const std::string& naam) {
    if (forms::Form* loaded = windows_.find(naam)) return *loaded;
    const auto maker = makers_.find(naam);
    if (maker == makers_.end()) throw Fout(FoutNummer::InvalidCall, naam);
    return windows_.load(maker->second(programma_));
}
