// What is told in English elsewhere, in Dutch.
#include "deals_desktop/Reasons.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <new>
#include <sstream>
#include <stdexcept>

#include "base/Fout.h"
#include "exchange/LinReader.h"
#include "exchange/PbnReader.h"

namespace {

using deals_desktop::dutch;

TEST(Reasons, AreInDutchWithTheirCardsSeatsAndPlaces) {
    constexpr struct {
        const char* english;
        const char* dutch;
    } kRows[] = {
        {"club.pbn: board 3, line 41: SA is held twice", "club.pbn: spel 3, regel 41: ♠A komt twee keer voor"},
        {"deal 7, line 2: card 5 (HT): N does not follow suit",
         "spel nr. 7, regel 2: kaart 5 (♥10): Noord bekent geen kleur"},
        {"board 1, line 1: the auction ends in 4HX by S, the tags say by W",
         "spel 1, regel 1: de bieding eindigt in 4♥ X door Zuid, het bestand noemt door West"},
        {"bidding: call 2 (1C): not above 1H", "bieding: bod 2 (1♣): niet hoger dan 1♥"},
        {"not a call: %1 %2", "dit is geen bod: %1 %2"},
        {"QVT_Spel 007: trick 3 is not recorded; only this program will find the rest again",
         "QVT_Spel 007: slag 3 is niet vastgelegd; alleen dit programma vindt de rest terug"},
        {"board 2, line 9: no permission (map/Spel 001)", "spel 2, regel 9: geen toestemming (map/Spel 001)"},
        {"something: quite new", "something: quite new"},
    };
    for (const auto& row : kRows)
        EXPECT_EQ(dutch(std::string(row.english)).toStdString(), row.dutch);
}

TEST(Reasons, FailuresAreInDutchWhateverTheyAre) {
    const auto full = std::make_error_code(std::errc::no_space_on_device);
    EXPECT_EQ(dutch(std::filesystem::filesystem_error("cannot write", full)), QStringLiteral("De schijf is vol"));
    EXPECT_EQ(dutch(base::Fout(base::FoutNummer::DiskFull)), QStringLiteral("De schijf is vol"));
    EXPECT_EQ(dutch(std::bad_alloc()), QStringLiteral("er is te weinig geheugen"));
    EXPECT_EQ(dutch(std::runtime_error("the printer failed")), QStringLiteral("de printer kon niets afdrukken"));
    EXPECT_EQ(dutch(std::out_of_range("vector::at")), QStringLiteral("onverwachte fout (vector::at)"));
}

template <class Reader>
void expect_dutch(const std::string& file) {
    std::istringstream stream(file);
    Reader reader(stream);
    while (const auto board = reader.next()) {
        std::vector<std::string> told;
        for (const exchange::Remark& note : board->notes)
            told.push_back(note.text);
        if (board->error) told.push_back(board->error->text);
        if (board->unfit) told.push_back(board->unfit->text);
        EXPECT_FALSE(told.empty()) << file;
        for (const std::string& text : told)
            EXPECT_NE(dutch(text).toStdString(), text);
    }
}

TEST(Reasons, HaveWordsForWhatReadersTell) {
    const std::string deal = "[Deal \"N:AKQJT98765432... .AKQJT98765432.. ..AKQJT98765432. ...AKQJT98765432\"]\n";
    for (const char* const rest :
         {"[Deal \"N:AK... - - -\"]", "[Deal \"N:AK...\"]", "[Deal \"N:AZ... - - -\"]", "[Event \"x\"]"})
        expect_dutch<exchange::PbnReader>(std::string("[Board \"1\"]\n") + rest + "\n");
    for (const char* const rest :
         {"[Dealer \"Q\"]", "[Vulnerable \"Q\"]", "[Contract \"9H\"]", "[Auction \"Q\"]\n1H", "[Auction \"N\"]\n9H",
          "[Auction \"N\"]\n1H 1C", "[Auction \"N\"]\n1H - 2H", "[Auction \"N\"]\n^S", "[Auction \"N\"]\n1H Pass",
          "[Auction \"\"]\n1H Pass", "[Dealer \"E\"]\n[Auction \"N\"]\n1H AP", "{open", "[Play \"W\"]\nC2 S2 H2 D2",
          "[Declarer \"S\"]\n[Contract \"7D\"]\n[Play \"W\"]\nC2 S2 H2 ^D2",
          "[Declarer \"S\"]\n[Contract \"7D\"]\n[Play \"W\"]\nC2 S2 H2 DX",
          "[Declarer \"S\"]\n[Contract \"7D\"]\n[Play \"W\"]\nC2 S2 H2 C3",
          "[Declarer \"N\"]\n[Contract \"1H\"]\n[Auction \"N\"]\n1S AP", "[Contract \"1H\"]\n[Auction \"N\"]\nAP"})
        expect_dutch<exchange::PbnReader>("[Board \"1\"]\n" + deal + rest + "\n");
    for (const char* const file :
         {"qx|o1|md|3SAKQJT98765432,HAKQJT98765432,DAKQJT98765432,|mb|1h|mb|1c|", "qx|o1|md|3SAK,HA,D2,C3|",
          "qx|o1|md|3SAKQJT98765432,HAKQJT98765432,DAKQJT98765432,|mb|zz|", "qx|o1|zz|x|", "qx|o1|sv|q|"})
        expect_dutch<exchange::LinReader>(file);
}

}  // namespace
