#pragma once

#include <QColor>

// The colours that widgets have beside those that the screens give their controls.
namespace desktop::colours {

inline constexpr QColor kSelection(0x1F, 0x5F, 0xA8);
inline constexpr QColor kSelectedWords(0xFF, 0xFF, 0xFF);
inline constexpr QColor kDisabledWords(0x5E, 0x5E, 0x5E);
inline constexpr QColor kTip(0xFF, 0xFF, 0xE6);
inline constexpr QColor kTipWords(0x00, 0x00, 0x00);

inline constexpr QColor kFrame(0x64, 0x64, 0x64);
inline constexpr QColor kFrameOnDark(0x8F, 0xBE, 0xA2);
inline constexpr QColor kGroupLine(0xB4, 0xB4, 0xB4);
inline constexpr QColor kSymbolRim(0xFF, 0xFF, 0xFF);  // of a symbol on a dark ground

// A dark line between two light ones is seen on every ground.
inline constexpr QColor kFocusLine(0x0B, 0x3D, 0x91);
inline constexpr QColor kFocusRim(0xFF, 0xFF, 0xFF);

// Of the words' own colour: how much a scroll mark has, so that it is seen on the ground of every box.
inline constexpr float kScrollMarkShare = 0.6F;

}  // namespace desktop::colours
