#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/VScrollBar.h"
#include "forms/Windows.h"

using EventLog = std::vector<std::string>;

// A form that writes down its events.
class TestForm final : public forms::Form {
public:
    TestForm(forms::Windows& windows, const std::string& name, EventLog& log)
        : Form(windows, name, {6000, 4000}), log_(log) {}

    void Form_Load() override { log_.push_back("load " + name()); }
    void Form_Activate() override {
        log_.push_back("activate " + name());
        if (on_activate) on_activate();
    }
    void Form_QueryUnload() override {
        log_.push_back("query unload " + name());
        if (on_query_unload) on_query_unload();
    }
    bool is_report() const override { return report; }

    forms::CommandButton button{*this, "button", {0, 0, 900, 300}};
    forms::Frame frame{*this, "frame", {0, 400, 2000, 2000}};
    forms::CommandButton in_frame{frame, "in_frame", {100, 100, 900, 300}};
    forms::ListBox list{*this, "list", {2000, 0, 2000, 2000}};
    forms::TextBox text{*this, "text", {0, 2500, 2000, 300}};
    forms::CheckBox check{*this, "check", {0, 3000, 2000, 300}};
    forms::VScrollBar scroll{*this, "scroll", {2000, 2500, 285, 600}};

    bool report = false;
    std::function<void()> on_activate;
    std::function<void()> on_query_unload;

private:
    EventLog& log_;
};

// Windows without a host behind them.
struct TestWindows {
    struct Host final : forms::Host {
        forms::Size screen_size(const forms::Form&) const override { return {15000, 12000}; }
    } host;
    struct Folders final : forms::FolderReader {
        std::vector<std::string> subfolders(const std::string&) override { return {}; }
        std::vector<std::string> files(const std::string&, const std::string&) override { return {}; }
    } folders;
    EventLog log;
    forms::Windows windows{host, folders};

    TestForm& load(const std::string& name) {
        return static_cast<TestForm&>(windows.load(std::make_unique<TestForm>(windows, name, log)));
    }
    TestForm& form(const std::string& name) { return static_cast<TestForm&>(*windows.find(name)); }
    void show(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            windows.dispatch([&] { load(name).Show(); });
        }
    }
};
