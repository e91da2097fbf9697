#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QLineEdit>
#include <QMimeData>
#include <QTextEdit>
#include <functional>

#include "desktop/TestWindows.h"
#include "desktop/Text.h"
#include "desktop/system/KeySender.h"
#include "forms/CommandButton.h"
#include "forms/TextBox.h"

namespace {

QMimeData* with(const std::function<void(QMimeData&)>& fill) {
    auto* data = new QMimeData;
    fill(*data);
    return data;
}

class BoxForm final : public forms::Form {
public:
    explicit BoxForm(forms::Windows& windows) : Form(windows, "boxes", {7500, 6000}) {
        number.MaxLength = 3;
        number.KeyPress = [this](char& key) {
            keys += key;
            if (key >= ' ' && (key < '0' || key > '9')) key = 0;
        };
        text.MultiLine = true;
        text.FontSize = 12;
        text.Change = [this] { ++changes; };
        still.MultiLine = true;
        still.GotFocus = [this] { sink.SetFocus(); };
    }

    std::string keys;
    int changes = 0;
    forms::TextBox number{*this, "number", {150, 150, 900, 300}};
    forms::TextBox text{*this, "text", {150, 600, 5325, 2000}};
    forms::TextBox still{*this, "still", {150, 2700, 5325, 1000}};
    forms::CommandButton sink{*this, "sink", {30000, 150, 900, 300}};
};

class TextBoxes : public TestWindows {
protected:
    BoxForm& form = show<BoxForm>();

    std::string shown(const forms::TextBox& box) {
        return desktop::from_qt(box.MultiLine ? widget_as<QTextEdit>(box).toPlainText()
                                              : widget_as<QLineEdit>(box).text());
    }
};

TEST_F(TextBoxes, TypingPassesTheFilterAndTheLimit) {
    click(form.number);
    QTest::keyClicks(widget(form.number), "1a2b34");
    EXPECT_EQ(form.number.Text(), "123");
    EXPECT_EQ(shown(form.number), "123");
    QTest::keyClick(widget(form.number), Qt::Key_Backspace);
    QTest::keyClick(widget(form.number), Qt::Key_Return);
    EXPECT_EQ(form.number.Text(), "12");
    EXPECT_EQ(form.keys, "1a2b34\b\r");
}

TEST_F(TextBoxes, TextIsEditedWhereTheCursorStands) {
    program([&] { form.text.Text = "aabb\r\ncc\x80"; });
    EXPECT_EQ(form.changes, 1);
    EXPECT_EQ(shown(form.text), "aabb\ncc\x80");
    QWidget* box = widget(form.text);
    click(form.text);
    QTest::keyClick(box, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(box, Qt::Key_Right);
    QTest::keyClick(box, Qt::Key_A);  // among others of its kind
    EXPECT_EQ(form.text.Text(), "aaabb\r\ncc\x80");
    EXPECT_EQ(form.text.SelStart(), 2);
    QTest::keyClick(box, Qt::Key_Delete);
    EXPECT_EQ(form.text.Text(), "aabb\r\ncc\x80");
    QTest::keyClick(box, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(form.text.SelStart(), 9);  // the line break is two
    QTest::keyClick(box, Qt::Key_Return);
    QTest::keyClicks(box, "x");
    EXPECT_EQ(form.text.Text(), "aabb\r\ncc\x80\r\nx");
    EXPECT_EQ(shown(form.text), "aabb\ncc\x80\nx");
}

TEST_F(TextBoxes, ALineBreakCountsTwoAndPastedTextIsCut) {
    program([&] {
        form.text.MaxLength = 6;
        form.text.Text = "abc";
        form.text.SelStart = 3;
    });
    click(form.text);
    QTest::keyClick(widget(form.text), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(widget(form.text), Qt::Key_Return);
    QTest::keyClicks(widget(form.text), "de");
    EXPECT_EQ(form.text.Text(), "abc\r\nd");
    QGuiApplication::clipboard()->setText("1\n2\n3");
    QTest::keyClick(widget(form.text), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(widget(form.text), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.text.Text(), "1\r\n2\r\n");
    EXPECT_EQ(shown(form.text), "1\n2\n");
}

// What a clipboard may hold, and what of it gets into a box.
struct Held {
    const char* what;
    std::function<QMimeData*()> make;
    const char* pasted;
};
const Held kHeld[] = {
    {"nothing at all", [] { return new QMimeData; }, ""},
    {"a text", [] { return with([](QMimeData& data) { data.setText("17"); }); }, "17"},
    {"a rich text",
     [] {
         return with([](QMimeData& data) {
             data.setText("17");
             data.setHtml("<b>18</b>");
         });
     },
     "17"},
    {"rich text alone", [] { return with([](QMimeData& data) { data.setHtml("<b>18</b>"); }); }, ""},
    {"a picture", [] { return with([](QMimeData& data) { data.setImageData(QImage(9, 9, QImage::Format_RGB32)); }); },
     ""}};

TEST_F(TextBoxes, OnlyTextIsPasted) {
    for (const Held& held : kHeld) {
        for (forms::TextBox* box : {&form.number, &form.text}) {
            program([&] { box->Text = ""; });
            click(*box);
            QGuiApplication::clipboard()->setMimeData(held.make());
            QTest::keyClick(widget(*box), Qt::Key_V, Qt::ControlModifier);
            EXPECT_EQ(box->Text(), held.pasted) << held.what;
        }
    }
}

TEST_F(TextBoxes, TheMiddleButtonPastesWhatIsSelectedElsewhere) {
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (!clipboard.supportsSelection()) GTEST_SKIP() << "the window system has none";
    for (const Held& held : kHeld) {
        for (forms::TextBox* box : {&form.number, &form.text}) {
            program([&] { box->Text = ""; });
            clipboard.setMimeData(held.make(), QClipboard::Selection);
            QWidget* shown_box = widget(*box);
            if (auto* area = qobject_cast<QTextEdit*>(shown_box)) shown_box = area->viewport();
            QTest::mouseClick(shown_box, Qt::MiddleButton);
            EXPECT_EQ(box->Text(), held.pasted) << held.what;
        }
    }
    clipboard.clear(QClipboard::Selection);
    QTest::mouseClick(widget_as<QTextEdit>(form.text).viewport(), Qt::MiddleButton);
}

TEST_F(TextBoxes, TheSelectionRunsBothWays) {
    program([&] {
        form.number.Text = "17";
        form.number.SelStart = 1;
        form.number.SelLength = 1;
    });
    EXPECT_EQ(widget_as<QLineEdit>(form.number).selectedText(), "7");
    QTest::keyClick(widget(form.number), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(form.number.SelStart(), 0);
    EXPECT_EQ(form.number.SelLength(), 2);
}

TEST_F(TextBoxes, ABoxThatPassesTheFocusOnCannotBeTypedIn) {
    program([&] { form.still.Text = "vraag\r\nmet een losse CR\r"; });
    QTest::mouseClick(widget_as<QTextEdit>(form.still).viewport(), Qt::LeftButton);
    EXPECT_EQ(form.focus(), &form.sink);
    EXPECT_TRUE(widget(form.sink)->hasFocus());
    EXPECT_FALSE(host.window(&form)->rect().intersects(widget(form.sink)->geometry()));
    EXPECT_EQ(form.still.Text(), "vraag\r\nmet een losse CR\r");
}

}  // namespace
