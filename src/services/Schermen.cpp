#include "services/Schermen.h"

#include "base/Fout.h"

namespace services {

forms::Form& Schermen::laad(const std::string& naam) {
    if (forms::Form* loaded = windows_.find(naam)) return *loaded;
    const auto maker = makers_.find(naam);
    if (maker == makers_.end()) throw base::Fout(base::FoutNummer::InvalidCall, naam);
    return windows_.load(maker->second(programma_));
}

}  // namespace services
