#pragma once

#include "cards/Kaarten.h"
#include "table/BiedingPaneel.h"

namespace table {

class frmTavrin02;

// The rest of the module Kaarten: the routines of the table. Each reports its own failures and then returns as if it
// had finished.
namespace Kaarten {

// The bidding box. `ToonBieding` reads " bieding.txt" and fills it; a file that ends too early leaves what was read.
void ZetPositieBieding(frmTavrin02& tafel);
void ToonBieding(services::Scherm& scherm, BiedingPaneel& paneel);

// Places the closed hands, and the information beside them.
void NoordStartPositie(frmTavrin02& tafel);
void OostStartPositie(frmTavrin02& tafel);
void ZuidStartPositie(frmTavrin02& tafel);
void WestStartPositie(frmTavrin02& tafel);
void OverigeStartPositie(frmTavrin02& tafel);
// Writes the seats' names on the felt, beside where the cards then lie.
void schrijf_plaatsnamen(frmTavrin02& tafel);

// Shows a hand in full, sorted by suit.
void NoordZijnKaarten(frmTavrin02& tafel);
void OostZijnKaarten(frmTavrin02& tafel);
void ZuidZijnKaarten(frmTavrin02& tafel);
void WestZijnKaarten(frmTavrin02& tafel);

// Turns over the hands of dummy and declarer.
void ToonKaartenDummy(frmTavrin02& tafel);
void ToonKaartenLeider(frmTavrin02& tafel);

// The opening lead; the card whose turn it is; its line in the box of played cards.
void PlaatdeUitkomst(frmTavrin02& tafel);
void PlaatsKaart(frmTavrin02& tafel);
void ToonGespeeldeKaart(frmTavrin02& tafel);

// The text of the current card, which stops the play; the question of the deal.
void PlaatsInformatie(frmTavrin02& tafel);
void LeesVraag(frmTavrin02& tafel);

}  // namespace Kaarten

}  // namespace table
