#pragma once

#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/Label.h"

namespace forms {

// A box to type in, of one line or of several. Change is raised whenever Text changes.
class TextBox final : public Control {
public:
    TextBox(Container& container, std::string name, const Rect& place, int index = kNoIndex)
        : Control(container, std::move(name), place, index) {
        BackColor = kWindowColour;
        BorderStyle = 1;
    }
    const char* kind() const override { return "TextBox"; }

    // A line break is CR LF.
    ActiveProperty<std::string> Text{*this, "Text", "", [this](const std::string& text) { assign_text(text); }};
    // The most characters that a user can type, a line break being two; 0 for no limit. Assignments go past it.
    Property<int> MaxLength{*this, "MaxLength", 0};
    Property<bool> MultiLine{*this, "MultiLine", false};
    Property<forms::Alignment> Alignment{*this, "Alignment", forms::Alignment::Left};
    // The selection: the first selected character, from 0, and their number. Changes of the text put it at the start.
    Property<int> SelStart{*this, "SelStart", 0};
    Property<int> SelLength{*this, "SelLength", 0};

    std::function<void()> Change;
    // Gets each typed character, Backspace (8), Tab (9) and Enter (13) too, and drops it by setting it to 0.
    std::function<void(char& key)> KeyPress;

    // The lines as the box breaks them at its width; an empty box has one.
    int LineCount() const;
    // Position of the first character of a line, both counted from 0; -1 past the last line.
    int LineIndex(int line) const;

    // What typing does: passes the characters through KeyPress and MaxLength, replacing what is selected.
    void user_type(const std::string& text);

private:
    void assign_text(const std::string& text);
    std::string accepted(const std::string& typed, std::size_t room) const;
    const std::vector<std::size_t>& lines() const;

    // The word wrap, kept until text, width or font change: cutting a long text asks for it once a line.
    struct Wrap {
        double width = -1;
        double points = 0;
        std::vector<std::size_t> lines;
    };
    mutable Wrap wrap_;
};

}  // namespace forms
