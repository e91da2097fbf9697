#include "deals/Json.h"

#include <array>
#include <cstdio>

namespace deals {

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\') {
            result += '\\';
            result += character;
        } else if (static_cast<unsigned char>(character) < 0x20) {
            std::array<char, 8> escaped{};
            std::snprintf(escaped.data(), escaped.size(), "\\u%04x", static_cast<unsigned>(character));
            result += escaped.data();
        } else {
            result += character;
        }
    }
    return result + "\"";
}

}  // namespace deals
