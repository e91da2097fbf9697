#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "desktop/KeyCodes.h"
#include "desktop/QtHost.h"
#include "desktop/RealProgram.h"
#include "desktop/Text.h"
#include "desktop/system/Drives.h"
#include "desktop/system/Network.h"
#include "desktop/system/PathNames.h"
#include "desktop/system/QtPlatform.h"

namespace {

TEST(Drives, NamedInTheSettingsFileAreSticksWhileTheirFolderIsThere) {
    QTemporaryDir folder;
    QTemporaryDir elsewhere;
    const std::string absolute = desktop::system::path_from_qt(elsewhere.path());
    const std::string beside = desktop::system::path_from_qt(folder.filePath("stick"));
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

}  // namespace
