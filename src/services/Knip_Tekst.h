#pragma once

#include <string>

#include "forms/ListBox.h"
#include "forms/TextBox.h"

namespace services {

// Adds the lines of a text box, as the box breaks them at its width, to a list, each trimmed of blanks. Empty lines
// are lines too. It never fails.
void Knip_Tekst(const forms::TextBox& doos, forms::ListBox& lstKnipTekst);

// The lines of such a list as one text, each with CR LF behind it.
std::string met_regeleinden(const forms::ListBox& lstKnipTekst);

}  // namespace services
