#pragma once

#include "resources/drawing/Drawing.h"

namespace resources {

enum class Eyes { Open, Closed };

// The name of the program beside two cards.
drawing::Drawing draw_logo();

// The portrait of the maker, with a hand of cards.
drawing::Drawing draw_maker();

// The face of the error report. Only the eyes differ between the two states.
drawing::Drawing draw_error_face(Eyes eyes);

// The markers of a card in the editor: a green leaf with lines of text, a grey empty ring, an orange pencil.
drawing::Drawing draw_marker_text();
drawing::Drawing draw_marker_empty();
drawing::Drawing draw_marker_busy();

}  // namespace resources
