#include "script_desktop/DesktopPlatform.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include "desktop/FormWindow.h"
#include "desktop/QtHost.h"
#include "desktop/Text.h"
#include "services/Settings.h"

namespace script_desktop {

namespace {

// Rounds of the event loop until a box must have come.
constexpr int kMostTries = 1000;
constexpr int kPatience = 3000;  // milliseconds

Qt::Key key_of(int style, platform::Answer answer) {
    if (style == platform::box_style::kInformation) return Qt::Key_Return;  // whatever was queued
    return answer == platform::Answer::Yes ? Qt::Key_J : answer == platform::Answer::No ? Qt::Key_N : Qt::Key_Return;
}

}  // namespace

DesktopPlatform::DesktopPlatform(desktop::QtHost& host, const std::string& program_folder)
    : ScriptPlatform(program_folder),
      host_(host),
      real_(host, program_folder, services::settings_file(program_folder)) {}

platform::Answer DesktopPlatform::message_box(int style, const std::string& title, const std::string& text) {
    const platform::Answer wanted = ScriptPlatform::message_box(style, title, text);
    QTimer::singleShot(0, [this, box = boxes.back()] { answer_by_key(box, 0); });
    const platform::Answer given = real_.message_box(style, title, text);
    // As a window manager does when the box has gone.
    if (host_.front()) host_.front()->activateWindow();
    if (style == platform::box_style::kInformation) return wanted;
    if (given != wanted) difference_ = "the box was answered " + std::to_string(static_cast<int>(given)) + ": " + text;
    return given;
}

void DesktopPlatform::answer_by_key(const Box& wanted, int tries) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    const bool ready = box && box->isActiveWindow();
    if (!ready && tries < kMostTries) {
        QTimer::singleShot(0, [this, wanted, tries] { answer_by_key(wanted, tries + 1); });
        return;
    }
    if (!box) return;
    if (box->windowTitle() != desktop::to_qt(wanted.title) || box->text() != desktop::to_qt(wanted.text)) {
        difference_ = "the box shows " + desktop::from_qt(box->windowTitle() + ": " + box->text());
    }
    // Its button stays down for a moment; a box that is still there after that does not know the key.
    QTimer::singleShot(kPatience, box, [this, box, wanted] {
        difference_ = "the box does not take the key of its answer: " + wanted.text;
        box->done(0);
    });
    if (ready) QTest::keyClick(box->windowHandle(), key_of(wanted.style, wanted.answer));
}

void DesktopPlatform::set_clipboard(const std::string& text) {
    ScriptPlatform::set_clipboard(text);
    real_.set_clipboard(text);
}

void DesktopPlatform::send_keys(const std::vector<platform::KeyRecord>& records) {
    ScriptPlatform::send_keys(records);
    real_.send_keys(records);
}

}  // namespace script_desktop
