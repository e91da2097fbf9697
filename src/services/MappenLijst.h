#pragma once

#include "forms/CheckBox.h"
#include "forms/DirListBox.h"
#include "forms/ListBox.h"

namespace services {

// Fills a list with the names that the lister read, from the first to the last, or the other way with `volgorde` 1.
void vul_met_mappen(forms::ListBox& lijst, const forms::DirListBox& mappen, int volgorde);

// A list of packages or deals, each a folder, with its sort box.
struct MappenLijst {
    forms::ListBox& lijst;
    forms::DirListBox& mappen;
    forms::CheckBox& keuze;  // 1: from the last to the first
};

}  // namespace services
