#pragma once

#include <string>

namespace deals_desktop {

// How large the letters of all windows are, and what goes by them: as the desktop has them, more where the screen is
// large, times what the user chose.
class TextSize {
public:
    // The choice is read from that file (Windows-1252), and kept in it; one that cannot be written is no failure.
    explicit TextSize(std::string settings_file);

    // From then on boxes to tick, scroll bars and small pictures are as large as the letters.
    static void let_controls_grow();

    enum class Step { Smaller, Usual, Larger };
    void take(Step step);

    // Times as large as the desktop has them.
    double factor() const;

private:
    void apply() const;

    const std::string settings_file_;
    int percent_;
};

}  // namespace deals_desktop
