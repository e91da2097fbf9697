#pragma once

#include <string>
#include <vector>

#include "forms/Windows.h"
#include "platform/Platform.h"

// The keyboard of a host without a window: keys go to the text box that has the focus on the active form, and are lost
// where none has it.
namespace script::keyboard {

// Types at the selection, character by character.
void type(forms::Windows& windows, const std::string& text);
// Deletes what is selected.
void erase(forms::Windows& windows);
// Moves the caret or the selection, deletes or types. The caret stands at the end of the selection.
void send(forms::Windows& windows, const std::vector<platform::KeyRecord>& records);

}  // namespace script::keyboard
