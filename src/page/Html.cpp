#include "page/Html.h"

namespace page {

std::string escaped(std::string_view text) {
    std::string result;
    for (const char sign : text) {
        const auto code = static_cast<unsigned char>(sign);
        switch (sign) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '>':
                result += "&gt;";
                break;
            case '"':
                result += "&quot;";
                break;
            case '\'':
                result += "&#39;";
                break;
            default:
                result += (code < ' ' && sign != '\n') || code == 0x7F ? ' ' : sign;
        }
    }
    return result;
}

std::string element(std::string_view name, std::string_view content, std::string_view attributes) {
    std::string text = "<";
    text.append(name).append(attributes).append(">").append(content);
    return text.append("</").append(name).append(">");
}

std::string attribute(std::string_view name, std::string_view value) {
    return " " + std::string(name) + "=\"" + escaped(value) + "\"";
}

std::string attribute(std::string_view name, int value) { return attribute(name, std::to_string(value)); }

std::string spoken(std::string_view text) { return element("span", escaped(text), attribute("class", "spoken")); }

}  // namespace page
