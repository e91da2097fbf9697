#pragma once

#include <string>

namespace services {

class Programma;

// Synthetic key strokes.
namespace MSendInput {

// Turns a text into key events and hands them to the platform in one batch; a text without a key sends nothing.
//
//   + ^ %            Shift, Control, Alt, held during the one token that follows
//   ( ... )          a group of plain characters
//   {NAME} {NAME n}  a named key, in whatever case, or one character; pressed n times
//   ~                Enter
//   anything else    that character
//
// The events go to the control that has the focus. `wachten` counted for a family of platforms that took the text as it
// stands; none of them is left.
void VerstuurToetsen(Programma& programma, const std::string& tekst, bool wachten);

}  // namespace MSendInput

}  // namespace services
