#include "app/Start.h"

#include <memory>

#include "annotate/frmTavrin05.h"
#include "annotate/frmTavrin06.h"
#include "library/frmTavrin01.h"
#include "library/frmTavrin04.h"
#include "library/frmTavrin07.h"
#include "prepare/frmTavrin03.h"
#include "services/frmTavrin08.h"
#include "table/frmTavrin02.h"

namespace {

template <class Screen>
std::unique_ptr<forms::Form> make(Programma& programma) {
    return std::make_unique<Screen>(programma);
}

}  // namespace

void registreer_schermen(Programma& programma) {
    programma.schermen.registreer("frmTavrin01", make<frmTavrin01>);
    programma.schermen.registreer("frmTavrin02", make<frmTavrin02>);
    programma.schermen.registreer("frmTavrin03", make<frmTavrin03>);
    programma.schermen.registreer("frmTavrin04", make<frmTavrin04>);
    programma.schermen.registreer("frmTavrin05", make<frmTavrin05>);
    programma.schermen.registreer("frmTavrin06", make<frmTavrin06>);
    programma.schermen.registreer("frmTavrin07", make<frmTavrin07>);
    programma.schermen.registreer("frmTavrin08", make<frmTavrin08>);
}

void start(Programma& programma) {
    registreer_schermen(programma);
    programma.windows.dispatch([&] { programma.schermen.toon("frmTavrin01"); });
}
