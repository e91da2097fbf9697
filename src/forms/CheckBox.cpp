#include "forms/CheckBox.h"

#include "base/Fout.h"

namespace forms {

void CheckBox::assign_value(int value) {
    if (value != 0 && value != 1) throw base::Fout(base::FoutNummer::InvalidValue, std::to_string(value));
    if (Value.store(value) && Click) Click();
}

}  // namespace forms
