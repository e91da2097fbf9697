#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include "desktop/KeyCodes.h"
#include "desktop/QtHost.h"
#include "desktop/RealProgram.h"
#include "desktop/Text.h"
#include "desktop/system/CapsLock.h"
#include "desktop/system/Drives.h"
#include "desktop/system/Network.h"
#include "desktop/system/QtPlatform.h"

namespace {

TEST(Drives, AreTypedByFileSystemAndByTheMarkOfTheirDisk) {
    using desktop::system::DriveType;
    EXPECT_EQ(desktop::system::type_of_file_system("tmpfs"), DriveType::Ram);
    EXPECT_EQ(desktop::system::type_of_file_system("nfs4"), DriveType::Remote);
    EXPECT_EQ(desktop::system::type_of_file_system("udf"), DriveType::Cd);
    EXPECT_EQ(desktop::system::type_of_file_system("vfat"), DriveType::Fixed);

    QTemporaryDir sys;
    for (const auto& [disk, mark] : {std::pair{"sda", "0\n"}, {"sdb", "1\n"}}) {
        const QString partition = QString("devices/%1/%11").arg(disk);
        QDir(sys.path()).mkpath(partition);
        QFile removable(sys.filePath(QString("devices/%1/removable").arg(disk)));
        ASSERT_TRUE(removable.open(QIODevice::WriteOnly));
        removable.write(mark);
        QFile::link(sys.filePath(partition), sys.filePath(QString("%1 1").arg(disk).remove(' ')));
    }
    EXPECT_FALSE(desktop::system::disk_is_removable("/dev/sda1", sys.path()));
    EXPECT_TRUE(desktop::system::disk_is_removable("/dev/sdb1", sys.path()));
    EXPECT_FALSE(desktop::system::disk_is_removable("/dev/sdc1", sys.path()));
    EXPECT_FALSE(desktop::system::mounted_volumes().empty());
    EXPECT_NE(desktop::system::type_of_volume("/"), desktop::system::DriveType::Removable);
    EXPECT_EQ(desktop::system::label_of_volume("/"), desktop::from_qt(QStorageInfo::root().name()));
}

TEST(KeyCodes, LeadBothWays) {
    for (const int code :
         {0x08, 0x09, 0x0D, 0x10, 0x11, 0x12, 0x1B, 0x21, 0x22, 0x23, 0x24, 0x2E, 0x70, 0x7F, int{'A'}, int{'7'}}) {
        EXPECT_EQ(desktop::virtual_key(desktop::qt_key(code)), code);
    }
    EXPECT_EQ(desktop::virtual_key(Qt::Key_Escape), 27);
}

class PlatformTest : public testing::Test {
protected:
    // Presses the button of that caption as soon as a box stands.
    void answer(const QString& caption) {
        QTimer::singleShot(0, [caption] {
            for (QWidget* window : QApplication::topLevelWidgets()) {
                auto* box = qobject_cast<QMessageBox*>(window);
                if (!box) continue;
                for (QAbstractButton* button : box->buttons()) {
                    if (button->text().remove('&') == caption) button->click();
                }
            }
        });
    }

    QTemporaryDir folder;
    desktop::QtHost host{1.0};
    desktop::system::QtPlatform platform{host, desktop::from_qt(folder.path())};
};

TEST_F(PlatformTest, AMessageBoxGivesTheAnswer) {
    answer("Ja");
    EXPECT_EQ(platform.message_box(box_style::kQuestion, "Titel", "Wissen?"), Answer::Yes);
    answer("Nee");
    EXPECT_EQ(platform.message_box(box_style::kInformationYesNo, "Titel", "Wissen?"), Answer::No);
    answer("OK");
    EXPECT_EQ(platform.message_box(box_style::kInformation, "Titel", "<b>klaar</b>"), Answer::Ok);
}

TEST_F(PlatformTest, AnotherInstanceIsOneOfTheSameFolder) {
    QTemporaryDir other;
    desktop::system::QtPlatform second{host, desktop::from_qt(folder.path())};
    desktop::system::QtPlatform elsewhere{host, desktop::from_qt(other.path())};
    EXPECT_FALSE(platform.another_instance_runs());
    EXPECT_TRUE(second.another_instance_runs());
    EXPECT_FALSE(elsewhere.another_instance_runs());
}

TEST(Keyboard, CapsLockIsAskedOfTheWindowSystem) {
    if (QGuiApplication::platformName() != "xcb") GTEST_SKIP() << "nobody can press it here";
    const auto press = [] { return QProcess::execute("xdotool", {"key", "Caps_Lock"}); };
    EXPECT_FALSE(desktop::system::caps_lock_is_on());
    ASSERT_EQ(press(), 0);
    EXPECT_TRUE(QTest::qWaitFor([] { return desktop::system::caps_lock_is_on(); }));
    ASSERT_EQ(press(), 0);
    EXPECT_TRUE(QTest::qWaitFor([] { return !desktop::system::caps_lock_is_on(); }));
}

TEST(Help, WithoutAViewerItSaysSo) {
    struct {
        const char* viewer;  // the script that opens files; none: there is no such program
        bool told;
    } const rows[] = {{"", true}, {"#!/bin/sh\nexit 3\n", true}, {"#!/bin/sh\nexit 0\n", false}};
    const QByteArray path = qgetenv("PATH");
    for (const auto& row : rows) {
        QTemporaryDir folder;
        QFile viewer(folder.filePath("xdg-open"));
        if (*row.viewer && viewer.open(QIODevice::WriteOnly)) {
            viewer.write(row.viewer);
            viewer.setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
            viewer.close();
        }
        qputenv("PATH", QFile::encodeName(folder.path()));
        desktop::QtHost host(1.0);
        TestPlatform platform(host, desktop::from_qt(folder.path()));
        platform.show_help(desktop::from_qt(folder.filePath("help.chm")));
        EXPECT_TRUE(QTest::qWaitFor([&] { return !qApp->findChild<QProcess*>(); })) << row.viewer;
        EXPECT_EQ(!platform.told.empty(), row.told) << row.viewer;
        qputenv("PATH", path);
    }
}

}  // namespace
