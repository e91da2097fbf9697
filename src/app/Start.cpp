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

namespace app {

namespace {

template <class Screen>
std::unique_ptr<forms::Form> make(services::Programma& programma) {
    return std::make_unique<Screen>(programma);
}

}  // namespace

void registreer_schermen(services::Programma& programma) {
    programma.schermen.registreer("frmTavrin01", make<library::frmTavrin01>);
    programma.schermen.registreer("frmTavrin02", make<table::frmTavrin02>);
    programma.schermen.registreer("frmTavrin03", make<prepare::frmTavrin03>);
    programma.schermen.registreer("frmTavrin04", make<library::frmTavrin04>);
    programma.schermen.registreer("frmTavrin05", make<annotate::frmTavrin05>);
    programma.schermen.registreer("frmTavrin06", make<annotate::frmTavrin06>);
    programma.schermen.registreer("frmTavrin07", make<library::frmTavrin07>);
    programma.schermen.registreer("frmTavrin08", make<services::frmTavrin08>);
}

void start(services::Programma& programma) {
    registreer_schermen(programma);
    programma.windows.dispatch([&] { programma.schermen.toon("frmTavrin01"); });
}

}  // namespace app
