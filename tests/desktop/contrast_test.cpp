// Whether words can be read on what lies behind them.
#include <algorithm>
#include <cmath>
#include <set>

#include "desktop/Colours.h"
#include "desktop/ThroughTheScreens.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/FlexGrid.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/PictureBox.h"
#include "forms/TextBox.h"
#include "services/Kleuren.h"

namespace {

using namespace desktop::colours;

// Of WCAG 2.1 for text that is not large.
constexpr double kLeast = 4.5;

double luminance(base::Colour colour) {
    const auto part = [](int value) {
        const double share = value / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.red()) + 0.7152 * part(colour.green()) + 0.0722 * part(colour.blue());
}

double contrast(base::Colour one, base::Colour other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

base::Colour of(const QColor& colour) {
    return base::Colour::rgb(static_cast<unsigned>(colour.red()), static_cast<unsigned>(colour.green()),
                             static_cast<unsigned>(colour.blue()));
}

bool has_words(const forms::Control& control) {
    if (const auto* box = dynamic_cast<const forms::PictureBox*>(&control)) return !box->inscriptions().empty();
    if (const auto* label = dynamic_cast<const forms::Label*>(&control)) return !label->Caption().empty();
    return dynamic_cast<const forms::TextBox*>(&control) || dynamic_cast<const forms::CheckBox*>(&control) ||
           dynamic_cast<const forms::CommandButton*>(&control);
}

base::Colour ground_of(const forms::Control& control) {
    const auto* label = dynamic_cast<const forms::Label*>(&control);
    const auto* box = dynamic_cast<const forms::PictureBox*>(&control);
    const bool filled = dynamic_cast<const forms::TextBox*>(&control) != nullptr ||
                        dynamic_cast<const forms::CommandButton*>(&control) != nullptr;
    const bool own = label ? label->Opaque() : box ? box->Opaque() : filled;
    if (own) return control.BackColor;
    const forms::Control* below = const_cast<forms::Container&>(control.container()).as_control();
    return below ? below->BackColor() : control.form().BackColor();
}

class Contrast : public ThroughTheScreens {
protected:
    void look() {
        for (const forms::Control* control : window().form().controls()) {
            if (!control->visible_to_user()) continue;
            look_at_cells(*control);
            if (!has_words(*control)) continue;
            const base::Colour words = control->enabled_for_user() ? control->ForeColor() : of(kDisabledWords);
            if (words == services::kleuren::kRood && control->FontBold()) continue;
            expect_read(words, ground_of(*control), *control);
        }
    }
    void expect_read(base::Colour words, base::Colour ground, const forms::Control& where) {
        EXPECT_GE(contrast(words, ground), kLeast) << window().form().name() << "." << where.name();
        ++looked_at_;
    }
    // Their words have the text's colour, whatever the colour behind them says.
    void look_at_cells(const forms::Control& control) {
        const base::Colour words = control.enabled_for_user() ? forms::kTextColour : of(kDisabledWords);
        if (const auto* list = dynamic_cast<const forms::ListBox*>(&control)) {
            expect_read(words, list->BackColor, control);
            expect_read(of(kSelectedWords), of(kSelection), control);
        }
        const auto* grid = dynamic_cast<const forms::FlexGrid*>(&control);
        for (int row = 0; grid && row < grid->Rows(); ++row) {
            for (int col = 0; col < grid->Cols(); ++col)
                expect_read(words, grid->cell(row, col).colour, control);
        }
    }
    int looked_at_ = 0;
};

// Pure red is the suits' own colour; its words are bold instead.
TEST_F(Contrast, OfAllWordsIsEnoughOrTheyAreBold) {
    through_the_screens([this] { look(); });
    EXPECT_GT(looked_at_, 200);
}

}  // namespace
