// What the command `list` tells of the boards of files.
#include "deals/TestImport.h"

namespace {

using List = TestImport;

const std::string kDeal = "[Deal \"N:A32.K54.A32.K432 K54.A32.K54.A765 QJT.QJT98.QJ6.Q8 9876.76.T987.JT9\"]\n";

TEST_F(List, TellsALineABoardAndItsErrorBehindIt) {
    program.write("club.pbn", "[Board \"3\"]\n[Dealer \"S\"]\n" + kDeal +
                                  "[Auction \"S\"]\n1H P 4H X AP\n[Play \"W\"]\nDT {Kijk!} D2 DK D6\n*\n\n" + kDeal +
                                  "\n[Board \"b\tc\"]\n" + kDeal + "[Auction \"N\"]\nAP\n\n[Board \"5\"]\n" + kDeal +
                                  "[Auction \"N\"]\n2H 1H\n");
    const auto told = run("list", {"club.pbn"});
    EXPECT_EQ(told.out,
              "1\t3\tS\t4HX\tS\tDT\t4\t1\n"
              "2\t\t\t\t\t\t0\t0\n"
              "3\tb c\tN\tP\t\t\t0\t0\n"
              "4\t5\t\t\t\t\t0\t0\tline 19: call 2 (1H): not above 2H\n");
    EXPECT_EQ(told.error, "");
    EXPECT_EQ(told.status, 1);
}

TEST_F(List, TellsAnArrayOfJson) {
    program.write("club.pbn",
                  "[Board \"3\"]\n[Vulnerable \"All\"]\n[Dealer \"N\"]\n" + kDeal +
                      "[Auction \"S\"]\n1NT P 4NT X XX AP\n[Play \"W\"]\nDT {Een \"\\D\".\nO\\n} D2 - -\n*\n\n"
                      "[Deal \"N:A32.K54.A32.K432 - - -\"]\n");
    const auto told = run("list", {"--json", "club.pbn"});
    EXPECT_EQ(
        told.out,
        "[\n{\"number\":1,\"board\":\"3\",\"dealer\":\"S\",\"vulnerable\":\"All\",\"contract\":\"4NXX\",\"declarer\":"
        "\"S\","
        "\"lead\":\"DT\",\"hands\":\"N:A32.K54.A32.K432 K54.A32.K54.A765 QJT.QJT98.QJ6.Q8 9876.76.T987.JT9\","
        "\"auction\":[\"1N\",\"P\",\"4N\",\"X\",\"XX\",\"P\",\"P\",\"P\"],\"play\":[\"DT\",\"D2\"],\"cards\":2,"
        "\"texts\":[{\"place\":\"card 1\",\"text\":\"Een \\\"\u2666\\\".\\u000aO\\\\n\"}],"
        "\"notes\":[\"line 5: the auction begins with S, not with the dealer's tag\"],\"error\":null},\n"
        "{\"number\":2,\"board\":null,\"dealer\":null,\"vulnerable\":null,\"contract\":null,\"declarer\":null,"
        "\"lead\":null,\"hands\":\"N:A32.K54.A32.K432 - - -\",\"auction\":null,\"play\":null,\"cards\":0,\"texts\":[],"
        "\"notes\":[\"line 12: more than one hand is unknown\"],\"error\":null}\n]\n");
    EXPECT_EQ(told.error, "note: board 3, line 5: the auction begins with S, not with the dealer's tag\n");
    EXPECT_EQ(told.status, 0);
}

// Whatever a file holds, it stands in one line, without what would steer a terminal.
TEST_F(List, TellsEachBoardInOneLine) {
    program.write("a.lin", "md|1SQJTHQJT98DQJ6CQ8,S9876H76DT987CJT9,SA32HK54DA32CK432,|mb|1H\r\n\x1B[31m\tZ|");
    program.write("b.pbn", "[Board\n1]\n" + kDeal);
    const auto told = run("list", {"a.lin", "b.pbn"});
    EXPECT_EQ(told.out, "1\t\tS\t\t\t\t0\t0\tline 1: not a call: 1H  [31m Z\n2\t\t\t\t\t\t0\t0\n");
    EXPECT_EQ(told.error, "note: b.pbn: deal 2, line 1: not a tag: [Board 1]\n");
    const auto refused = run("import", {"a.lin", "--program", program.path().string()});
    EXPECT_EQ(refused.out, "refused: deal 1, line 1: not a call: 1H  [31m Z\n");
}

TEST_F(List, TellsFilesApartByTheirNameOrTheirFirstLetter) {
    const std::string lin = "md|1SQJTHQJT98DQJ6CQ8,S9876H76DT987CJT9,SA32HK54DA32CK432,|sv|b|";
    program.write("a.LIN", lin);
    program.write("b", lin);
    program.write("c.txt", "; een club\n" + kDeal);
    program.write("d.pbn", "");
    const auto told = run("list", {"a.LIN", "b", "weg.lin", "c.txt", "d.pbn", "."});
    EXPECT_EQ(told.out, "1\t\tS\t\t\t\t0\t0\n2\t\tS\t\t\t\t0\t0\n3\t\t\t\t\t\t0\t1\n");
    EXPECT_EQ(told.status, 1);
    const auto absent = run("list", {"w\u00E9g.lin"});
    EXPECT_EQ(absent.error, "error: no such file (w\u00E9g.lin)\n");
    EXPECT_EQ(absent.status, 2);
    EXPECT_EQ(run("list", {"--jso", "a.LIN"}).error.substr(0, 28), "error: unknown option --jso\n");
    EXPECT_EQ(run("lijst", {"a.LIN"}).status, 2);
}

}  // namespace
