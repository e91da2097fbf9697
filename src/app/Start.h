#pragma once

class Programma;

// Makes the screens known by their names.
void registreer_schermen(Programma& programma);

// The same, and shows the main screen.
void start(Programma& programma);
