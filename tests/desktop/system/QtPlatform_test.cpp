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

TEST(Drives, NamedInTheSettingsFileAreSticksWhileTheirFolderIsThere) {
    QTemporaryDir folder;
    QTemporaryDir elsewhere;
    const std::string absolute = desktop::from_qt(elsewhere.path());
    const std::string beside = desktop::from_qt(folder.filePath("stick"));
    QFile settings(folder.filePath("settings.ini"));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("[Platform]\r\nDrives= stick ; gone;;" + elsewhere.path().toUtf8() + "/;stick;settings.ini\r\n");
    settings.close();
    desktop::QtHost host(1.0);
    desktop::system::QtPlatform platform(host, absolute, desktop::from_qt(settings.fileName()));
    EXPECT_EQ(platform.drives().front(), absolute);

    ASSERT_TRUE(QDir(folder.path()).mkdir("stick"));
    const std::vector<std::string> drives = platform.drives();
    ASSERT_GE(drives.size(), 3u);
    EXPECT_EQ(drives[0], beside);
    EXPECT_EQ(drives[1], absolute);
    EXPECT_EQ(std::vector(drives.begin() + 2, drives.end()), desktop::system::mounted_volumes());
    for (const std::string& stick : {beside, absolute}) {
        EXPECT_EQ(platform.drive_type(stick), 2);
        EXPECT_EQ(platform.volume_label(stick), "");
    }
    EXPECT_NE(platform.drive_type("/"), 2);
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
    desktop::system::QtPlatform platform{host, desktop::from_qt(folder.path()), {}};
};

TEST_F(PlatformTest, AMessageBoxGivesTheAnswer) {
    answer("Ja");
    EXPECT_EQ(platform.message_box(platform::box_style::kQuestion, "Titel", "Wissen?"), platform::Answer::Yes);
    answer("Nee");
    EXPECT_EQ(platform.message_box(platform::box_style::kInformationYesNo, "Titel", "Wissen?"), platform::Answer::No);
    answer("OK");
    EXPECT_EQ(platform.message_box(platform::box_style::kInformation, "Titel", "<b>klaar</b>"), platform::Answer::Ok);
}

TEST_F(PlatformTest, AnotherInstanceIsOneOfTheSameFolder) {
    QTemporaryDir other;
    desktop::system::QtPlatform second{host, desktop::from_qt(folder.path()), {}};
    desktop::system::QtPlatform elsewhere{host, desktop::from_qt(other.path()), {}};
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

// Programs of the desktop that are scripts; what they are asked to open stands in a file.
class Help : public testing::Test {
protected:
    void add(const QString& name, const QString& script) {
        if (script.isEmpty()) return;
        QFile program(folder.filePath(name));
        ASSERT_TRUE(program.open(QIODevice::WriteOnly));
        program.write(QString("#!/bin/sh\n%1\n").arg(script).toUtf8());
        program.setPermissions(QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    }
    void put(const QString& name) {
        QDir(folder.path()).mkpath(QFileInfo(name).path());
        ASSERT_TRUE(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
    }
    // The names of what was opened, in turn.
    QString opened() const {
        QFile file(folder.filePath("opened"));
        if (!file.open(QIODevice::ReadOnly)) return {};
        return QString::fromUtf8(file.readAll()).remove(folder.path() + "/").simplified();
    }
    QTemporaryDir folder{QDir(QDir::temp().canonicalPath()).filePath("help-XXXXXX")};
};

TEST_F(Help, OpensTheViewerOrThePagesOrSaysThatNothingOpens) {
    const QString opens = "echo \"$1\" >>\"${0%/*}/opened\"";
    struct {
        QString viewer;  // what the desktop names
        QString opener;  // none: there is no such program
        bool pages;
        QString opened;
        bool told;
    } const rows[] = {
        {"echo viewer.desktop", opens, true, "help.chm", false},
        {"exit 4", opens, true, "installed/help/index.html", false},
        {"", opens, true, "installed/help/index.html", false},
        {"echo viewer.desktop", opens + "; case $1 in *chm) exit 3;; esac", true, "help.chm installed/help/index.html",
         false},
        {"echo viewer.desktop", opens + "; exit 3", true, "help.chm installed/help/index.html", true},
        {"exit 4", opens, false, "", true},
        {"", "", true, "", true},
    };
    const QByteArray path = qgetenv("PATH");
    for (const auto& row : rows) {
        QDir(folder.path()).removeRecursively();
        put("installed/help.chm");
        if (row.pages) put("installed/help/index.html");
        QFile::link(folder.filePath("installed/help.chm"), folder.filePath("help.chm"));
        add("xdg-mime", row.viewer);
        add("xdg-open", row.opener);
        qputenv("PATH", QFile::encodeName(folder.path()));
        desktop::QtHost host(1.0);
        TestPlatform platform(host, desktop::from_qt(folder.path()), {});
        platform.show_help(desktop::from_qt(folder.filePath("help.chm")));
        EXPECT_TRUE(QTest::qWaitFor([&] { return !qApp->findChild<QProcess*>(); }));
        EXPECT_EQ(opened(), row.opened);
        EXPECT_EQ(!platform.told.empty(), row.told) << row.opened.toStdString();
        qputenv("PATH", path);
    }
}

}  // namespace
