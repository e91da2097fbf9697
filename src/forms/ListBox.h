#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/Control.h"

namespace forms {

enum class Match { Prefix, Exact };

// Lines of text, numbered from 0, of which one is current, or of which the user toggles any number. Hidden ones serve
// as string lists. A line number that does not exist is failure 9, as ListIndex failure 380.
class ListBox final : public Control {
public:
    enum class Order { AsAdded, Sorted };

    ListBox(Container& container, std::string name, const Rect& place, int index = kNoIndex);
    // A hidden string list.
    ListBox(Container& container, std::string name, Order order = Order::AsAdded, int index = kNoIndex);
    const char* kind() const override { return "ListBox"; }

    // A sorted list keeps the order of the characters' codes; what is added finds its place.
    Property<bool> Sorted{*this, "Sorted", false};
    Property<bool> MultiSelect{*this, "MultiSelect", false};
    // -1 for none. Click is raised when the value changes, to -1 as well.
    ActiveProperty<int> ListIndex{*this, "ListIndex", -1, [this](int index) { assign_index(index); }};

    void AddItem(std::string text);
    // Drops the lines and the selection, without a click.
    void Clear();
    int ListCount() const { return static_cast<int>(lines_.size()); }
    const std::string& List(int line) const;
    void SetList(int line, std::string text);
    // The current line; empty if there is none.
    std::string Text() const;

    bool Selected(int line) const;
    // How many lines are selected, with multiple selection.
    int SelCount() const { return selected_; }
    // With multiple selection: makes the line current, and raises Click when its state changes.
    void SetSelected(int line, bool selected);

    // The first line that begins with the text, or equals it, without regard to case; -1 if there is none.
    int find(std::string_view text, Match match) const;

    // What a user's click does: makes the line current, or toggles it; raises Click always. A line that is not there
    // any more is current only as long as Click runs, so that the routine fails that reads it.
    void user_select(int line);

    // Goes up whenever the lines change, so that a host can tell that from a change of the selection.
    int lines_version() const { return lines_version_; }

private:
    struct Line {
        std::string text;
        bool selected = false;
    };
    void assign_index(int index);
    void select(Line& line, bool selected);
    Line& line_at(int line) const;
    void lines_changed();
    void sort_if_needed() const;

    mutable std::vector<Line> lines_;
    mutable bool in_order_ = true;
    int lines_version_ = 0;
    int selected_ = 0;
};

}  // namespace forms
