#pragma once

#include <string>

namespace forms {

// What a picture control shows: a picture of the numbered table, a named picture of a screen's own, or nothing.
struct Picture {
    int number = 0;
    std::string name;

    bool empty() const { return number == 0 && name.empty(); }
    friend bool operator==(const Picture&, const Picture&) = default;
};

}  // namespace forms
