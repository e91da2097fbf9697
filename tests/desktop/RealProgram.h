#pragma once

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "desktop/FormWindow.h"
#include "desktop/QtHost.h"
#include "desktop/system/Drives.h"
#include "desktop/system/PathNames.h"
#include "desktop/system/QtPlatform.h"
#include "services/Programma.h"

namespace forms {
class CommandButton;
class ListBox;
class TextBox;
}  // namespace forms

// The real platform but for what a test has to say itself: the answers to boxes, the connection and the drives.
class TestPlatform final : public desktop::system::QtPlatform {
public:
    using QtPlatform::QtPlatform;

    platform::Answer message_box(int style, const std::string& title, const std::string& text) override;
    bool connected() override { return online; }
    std::vector<std::string> drives() override {
        return stick.empty() ? std::vector<std::string>{} : std::vector{stick};
    }
    int drive_type(const std::string&) override { return static_cast<int>(desktop::system::DriveType::Removable); }

    bool real_boxes = false;
    bool online = false;
    std::string stick;                     // a folder that stands for the only drive, if there is one
    std::deque<platform::Answer> answers;  // to the next questions; without one a question is refused
    std::vector<std::string> told;
};

// The whole program in real windows, on the sample deals in a folder of its own. Mouse and keys go to the window in
// front as they come from the window system, which finds the widget that lies there or has the focus.
class RealProgram : public testing::Test {
protected:
    RealProgram();
    ~RealProgram() override;

    void start_program();
    // The active screen, which must be of that class; its window is the active one.
    template <class Screen>
    Screen& screen() {
        auto* active = dynamic_cast<Screen*>(programma.windows.active());
        if (!active)
            throw std::logic_error("another screen is active; " + gedeeld().foutPlaats + ": " + gedeeld().foutNaam);
        EXPECT_TRUE(QTest::qWaitForWindowActive(host.window(active)));
        return *active;
    }
    desktop::FormWindow& window() { return *host.front(); }
    const services::Gedeeld& gedeeld() const { return programma.gedeeld; }

    QWidget& widget(const forms::Control& control);
    template <class Widget>
    Widget& widget_as(const forms::Control& control) {
        return dynamic_cast<Widget&>(widget(control));
    }

    void click(const forms::Control& control);
    void click_line(const forms::ListBox& list, int line);
    void click_line(const forms::ListBox& list, const std::string& text);
    void key(Qt::Key key, Qt::KeyboardModifiers held = {});
    // Alt and the letter that is marked in the caption.
    void accelerator(const forms::CommandButton& button);
    void type(const QString& text);
    // The control that the keyboard is at, or "nothing".
    std::string focused();
    // By Tab.
    void tab_to(const forms::Control& control);
    // Where the frame is that marks the keyboard's place, without its margin; empty if there is none.
    QRect marked();
    // Where a widget is in its window.
    QRect place_of(const forms::Control& control);
    // Puts a text in as an input method does, for dead keys.
    void compose(const QString& text);

    std::vector<std::string> lines(const forms::ListBox& list);  // as the widget shows them
    QStringList drawn_lines(const forms::TextBox& box);
    QString shown(const forms::TextBox& box);
    QImage picture(const forms::Control& control);
    // The colour of most pixels of what is painted there.
    QColor painted(const forms::Control& control);

    std::string path(const std::string& name) const;
    std::string read(const std::string& name) const;
    void set(const std::string& section, const std::string& key, const std::string& value);

    QTemporaryDir temporary;
    const std::string folder = desktop::system::path_from_qt(temporary.filePath("het programma"));
    desktop::QtHost host;
    TestPlatform platform{host, folder, services::settings_file(folder)};
    services::Programma programma{platform, host};
    bool ended = false;

private:
    void click_at(QWidget& widget, const QPoint& place);
};
