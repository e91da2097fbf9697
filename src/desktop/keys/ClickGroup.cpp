#include "desktop/keys/ClickGroup.h"

#include <QWidget>
#include <algorithm>
#include <cmath>

#include "desktop/FormWindow.h"
#include "desktop/views/View.h"
#include "forms/Image.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "forms/User.h"

namespace desktop::keys {

namespace {

bool is_picture(const forms::Control& control) {
    return dynamic_cast<const forms::PictureBox*>(&control) || dynamic_cast<const forms::Image*>(&control);
}

bool can_be_used(const forms::Control& control) { return control.visible_to_user() && control.enabled_for_user(); }

double middle(const forms::Control& control) { return control.Left() + control.Width() / 2; }

}  // namespace

bool ClickGroup::takes(const forms::Control& control) {
    return control.Click && (is_picture(control) || dynamic_cast<const forms::Label*>(&control));
}

// A picture and the number above it are one cell: a click on either does the same.
std::vector<forms::Control*> ClickGroup::cells() const {
    const auto& all = container_.children();
    std::vector<forms::Control*> found;
    for (forms::Control* control : all) {
        if (!takes(*control) || !can_be_used(*control)) continue;
        const bool above_picture = !is_picture(*control) && std::ranges::any_of(all, [&](const forms::Control* other) {
            return is_picture(*other) && takes(*other) && can_be_used(*other) && other->index() == control->index();
        });
        if (!above_picture) found.push_back(control);
    }
    return found;
}

// From top to bottom, and each from left to right.
std::vector<ClickGroup::Row> ClickGroup::rows() const {
    std::vector<forms::Control*> sorted = cells();
    std::ranges::stable_sort(sorted, {}, [](const forms::Control* control) { return control->Left(); });
    std::ranges::stable_sort(sorted, {}, [](const forms::Control* control) { return control->Top(); });
    std::vector<Row> found;
    for (forms::Control* control : sorted) {
        if (found.empty() || found.back().front()->Top() != control->Top()) found.emplace_back();
        found.back().push_back(control);
    }
    return found;
}

bool ClickGroup::usable() const {
    return std::ranges::any_of(container_.children(),
                               [](const forms::Control* control) { return takes(*control) && can_be_used(*control); });
}

forms::Control* ClickGroup::current() const {
    const std::vector<Row> all = rows();
    if (all.empty()) return nullptr;
    const bool there = std::ranges::any_of(all, [&](const Row& row) { return std::ranges::count(row, cursor_) > 0; });
    return there ? cursor_ : all.front().front();
}

bool ClickGroup::move(int key) {
    static constexpr int kKeys[] = {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End};
    if (std::ranges::count(kKeys, key) == 0) return false;
    cursor_ = current();
    if (!cursor_) return true;
    const std::vector<Row> all = rows();
    auto row = std::ranges::find_if(all, [&](const Row& here) { return std::ranges::count(here, cursor_) > 0; });
    const auto at = std::ranges::find(*row, cursor_);
    if (key == Qt::Key_Home) cursor_ = row->front();
    if (key == Qt::Key_End) cursor_ = row->back();
    if (key == Qt::Key_Left && at != row->begin()) cursor_ = *(at - 1);
    if (key == Qt::Key_Right && at + 1 != row->end()) cursor_ = *(at + 1);
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
        if (key == Qt::Key_Up ? row == all.begin() : row + 1 == all.end()) return true;
        row += key == Qt::Key_Up ? -1 : 1;
        const double here = middle(*cursor_);
        cursor_ = *std::ranges::min_element(
            *row, {}, [&](const forms::Control* control) { return std::abs(middle(*control) - here); });
    }
    return true;
}

void ClickGroup::click() {
    cursor_ = current();
    if (cursor_) window_.act([this] { forms::user::click(*cursor_); });
}

QRect ClickGroup::mark(const QWidget& canvas) {
    const forms::Control* here = current();
    const views::View* shown = here ? window_.view(*here) : nullptr;
    if (!shown) return {};
    return {shown->widget().mapTo(&canvas, QPoint()), shown->widget().size()};
}

QString ClickGroup::spoken() {
    const forms::Control* here = current();
    const views::View* shown = here ? window_.view(*here) : nullptr;
    return shown ? shown->spoken_name() : QString();
}

}  // namespace desktop::keys
