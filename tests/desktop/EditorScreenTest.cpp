#include <QWindow>

#include "annotate/frmTavrin05.h"
#include "annotate/frmTavrin06.h"
#include "desktop/RealProgram.h"
#include "library/frmTavrin01.h"

namespace {

class EditorScreen : public RealProgram {};

TEST_F(EditorScreen, TheOverviewGrowsWithItsWindow) {
    start_program();
    click(screen<frmTavrin01>().cmdKaartenEditor);
    auto& editor = screen<frmTavrin05>();
    click_line(editor.lstSpellen, "QVT_Spel 001");
    click(editor.cmdToonSpel);
    auto& overview = screen<frmTavrin06>();
    const QSize before = window().size();
    std::vector<QRect> places;
    for (auto& hand : overview.picKaart) {
        for (int card = 1; card <= 13; ++card)
            places.push_back(widget(hand(card)).geometry());
    }
    const struct {
        double x, y;
    } factors[] = {{1.4, 1.3}, {0.8, 0.9}, {1, 1}};
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
}

}  // namespace
