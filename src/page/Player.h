#pragma once

#include <string>

namespace page {

// The felt, the text and the buttons, as a <template> that the script puts into the article of a lesson. The words that
// the script says stand in attributes of it.
std::string player();

}  // namespace page
