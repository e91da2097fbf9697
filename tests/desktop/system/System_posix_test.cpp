#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/QtHost.h"
#include "desktop/RealProgram.h"
#include "desktop/Text.h"
#include "desktop/system/CapsLock.h"
#include "desktop/system/Drives_posix.h"

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
