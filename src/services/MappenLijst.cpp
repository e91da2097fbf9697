#include "services/MappenLijst.h"

namespace services {

void vul_met_mappen(forms::ListBox& lijst, const forms::DirListBox& mappen, int volgorde) {
    lijst.Clear();
    const int aantal = mappen.ListCount();
    for (int i = 0; i < aantal; ++i)
        lijst.AddItem(mappen.List(volgorde == 1 ? aantal - 1 - i : i));
}

}  // namespace services
