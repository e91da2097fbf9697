// Brings the screen into a state that stands in a file: a tool for those who build the system.
#include "platform/Files.h"
#include "prepare/frmTavrin03.h"

namespace prepare {

namespace {

constexpr int kHandRegels = 16;
const std::string kGespeeldTeken = "1";

}  // namespace

void frmTavrin03::cmdOphalen_Click() {
    Foutpad("frmTavrin03 - cmdOphalen - Click", [&] {
        // The file holds no contract.
        TroefKleur = "S";
        lstOphalen.Clear();
        lstMsfgTavrin.Clear();
        MaakLabelSchoon();
        platform::LineReader regels(programma.pad("test.txt"));
        for (int nummer = 1; !regels.at_end(); ++nummer) {
            (nummer > kHandRegels ? lstMsfgTavrin : lstOphalen).AddItem(regels.line());
        }

        int hand = 0;
        labels.elke_rij([&](KaartLabels::Rij& rij) {
            if (hand >= lstOphalen.ListCount()) return;
            gedeeld.delen = base::split(lstOphalen.List(hand++), "|");
            for (int i = 0; i < gedeeld.delen.last(); ++i) {
                const std::string& stuk = gedeeld.delen[i];
                forms::Label& label = rij(i);
                label.BackColor = base::numeric_value(base::left(stuk, 1)) == 1 ? kGespeeld : kInHand;
                if (stuk.size() == 2) label.Caption = base::middle(stuk, 2);
                label.Visible = stuk.size() == 2;
            }
        });

        msfgTavrin.Row = 0;
        for (int r = 0; r < lstMsfgTavrin.ListCount(); ++r) {
            gedeeld.delen = base::split(lstMsfgTavrin.List(r), "|");
            msfgTavrin.Row = msfgTavrin.Row + 1;
            for (int i = 0; i < gedeeld.delen.last(); ++i) {
                const std::string& stuk = gedeeld.delen[i];
                msfgTavrin.Col = i + 1;
                msfgTavrin.SetCellBackColor(base::left(stuk, 1) == kGespeeldTeken ? kInSlag : kInHand);
                msfgTavrin.SetText(base::middle(stuk, 2));
                msfgTavrin.SetCellAlignment(forms::FlexGrid::CellAlignment::Centre);
            }
        }
        Kaarten::SlagenTeller(*this);
    });
}

}  // namespace prepare
