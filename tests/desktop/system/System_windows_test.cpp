#include <gtest/gtest.h>

#include <windows.h>

#include <QDir>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>

#include "desktop/QtHost.h"
#include "desktop/Text.h"
#include "desktop/system/CapsLock.h"
#include "desktop/system/Drives.h"
#include "desktop/system/KeySender.h"
#include "desktop/system/KeyboardLayout.h"
#include "desktop/system/Opener.h"
#include "desktop/system/PathNames.h"

namespace {

namespace os = desktop::system;

TEST(Drives, AreTheLettersOfTheSystem) {
    const std::vector<std::string> roots = os::mounted_volumes();
    EXPECT_NE(std::ranges::find(roots, "C:\\"), roots.end());
    EXPECT_TRUE(std::ranges::is_sorted(roots));
    EXPECT_EQ(os::type_of_volume("C:\\"), os::DriveType::Fixed);
    EXPECT_EQ(os::type_of_volume("C:"), os::DriveType::Fixed);
    EXPECT_LE(static_cast<int>(os::type_of_volume("Q:\\")), 1) << "no such drive";
    EXPECT_EQ(os::label_of_volume("Q:\\"), "");
}

TEST(PathNames, GoBothWaysWithLettersOutsideTheCodePage) {
    const QTemporaryDir folder;
    const QString name = folder.filePath(QString::fromUtf8("\xE2\x99\xA5 \xC3\xA9"));
    ASSERT_TRUE(QDir().mkpath(name));
    const std::string path = os::path_from_qt(name);
    EXPECT_TRUE(path.ends_with("\\{2665} \xE9")) << path;
    EXPECT_EQ(path.find('/'), std::string::npos);
    EXPECT_EQ(QDir(os::path_to_qt(path)), QDir(name));
}

// Whatever the layout is, it types these so.
TEST(KeyboardLayout, IsThatOfTheUser) {
    const auto small = os::stroke_for('a');
    const auto capital = os::stroke_for('A');
    ASSERT_TRUE(small && capital);
    EXPECT_EQ(small->key, capital->key);
    EXPECT_FALSE(small->shift);
    EXPECT_TRUE(capital->shift);
    EXPECT_EQ(os::stroke_for('\r')->key, VK_RETURN);
    EXPECT_NE(os::scan_code(VK_END), 0);
}

TEST(Keyboard, CapsLockIsAskedOfTheSystem) {
    BYTE keys[256] = {};
    keys[VK_CAPITAL] = 1;
    SetKeyboardState(keys);
    EXPECT_TRUE(os::caps_lock_is_on());
    keys[VK_CAPITAL] = 0;
    SetKeyboardState(keys);
    EXPECT_FALSE(os::caps_lock_is_on());
}

TEST(KeySender, SelectsToTheEnd) {
    QLineEdit box(QStringLiteral("123"));
    box.show();
    box.setFocus();
    box.setCursorPosition(0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
    const platform::KeyRecord shift{.type = 1, .virtual_key = VK_SHIFT};
    const platform::KeyRecord end{.type = 1, .virtual_key = VK_END, .flags = KEYEVENTF_EXTENDEDKEY};
    const auto up = [](platform::KeyRecord record) {
        record.flags |= KEYEVENTF_KEYUP;
        return record;
    };
    os::send_keys(box, {shift, end, up(end), up(shift)});
    EXPECT_TRUE(QTest::qWaitFor([&] { return box.selectedText() == "123"; }));
}

// The shell gets the command line as it stands: a program sees its own words of it.
TEST(Opener, StartsAProgramWithItsWords) {
    const QTemporaryDir folder;
    const QString told = QDir::toNativeSeparators(folder.filePath("told.txt"));
    const QString shell = QDir::fromNativeSeparators(qEnvironmentVariable("ComSpec"));
    EXPECT_TRUE(os::open_by_system(shell, "/c echo \"/p=C:\\a b\">" + told, folder.path()));
    QByteArray words;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        QFile file(told);
        if (file.open(QFile::ReadOnly)) words = file.readAll();
        return !words.isEmpty();
    }));
    EXPECT_EQ(words.trimmed(), "\"/p=C:\\a b\"");
    EXPECT_FALSE(os::open_by_system(folder.filePath("gone.exe")));
}

}  // namespace
