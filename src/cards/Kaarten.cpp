#include "cards/Kaarten.h"

#include "cards/PerPlaats.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "services/MappenLijst.h"

namespace cards {

namespace Kaarten {

std::string bestand(const services::Gedeeld& gedeeld, const std::string& achtervoegsel) {
    return platform::join_path(gedeeld.spelMap, gedeeld.spelNaam + achtervoegsel);
}

bool aanwezig(const std::string& pad) { return platform::file_length(pad) > 0; }

std::string eerste_regel(const std::string& pad) {
    platform::LineReader reader(pad);
    return reader.line();
}

void ZetVariabelenOpNul(services::Gedeeld& gedeeld) {
    gedeeld.kaartTeller = 0;
    gedeeld.kaartenInSlag = 0;
    gedeeld.slagRij = 0;
    gedeeld.aanDeBeurt = 0;
    gedeeld.dummyWind.clear();
    gedeeld.leiderWind.clear();
}

void LeesInformatie(services::Scherm& scherm, forms::ListBox& lstInformatie) {
    scherm.Foutpad("Kaarten - General - LeesInformatie", [&] {
        lstInformatie.Clear();
        const std::string pad = bestand(scherm.gedeeld, " informatie.txt");
        if (!aanwezig(pad)) return;
        for (std::string& record : platform::read_records(pad, kRecordLengte, kAantalRecords)) {
            lstInformatie.AddItem(std::move(record));
        }
    });
}

void LeesKartenBestandIn(services::Scherm& scherm, HandLijsten& lijsten) {
    scherm.Foutpad("Kaarten - General - LeesKartenBestandIn", [&] {
        lijsten.lstAfTavrin.Clear();
        const std::string pad = bestand(scherm.gedeeld, " aftavrin.txt");
        if (!aanwezig(pad)) return;
        std::string& regel = scherm.gedeeld.regel;
        for (platform::LineReader reader(pad); !reader.at_end();) {
            regel = reader.line();
            if (!base::trimmed(regel).empty()) lijsten.lstAfTavrin.AddItem(regel);
        }
    });
}

void VerdeelDeKaarten(services::Scherm& scherm, HandLijsten& lijsten) {
    scherm.Foutpad("Kaarten - General - VerdeelDeKaarten", [&] {
        for (const int plaats : kPlaatsen)
            lijsten.lstHand(plaats).Clear();
        base::Pieces& delen = scherm.gedeeld.delen;
        for (int rij = 0; rij < lijsten.lstAfTavrin.ListCount(); ++rij) {
            delen = base::split(lijsten.lstAfTavrin.List(rij), "|");
            for (int i = 1; i <= delen.last(); ++i)
                lijsten.lstHand(i).AddItem(delen[i]);
        }
        for (const int plaats : kPlaatsen) {
            forms::ListBox& hand = lijsten.lstHand(plaats);
            for (int i = 0; i < hand.ListCount(); ++i) {
                const int nummer = nummer_van(hand.List(i));
                lijsten.lstKleur(kleur_van(nummer))(plaats).AddItem(hand.List(i));
            }
        }
    });
}

void LeesSpellen(services::Scherm& scherm, forms::ListBox& lstSpellen, forms::DirListBox& mappen,
                 const std::string& map, int volgorde) {
    scherm.Foutpad("Kaarten - General - LeesSpellen", [&] {
        mappen.Path = map;
        services::vul_met_mappen(lstSpellen, mappen, volgorde);
    });
}

void WelkeKaartIsDit(services::Scherm& scherm, const std::string& kaartcode) {
    scherm.Foutpad("Kaarten - General - WelkeKaartIsDit", [&] {
        services::Gedeeld& gedeeld = scherm.gedeeld;
        const int nummer = nummer_van(kaartcode);
        gedeeld.kleurLetter = base::lower_case(scherm.LeesResString(gegevens(kleur_van(nummer)).letter));
        gedeeld.waardeLetter = waarde_letter(scherm, nummer);
        gedeeld.kaartTekst = gedeeld.kleurLetter + " " + gedeeld.waardeLetter;
    });
}

std::string waarde_letter(const services::Scherm& scherm, int kaartnummer) {
    const int blok = static_cast<int>(kleur_van(kaartnummer));
    const int rang = kaartnummer - blok * kKaartenPerKleur + 1;
    return rang >= 10 && rang <= 14 ? scherm.LeesResString(bericht_van_rang(rang)) : std::to_string(rang);
}

}  // namespace Kaarten

}  // namespace cards
