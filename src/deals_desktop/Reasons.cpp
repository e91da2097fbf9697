#include "deals_desktop/Reasons.h"

#include <QHash>
#include <QRegularExpression>
#include <new>
#include <system_error>
#include <vector>

#include "base/Fout.h"
#include "deals_desktop/Notation.h"
#include "deals_desktop/Words.h"
#include "platform/CodePage.h"

namespace deals_desktop {

namespace {

// In the first column "{card}", "{seat}", "{call}", "{bid}" (a contract, its declarer, or both), "{n}" and "{text}"
// stand for what differs, and "{why}" for another reason. A row that tells more stands in front of one that takes any
// text there.
constexpr struct {
    const char* english;
    const char* dutch;
} kReasons[] = {
    // Where something stands.
    {"board {text}, line {n}: {why}", "spel %1, regel %2: %3"},
    {"deal {n}, line {n}: {why}", "spel nr. %1, regel %2: %3"},
    {"bidding: {why}", "bieding: %1"},
    {"card {n} ({card}): {why}", "kaart %1 (%2): %3"},
    {"call {n} ({call}): {why}", "bod %1 (%2): %3"},
    {"{why}; only this program will find the rest again", "%1; alleen dit programma vindt de rest terug"},
    {"against the rules, as it was exported: {why}", "tegen de regels, zoals het werd geëxporteerd: %1"},
    // Hands.
    {"{card} is held twice", "%1 komt twee keer voor"},
    {"hand of {seat} has {n} cards", "%1 heeft %2 kaarten"},
    {"not a hand of {seat}: {text}", "dit is geen hand van %1: %2"},
    {"not a deal: {text}", "dit is geen spel: %1"},
    {"more than one hand is unknown", "meer dan één hand is onbekend"},
    {"an end position", "een eindpositie"},
    {"an end position is left out", "een eindpositie is overgeslagen"},
    {"a picture of a few cards", "een plaatje van enkele kaarten"},
    {"a picture of a few cards is no deal", "een plaatje van enkele kaarten is geen spel"},
    {"no hands", "geen handen"},
    {"no deal", "geen kaarten"},
    {"no whole deal", "geen volledig spel"},
    // The bidding.
    {"passed out", "rondpas"},
    {"no contract", "geen contract"},
    {"not a dealer: {text}", "dit is geen gever: %1"},
    {"not a seat: {text}", "dit is geen speler: %1"},
    {"not a declarer: {text}", "dit is geen leider: %1"},
    {"not a vulnerability: {text}", "dit is geen kwetsbaarheid: %1"},
    {"not a contract: {text}", "dit is geen contract: %1"},
    {"not a call: {text}", "dit is geen bod: %1"},
    {"an irregular call: {text}", "een onregelmatig bod: %1"},
    {"a call is missing in front of {text}", "vóór %1 ontbreekt een bod"},
    {"a call is missing", "er ontbreekt een bod"},
    {"not above {call}", "niet hoger dan %1"},
    {"nothing to double", "er is niets te doubleren"},
    {"nothing to redouble", "er is niets te redoubleren"},
    {"the auction is over", "de bieding is al afgelopen"},
    {"the auction is not finished", "de bieding is niet af"},
    {"the auction is not finished; the contract's tag holds",
     "de bieding is niet af; het contract in het bestand geldt"},
    {"an auction without an end", "een bieding zonder einde"},
    {"an auction without a dealer", "een bieding zonder gever"},
    {"an auction without a dealer is left out", "een bieding zonder gever is overgeslagen"},
    {"an auction of {n} rounds; nine are the most", "een bieding van %1 rondes; negen is het meeste"},
    {"the auction's tag names no seat; the dealer's holds", "bij de bieding staat niet wie begint; dat is de gever"},
    {"the auction begins with {seat}, not with the dealer's tag", "de bieding begint bij %1, niet bij de gever"},
    {"the auction's doubling holds, not the tag's", "het doublet van de bieding geldt, niet dat van het contract"},
    {"the auction cannot end in the tags' {bid}", "de bieding kan niet eindigen in %1"},
    {"the auction in the file cannot end in it", "de bieding in het bestand kan daar niet in eindigen"},
    {"the auction ends in {bid}, the tags say {bid}", "de bieding eindigt in %1, het bestand noemt %2"},
    {"passed out, but the tags say {bid}", "rondpas, maar het bestand noemt %1"},
    {"the tag says passed out, the auction {bid}", "het bestand noemt rondpas, de bieding %1"},
    {"it ends in {bid}", "zij eindigt in %1"},
    {"passes behind the end of the auction are left out", "passen na het einde van de bieding zijn weggelaten"},
    {"{n} opening passes were left out and are put back", "%1 weggelaten passen aan het begin zijn teruggezet"},
    {"the bidding is known up to here", "de bieding is tot hier bekend"},
    {"the bidding cannot be read: {why}", "de bieding is niet te lezen: %1"},
    {"the dealer is that of the board's number", "de gever is die van het spelnummer"},
    {"the contract is played by {seat}, but {seat} leads", "%1 speelt het contract, maar %2 komt uit"},
    {"the file says the lead is {card}", "volgens het bestand is de uitkomst %1"},
    {"the file says passed out", "volgens het bestand is het rondpas"},
    {"the file says {bid}", "volgens het bestand is het %1"},
    // The play.
    {"no opening lead", "geen uitkomst"},
    {"{seat} does not hold {card}", "%1 heeft %2 niet"},
    {"{seat} does not hold it", "%1 heeft die kaart niet"},
    {"{seat} does not follow suit", "%1 bekent geen kleur"},
    {"not a card: {text}", "dit is geen kaart: %1"},
    {"an irregular card: {text}", "een onregelmatige kaart: %1"},
    {"no card of that suit: {text}", "geen kaart van die kleur: %1"},
    {"a suit alone is its lowest card, {card}", "een kleur alleen is de laagste kaart ervan, %1"},
    {"cards are taken back; what follows is left out", "er worden kaarten teruggenomen; wat volgt is weggelaten"},
    {"a play without a contract is left out", "een spelverloop zonder contract is weggelaten"},
    {"the cards of the play stand out of their columns", "de kaarten van het spelverloop staan niet in hun kolom"},
    {"the play is led by another seat than its tag says", "een ander komt uit dan het bestand noemt"},
    {"the play's tag names no seat", "bij het spelverloop staat niet wie uitkomt"},
    {"the play does not fit the hands, or is not led from declarer's left",
     "het spelverloop past niet bij de handen, of de uitkomst is niet links van de leider"},
    {"the play has a gap behind card {n}; the rest is left out",
     "na kaart %1 ontbreekt er een in het spelverloop; de rest is weggelaten"},
    {"{why}; the rest is left out", "%1; de rest is weggelaten"},
    {"the play is not complete", "het spelverloop is niet volledig"},
    {"the play ends with card {n}; the last cards follow",
     "het spelverloop eindigt bij kaart %1; de laatste volgen vanzelf"},
    {"the play is played out from card {n} on", "vanaf kaart %1 is het spel uitgespeeld"},
    {"the opening lead is {card}, the play begins with {card}", "de uitkomst is %1, het spelverloop begint met %2"},
    {"trick {n} is led by {seat} in the record, not by {seat}", "in slag %1 komt volgens het verslag %2 uit, niet %3"},
    {"trick {n} is not recorded", "slag %1 is niet vastgelegd"},
    {"{n} tricks are recorded", "er zijn %1 slagen vastgelegd"},
    // Texts, and the writing of files.
    {"{n} texts stand at cards that are not played", "%1 teksten staan bij kaarten die niet gespeeld zijn"},
    {"a text has no card of its own and stands at the card before it",
     "een tekst zonder kaart staat bij de kaart ervoor"},
    {"a text has signs that the program cannot hold; they became ?",
     "een tekst heeft tekens die het programma niet kent; zij werden ?"},
    {"a text is too long; cut before {text}", "een tekst is te lang; afgekapt vóór %1"},
    {"a comment that does not end", "een opmerking die niet eindigt"},
    {"a tag that does not end", "een gegeven dat niet eindigt"},
    {"not a tag: {text}", "dit is geen gegeven: %1"},
    {"not a command: {text}", "dit is geen opdracht: %1"},
    {"not to be understood: {text}", "niet te begrijpen: %1"},
    {"the board was changed since it was exported;{text} is made anew",
     "het spel is na het exporteren gewijzigd;%1 is opnieuw gemaakt"},
    {"there are no boards in it", "er staan geen spellen in"},
    {"all numbers up to 999 are in use", "alle nummers tot 999 zijn in gebruik"},
    {"a file of that name in other letters is there", "er is al een bestand met deze naam in andere letters"},
    {"no such lesson", "deze les is er niet"},
    {"it could not be copied first", "er kon eerst geen kopie van worden gemaakt"},
    {"no whole play", "geen volledig spelverloop"},
    {"the printer failed", "de printer kon niets afdrukken"},
    {"stopped", "gestopt"},
    {"--to needs a file that ends in .pbn, .lin, .html or .pdf",
     "de naam van het bestand moet eindigen op .pbn, .lin, .html of .pdf"},
    {"the paper could not be made", "de bladen konden niet worden gemaakt"},
    {"no lessons are in this file", "in dit bestand staan geen lessen"},
    {"these deals are there already", "deze spellen zijn er al"},
    {"no deals of a companion are in this folder", "in deze map staan geen spellen"},
    {"the companion is installed now; {n} deals are left in {text}, and importing that folder copies them",
     "RVLX is nu geïnstalleerd; %1 spellen staan nog in %2 en kunnen uit die map worden overgenomen"},
    {"no companion is found in {text}, which {text} names; without that key the deals in {text} are found",
     "in %1, dat bij %2 staat, is geen RVLX gevonden; zonder die regel worden de spellen in %3 gevonden"},
    {"no such file{text}", "bestand niet gevonden%1"},
    {"cannot be read or written{text}", "lezen of schrijven lukt niet%1"},
    {"is there already{text}", "bestaat al%1"},
    {"the disk is full{text}", "de schijf is vol%1"},
    {"no permission{text}", "geen toestemming%1"},
    {"is no plain file, or cannot be reached{text}", "is geen gewoon bestand of is niet te bereiken%1"},
    {"no such folder{text}", "map niet gevonden%1"},
};

QString card(const QString& text) { return dutch_text(*exchange::card_of(text.toStdString())); }
QString seat(const QString& text) { return dutch_word(*exchange::seat_of(text.front().toLatin1())); }
QString call(const QString& text) { return dutch_text(*exchange::call_of(text.toStdString())); }
QString same(const QString& text) { return text; }
QString why(const QString& text) { return dutch(text.toStdString()); }

// "4HX by S", "4HX", "by S".
QString bid(const QString& text) {
    const qsizetype by = text.indexOf(QStringLiteral("by "));
    QStringList words;
    if (by != 0) {
        const auto contract = exchange::contract_of(text.left(by).trimmed().toStdString(), {});
        words.append(contract ? dutch_text(*contract) : text);
    }
    if (by >= 0) words.append(QStringLiteral("door ") + seat(text.mid(by + 3)));
    return words.join(QLatin1Char(' '));
}

struct Mark {
    const char* name;
    const char* pattern;
    QString (*dutch)(const QString& text);
};
constexpr Mark kMarks[] = {
    {"{card}", "([SHDC][2-9TJQKA])", card},
    {"{seat}", "([NESW])", seat},
    {"{call}", "(P|XX?|[1-7][CDHSN])", call},
    {"{bid}", "((?:[1-7][CDHSN]X{0,2})?(?: ?by [NESW])?)", bid},
    {"{n}", "(\\d+)", same},
    {"{text}", "(.*)", same},
    {"{why}", "(.*)", why},
};

// A row of the table, ready for use.
class Reason {
public:
    Reason(const QString& english, const QString& dutch) : dutch_(dutch) {
        QString pattern;
        for (qsizetype at = 0; at < english.size();) {
            const Mark* const mark = mark_at(english, at);
            pattern += mark ? QLatin1String(mark->pattern) : QRegularExpression::escape(english.mid(at, 1));
            at += mark ? qstrlen(mark->name) : 1;
            if (mark) marks_.push_back(mark->dutch);
        }
        pattern_.setPattern(QRegularExpression::anchoredPattern(pattern));
    }

    // Null where the text is no such reason.
    QString of(const QString& text) const {
        const QRegularExpressionMatch match = pattern_.match(text);
        if (!match.hasMatch()) return {};
        QString result;
        for (qsizetype at = 0; at < dutch_.size(); ++at) {
            if (dutch_[at] != QLatin1Char('%')) {
                result += dutch_[at];
            } else {
                const int number = dutch_[++at].digitValue();
                result += marks_[static_cast<std::size_t>(number - 1)](match.captured(number));
            }
        }
        return result;
    }

private:
    static const Mark* mark_at(const QString& english, qsizetype at) {
        for (const Mark& mark : kMarks) {
            if (QStringView(english).mid(at).startsWith(QLatin1String(mark.name))) return &mark;
        }
        return nullptr;
    }

    QRegularExpression pattern_;
    QString dutch_;
    std::vector<QString (*)(const QString&)> marks_;
};

const std::vector<Reason>& reasons() {
    static const std::vector<Reason> all = [] {
        std::vector<Reason> rows;
        for (const auto& row : kReasons)
            rows.emplace_back(QString::fromUtf8(row.english), QString::fromUtf8(row.dutch));
        return rows;
    }();
    return all;
}

QString behind_name(const QString& text);

QString looked_up(const QString& text) {
    for (const Reason& row : reasons()) {
        if (const QString told = row.of(text); !told.isNull()) return told;
    }
    return behind_name(text);
}

// Behind the name of a file or a deal.
QString behind_name(const QString& text) {
    for (qsizetype colon = text.indexOf(QStringLiteral(": ")); colon >= 0;
         colon = text.indexOf(QStringLiteral(": "), colon + 1)) {
        const QString rest = text.mid(colon + 2);
        const QString told = dutch(rest.toStdString());
        if (told != rest) return text.left(colon + 2) + told;
    }
    return text;
}

}  // namespace

// A list shows the same reasons over and over.
QString dutch(const std::string& reason) {
    constexpr qsizetype kMost = 1000;
    thread_local QHash<QByteArray, QString> known;
    const QByteArray key(reason.data(), static_cast<qsizetype>(reason.size()));
    if (const auto found = known.constFind(key); found != known.constEnd()) return *found;
    const QString told = looked_up(QString::fromStdString(reason));
    if (known.size() == kMost) known.clear();
    known.insert(key, told);
    return told;
}

QString dutch(const std::exception& failure) {
    if (const auto* const error = dynamic_cast<const std::system_error*>(&failure))
        return dutch(base::Fout::from(error->code(), {}));
    if (dynamic_cast<const std::bad_alloc*>(&failure)) return words::kNoMemory;
    const std::string text = platform::to_utf8(failure.what());
    if (dynamic_cast<const base::Fout*>(&failure)) return QString::fromStdString(text);
    const QString told = dutch(text);
    return told == QString::fromStdString(text) ? words::kUnexpected.arg(told) : told;
}

}  // namespace deals_desktop
