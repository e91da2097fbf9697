// The play of a deal, with what its cards gave away.
#include "deals_desktop/PlayModel.h"

#include <gtest/gtest.h>

#include <QColor>
#include <cmath>
#include <sstream>

#include "exchange/PbnReader.h"

namespace {

using deals_desktop::PlayModel;
using deals_desktop::SharedBoard;

// On his partner's king North throws the ace.
SharedBoard board() {
    std::istringstream file(
        "[Board \"1\"]\n[Deal \"N:AQ2.A32.5432.432 J543.KJ5.AJT.765 K76.Q764.KQ9.AKQ T98.T98.876.JT98\"]\n"
        "[Declarer \"S\"]\n[Contract \"3NT\"]\n[Play \"W\"]\nCJ C2 C5 CA\nS8 SA S3 SK\n*\n");
    return std::make_shared<const exchange::Board>(*exchange::PbnReader(file).next());
}

TEST(Play, MarksTheCardThatGaveTricksAway) {
    PlayModel model;
    const SharedBoard shown = board();
    model.show(shown, exchange::best_play(*shown), {});
    const auto text = [&](int row, int column) { return model.index(row, column).data().toString().toStdString(); };
    EXPECT_EQ(model.rowCount(), 2);
    EXPECT_EQ(text(0, PlayModel::West), "•♣B");
    EXPECT_EQ(text(0, PlayModel::North), "♣2");
    EXPECT_EQ(text(0, PlayModel::Winner), "Z");
    EXPECT_EQ(text(0, PlayModel::Best), "11");
    EXPECT_EQ(text(1, PlayModel::North), "♠A ▼2");
    EXPECT_EQ(text(1, PlayModel::Best), "9");
    const QModelIndex costly = model.index(1, PlayModel::North);
    EXPECT_EQ(costly.data(Qt::AccessibleTextRole).toString().toStdString(),
              "Noord speelt schoppen aas en geeft 2 slagen weg; beter: schoppen 2");
    for (int column = PlayModel::North; column <= PlayModel::West; ++column) {
        const bool coloured = model.index(1, column).data(Qt::BackgroundRole).isValid();
        EXPECT_EQ(coloured, column == PlayModel::North);
    }
}

// As a display gives off light, from 0 to 1.
double light_of(const QColor& colour) {
    const auto part = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

TEST(Play, CanBeReadOnALightAndADarkPalette) {
    constexpr double kReadable = 4.5;  // of the lighter to the darker
    const SharedBoard shown = board();
    for (const QColor& base : {QColor(Qt::white), QColor(0x20, 0x20, 0x20)}) {
        QPalette palette(base);
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, base == QColor(Qt::white) ? Qt::black : Qt::white);
        PlayModel model;
        model.show(shown, exchange::best_play(*shown), palette);
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = PlayModel::North; column <= PlayModel::West; ++column) {
                const QModelIndex cell = model.index(row, column);
                const QVariant behind = cell.data(Qt::BackgroundRole);
                const double back = light_of(behind.isValid() ? behind.value<QColor>() : base) + 0.05;
                const double front = light_of(cell.data(Qt::ForegroundRole).value<QColor>()) + 0.05;
                EXPECT_GE(std::max(back, front) / std::min(back, front), kReadable)
                    << base.name().toStdString() << " " << row << " " << column;
            }
        }
    }
}

}  // namespace
