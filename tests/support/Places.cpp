#include "support/Places.h"

#include <cmath>
#include <map>
#include <tuple>

#include "forms/Control.h"
#include "forms/Form.h"

namespace {

std::string name_of(const forms::Control& control) {
    return control.name() + (control.index() < 0 ? "" : "(" + std::to_string(control.index()) + ")");
}

struct Point {
    double x = 0;
    double y = 0;
};

// On the form, in twips.
Point middle_of(const forms::Control& control) {
    Point middle{control.Width() / 2, control.Height() / 2};
    for (const forms::Control* at = &control; at; at = at->container().as_control()) {
        middle.x += at->Left();
        middle.y += at->Top();
    }
    return middle;
}

Point middle_of_all(const forms::Form& form, const std::string& name) {
    Point sum;
    int count = 0;
    for (const forms::Control* control : form.controls()) {
        if ((control->name() != name && name_of(*control) != name) || !control->visible_to_user()) continue;
        const Point middle = middle_of(*control);
        sum = {sum.x + middle.x, sum.y + middle.y};
        ++count;
    }
    return {sum.x / count, sum.y / count};
}

}  // namespace

std::vector<std::string> on_each_other(Program& program, const std::string& form) {
    std::map<std::tuple<const void*, double, double, std::string>, std::string> first;
    std::vector<std::string> found;
    for (const forms::Control* control : program.programma.windows.find(form)->controls()) {
        if (!control->visible_to_user()) continue;
        const std::tuple place{static_cast<const void*>(&control->container()), control->Left(), control->Top(),
                               std::string(control->kind())};
        const auto [before, added] = first.emplace(place, name_of(*control));
        if (!added) found.push_back(name_of(*control) + " on " + before->second);
    }
    return found;
}

std::vector<std::string> around_the_table(Program& program, const std::string& form,
                                          const std::array<std::string, 4>& names) {
    const forms::Form& screen = *program.programma.windows.find(form);
    Point middle;
    for (const std::string& name : names) {
        const Point own = middle_of_all(screen, name);
        middle = {middle.x + own.x / 4, middle.y + own.y / 4};
    }
    constexpr Point kSeats[] = {{0, -1}, {1, 0}, {0, 1}, {-1, 0}};
    std::vector<std::string> placed;
    for (std::size_t seat = 0; seat < 4; ++seat) {
        const Point own = middle_of_all(screen, names[seat]);
        const Point off{own.x - middle.x, own.y - middle.y};
        const double outwards = off.x * kSeats[seat].x + off.y * kSeats[seat].y;
        const double aside = off.x * kSeats[seat].y + off.y * kSeats[seat].x;
        if (outwards > std::abs(aside)) placed.push_back(names[seat]);
    }
    return placed;
}
