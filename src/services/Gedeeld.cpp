#include "services/Gedeeld.h"

#include <functional>
#include <map>

#include "forms/Property.h"

namespace services {

namespace {

using Reader = std::function<std::string(const Gedeeld&)>;

template <class Member>
Reader reader(Member member) {
    return [member](const Gedeeld& gedeeld) { return forms::property_text(gedeeld.*member); };
}

const std::map<std::string, Reader>& readers() {
    using G = Gedeeld;
    static const std::map<std::string, Reader> table{
        {"taalPrefix", reader(&G::taalPrefix)},
        {"kaartRugId", reader(&G::kaartRugId)},
        {"internetOk", reader(&G::internetOk)},
        {"spelMap", reader(&G::spelMap)},
        {"spelMapKopie", reader(&G::spelMapKopie)},
        {"spelNaam", reader(&G::spelNaam)},
        {"vorigScherm", reader(&G::vorigScherm)},
        {"foutPlaats", reader(&G::foutPlaats)},
        {"foutNummer", reader(&G::foutNummer)},
        {"foutNaam", reader(&G::foutNaam)},
        {"regel", reader(&G::regel)},
        {"iniWaarde", reader(&G::iniWaarde)},
        {"kaartTeller", reader(&G::kaartTeller)},
        {"kaartenInSlag", reader(&G::kaartenInSlag)},
        {"slagRij", reader(&G::slagRij)},
        {"aanDeBeurt", reader(&G::aanDeBeurt)},
        {"speelSnelheid", reader(&G::speelSnelheid)},
        {"UitkomstVast", reader(&G::uitkomstVast)},
        {"dummyWind", reader(&G::dummyWind)},
        {"leiderWind", reader(&G::leiderWind)},
        {"troefLetter", reader(&G::troefLetter)},
        {"kleurLetter", reader(&G::kleurLetter)},
        {"waardeLetter", reader(&G::waardeLetter)},
        {"kaartTekst", reader(&G::kaartTekst)},
        {"kaartStap", reader(&G::kaartStap)},
        {"rijStap", reader(&G::rijStap)},
        {"noordLinks", reader(&G::noordLinks)},
        {"noordBoven", reader(&G::noordBoven)},
        {"oostLinks", reader(&G::oostLinks)},
        {"oostBoven", reader(&G::oostBoven)},
        {"zuidLinks", reader(&G::zuidLinks)},
        {"zuidBoven", reader(&G::zuidBoven)},
        {"westLinks", reader(&G::westLinks)},
        {"westBoven", reader(&G::westBoven)},
    };
    return table;
}

}  // namespace

bool gedeelde_variabele(const Gedeeld& gedeeld, const std::string& naam, std::string& waarde) {
    for (const auto& [known, read] : readers()) {
        if (!base::equal_ignoring_case(known, naam)) continue;
        waarde = read(gedeeld);
        return true;
    }
    return false;
}

}  // namespace services
