#include "resources/MessageTable.h"

#include <map>

#include "base/Fout.h"

namespace resources {

namespace {

// The texts stand as they are shown, odd spelling and doubled blanks included.
const std::map<Bericht, std::string>& messages() {
    static const std::map<Bericht, std::string> table{
        {Bericht::ProgrammaNaam, "Zandolin"},
        {Bericht::ProgrammaVervolg, "Lomert"},
        {Bericht::Copyright, "\xA9 2026 Zandolin"},
        {Bericht::Spellen, "Spellen"},
        {Bericht::Wissen, "Wissen"},
        {Bericht::Tavrin, "Tavrin"},
        {Bericht::Afsluiten, "Afsluiten"},
        {Bericht::Downloaden, "Downloaden"},
        {Bericht::SorteerHoogLaag, "Sorteer hoog-&laag"},
        {Bericht::SorteerLaagHoog, "Sorteer &laag-hoog"},
        {Bericht::NieuwSpel, "Nieuw spel (RVLX)"},
        {Bericht::Versie, "Versie"},
        {Bericht::Spel, "Spel"},
        {Bericht::Contract, "Contract"},
        {Bericht::Uitkomst, "Uitkomst"},
        {Bericht::SlagenNoordZuid, "Slagen Noord-Zuid"},
        {Bericht::SlagenOostWest, "Slagen Oost-West"},
        {Bericht::Terug, "Terug"},
        {Bericht::Noord, "Noord"},
        {Bericht::Oost, "Oost"},
        {Bericht::Zuid, "Zuid"},
        {Bericht::West, "West"},
        {Bericht::Start, "Start"},
        {Bericht::Verder, "Verder"},
        {Bericht::MaakSpelGereed, "Maak een spel uit RVLX gereed om te tavrin"},
        {Bericht::SpellenUitRVLX, "Spellen uit RVLX"},
        {Bericht::Schoppen, "Schoppen"},
        {Bericht::Harten, "Harten"},
        {Bericht::Ruiten, "Ruiten"},
        {Bericht::Klaveren, "Klaveren"},
        {Bericht::MoetBekennen, "Je moet wel (~ ) bekennen"},
        {Bericht::JuisteVolgorde, "Wel de juiste volgorde aanhouden.|Ga verder met ~!"},
        {Bericht::NietCompleet, "is niet compleet|Kan het spel niet gebruiken"},
        {Bericht::LetterSchoppen, "S"},
        {Bericht::LetterHarten, "H"},
        {Bericht::LetterRuiten, "R"},
        {Bericht::LetterKlaveren, "K"},
        {Bericht::LetterNoord, "N"},
        {Bericht::LetterOost, "O"},
        {Bericht::LetterZuid, "Z"},
        {Bericht::LetterWest, "W"},
        {Bericht::LetterAas, "A"},
        {Bericht::LetterHeer, "H"},
        {Bericht::LetterVrouw, "V"},
        {Bericht::LetterBoer, "B"},
        {Bericht::LetterTien, "T"},
        {Bericht::KaartenTerugplaatsen, "Vanaf slag ~ de kaarten terug plaatsen?"},
        {Bericht::SpelOpslaan, "Opslaan"},
        {Bericht::Spelnummer, "Spelnummer"},
        {Bericht::BestandBestaatAl, "Het bestand ~ bestaat al!||Wilt u het bestand ~ overschrijven?"},
        {Bericht::DeMaker, "De maker"},
        {Bericht::Slag, "Slag"},
        {Bericht::Herbenoem, "Herbenoem"},
        {Bericht::OudSpelnummer, "Oud spelnummer"},
        {Bericht::NummerBestaatAl, "Kan ~ niet wijzigen in +.||+ bestaat al.|Kies een ander nummer voor ~."},
        {Bericht::SpelWissen, "Weet u zeker dat u spel ~ wilt wissen?"},
        {Bericht::Editor, "Editor"},
        {Bericht::SelecteerSlag, "Selecteer de slag"},
        {Bericht::Uit, "Uit"},
        {Bericht::Nummer, "Nummer"},
        {Bericht::Nr, "Nr:"},
        {Bericht::BestandNietGevonden, "Kan het bestand ~ niet vinden!||~ moet in onderstaande map staan:|+"},
        {Bericht::BijschriftKaarten, "Bijschrift kaarten"},
        {Bericht::TekstOpslaan, "Opslaan"},
        {Bericht::ToonSpel, "Toon &spel"},
        {Bericht::InstallatieStart,
         "Zandolin Lomert wordt nu afgesloten en de installatie van de nieuwe versie zal zo starten."},
        {Bericht::GeenUpdate,
         "Er is geen update voor Zandolin Lomert.|Probeer het later nog eens een keer.||Raadpleeg altijd mijn "
         "website:https://www.zandolin.example"},
        {Bericht::Afspeelsnelheid, "Afspeelsnelheid"},
        {Bericht::InformatieWissen, "Informatie van ~ wissen?"},
        {Bericht::Kaart, "Kaart"},
        {Bericht::AlleenHetNummer, "Alleen het nummer ingeven"},
        {Bericht::EigenSpelnummer, "Eigen spelnummer"},
        {Bericht::ImportExport, "Import/Export"},
        {Bericht::ExporteerVan, "Exporteer van"},
        {Bericht::NaarUSBStick, "Naar USB-Stick"},
        {Bericht::Geen, "Geen"},
        {Bericht::ImporteerVan, "Importeer van"},
        {Bericht::Naar, "Naar"},
        {Bericht::ZoekUSBStick, "Zoek USB-Stick"},
        {Bericht::GeenUSBDrive, "Kan geen USB-Drive vinden!"},
        {Bericht::GeenSpellenOp, "Er staan geen spellen op"},
        {Bericht::Exporteer, "Exporteer"},
        {Bericht::Importeer, "Importeer"},
        {Bericht::SelecteerAlles, "Selecteer alles"},
        {Bericht::DeselecteerAlles, "De-selecteer alles"},
        {Bericht::KlikOpOpslaan, "Klik op de knop Opslaan om uw spel op te slaan."},
        {Bericht::FoutMelden,
         "Wilt u de foutmelding melden aan Zandolin?|Ik stuur u naar mijn website en daar kunt u deze foutmelding "
         "melden."},
        {Bericht::GeenVerbinding,
         "Ik heb geen internetverbinding.|U kunt naar onderstaande website gaan en daar de melding doen."},
        {Bericht::FoutIn, "Fout in:"},
        {Bericht::Foutnummer, "Foutnummer:"},
        {Bericht::Foutnaam, "Foutnaam:"},
        {Bericht::NietVrolijk, "Hier word ik niet vrolijk van......"},
        {Bericht::FoutInProgramma, "Fout in het programma"},
        {Bericht::AdresVoorMelding, "https:\\\\www.zandolin.example\\QVTMelding"},
        {Bericht::NaarWebsite, "Naar website"},
        {Bericht::MeldingInKlembord,
         "Ik heb de foutmelding in het klembord geplaats.|Open de  kladblok en kies daar voor Plakken"},
        {Bericht::SysteemFoutcode, "Het systeem geeft foutcode"},
        {Bericht::GeenRVLX, "Ik heb geen Zandolin RVLX kunnen vinden....."},
        {Bericht::VoorbeeldTekst, "Voorbeeld tekst"},
        {Bericht::Sluiten, "Sluiten"},
        {Bericht::GeenUpdateNaarWebsite,
         "Er is geen update voor Zandolin Lomert.|Probeer het later nog eens een keer.||Raadpleeg altijd mijn "
         "website:https://www.zandolin.example||Wilt u naar de website?"},
        {Bericht::UitkomstBlijft, "U kunt de uitkomst niet verwijderen."},
    };
    return table;
}

}  // namespace

const std::string* message(int number) {
    const auto found = messages().find(static_cast<Bericht>(number));
    return found == messages().end() ? nullptr : &found->second;
}

std::string message_text(int number) {
    const std::string* text = message(number);
    if (!text) throw base::Fout(base::FoutNummer::NoSuchResource, std::to_string(number));
    return *text;
}

}  // namespace resources
