#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <memory>
#include <utility>

#include "desktop/FormWindow.h"
#include "desktop/QtHost.h"
#include "desktop/views/View.h"
#include "forms/Form.h"
#include "forms/Windows.h"

class NoFolders final : public forms::FolderReader {
    std::vector<std::string> subfolders(const std::string&) override { return {}; }
    std::vector<std::string> files(const std::string&, const std::string&) override { return {}; }
};

// Forms in real windows, used by real mouse and key events.
class TestWindows : public testing::Test {
protected:
    template <class Form>
    Form& show() {
        Form* form = nullptr;
        windows.dispatch([&] {
            form = static_cast<Form*>(&windows.load(std::make_unique<Form>(windows)));
            form->Show();
        });
        EXPECT_TRUE(QTest::qWaitForWindowActive(host.window(form)));
        return *form;
    }

    // Changes something as a routine of the program does.
    template <class Action>
    void program(Action&& action) {
        windows.dispatch(std::forward<Action>(action));
    }

    QWidget* widget(const forms::Control& control) const {
        const desktop::FormWindow* window = host.window(&control.form());
        const desktop::views::View* view = window ? window->view(control) : nullptr;
        return view ? &view->widget() : nullptr;
    }
    template <class Widget>
    Widget& widget_as(const forms::Control& control) const {
        return *dynamic_cast<Widget*>(widget(control));
    }

    void click(const forms::Control& control) { QTest::mouseClick(widget(control), Qt::LeftButton); }

    desktop::QtHost host{1.0};
    NoFolders folders;
    forms::Windows windows{host, folders};
};
