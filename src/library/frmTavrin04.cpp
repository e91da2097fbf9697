#include "library/frmTavrin04.h"

#include <algorithm>

#include "base/Zolang.h"
#include "library/frmTavrin01.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "services/Bas_Aftavrin.h"
#include "services/MSendInput.h"

namespace library {

namespace {

constexpr forms::Size kInner{4005, 6735};
constexpr double kMarge = 90;
constexpr int kHoogsteNummer = 999;
constexpr const char* kSelecteerTotEinde = "+{END}";

// "007" of 7; "234" of 1234.
std::string drie_cijfers(long long nummer) { return base::right(std::to_string(1000 + nummer), 3); }

// The value of a number, or of its last digits where it has more than one needs for drie_cijfers.
int achterste_cijfers(const std::string& tekst) {
    constexpr std::size_t kGenoeg = 9;
    std::string nummer(base::number_part(tekst));
    if (nummer.size() > kGenoeg) nummer.erase(1, nummer.size() - kGenoeg);  // what stays in front may be the sign
    return base::numeric_value(nummer);
}

int laatste_drie(const std::string& regel) { return base::numeric_value(base::right(regel, 3)); }

// All occurrences, in whatever case they stand.
std::string vervangen(const std::string& tekst, const std::string& oud, const std::string& nieuw) {
    const std::string klein = base::lower_case(tekst);
    const std::string gezocht = base::lower_case(oud);
    std::string resultaat;
    std::size_t vanaf = 0;
    for (std::size_t at = klein.find(gezocht); at != std::string::npos; at = klein.find(gezocht, vanaf)) {
        resultaat += tekst.substr(vanaf, at - vanaf) + nieuw;
        vanaf = at + oud.size();
    }
    return resultaat + tekst.substr(vanaf);
}

}  // namespace

frmTavrin04::frmTavrin04(services::Programma& programma)
    : services::Scherm(programma, "frmTavrin04", kInner,
                       {.key_up = "frmTavrin04 - Form - KeyUp",
                        .terug = "frmTavrin04 - cmdTerug - Click",
                        .query_unload = "frmTavrin04 - Form - QueryUnload"}) {
    for (forms::VScrollBar* balk : {&vscrSpelNummer, &vscrEigenSpelnummer}) {
        balk->Min = -1;
        balk->Max = kHoogsteNummer + 1;
    }
    cmdHerbenoem.Enabled = false;

    stel_reeks_in({"frmTavrin04 - txtSpelNummer - Change", "frmTavrin04 - vscrSpelNummer - Change", txtSpelNummer,
                   vscrSpelNummer, txtEigenSpelnummer});
    stel_reeks_in({"frmTavrin04 - txtEigenSpelnummer - Change", "frmTavrin04 - vscrEigenSpelnummer - Change",
                   txtEigenSpelnummer, vscrEigenSpelnummer, txtSpelNummer});
    txtSpelNummer.KeyPress = [](char& toets) {
        if (std::string_view("1234567890\b\r\t").find(toets) == std::string_view::npos) toets = 0;
    };
    chkSorteerTavrin.Click = [this] {
        sorteer("frmTavrin04 - chkSorteerTavrin - Click", chkSorteerTavrin, [this] { LeesAfTavrinSpellen(); });
    };
    lstAfTavrin.Click = [this] { lstAfTavrin_Click(); };
    cmdHerbenoem.Click = [this] { cmdHerbenoem_Click(); };
    cmdTerug.Click = [this] { cmdTerug_Click(); };
}

void frmTavrin04::stel_reeks_in(const Reeks& reeks) {
    reeks.nummer.Change = [this, reeks] { nummer_veranderd(reeks); };
    reeks.balk.Change = [this, reeks] { balk_verschoven(reeks); };
}

void frmTavrin04::Form_Load() {
    Foutpad("frmTavrin04 - Form - Load", [&] {
        Caption = LeesResString(Bericht::Herbenoem);
        fraTavrin.Caption = LeesResString(Bericht::Tavrin);
        const auto& hoofdscherm = dynamic_cast<frmTavrin01&>(programma.schermen.laad("frmTavrin01"));
        lblOudNummer.Caption = LeesResString(Bericht::OudSpelnummer) + ": " + hoofdscherm.lstSpellen.Text();
        fraHerbenoem.Caption = LeesResString(Bericht::AlleenHetNummer);
        lblSpelNummer.Caption = LeesResString(Bericht::Spelnummer) + ": QVT_" + LeesResString(Bericht::Spel) + " ";
        fraEigenNaam.Caption = LeesResString(Bericht::EigenSpelnummer);
        lblEigenSpelnummer.Caption = LeesResString(Bericht::Spelnummer) + ": " + LeesResString(Bericht::Spel) + " ";
        cmdHerbenoem.Caption = "&" + LeesResString(Bericht::Herbenoem);
        cmdTerug.Caption = "&" + LeesResString(Bericht::Terug);
        geef_opschriften_ruimte();
        zet_buiten_beeld(cmdFocus);
        LeesAfTavrinSpellen();
        vul_nummers(voorstel());
    });
}

// Two texts are wider than their places: one keeps its middle, the other its right end, before the number box.
void frmTavrin04::geef_opschriften_ruimte() {
    const double midden = lblOudNummer.Left() + lblOudNummer.Width() / 2;
    lblOudNummer.AutoSize = true;
    lblOudNummer.Left = std::max(kMarge, midden - lblOudNummer.Width() / 2);
    const double rechts = lblSpelNummer.right();
    lblSpelNummer.AutoSize = true;
    lblSpelNummer.Left = rechts - lblSpelNummer.Width();
}

// The number that follows from what the preparation screen has chosen; -1 for none. That screen is loaded for it,
// unseen, and goes when the main screen returns.
int frmTavrin04::voorstel() {
    const forms::Form& voorbereiding = programma.schermen.laad("frmTavrin03");
    const auto gekozen = [&](const char* lijst) {
        return dynamic_cast<forms::ListBox&>(voorbereiding.control(lijst)).Text();
    };
    int nummer = -1;
    if (const std::string regel = gekozen("lstRVLX"); !regel.empty()) nummer = laatste_drie(regel);
    if (nummer != -1) return nummer;
    if (const std::string regel = gekozen("lstAfTavrin"); !regel.empty()) nummer = laatste_drie(regel) - 1;
    return nummer;
}

void frmTavrin04::vul_nummers(int voorgesteld) {
    const base::Zolang laadt(bezigMetLaden, true);
    for (int nummer = kHoogsteNummer; nummer >= 1; --nummer) {
        lstSpelnummers.AddItem(drie_cijfers(nummer));
        if (nummer != voorgesteld) continue;
        txtSpelNummer.Text = drie_cijfers(nummer);
        // The bars count lines of the list, which runs the other way: their first step jumps, and that is meant.
        vscrSpelNummer.Value = nummer;
        vscrEigenSpelnummer.Value = nummer;
    }
}

void frmTavrin04::Form_Activate() {
    Foutpad("frmTavrin04 - Form - Activate", [&] {
        centreer();
        naar_nummer();
        windows().host().process_events(windows());
    });
}

// The number stands selected, so that typing replaces it.
void frmTavrin04::naar_nummer() {
    txtSpelNummer.SetFocus();
    services::MSendInput::VerstuurToetsen(programma, kSelecteerTotEinde, false);
}

void frmTavrin04::LeesAfTavrinSpellen() {
    Foutpad("frmTavrin04 - General - LeesAfTavrinSpellen", [&] {
        toon_mappen({lstAfTavrin, dirAftavrin, chkSorteerTavrin}, programma.pakketten());
    });
}

// The list is there to look at.
void frmTavrin04::lstAfTavrin_Click() {
    Foutpad("frmTavrin04 - lstAfTavrin - Click", [&] {
        if (lstAfTavrin.ListIndex == -1) return;
        lstAfTavrin.ListIndex = -1;
        naar_nummer();
    });
}

void frmTavrin04::nummer_veranderd(const Reeks& reeks) {
    Foutpad(reeks.plaats_van_nummer, [&] {
        if (maaktLeeg) return;
        const bool ingevuld = !base::trimmed(reeks.nummer.Text()).empty();
        maak_leeg(reeks.andere);
        cmdHerbenoem.Enabled = ingevuld;
        reeks.andere.Enabled = !ingevuld;
    });
}

void frmTavrin04::balk_verschoven(const Reeks& reeks) {
    Foutpad(reeks.plaats_van_balk, [&] {
        if (bezigMetLaden) return;
        const int laatste = lstSpelnummers.ListCount() - 1;
        const int regel = reeks.balk.Value;
        if (regel < 0 || regel > laatste) {
            reeks.balk.Value = regel < 0 ? laatste : 0;
            return;
        }
        reeks.nummer.Text = lstSpelnummers.List(regel);
        maak_leeg(reeks.andere);
        reeks.andere.Enabled = false;
        reeks.nummer.Enabled = true;
    });
}

// Its change has no say: the number that was just given stands.
void frmTavrin04::maak_leeg(forms::TextBox& nummer) {
    const base::Zolang maakt(maaktLeeg, true);
    nummer.Text = "";
}

void frmTavrin04::cmdHerbenoem_Click() {
    Foutpad("frmTavrin04 - cmdHerbenoem - Click", [&] {
        const std::string& opschrift = lblOudNummer.Caption();
        const std::size_t dubbele_punt = opschrift.find(": ");
        cmdHerbenoem.Enabled = false;
        if (dubbele_punt == std::string::npos) return;
        const std::string oud = base::trimmed(opschrift.substr(dubbele_punt + 2));
        const std::string nieuw = nieuwe_naam();
        if (services::Bas_Aftavrin::GetListBoxIndex(programma, lstAfTavrin, nieuw, false) == -1) {
            herbenoem(oud, nieuw);
            return;
        }
        const std::string bericht =
            base::replaced(base::replaced(LeesResString(Bericht::NummerBestaatAl), "+", nieuw), "~", oud);
        programma.platform.message_box(platform::box_style::kInformation, Caption(),
                                       base::replaced(bericht, "|", "\n"));
        naar_nummer();
    });
}

std::string frmTavrin04::nieuwe_naam() const {
    const bool eigen = txtSpelNummer.Text().empty();
    const std::string& nummer = eigen ? txtEigenSpelnummer.Text() : txtSpelNummer.Text();
    return (eigen ? "Spel " : "QVT_Spel ") + drie_cijfers(achterste_cijfers(nummer));
}

// lblOudNummer keeps the old name, whose folder is gone from here on: another rename on this visit fails.
void frmTavrin04::herbenoem(const std::string& oud, const std::string& nieuw) {
    platform::refuse_links(programma.pakketten(), programma.pakket(oud));
    platform::refuse_links_in(programma.pakket(oud), "*.txt");
    platform::rename_path(programma.pakket(oud), programma.pakket(nieuw));
    filSpellen.Pattern = "*.txt";
    filSpellen.Path = programma.pakket(nieuw);
    for (int i = 0; i < filSpellen.ListCount(); ++i) {
        const std::string& naam = filSpellen.List(i);
        const std::string andere = vervangen(naam, oud, nieuw);
        if (andere != naam)
            platform::rename_path(platform::join_path(filSpellen.Path(), naam),
                                  platform::join_path(filSpellen.Path(), andere));
    }
    LeesAfTavrinSpellen();
    txtSpelNummer.Text = "";
}

}  // namespace library
