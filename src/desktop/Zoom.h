#pragma once

#include <QSize>
#include <map>
#include <optional>
#include <string>

#include "forms/Form.h"

// How large the screens are shown: logical pixels to fifteen twips.
namespace desktop {

class Zooms {
public:
    // With a zoom given every form has it. Otherwise the table is as large as it fits, and every other form comfortable
    // for the display, times what the user chose for it; never larger than fits.
    explicit Zooms(std::optional<double> given) : given_(given) {}

    // The user's choices are read from that file, and kept in it; where it cannot be written they hold for
    // this run.
    void keep_in(const std::string& settings_file) { file_ = settings_file; }

    // `room` is the largest inner area of a window, logical pixels.
    double of(const forms::Form& form, const QSize& room) const;
    double of_table(const QSize& room) const;

    // A step of the user's; nothing changes where the form has the largest or the smallest size already.
    enum class Step { Larger, Smaller, Usual };
    void take(Step step, const forms::Form& form, const QSize& room);

private:
    int percent_of(const forms::Form& form) const;

    const std::optional<double> given_;
    std::string file_;
    std::map<std::string, int> chosen_;  // percent by the names of forms, in this run
};

}  // namespace desktop
