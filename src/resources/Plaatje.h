#pragma once

// The pictures that go by number. The strains of a bid count upwards from Klaveren; a card's number is added to that
// of its size.
namespace resources::plaatje {

inline constexpr int kKlaveren = 106;
inline constexpr int kRuiten = 107;
inline constexpr int kHarten = 108;
inline constexpr int kSchoppen = 109;
inline constexpr int kSansAtout = 110;
inline constexpr int kKleineKaarten = 2100;
inline constexpr int kGroteKaarten = 2200;
inline constexpr int kKaartRug = 2253;

}  // namespace resources::plaatje
