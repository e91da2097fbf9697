#pragma once

#include <QString>

// The words of this window. An ampersand marks the letter that goes with Alt.
namespace deals_desktop::words {

inline const QString kTitle = QStringLiteral("Zandolin Lomert - Spellen en lessen");
inline const QString kDealsPage = QStringLiteral("&Spellen");
inline const QString kLessonsPage = QStringLiteral("&Lessen");

// The menus.
inline const QString kFileMenu = QStringLiteral("&Bestand");
inline const QString kQuit = QStringLiteral("&Afsluiten");
inline const QString kOpen = QStringLiteral("&Openen...");
inline const QString kTypedGo =
    QStringLiteral("%1 dat u hebt ingetypt of gewijzigd, is niet bewaard en niet ge\u00EFmporteerd.");
inline const QString kManyTypedGo =
    QStringLiteral("%1 spellen die u hebt ingetypt of gewijzigd, zijn niet bewaard en niet ge\u00EFmporteerd.");
inline const QString kKeepTyped = QStringLiteral("Als &PBN bewaren...");
inline const QString kQuitAnyway = QStringLiteral("Toch &afsluiten");
inline const QString kClearAnyway = QStringLiteral("Toch &leegmaken");
inline const QString kStay = QStringLiteral("&Terug");
inline const QString kClear = QStringLiteral("Lijst &leegmaken");
inline const QString kTickMenu = QStringLiteral("&Kiezen");
inline const QString kTickAll = QStringLiteral("Alles &aanvinken");
inline const QString kTickNone = QStringLiteral("&Niets aanvinken");
inline const QString kTick = QStringLiteral("Gekozen regels aan- of &uitvinken");
inline const QString kSolve = QStringLiteral("&Beste spel uitrekenen");
inline const QString kViewMenu = QStringLiteral("B&eeld");
inline const QString kLarger = QStringLiteral("&Groter");
inline const QString kSmaller = QStringLiteral("&Kleiner");
inline const QString kUsualSize = QStringLiteral("Ge&wone grootte");
inline const QString kSortMenu = QStringLiteral("&Sorteren");
inline const QString kName = QStringLiteral("&Nummer of naam");
inline const QString kAsRead = QStringLiteral("Volgorde van het &bestand");
inline const QString kRefresh = QStringLiteral("&Vernieuwen");
inline const QString kCopy = QStringLiteral("&Kopi\u00EBren");

// The list: its columns, and what stands in them.
inline const QString kDeals = QStringLiteral("Spellen");
inline const QString kLessons = QStringLiteral("Lessen");
inline const QString kDealTitle = QStringLiteral("Spel");
inline const QString kLessonTitle = QStringLiteral("Les");
// The first is one of these.
inline const QString kColumns[] = {QString(),
                                   QStringLiteral("Contract"),
                                   QStringLiteral("Door"),
                                   QStringLiteral("Uitkomst"),
                                   QStringLiteral("Kaarten"),
                                   QStringLiteral("Teksten"),
                                   QStringLiteral("Gemaakt"),
                                   QStringLiteral("Best"),
                                   QStringLiteral("Opmerking")};
inline const QString kColumnTips[] = {QStringLiteral("Het nummer van het spel in zijn bestand"),
                                      QStringLiteral("Het contract"),
                                      QStringLiteral("De leider"),
                                      QStringLiteral("De uitkomst"),
                                      QStringLiteral("Hoeveel kaarten van het spelverloop bekend zijn"),
                                      QStringLiteral("Hoeveel teksten erbij staan"),
                                      QStringLiteral("De slagen die de leider maakte"),
                                      QStringLiteral("De slagen van de leider als allen zo goed mogelijk spelen"),
                                      QStringLiteral("Wat eraan ontbreekt of tegen de regels is")};
inline const QString kTables = QStringLiteral("%1 (%2 tafels)");
inline const QString kTable = QStringLiteral("tafel %1");
inline const QString kPassedOut = QStringLiteral("rondpas");
inline const QString kNoContract = QStringLiteral("geen contract");
inline const QString kNoLead = QStringLiteral("geen uitkomst");

// The chosen deal.
inline const QString kNothingChosen = QStringLiteral("Kies een spel in de lijst.");
inline const QString kDeal = QStringLiteral("Spel %1");
inline const QString kDealWithoutBoard = QStringLiteral("Spel nr. %1");
inline const QString kBy = QStringLiteral("%1 door %2");
inline const QString kDealer = QStringLiteral("Gever: %1");
inline const QString kVulnerable = QStringLiteral("Kwetsbaar: %1");
inline const QString kHandUnknown = QStringLiteral("onbekend");
inline const QString kVoid = QStringLiteral("geen");
inline const QString kBidding = QStringLiteral("Bieding");
inline const QString kNoTrumpSpoken = QStringLiteral("sans atout");
inline const QString kDoubleSpoken = QStringLiteral("doublet");
inline const QString kRedoubleSpoken = QStringLiteral("redoublet");
inline const QString kNoBidding = QStringLiteral("Geen bieding bekend");
inline const QString kPlay = QStringLiteral("S&pelverloop");
inline const QString kTexts = QStringLiteral("&Teksten");
inline const QString kTextsSpoken = QStringLiteral("Teksten");
inline const QString kPlaySpoken = QStringLiteral("Spelverloop");
inline const QString kPlayColumns[] = {QStringLiteral("Slag"), QStringLiteral("Noord"), QStringLiteral("Oost"),
                                       QStringLiteral("Zuid"), QStringLiteral("West"),  QStringLiteral("Wint"),
                                       QStringLiteral("Best")};
inline const QString kTrick = QStringLiteral("Slag %1");
inline const QString kBestBehind =
    QStringLiteral("Met het beste spel van allen komt de leider vanaf hier op %1 slagen");
inline const QString kPlaysCard = QStringLiteral("%1 speelt %2");
inline const QString kLeads = QStringLiteral("%1 komt uit met %2");
inline const QString kCosts = QStringLiteral("%1 en geeft %2 weg; beter: %3");
inline const QString kOneTrick = QStringLiteral("1 slag");
inline const QString kTricks = QStringLiteral("%1 slagen");
inline const QString kBest = QStringLiteral("Beste spel: %1.");
inline const QString kBestAndPlayed = QStringLiteral("Beste spel: %1; gemaakt: %2.");
inline const QString kGivenAway = QStringLiteral(" %1 gaven slagen weg, met \u25BC gemerkt.");
inline const QString kOneGivenAway = QStringLiteral(" 1 kaart gaf slagen weg, met \u25BC gemerkt.");
inline const QString kCards = QStringLiteral("%1 kaarten");

// What the file does not tell.
inline const QString kFill = QStringLiteral("Dit ontbreekt in het bestand");
inline const QString kFillContract = QStringLiteral("&Contract:");
inline const QString kFillBy = QStringLiteral("&door");
inline const QString kFillLead = QStringLiteral("&Uitkomst:");
inline const QString kFillIn = QStringLiteral("In&vullen");
inline const QString kNotChosen = QStringLiteral("-");
inline const QString kLevelSpoken = QStringLiteral("Hoogte van het contract");
inline const QString kDeclarerSpoken = QStringLiteral("Leider");
inline const QString kLevelLacks = QStringLiteral("de hoogte");
inline const QString kStrainLacks = QStringLiteral("de kleur");
inline const QString kDeclarerLacks = QStringLiteral("de leider");
inline const QString kContractLacks = QStringLiteral("Kies ook %1.");
inline const QString kStrainSpoken = QStringLiteral("Kleur van het contract");
inline const QString kDoublingSpoken = QStringLiteral("Doublet");
inline const QString kDoublings[] = {QStringLiteral("-"), QStringLiteral("X"), QStringLiteral("XX")};
inline const QString kFilled = QStringLiteral("Ingevuld bij %1.");
inline const QString kFileChanged =
    QStringLiteral("%1: het bestand is veranderd sinds het werd geopend; open het opnieuw.");

// The import.
inline const QString kAs = QStringLiteral("&Maak:");
inline const QString kAsBest = QStringLiteral("wat er het beste bij past");
inline const QString kAsLessons = QStringLiteral("lessen");
inline const QString kAsDeals = QStringLiteral("spellen");
inline const QString kFinish = QStringLiteral("A&fspelen tot de laatste kaart");
inline const QString kFinishTip =
    QStringLiteral("Een spelverloop dat eerder ophoudt, wordt zo goed mogelijk uitgespeeld");
inline const QString kImport = QStringLiteral("&Importeren");
inline const QString kNothingTicked = QStringLiteral("Vink eerst aan wat u wilt hebben.");
inline const QString kImported = QStringLiteral("Gemaakt: %1. Geweigerd: %2.");
inline const QString kMade = QStringLiteral("Gemaakt: %1");
inline const QString kRefused = QStringLiteral("Geweigerd: %1");

// A deal that is typed in.
inline const QString kNew = QStringLiteral("&Nieuw spel...");
inline const QString kChange = QStringLiteral("&Wijzigen...");
inline const QString kSavePbn = QStringLiteral("Als &PBN bewaren...");
inline const QString kNewTitle = QStringLiteral("Nieuw spel");
inline const QString kChangeTitle = QStringLiteral("Spel wijzigen");
inline const QString kNoCards = QStringLiteral("%1: dit zijn geen kaarten: %2");
inline const QString kHeldTwice = QStringLiteral("%1 heeft %2 ook");
inline const QString kCountOfCards = QStringLiteral("%1 van de 13 kaarten");
inline const QString kDealerKey = QStringLiteral("&Gever:");
inline const QString kTakeBack = QStringLiteral("Te&rug");
inline const QString kBiddingGoesOn = QStringLiteral("De bieding is nog niet af.");
inline const QString kNumberKey = QStringLiteral("Nu&mmer:");
inline const QString kQuestionKey = QStringLiteral("&Vraag:");
inline const QString kAnswerKey = QStringLiteral("An&twoord:");
inline const QString kPlayExample = QStringLiteral("Als u wilt, kaart voor kaart vanaf de uitkomst:\nRA R3 R2 R4");
inline const QString kPlayWaits = QStringLiteral("Het spelverloop telt pas met vier handen en een contract.");
inline const QString kPlayGoesOn = QStringLiteral("Slag %1: %2 is aan de beurt");
inline const QString kPlayEnds = QStringLiteral("Volledig; slagen voor de leider: %1");
inline const QString kFaultInTrick = QStringLiteral("Slag %1, %2");
inline const QString kNoCard = QStringLiteral("Slag %1, kaart %2: dit is geen kaart: %3");
inline const QString kTextsGo = QStringLiteral("Teksten bij kaarten die vervallen: %1");
inline const QString kTypingGoes = QStringLiteral("Wat u hebt gewijzigd, is nog niet opgenomen. Toch sluiten?");
inline const QString kThrowAway = QStringLiteral("&Sluiten");
inline const QString kTypeOn = QStringLiteral("&Verder typen");
inline const QString kTake = QStringLiteral("&Opnemen in de lijst");
inline const QString kOneDealWritten = QStringLiteral("1 spel in %1 geschreven.");
inline const QString kDealsWritten = QStringLiteral("%1 spellen in %2 geschreven.");

// The lessons.
inline const QString kExport = QStringLiteral("E&xporteren...");
inline const QString kExportTitle = QStringLiteral("Lessen exporteren");
inline const QString kExported = QStringLiteral("%1 in %2 geschreven.");
inline const QString kOneLesson = QStringLiteral("1 les");
inline const QString kManyLessons = QStringLiteral("%1 lessen");
inline const QString kWritten = QStringLiteral("Geschreven: %1");
inline const QString kPrint = QStringLiteral("Af&drukken...");
inline const QString kPrintTitle = QStringLiteral("Lessen afdrukken");
inline const QString kMarkCostly = QStringLiteral("Dure kaarten &merken");
inline const QString kMarkCostlyTip =
    QStringLiteral("Op papier staat dan bij elke kaart die slagen weggaf hoeveel het er waren");
inline const QString kPrinting = QStringLiteral("Afdrukken");
inline const QString kPrinted = QStringLiteral("Afgedrukt: %1");

// Saving and bringing back.
inline const QString kSaveAll = QStringLiteral("Alles be&waren...");
inline const QString kSaveTitle = QStringLiteral("Bewaren");
inline const QString kReplace = QStringLiteral("%1 bestaat al. Vervangen?");
inline const QString kSaveName = QStringLiteral("lessen.pbn");
inline const QString kPbn = QStringLiteral(".pbn");
inline const QString kPdf = QStringLiteral(".pdf");
inline const QString kSaveFilter = QStringLiteral("PBN (*.pbn)");
inline const QString kRestore = QStringLiteral("Te&rugzetten...");
inline const QString kRestoreTitle = QStringLiteral("Lessen terugzetten");
inline const QString kComparing = QStringLiteral("Vergelijken met %1");
inline const QString kSaving = QStringLiteral("Bewaren in %1");
inline const QString kKeeping = QStringLiteral("Kopie bewaren");
inline const QString kRestoring = QStringLiteral("Terugzetten");
inline const QString kKept = QStringLiteral("Een kopie van alle lessen is bewaard in de map \"%1\".");
inline const QString kNothingDiffers = QStringLiteral("%1: alle lessen zijn er nog, zonder verschil.");
inline const QString kDiffers =
    QStringLiteral("Deze lessen in %1 zijn er niet meer, of zijn nu anders. Vink aan wat terug moet komen.");
inline const QString kDifference = QStringLiteral("Verschil");
inline const QString kWithoutNumber = QStringLiteral("zonder nummer");
inline const QString kGone = QStringLiteral("is er niet meer");
inline const QString kOtherPlay = QStringLiteral("het spel is anders");
inline const QString kOneTextLost = QStringLiteral("1 tekst is verloren");
inline const QString kTextsLost = QStringLiteral("%1 teksten zijn verloren");
inline const QString kOneOtherText = QStringLiteral("1 tekst is anders");
inline const QString kOtherTexts = QStringLiteral("%1 teksten zijn anders");
inline const QString kOtherFiles = QStringLiteral("nieuwe teksten, of anders opgeschreven");
inline const QString kBeside = QStringLiteral("&Onder een nieuw nummer; wat er is, blijft staan");
inline const QString kInPlace = QStringLiteral("&Vervang wat er is; een kopie daarvan blijft bewaard");
inline const QString kBringBack = QStringLiteral("&Terugzetten");
inline const QString kCancel = QStringLiteral("&Annuleren");
inline const QString kBroughtBack = QStringLiteral("Teruggezet: %1");

// Work that goes on, and what is told of it.
inline const QString kMessages = QStringLiteral("Meldingen");
inline const QString kReading = QStringLiteral("Lezen");
inline const QString kImporting = QStringLiteral("Importeren");
inline const QString kExporting = QStringLiteral("Exporteren naar %1");
inline const QString kSolving = QStringLiteral("Beste spel");
inline const QString kStop = QStringLiteral("Stoppen");
inline const QString kOfSo = QStringLiteral("%1: %2 van %3");
inline const QString kStopped = QStringLiteral("%1: gestopt.");
inline const QString kRead = QStringLiteral("%1: %2 gelezen.");
inline const QString kOneDeal = QStringLiteral("1 spel");
inline const QString kManyDeals = QStringLiteral("%1 spellen");
inline const QString kOpenTitle = QStringLiteral("Bestanden openen");
inline const QString kOpenFilter = QStringLiteral("Spellen (*.pbn *.PBN *.lin *.LIN);;Alle bestanden (*)");
inline const QString kNoMemory = QStringLiteral("er is te weinig geheugen");
inline const QString kUnexpected = QStringLiteral("onverwachte fout (%1)");
inline const QString kNoProgramFolder =
    QStringLiteral("De map \"Zandolin Lomert\" in uw persoonlijke map kan niet worden gemaakt:\n\n%1");

}  // namespace deals_desktop::words
