// Recording the play: clicks on cards, following suit, tricks and their winners.
#include "prepare/Klik.h"
#include "prepare/frmTavrin03.h"

namespace prepare {

void frmTavrin03::klik_kaart(const Klik& klik, int index) {
    Foutpad(klik.plaats_van_klik, [&] {
        forms::Label& label = labels.rij(klik.plaats, klik.kleur)(index);
        if (label.BackColor == kGespeeld) return;
        const bool in_slag = label.BackColor == kInSlag;
        if (gedeeld.uitkomstVast && (in_slag || klik.eerst_vast)) {
            programma.platform.message_box(platform::box_style::kInformation, LeesResString(Bericht::ProgrammaNaam),
                                           LeesResString(Bericht::UitkomstBlijft));
            cmdFocus.SetFocus();
            return;
        }
        if (in_slag) {
            neem_terug(klik, label);
            return;
        }
        std::string wie = LeesResString(cards::letter_van_plaats(klik.plaats));
        if (!(lstKlaar.Tag == wie)) {
            AanDeBeurt(wie);
            cmdFocus.SetFocus();
            return;
        }
        gedeeld.uitkomstVast = false;
        const std::string letter = LeesResString(cards::gegevens(klik.kleur).letter);
        if (GevraagdeKleur.empty()) GevraagdeKleur = letter;
        const std::optional<cards::Kleur> kleur = te_bekennen(klik);
        MoetBekennen = kleur.has_value();
        if (MoetBekennen) {
            const std::string woord = LeesResString(cards::gegevens(*kleur).woord);
            programma.platform.message_box(platform::box_style::kInformation, Caption(),
                                           base::replaced(LeesResString(Bericht::MoetBekennen), "~", woord));
            cmdFocus.SetFocus();
            return;
        }
        if (klik.even_blauw) label.BackColor = kEvenBlauw;
        int speler = klik.plaats;
        VolgendeKaart(speler, letter + " " + label.Caption(), index);
    });
}

// Whichever card of the trick is taken back, the next one clicked counts as the lead.
void frmTavrin03::neem_terug(const Klik& klik, forms::Label& label) {
    label.BackColor = kInHand;
    lstKlaar.Tag = LeesResString(klik.terug_letter);
    msfgTavrin.Col = klik.terug_kolom;
    msfgTavrin.SetText("");
    GevraagdeKleur.clear();
}

// The suit that the seat must follow and can, if the clicked card does not.
std::optional<cards::Kleur> frmTavrin03::te_bekennen(const Klik& klik) {
    const std::string gevraagd = base::trimmed(GevraagdeKleur);
    if (gevraagd == LeesResString(cards::gegevens(klik.kleur).letter)) return std::nullopt;
    for (const cards::Kleur kleur : cards::kKleuren) {
        const std::string letter =
            kleur == cards::Kleur::Klaveren ? klik.klaver : LeesResString(cards::gegevens(kleur).letter);
        if (kleur == klik.kleur || gevraagd != letter) continue;
        for (int i = 0; i <= kHoogste; ++i) {
            const forms::Label& label = labels.rij(klik.plaats, kleur)(i);
            if (label.Visible && label.Enabled && label.BackColor == kInHand) return kleur;
        }
    }
    return std::nullopt;
}

void frmTavrin03::AanDeBeurt(std::string& wie) {
    Foutpad("frmTavrin03 - General - AanDeBeurt", [&] {
        for (const int plaats : cards::kPlaatsen) {
            if (lstKlaar.Tag == LeesResString(cards::letter_van_plaats(plaats))) {
                wie = LeesResString(cards::bericht_van_plaats(plaats));
                break;
            }
        }
        programma.platform.message_box(
            platform::box_style::kInformation, Caption(),
            base::replaced(base::replaced(LeesResString(Bericht::JuisteVolgorde), "~", wie), "|", "\n"));
    });
}

void frmTavrin03::VolgendeKaart(int& speler, const std::string& kaart, int index) {
    Foutpad("frmTavrin03 - General - VolgendeKaart", [&] {
        int slagrij = msfgTavrin.Row;
        if (HerberekenSlag) {
            msfgTavrin.SetText(kaart);
        } else {
            slagrij = leg_kaart(speler, kaart, index);
        }
        if (lees_slag(slagrij)) {
            bepaal_winnaar();
            if (LeesModus) return;
            speler = sluit_slag(slagrij, speler);
        }
        if (speler >= 1 && speler <= 4) {
            lstKlaar.Tag = LeesResString(cards::letter_van_plaats(cards::volgende_plaats(speler)));
        }
    });
}

// Puts a card into the seat's first empty cell and colours its label. The row of its trick, which is then the grid's
// current one; in a full column the failure of a row that is not there.
int frmTavrin03::leg_kaart(int speler, const std::string& kaart, int index) {
    msfgTavrin.Col = speler;
    int slagrij = 1;
    while (slagrij < msfgTavrin.Rows() && !msfgTavrin.cell(slagrij, speler).text.empty())
        ++slagrij;
    if (slagrij < msfgTavrin.Rows()) {
        msfgTavrin.Row = slagrij;
        msfgTavrin.SetText(kaart);
    }
    if (LeesModus) slagrij = msfgTavrin.Rows() - 1;
    const auto kleur = kleur_van_letter(base::left(kaart, 1));
    if (kleur && speler >= 1 && speler <= 4) labels.rij(speler, *kleur)(index).BackColor = kInSlag;
    lstKlaar.Clear();
    msfgTavrin.Row = slagrij;
    return slagrij;
}

// Takes the cards of a trick into lstKlaar. True if it is full.
bool frmTavrin03::lees_slag(int slagrij) {
    lstKlaar.Clear();
    bool vol = true;
    for (int kolom = 1; kolom < msfgTavrin.Cols(); ++kolom) {
        const std::string& kaart = msfgTavrin.cell(slagrij, kolom).text;
        lstKlaar.AddItem(kaart);
        vol = vol && !kaart.empty();
    }
    msfgTavrin.Col = msfgTavrin.Cols() - 1;
    return vol;
}

// Trump first, otherwise the suit led; the highest value wins. Where no card counts, the winner stays as it was.
void frmTavrin03::bepaal_winnaar() {
    lstAnderKleur.Clear();
    bool troef = false;
    for (int i = 0; i < lstKlaar.ListCount(); ++i) {
        const bool is_troef = base::left(lstKlaar.List(i), 1) == TroefKleur;
        lstAnderKleur.AddItem(is_troef ? lstKlaar.List(i) : " ");
        troef = troef || is_troef;
    }
    const std::string gevraagd = base::trimmed(GevraagdeKleur);
    for (int i = 0; i < lstKlaar.ListCount(); ++i) {
        if (troef) {
            lstKlaar.SetList(i, lstAnderKleur.List(i));
        } else if (base::left(lstKlaar.List(i), 1) != gevraagd) {
            lstKlaar.SetList(i, "");
        }
    }
    int beste = 0;
    for (int i = 0; i < lstKlaar.ListCount(); ++i) {
        const int waarde = waarde_van(lstKlaar.List(i));
        if (waarde <= beste) continue;
        beste = waarde;
        SlagWinnaar = i + 1;
    }
}

// The seat after which the turn goes on: the one before the winner, or after the last trick the one that played.
int frmTavrin03::sluit_slag(int slagrij, int speler) {
    labels.elk_label([](forms::Label& label) {
        if (label.BackColor == kInSlag) label.BackColor = kGespeeld;
    });
    if (slagrij + 1 < msfgTavrin.Rows()) {
        msfgTavrin.SetCellBackColor(slagrij + 1, SlagWinnaar, kInSlag);
        GevraagdeKleur.clear();
        Kaarten::SlagenTeller(*this);
        return SlagWinnaar == 1 ? 4 : SlagWinnaar - 1;
    }
    // No row follows the last trick, so its winner is counted here.
    Kaarten::SlagenTeller(*this);
    tel_slag_voor(SlagWinnaar);
    programma.platform.message_box(platform::box_style::kInformation, Caption(), LeesResString(Bericht::KlikOpOpslaan));
    cmdOpslaan.Enabled = true;
    return speler;
}

void frmTavrin03::tel_slag_voor(int kolom) {
    forms::Label& teller = kolom == cards::kNoord || kolom == cards::kZuid ? lblSlagenTellerNZ : lblSlagenTellerOW;
    teller.Caption = std::to_string(base::numeric_value(teller.Caption()) + 1);
}

// Value of a card by its last character, 2 to 14; 0 for a text that is none.
int frmTavrin03::waarde_van(const std::string& kaart) const {
    const std::string laatste = base::right(kaart, 1);
    for (int rang = 10; rang <= 14; ++rang) {
        if (laatste == LeesResString(cards::bericht_van_rang(rang))) return rang;
    }
    return base::numeric_value(laatste);
}

std::optional<cards::Kleur> frmTavrin03::kleur_van_letter(const std::string& letter) const {
    for (const cards::Kleur kleur : cards::kKleuren) {
        if (letter == LeesResString(cards::gegevens(kleur).letter)) return kleur;
    }
    return std::nullopt;
}

void frmTavrin03::MaakLabelSchoon() {
    Foutpad("frmTavrin03 - General - MaakLabelSchoon", [&] {
        labels.elk_label([](forms::Label& label) {
            label.Caption = "";
            label.Visible = false;
            label.BackColor = kInHand;
        });
    });
}

void frmTavrin03::KleurKaartGroen(int speler, const std::string& waarde, const std::string& kleur) {
    Foutpad("frmTavrin03 - General - KleurKaartGroen", [&] {
        const auto van = kleur_van_letter(kleur);
        if (!van || speler < 1 || speler > 4) return;
        for (int i = 0; i <= kHoogste && labels.rij(speler, *van)(i).Visible; ++i) {
            if (!(labels.rij(speler, *van)(i).Caption == waarde)) continue;
            labels.rij(speler, *van)(i).BackColor = kGespeeld;
            return;
        }
    });
}

void Kaarten::SlagenTeller(frmTavrin03& scherm) {
    scherm.Foutpad("Kaarten - General - SlagenTeller", [&] {
        forms::FlexGrid& raster = scherm.msfgTavrin;
        raster.Visible = false;
        int noord_zuid = 0;
        int oost_west = 0;
        // The coloured cell of row 1 is the opening lead, which no trick won.
        for (int rij = 2; rij < raster.Rows(); ++rij) {
            for (int kolom = 1; kolom < raster.Cols(); ++kolom) {
                if (raster.cell(rij, kolom).colour == kInHand) continue;
                ++(kolom == cards::kNoord || kolom == cards::kZuid ? noord_zuid : oost_west);
            }
        }
        raster.Row = raster.Rows() - 1;
        raster.Col = raster.Cols() - 1;
        raster.Visible = true;
        scherm.lblSlagenTellerNZ.Caption = std::to_string(noord_zuid);
        scherm.lblSlagenTellerOW.Caption = std::to_string(oost_west);
    });
}

}  // namespace prepare
