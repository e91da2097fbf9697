#include "forms/VScrollBar.h"

#include "base/Fout.h"

namespace forms {

void VScrollBar::assign_value(int value) {
    if (value < Min || value > Max) throw base::Fout(base::FoutNummer::InvalidValue, std::to_string(value));
    if (Value.store(value) && Change) Change();
}

}  // namespace forms
