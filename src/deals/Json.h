#pragma once

#include <string>
#include <string_view>

// Texts of JSON.
namespace deals {

std::string quoted(std::string_view text);

template <class Items, class Text>
std::string array_of(const Items& items, Text text) {
    std::string result;
    for (const auto& item : items)
        result += (result.empty() ? "" : ",") + text(item);
    return "[" + result + "]";
}

}  // namespace deals
