#include "desktop/system/QtPlatform.h"

#include <QApplication>
#include <QClipboard>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

#include "desktop/Colours.h"
#include "desktop/FormWindow.h"
#include "desktop/QtHost.h"
#include "desktop/Text.h"
#include "desktop/Words.h"
#include "desktop/system/Drives.h"
#include "desktop/system/HelpViewer.h"
#include "desktop/system/KeySender.h"
#include "desktop/system/Opener.h"
#include "desktop/system/PathNames.h"
#include "platform/SpecialFolders.h"

namespace desktop::system {

namespace {

// The sign in a box that asks or tells something, for a screen with that ratio of physical to logical pixels.
QPixmap sign(const QString& letter, double zoom, double pixel_ratio) {
    constexpr double kSize = 40;    // pixels at zoom 1
    constexpr double kLetter = 20;  // points
    const QRectF disc(0, 0, kSize * zoom, kSize * zoom);
    QPixmap drawn((disc.size() * pixel_ratio).toSize());
    drawn.setDevicePixelRatio(pixel_ratio);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours::kSelection);
    painter.drawEllipse(disc);
    painter.setPen(colours::kSelectedWords);
    painter.setFont(screen_font(kLetter, true, zoom));
    painter.drawText(disc, Qt::AlignCenter, letter);
    return drawn;
}

}  // namespace

QtPlatform::QtPlatform(QtHost& host, std::string program_folder, std::string settings_file)
    : host_(host), program_folder_(std::move(program_folder)), settings_file_(std::move(settings_file)) {}

std::string QtPlatform::special_folder(int number) const { return platform::special_folder_of(settings_file_, number); }

bool QtPlatform::another_instance_runs() {
    if (lock_ && lock_->isLocked()) return false;
    const QString given = path_to_qt(program_folder_);
    const QString real = QFileInfo(given).canonicalFilePath();
    const QByteArray folder = (real.isEmpty() ? given : real).toUtf8();
    const QString name = QCryptographicHash::hash(folder, QCryptographicHash::Sha1).toHex().left(16);
    lock_ = std::make_unique<QLockFile>(QDir::temp().filePath("zandolin-" + name + ".lock"));
    lock_->setStaleLockTime(0);
    return !lock_->tryLock(0) && lock_->error() == QLockFile::LockFailedError;
}

platform::Answer QtPlatform::message_box(int style, const std::string& title, const std::string& text) {
    host_.flush();
    const bool asks = style == platform::box_style::kQuestion || style == platform::box_style::kInformationYesNo;
    QMessageBox box(style == platform::box_style::kQuestion ? QMessageBox::Question : QMessageBox::Information,
                    to_qt(title), to_qt(text), QMessageBox::NoButton, host_.front());
    box.setTextFormat(Qt::PlainText);
    const double zoom = FormWindow::zoom_around(&box);
    box.setFont(screen_font(kUsualPoints, false, zoom));
    const bool question = style == platform::box_style::kQuestion;
    box.setIconPixmap(sign(question ? QStringLiteral("?") : QStringLiteral("i"), zoom, box.devicePixelRatioF()));
    const QAbstractButton* yes = nullptr;
    if (asks) {
        yes = box.addButton(words::kYes, QMessageBox::YesRole);
        box.setEscapeButton(box.addButton(words::kNo, QMessageBox::NoRole));
    } else {
        box.addButton(words::kOk, QMessageBox::AcceptRole);
    }
    box.exec();
    if (!asks) return platform::Answer::Ok;
    return box.clickedButton() == yes ? platform::Answer::Yes : platform::Answer::No;
}

void QtPlatform::set_clipboard(const std::string& text) {
    if (text.empty()) {
        QGuiApplication::clipboard()->clear();
    } else {
        QGuiApplication::clipboard()->setText(to_qt(text));
    }
}

void QtPlatform::open(const std::string& file, const std::string& parameters, const std::string& folder) {
    const bool is_address = file.find("://") != std::string::npos;
    const QString name = is_address ? to_qt(file) : path_to_qt(file);
    if (is_address || QFileInfo(name).isFile()) open_by_system(name, to_qt(parameters), path_to_qt(folder));
}

void QtPlatform::show_help(const std::string& file) {
    const QString path = QFileInfo(path_to_qt(file)).absoluteFilePath();
    show_manual(path, [this, path] { tell_no_help(path); });
}

void QtPlatform::tell_no_help(const QString& file) {
    message_box(platform::box_style::kInformation, from_qt(words::kProgram),
                from_qt(QString(words::kNoHelpViewer).arg(file)));
}

std::vector<std::string> QtPlatform::drives() {
    std::vector<std::string> roots = named_sticks(settings_file_);
    for (const std::string& root : mounted_volumes()) {
        if (std::ranges::find(roots, root) == roots.end()) roots.push_back(root);
    }
    return roots;
}

int QtPlatform::drive_type(const std::string& root) {
    const std::vector<std::string> sticks = named_sticks(settings_file_);
    const bool named = std::ranges::find(sticks, root) != sticks.end();
    return static_cast<int>(named ? DriveType::Removable : type_of_volume(root));
}

std::string QtPlatform::volume_label(const std::string& root) { return label_of_volume(root); }

void QtPlatform::send_keys(const std::vector<platform::KeyRecord>& records) {
    host_.flush();
    FormWindow* window = host_.front();
    QWidget* receiver = window ? window->focusWidget() : QApplication::focusWidget();
    if (!receiver) return;
    host_.act_within_event([&] { desktop::system::send_keys(*receiver, records); });
}

}  // namespace desktop::system
