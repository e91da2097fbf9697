#pragma once

namespace services {
class Programma;
}

namespace app {

// Makes the screens known by their names.
void registreer_schermen(services::Programma& programma);

// The same, and shows the main screen.
void start(services::Programma& programma);

}  // namespace app
