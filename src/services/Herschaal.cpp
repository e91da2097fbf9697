// The rescaler of Bas_Aftavrin.
#include <algorithm>
#include <string>

#include "base/Text.h"
#include "forms/Control.h"
#include "forms/Form.h"
#include "services/Bas_Aftavrin.h"

namespace services {

namespace Bas_Aftavrin {

namespace {

// The two lists of names differ on purpose: the record of a control that one of them skips is simply left alone.
bool meet(const std::string& naam) {
    return naam != "imaList" && base::lower_case(naam) != "hmenu" && !naam.starts_with("tim") &&
           naam != "cmdlgKleuren" && naam != "dialBestand";
}

bool schaalt(const std::string& naam) {
    return !naam.starts_with("tim") && naam != "cmdlgKleuren" && naam != "hMenu" && naam != "lblDeKlok";
}

}  // namespace

void BewaarMaten(Programma& programma, const forms::Form& form) {
    Maten& maten = programma.maten;
    maten.records.assign(form.controls().size() + 1, Maat{});
    for (std::size_t nummer = 0; nummer < form.controls().size(); ++nummer) {
        const forms::Control& control = *form.controls()[nummer];
        if (!meet(control.name())) continue;
        maten.records[nummer] = {static_cast<float>(control.Left), static_cast<float>(control.Top),
                                 static_cast<float>(control.Width), static_cast<float>(control.Height),
                                 static_cast<float>(control.FontSize)};
    }
    maten.bewaardeBreedte = static_cast<float>(form.Width);
    maten.bewaardeHoogte = static_cast<float>(form.Height);
}

void PasMatenAan(Programma& programma, forms::Form& form) {
    const Maten& maten = programma.maten;
    const bool gemeten = maten.bewaardeBreedte > 0 && maten.bewaardeHoogte > 0;
    if (form.WindowState() == forms::WindowState::Minimised || !gemeten) return;
    const double breedte = form.Width / maten.bewaardeBreedte;
    const double hoogte = form.Height / maten.bewaardeHoogte;
    const std::size_t aantal = std::min(maten.records.size(), form.controls().size());
    for (std::size_t nummer = 0; nummer < aantal; ++nummer) {
        forms::Control& control = *form.controls()[nummer];
        if (!schaalt(control.name())) continue;
        const Maat& maat = maten.records[nummer];
        control.Move(maat.left * breedte, maat.top * hoogte, maat.width * breedte, maat.height * hoogte);
        control.FontSize = std::min(maat.font_size * hoogte, maten.maxLetterGrootte);
    }
}

}  // namespace Bas_Aftavrin

}  // namespace services
