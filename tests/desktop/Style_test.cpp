#include "desktop/Style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTextEdit>
#include <QToolTip>

#include "desktop/Colours.h"

namespace {

// A dark desktop gives its colours to the application, to kinds of widgets and to the words beside the pointer.
void darken() {
    const QPalette dark(QColor(0x20, 0x20, 0x20));
    QApplication::setPalette(dark);
    for (const char* kind : {"QLineEdit", "QTextEdit", "QAbstractItemView", "QAbstractButton", "QCheckBox", "QLabel",
                             "QGroupBox", "QMessageBoxLabel"})
        QApplication::setPalette(dark, kind);
    QToolTip::setPalette(dark);
}

TEST(Style, NothingOfADarkDesktopComesThrough) {
    darken();
    desktop::Style::use();
    QMessageBox box(QMessageBox::Question, "Wissen", "Weet u het zeker?", QMessageBox::Yes);
    const std::unique_ptr<QWidget> widgets[] = {std::make_unique<QLineEdit>(), std::make_unique<QTextEdit>(),
                                                std::make_unique<QListView>(), std::make_unique<QPushButton>(),
                                                std::make_unique<QCheckBox>()};
    QList<QWidget*> all = box.findChildren<QWidget*>();
    for (const auto& widget : widgets)
        all << widget.get();
    ASSERT_GT(all.size(), 7);
    const QPalette wanted = desktop::Style::colours();
    for (QWidget* widget : all) {
        widget->ensurePolished();
        for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::Text,
                                    QPalette::Button, QPalette::ButtonText, QPalette::Highlight,
                                    QPalette::HighlightedText, QPalette::Light, QPalette::Mid, QPalette::Dark})
                EXPECT_EQ(widget->palette().color(group, role).name(), wanted.color(group, role).name())
                    << widget->metaObject()->className() << " " << group << " " << role;
        }
    }
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase), desktop::colours::kTip);
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipText), desktop::colours::kTipWords);
}

}  // namespace
