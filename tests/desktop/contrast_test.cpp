// Whether words can be read on what lies behind them.
#include <algorithm>
#include <cmath>
#include <set>

#include "desktop/ThroughTheScreens.h"
#include "forms/CheckBox.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/PictureBox.h"
#include "forms/TextBox.h"
#include "services/Kleuren.h"

namespace {

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

bool has_words(const forms::Control& control) {
    if (const auto* box = dynamic_cast<const forms::PictureBox*>(&control)) return !box->inscriptions().empty();
    if (const auto* label = dynamic_cast<const forms::Label*>(&control)) return !label->Caption().empty();
    return dynamic_cast<const forms::TextBox*>(&control) || dynamic_cast<const forms::CheckBox*>(&control);
}

base::Colour ground_of(const forms::Control& control) {
    const auto* label = dynamic_cast<const forms::Label*>(&control);
    const auto* box = dynamic_cast<const forms::PictureBox*>(&control);
    const bool typed_into = dynamic_cast<const forms::TextBox*>(&control) != nullptr;
    const bool own = label ? label->Opaque() : box ? box->Opaque() : typed_into;
    if (own) return control.BackColor;
    const forms::Control* below = const_cast<forms::Container&>(control.container()).as_control();
    return below ? below->BackColor() : control.form().BackColor();
}

class Contrast : public ThroughTheScreens {
protected:
    void look() {
        for (const forms::Control* control : window().form().controls()) {
            if (!control->visible_to_user() || !control->enabled_for_user() || !has_words(*control)) continue;
            const base::Colour words = control->ForeColor;
            const double there = contrast(words, ground_of(*control));
            if (words == services::kleuren::kRood && control->FontBold()) continue;
            EXPECT_GE(there, kLeast) << window().form().name() << "." << control->name();
            ++looked_at_;
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
