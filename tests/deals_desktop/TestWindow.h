#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/resource.h>

#include <QTest>
#include <QTimer>
#include <functional>
#include <string>

#include "deals_desktop/Window.h"
#include "support/TemporaryFolder.h"

// As long as it is there, no file grows: what a disk that is full does.
class NoSpace {
public:
    NoSpace() {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit none{1, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~NoSpace() { setrlimit(RLIMIT_FSIZE, &before_); }
    NoSpace(const NoSpace&) = delete;
    NoSpace& operator=(const NoSpace&) = delete;

private:
    rlimit before_{};
};

// The window on a program folder of its own, in a home folder without a companion.
class TestWindow : public TemporaryFolder {
protected:
    TestWindow() {
        setenv("HOME", in("home").c_str(), 1);
        std::filesystem::create_directories(folder / "program");
        window.emplace(in("program"));
        window->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&*window));
    }
    void TearDown() override { window.reset(); }

    deals_desktop::DealsPage& deals() { return window->deals(); }

    // Writes a file and opens it.
    void open(const std::string& name, const std::string& bytes) {
        put(name, bytes);
        deals().open({QString::fromStdString(in(name))});
        wait_for_work();
    }
    void wait_for_work() {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !deals().busy(); }, kPatience));
    }
    void wait_for_best_play() {
        EXPECT_TRUE(QTest::qWaitFor([&] { return !deals().solving(); }, kPatience));
    }

    // A cell of the list, as a user sees it.
    std::string cell(int row, int column, const QModelIndex& parent = {}) {
        return deals().model().index(row, column, parent).data().toString().toStdString();
    }
    static std::string messages_of(deals_desktop::Page& page) {
        std::string all;
        for (int line = 0; line < page.messages().count(); ++line)
            all += page.messages().text(line).toStdString() + "\n";
        return all;
    }
    std::string messages() { return messages_of(deals()); }
    template <class Widget>
    Widget& find(const QString& text) {
        for (Widget* const widget : window->findChildren<Widget*>()) {
            if (widget->isVisible() && widget->text().remove(QLatin1Char('&')) == text) return *widget;
        }
        throw std::runtime_error("no such widget: " + text.toStdString());
    }
    // While `action` goes on, the next box that asks is answered by that button; whether there was one.
    bool answered(const QString& button, const std::function<void()>& action) {
        bool asked = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            QWidget* const box = QApplication::activeModalWidget();
            for (QPushButton* const each : box ? box->findChildren<QPushButton*>() : QList<QPushButton*>()) {
                if (asked || each->text().remove(QLatin1Char('&')) != button) continue;
                asked = true;
                each->click();
            }
        });
        timer.start(10);
        action();
        return asked;
    }
    void keys(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&widget, key, modifiers);
    }

    static constexpr int kPatience = 60000;

    std::optional<deals_desktop::Window> window;
};
