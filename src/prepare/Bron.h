#pragma once

#include <string>

#include "base/Colour.h"

namespace prepare {

// In what reading a companion's deal and reading a stored package differ, as far as both take the same steps.
struct Bron {
    std::string stam;             // folder and name of the deal's files, without suffix
    std::string geweigerd;        // what the notice of an incomplete deal begins with
    std::string regeleinde;       // and its line break
    bool legt_uitkomst_vast;      // the lead is fixed as soon as it stands in the grid
    base::Colour kleur_uitkomst;  // of the lead in the hand
};

}  // namespace prepare
