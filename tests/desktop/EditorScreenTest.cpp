#include <QWindow>

#include "annotate/frmTavrin05.h"
#include "annotate/frmTavrin06.h"
#include "base/Text.h"
#include "desktop/RealProgram.h"
#include "desktop/Text.h"
#include "library/frmTavrin01.h"

namespace {

constexpr std::size_t kRecord = 532;

class EditorScreen : public RealProgram {
protected:
    EditorScreen() {
        start_program();
        click(screen<frmTavrin01>().cmdKaartenEditor);
        click_line(editor().lstSpellen, "QVT_Spel 001");
    }
    frmTavrin05& editor() { return screen<frmTavrin05>(); }
    std::string record(int card) const {
        return read("aftavrin/QVT_Spel 001/QVT_Spel 001 informatie.txt").substr((card - 1) * kRecord, kRecord);
    }
    bool has_text(int card) const { return trimmed(record(card)).size() > std::to_string(card).size() + 1; }
};

TEST_F(EditorScreen, MarkersTellWhichCardsHaveAText) {
    const QImage yes = picture(editor().picYesNo(0));  // the sample's first card has one
    const QImage no = picture(editor().picYesNo(1));
    EXPECT_NE(yes, no);
    for (int card = 1; card <= 52; ++card)
        EXPECT_EQ(picture(editor().picYesNo(card - 1)) == yes, has_text(card)) << card;
}

TEST_F(EditorScreen, ATypedTextIsStoredAndItsMarkerChanges) {
    const int card = 6;
    ASSERT_FALSE(has_text(card));
    const std::string others = record(5) + record(7);
    const QImage yes = picture(editor().picYesNo(0));
    click(editor().picYesNo(card - 1));
    EXPECT_EQ(shown(editor().txtSlag), "2");
    EXPECT_TRUE(widget(editor().txtInformatie).hasFocus());
    type(QString::fromUtf8("Noord één\nduikt; 't is ‘goed’ → € 1"));
    accelerator(editor().cmdGebruiken);
    std::string wanted = "6|Noord \xE9\xE9n\r\nduikt; 't is \x91goed\x92 ? \x80 1";
    wanted.resize(kRecord, ' ');
    EXPECT_EQ(record(card), wanted);
    EXPECT_EQ(record(5) + record(7), others);
    EXPECT_EQ(read("aftavrin/QVT_Spel 001/QVT_Spel 001 informatie.txt").size(), 52 * kRecord);

    click(editor().picKaart(4));  // another card of this trick
    EXPECT_EQ(picture(editor().picYesNo(card - 1)), yes);
    click(editor().lblYesNo(card - 1));
    EXPECT_EQ(shown(editor().txtInformatie), QString::fromUtf8("Noord één\nduikt; 't is ‘goed’ ? € 1"));
}

TEST_F(EditorScreen, ABoxTakesNoMoreThanItsLength) {
    click(editor().picYesNo(1));
    type(QString(250, 'i') + "\nabcdef");
    EXPECT_EQ(editor().txtInformatie.Text(), std::string(250, 'i') + "\r\nabc");
    EXPECT_EQ(shown(editor().txtInformatie), QString(250, 'i') + "\nabc");
}

TEST_F(EditorScreen, ThePreviewShowsTheLinesOfTheTable) {
    click(editor().picYesNo(0));
    const QString text = shown(editor().txtInformatie);
    accelerator(editor().cmdVoorBeeld);
    EXPECT_TRUE(widget(editor().frmVoorbeeld).isVisible());
    EXPECT_EQ(shown(editor().txtVoorbeeld).simplified(), text.simplified());
    EXPECT_EQ(drawn_lines(editor().txtVoorbeeld).size(), editor().lstKnipTekst.ListCount() + 1);
    click_line(editor().lstSpellen, "QVT_Spel 002");  // what lies behind it is shut off
    EXPECT_EQ(editor().lstSpellen.Text(), "QVT_Spel 001");
    click(editor().cmdSluiten);
    EXPECT_FALSE(widget(editor().frmVoorbeeld).isVisible());
    click_line(editor().lstSpellen, "QVT_Spel 002");
    EXPECT_EQ(editor().lstSpellen.Text(), "QVT_Spel 002");
}

TEST_F(EditorScreen, TheOverviewGrowsWithItsWindow) {
    click(editor().cmdToonSpel);
    auto& overview = screen<frmTavrin06>();
    const QSize before = window().size();
    std::vector<QRect> places;
    for (auto& hand : overview.picKaart) {
        for (int card = 1; card <= 13; ++card)
            places.push_back(widget(hand(card)).geometry());
    }
    const struct { double x, y; } factors[] = {{1.4, 1.3}, {0.8, 0.9}, {1, 1}};
    for (const auto& factor : factors) {
        const QSize size(qRound(before.width() * factor.x), qRound(before.height() * factor.y));
        window().windowHandle()->resize(size);
        ASSERT_TRUE(QTest::qWaitFor([&] { return window().size() == size; }));
        EXPECT_NEAR(overview.Width, host.scale().twips(size.width()), 1);
        auto place = places.begin();
        for (auto& hand : overview.picKaart) {
            for (int card = 1; card <= 13; ++card, ++place) {
                const QRect now = widget(hand(card)).geometry();
                EXPECT_NEAR(now.x(), place->x() * factor.x, 2);
                EXPECT_NEAR(now.y(), place->y() * factor.y, 2);
                EXPECT_NEAR(now.width(), place->width() * factor.x, 2);
                EXPECT_NEAR(now.height(), place->height() * factor.y, 2);
            }
        }
    }
    window().showMaximized();
    ASSERT_TRUE(QTest::qWaitFor([&] { return window().width() != before.width(); }));
    EXPECT_NEAR(overview.Width, host.scale().twips(window().width()), 1);
    key(Qt::Key_Escape);
    EXPECT_EQ(editor().lstSpellen.Text(), "QVT_Spel 001");
    key(Qt::Key_Escape);
    screen<frmTavrin01>();
}

}  // namespace
