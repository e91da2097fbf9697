#include "table/BiedingPaneel.h"

#include <string>

namespace table {

namespace {

constexpr double kEersteRonde = 570;
constexpr double kRondeHoogte = 270;
constexpr double kKopBoven = 210;
constexpr double kPlaatjeNaast = 180;  // from the bid to its strain
constexpr double kTekenNaast = 450;    // from the bid to its mark

double top_of(int ronde) { return kEersteRonde + kRondeHoogte * ronde; }

auto column(double left, double width, double height) {
    return [=](int ronde) { return forms::Rect{left, top_of(ronde), width, height}; };
}

template <class T>
BiedingPaneel::Ronden<T> ronden(forms::Container& box, const std::string& prefix,
                                const BiedingPaneel::Kolommen& kolommen, double beside, double width, double height) {
    return BiedingPaneel::Ronden<T>([&](int plaats) {
        return forms::ControlArray<T>(box, prefix + cards::kPlaatsLetter(plaats), 0, BiedingPaneel::kRondes - 1,
                                      column(kolommen.eerste + (plaats - 1) * kolommen.stap + beside, width, height));
    });
}

}  // namespace

BiedingPaneel::BiedingPaneel(forms::Container& parent, const forms::Rect& place, const Kolommen& kolommen)
    : fraBieding(parent, "fraBieding", place),
      lblNum(fraBieding, "lblNum", 0, kRondes - 1, column(150, 255, 270)),
      lblBieding(fraBieding, "lblBieding", 0, 3,
                 [&](int seat) {
                     return forms::Rect{kolommen.eerste + seat * kolommen.stap, kKopBoven, kolommen.stap, 195};
                 }),
      lblB(ronden<forms::Label>(fraBieding, "lblB", kolommen, 0, 150, 270)),
      picB(ronden<forms::PictureBox>(fraBieding, "picB", kolommen, kPlaatjeNaast, 210, 210)),
      lblA(ronden<forms::Label>(fraBieding, "lblA", kolommen, kTekenNaast, 105, 195)) {
    lblBieding.each([](forms::Label& label) { label.FontBold = true; });
    for (const auto& [ronde, label] : lblNum)
        label->Caption = std::to_string(ronde + 1) + ":";
    for (auto& pictures : picB) {
        pictures.each([](forms::PictureBox& picture) {
            picture.Opaque = false;
            picture.Stretch = true;  // the letters of no trump are larger than a suit symbol
        });
    }
}

}  // namespace table
