#pragma once

namespace desktop {

// Tells screen readers what the program's own widgets are: a picture is a picture or, where it can be clicked, a
// button; words are words; a place without a picture, and a button without words, which takes the keyboard where
// nothing is to be chosen, are nothing that is read. Once for a run.
void describe_widgets();

}  // namespace desktop
