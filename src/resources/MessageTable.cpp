#include "resources/MessageTable.h"

#include <map>

#include "base/Fout.h"

namespace resources {

namespace {

// The texts stand as they are shown, odd spelling and doubled blanks included.
const std::map<int, std::string>& messages() {
    static const std::map<int, std::string> table{
        {10001, "Zandolin"},
        {10002, "Lomert"},
        {10003, "\xA9 2026 Zandolin"},
        {10004, "Spellen"},
        {10005, "Wissen"},
        {10006, "Tavrin"},
        {10007, "Afsluiten"},
        {10008, "Downloaden"},
        {10009, "Sorteer hoog-&laag"},
        {10010, "Sorteer &laag-hoog"},
        {10011, "Nieuw spel (RVLX)"},
        {10012, "Versie"},
        {10013, "Spel"},
        {10014, "Contract"},
        {10015, "Uitkomst"},
        {10016, "Slagen Noord-Zuid"},
        {10017, "Slagen Oost-West"},
        {10018, "Terug"},
        {10019, "Noord"},
        {10020, "Oost"},
        {10021, "Zuid"},
        {10022, "West"},
        {10023, "Start"},
        {10024, "Verder"},
        {10025, "Maak een spel uit RVLX gereed om te tavrin"},
        {10026, "Spellen uit RVLX"},
        {10027, "Schoppen"},
        {10028, "Harten"},
        {10029, "Ruiten"},
        {10030, "Klaveren"},
        {10031, "Je moet wel (~ ) bekennen"},
        {10032, "Wel de juiste volgorde aanhouden.|Ga verder met ~!"},
        {10033, "is niet compleet|Kan het spel niet gebruiken"},
        {10034, "S"},
        {10035, "H"},
        {10036, "R"},
        {10037, "K"},
        {10038, "N"},
        {10039, "O"},
        {10040, "Z"},
        {10041, "W"},
        {10042, "A"},
        {10043, "H"},
        {10044, "V"},
        {10045, "B"},
        {10046, "T"},
        {10047, "Vanaf slag ~ de kaarten terug plaatsen?"},
        {10048, "Opslaan"},
        {10049, "Spelnummer"},
        {10050, "Het bestand ~ bestaat al!||Wilt u het bestand ~ overschrijven?"},
        {10051, "De maker"},
        {10052, "Slag"},
        {10053, "Herbenoem"},
        {10054, "Oud spelnummer"},
        {10055, "Kan ~ niet wijzigen in +.||+ bestaat al.|Kies een ander nummer voor ~."},
        {10056, "Weet u zeker dat u spel ~ wilt wissen?"},
        {10057, "Editor"},
        {10058, "Selecteer de slag"},
        {10059, "Uit"},
        {10060, "Nummer"},
        {10061, "Nr:"},
        {10062, "Kan het bestand ~ niet vinden!||~ moet in onderstaande map staan:|+"},
        {10063, "Bijschrift kaarten"},
        {10064, "Opslaan"},
        {10065, "Toon &spel"},
        {10066, "Zandolin Lomert wordt nu afgesloten en de installatie van de nieuwe versie zal zo starten."},
        {10067,
         "Er is geen update voor Zandolin Lomert.|Probeer het later nog eens een keer.||Raadpleeg altijd mijn "
         "website:https://www.zandolin.example"},
        {10068, "Afspeelsnelheid"},
        {10071, "Informatie van ~ wissen?"},
        {10072, "Kaart"},
        {10073, "Alleen het nummer ingeven"},
        {10074, "Eigen spelnummer"},
        {10075, "Import/Export"},
        {10076, "Exporteer van"},
        {10077, "Naar USB-Stick"},
        {10078, "Geen"},
        {10079, "Importeer van"},
        {10080, "Naar"},
        {10081, "Zoek USB-Stick"},
        {10082, "Kan geen USB-Drive vinden!"},
        {10083, "Er staan geen spellen op"},
        {10084, "Exporteer"},
        {10085, "Importeer"},
        {10086, "Selecteer alles"},
        {10087, "De-selecteer alles"},
        {10088, "Klik op de knop Opslaan om uw spel op te slaan."},
        {10089,
         "Wilt u de foutmelding melden aan Zandolin?|Ik stuur u naar mijn website en daar kunt u deze foutmelding "
         "melden."},
        {10090, "Ik heb geen internetverbinding.|U kunt naar onderstaande website gaan en daar de melding doen."},
        {10091, "Fout in:"},
        {10092, "Foutnummer:"},
        {10093, "Foutnaam:"},
        {10094, "Hier word ik niet vrolijk van......"},
        {10095, "Fout in het programma"},
        {10096, "https:\\\\www.zandolin.example\\QVTMelding"},
        {10097, "Naar website"},
        {10098, "Ik heb de foutmelding in het klembord geplaats.|Open de  kladblok en kies daar voor Plakken"},
        {10099, "Het systeem geeft foutcode"},
        {10102, "Ik heb geen Zandolin RVLX kunnen vinden....."},
        {10103, "Voorbeeld tekst"},
        {10104, "Sluiten"},
        {10105,
         "Er is geen update voor Zandolin Lomert.|Probeer het later nog eens een keer.||Raadpleeg altijd mijn "
         "website:https://www.zandolin.example||Wilt u naar de website?"},
        {10106, "U kunt de uitkomst niet verwijderen."},
    };
    return table;
}

}  // namespace

const std::string* message(int number) {
    const auto found = messages().find(number);
    return found == messages().end() ? nullptr : &found->second;
}

std::string message_text(int number) {
    const std::string* text = message(number);
    if (!text) throw Fout(FoutNummer::NoSuchResource, std::to_string(number));
    return *text;
}

}  // namespace resources
