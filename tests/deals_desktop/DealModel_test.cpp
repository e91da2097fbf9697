// The list of deals: groups, order and ticks.
#include "deals_desktop/DealModel.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

#include "exchange/RandomBoard.h"

namespace {

using deals_desktop::DealModel;
using deals_desktop::Entry;

class Deals : public testing::Test {
protected:
    // A board of a file, as it was played at one table.
    Entry table(const std::string& file, const std::string& board, const exchange::Deal& deal, int level) {
        exchange::Board read;
        read.board = board;
        read.deal = deal;
        read.contract = exchange::Contract{{level, exchange::Strain::Hearts}, {}, exchange::Seat::South};
        Entry entry{.path = file, .number = ++number_};
        entry.read = entry.board = std::make_shared<const exchange::Board>(read);
        return entry;
    }
    // The lines as they are shown, tables behind a "-".
    std::string lines() {
        std::string all;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex line = model.index(row, 0);
            all += text(line);
            for (int child = 0; child < model.rowCount(line); ++child)
                all += "-" + text(model.index(child, DealModel::Contract, line));
            all += " ";
        }
        return all;
    }
    static std::string text(const QModelIndex& index) { return index.data().toString().toStdString(); }
    void tick(const QModelIndex& index) { model.setData(index, Qt::Checked, Qt::CheckStateRole); }

    test::Random random{1};
    exchange::Deal one = test::random_deal(random), other = test::random_deal(random);
    DealModel model{QStringLiteral("Spel")};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};

private:
    int number_ = 0;
};

TEST_F(Deals, TablesOfABoardStandTogetherWhereverTheFileHasThem) {
    model.add({table("a", "1", one, 4), table("a", "2", other, 3), table("a", "1", one, 2)});
    EXPECT_EQ(lines(), "1 (2 tafels)-4♥-2♥ 2 ");
    // Another deal under the number, another file, and a third table, which come later.
    model.add({table("a", "2", one, 1), table("b", "1", one, 1), table("a", "1", one, 1)});
    EXPECT_EQ(lines(), "1 (3 tafels)-4♥-2♥-1♥ 2 2 1 ");
    model.add({table("a", "2", other, 6)});
    EXPECT_EQ(lines(), "1 (3 tafels)-4♥-2♥-1♥ 2 (2 tafels)-3♥-6♥ 2 1 ");
    EXPECT_EQ(model.entry_at(model.index(0, 0)), -1);
    for (int entry = 0; entry < 7; ++entry)
        EXPECT_EQ(model.entry_at(model.index_of(entry)), entry);
}

TEST_F(Deals, SortingTakesGroupsWholeAndKeepsWhatIsChosen) {
    model.add({table("a", "2", other, 5), table("a", "10", one, 4), table("a", "2", other, 3)});
    const QPersistentModelIndex chosen(model.index_of(2));
    model.sort(DealModel::Name, Qt::DescendingOrder);
    EXPECT_EQ(lines(), "10 2 (2 tafels)-5♥-3♥ ") << "ten is more than two";
    model.sort(DealModel::Contract, Qt::AscendingOrder);
    EXPECT_EQ(lines(), "2 (2 tafels)-3♥-5♥ 10 ");
    EXPECT_EQ(model.entry_at(chosen), 2);
    model.add({table("a", "3", one, 1)});
    EXPECT_EQ(lines(), "3 2 (2 tafels)-3♥-5♥ 10 ") << "what is added finds its place";
    model.sort(-1, Qt::AscendingOrder);
    EXPECT_EQ(lines(), "2 (2 tafels)-5♥-3♥ 10 3 ");
}

TEST_F(Deals, AHeadIsTickedWithItsTables) {
    model.add({table("a", "1", one, 4), table("a", "1", one, 2), table("a", "2", other, 3)});
    const QModelIndex head = model.index(0, 0);
    tick(model.index(1, 0, head));
    EXPECT_EQ(head.data(Qt::CheckStateRole), Qt::PartiallyChecked);
    tick(head);
    EXPECT_EQ(head.data(Qt::CheckStateRole), Qt::Checked);
    EXPECT_EQ(model.ticked(), (std::vector{0, 1}));
    model.tick_all(true);
    EXPECT_EQ(model.ticked(), (std::vector{0, 1, 2}));
}

TEST_F(Deals, AMendedTableLeavesItsGroup) {
    model.add({table("a", "1", one, 4), table("a", "1", one, 2), table("a", "1", one, 3), table("a", "2", other, 1)});
    EXPECT_EQ(model.common_at(model.index(0, 0)).board->deal, one);
    const auto mended = [&](int level) { return table("a", "1", other, level).board; };
    model.set_own_board(1, mended(5));
    EXPECT_EQ(lines(), "1 (2 tafels)-4♥-3♥ 1 2 ");
    EXPECT_EQ(text(model.index_of(1).siblingAtColumn(DealModel::Contract)), "5♥");
    model.set_own_board(0, mended(6));
    EXPECT_EQ(lines(), "1 1 1 2 ");
    EXPECT_EQ(text(model.index_of(0).siblingAtColumn(DealModel::Contract)), "6♥");
    EXPECT_EQ(text(model.index_of(2).siblingAtColumn(DealModel::Contract)), "3♥");
    EXPECT_EQ(model.unsaved(), (std::vector{0, 1}));
    model.set_saved({model.entries()[0].board});
    EXPECT_EQ(model.unsaved(), std::vector{1});
    model.sort(DealModel::Contract, Qt::DescendingOrder);
    EXPECT_EQ(model.entry_at(model.index(0, 0)), 0);
}

TEST_F(Deals, ALateResultOfAnotherBoardIsDropped) {
    model.add({table("a", "1", one, 4)});
    const auto before = model.entries()[0].board;
    model.set_board(0, table("a", "1", other, 4).read, {});
    model.set_best(0, before, exchange::BestPlay{.tricks = 9});
    EXPECT_EQ(text(model.index(0, DealModel::Best)), "");
    model.set_best(0, model.entries()[0].board, exchange::BestPlay{.tricks = 8});
    EXPECT_EQ(text(model.index(0, DealModel::Best)), "8");
}

}  // namespace
