#include "forms/ListBox.h"

#include <algorithm>
#include <utility>

#include "base/Fout.h"
#include "base/Text.h"

namespace forms {

ListBox::ListBox(Container& container, std::string name, const Rect& place, int index)
    : Control(container, std::move(name), place, index) {
    BackColor = kWindowColour;
}

ListBox::ListBox(Container& container, std::string name, Order order, int index)
    : ListBox(container, std::move(name), Rect{}, index) {
    Visible = false;
    Sorted = order == Order::Sorted;
}

void ListBox::AddItem(std::string text) {
    if (Sorted && !lines_.empty() && text < lines_.back().text) in_order_ = false;
    lines_.push_back({std::move(text)});
    lines_changed();
}

void ListBox::Clear() {
    lines_.clear();
    selected_ = 0;
    in_order_ = true;
    ListIndex.store(-1);
    lines_changed();
}

const std::string& ListBox::List(int line) const { return line_at(line).text; }

void ListBox::SetList(int line, std::string text) {
    line_at(line).text = std::move(text);
    lines_changed();
}

std::string ListBox::Text() const { return ListIndex < 0 ? std::string() : List(ListIndex); }

bool ListBox::Selected(int line) const {
    const Line& asked = line_at(line);
    return MultiSelect ? asked.selected : line == ListIndex;
}

void ListBox::SetSelected(int line, bool selected) {
    if (!MultiSelect) {
        ListIndex = selected ? line : -1;
        return;
    }
    Line& asked = line_at(line);
    if (asked.selected == selected) return;
    select(asked, selected);
    ListIndex.store(line);
    changed();
    if (Click) Click();
}

int ListBox::find(std::string_view text, Match match) const {
    sort_if_needed();
    const auto found = std::ranges::find_if(lines_, [&](const Line& line) {
        const std::string_view candidate = line.text;
        return base::equal_ignoring_case(match == Match::Exact ? candidate : candidate.substr(0, text.size()), text);
    });
    return found == lines_.end() ? -1 : static_cast<int>(found - lines_.begin());
}

void ListBox::user_select(int line) {
    if (MultiSelect && line < ListCount()) {
        Line& asked = line_at(line);
        select(asked, !asked.selected);
    }
    ListIndex.store(line);
    changed();
    if (Click) Click();
    if (ListIndex >= ListCount()) ListIndex.store(-1);
}

void ListBox::select(Line& line, bool selected) {
    line.selected = selected;
    selected_ += selected ? 1 : -1;
}

void ListBox::assign_index(int index) {
    if (index < -1 || index >= ListCount()) throw base::Fout(base::FoutNummer::InvalidValue, std::to_string(index));
    if (ListIndex.store(index) && Click) Click();
}

ListBox::Line& ListBox::line_at(int line) const {
    if (line < 0 || line >= ListCount()) throw base::Fout(base::FoutNummer::SubscriptOutOfRange, std::to_string(line));
    sort_if_needed();
    return lines_[static_cast<std::size_t>(line)];
}

void ListBox::lines_changed() {
    ++lines_version_;
    changed();
}

// Sorting waits until a line is asked for: a long list is then sorted once and not at every line.
void ListBox::sort_if_needed() const {
    if (in_order_) return;
    std::ranges::stable_sort(lines_, {}, &Line::text);
    in_order_ = true;
}

}  // namespace forms
