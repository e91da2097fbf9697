#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTimer>
#include <QWindow>
#include <filesystem>
#include <functional>

#include "desktop/RealProgram.h"
#include "library/frmTavrin01.h"
#include "library/frmTavrin04.h"
#include "prepare/frmTavrin03.h"
#include "services/MSendInput.h"

namespace fs = std::filesystem;

namespace {

class MainScreen : public RealProgram {
protected:
    // What the user does with the box that asks whether the deal shall go.
    void wipe(const std::string& deal, const std::function<void(QWidget& box)>& act) {
        window().activateWindow();  // as the window manager does when a box goes
        auto& main = screen<library::frmTavrin01>();
        click_line(main.lstSpellen, deal);
        QTimer look;
        look.callOnTimeout([&] {
            QWidget* box = QApplication::activeModalWidget();
            if (!box) return;
            look.stop();
            act(*box);
        });
        look.start(10);
        click(main.cmdWissen);
    }
};

TEST_F(MainScreen, ARealBoxKeepsItsKeysToItself) {
    platform.real_boxes = true;
    start_program();
    const std::string deal = "QVT_Spel 003";
    wipe(deal, [&](QWidget& box) {
        QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, {5, 5});  // what is behind it is shut off
        QTest::keyPress(box.windowHandle(), Qt::Key_Escape);
    });
    QTest::keyRelease(window().windowHandle(), Qt::Key_Escape);  // comes when the box is gone
    EXPECT_FALSE(ended);
    EXPECT_TRUE(fs::exists(path("aftavrin/" + deal)));

    wipe(deal, [](QWidget& box) { QTest::keyClick(box.windowHandle(), Qt::Key_J, Qt::AltModifier); });
    EXPECT_FALSE(fs::exists(path("aftavrin/" + deal)));
    EXPECT_EQ(platform.told.size(), 2U);
}

class RenameScreen : public RealProgram {
protected:
    RenameScreen() {
        start_program();
        click_line(screen<library::frmTavrin01>().lstSpellen, "QVT_Spel 002");
    }
    library::frmTavrin04& open() {
        click(screen<library::frmTavrin01>().cmdHerbeNoem);
        auto& rename = screen<library::frmTavrin04>();
        EXPECT_TRUE(widget(rename.txtSpelNummer).hasFocus());
        return rename;
    }
};

TEST_F(RenameScreen, TheNumberBoxTakesDigitsAndTheDealGetsThem) {
    auto& rename = open();
    EXPECT_FALSE(widget(rename.cmdHerbenoem).isEnabled());
    type("a0x4 -");
    compose(QString::fromUtf8("é2"));
    key(Qt::Key_Return);
    QGuiApplication::clipboard()->setText("b1\n1c");
    key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(shown(rename.txtSpelNummer), "04211");
    for (int i = 0; i < 2; ++i)
        key(Qt::Key_Backspace);
    EXPECT_EQ(shown(rename.txtSpelNummer), "042");
    EXPECT_EQ(rename.txtSpelNummer.Text(), "042");
    EXPECT_FALSE(widget(rename.txtEigenSpelnummer).isEnabled());
    click(rename.cmdHerbenoem);
    EXPECT_TRUE(fs::exists(path("aftavrin/QVT_Spel 042/QVT_Spel 042 aftavrin.txt")));
    EXPECT_FALSE(fs::exists(path("aftavrin/QVT_Spel 002")));
}

TEST_F(RenameScreen, SentKeysSelectToTheEndInTheRealBox) {
    programma.windows.dispatch([&] {
        auto& preparation = dynamic_cast<prepare::frmTavrin03&>(programma.schermen.laad("frmTavrin03"));
        preparation.lstRVLX.ListIndex = preparation.lstRVLX.find("Spel 006", forms::Match::Exact);
    });
    auto& rename = open();
    auto& box = widget_as<QLineEdit>(rename.txtSpelNummer);
    EXPECT_EQ(box.selectedText(), "006") << "the number that is proposed";
    type("123");
    EXPECT_EQ(box.text(), "123");
    EXPECT_EQ(box.selectedText(), "");

    const struct {
        int home_and_right;  // keys that come before
        const char* sent;
        const char* selected;
        int start;
    } rows[] = {
        {0, "+{END}", "123", 0}, {1, "+{END}", "23", 1}, {1, "+{RIGHT 1}", "2", 1}, {0, "{END}+{HOME}", "123", 0}};
    for (const auto& row : rows) {
        key(Qt::Key_Home);
        for (int i = 0; i < row.home_and_right; ++i)
            key(Qt::Key_Right);
        programma.windows.dispatch([&] { services::MSendInput::VerstuurToetsen(programma, row.sent, false); });
        EXPECT_EQ(box.selectedText(), row.selected) << row.sent;
        EXPECT_EQ(rename.txtSpelNummer.SelStart(), row.start) << row.sent;
        EXPECT_EQ(rename.txtSpelNummer.SelLength(), static_cast<int>(std::string(row.selected).size())) << row.sent;
    }

    // A click in the list leads back to the number, which then stands selected from the cursor on.
    key(Qt::Key_Home);
    click_line(rename.lstAfTavrin, 0);
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(box.selectedText(), "123");
    type("7");
    EXPECT_EQ(rename.txtSpelNummer.Text(), "7");
}

}  // namespace
