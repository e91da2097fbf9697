// The code page, and the word wrap of a box: no byte is lost, and no line is wider than the box.
#include "Harness.h"
#include "base/Text.h"
#include "forms/TextMeasure.h"
#include "platform/CodePage.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(fuzz::text_of(data, size));
    fuzz::require(platform::from_utf8(platform::to_utf8(text)) == text, "the code page comes back");
    platform::from_utf8(text);
    constexpr double kBoxWidth = 5325;  // twips
    constexpr double kPoints = 12;
    const auto lines = forms::box_lines(text, kBoxWidth, kPoints);
    const int room = static_cast<int>(kBoxWidth / forms::kTwipsPerPixel) - forms::kBoxMarginInPixels;
    fuzz::require(!lines.empty() && lines.front() == 0, "the first line begins the text");
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::size_t end = i + 1 < lines.size() ? lines[i + 1] : text.size();
        fuzz::require(lines[i] <= end, "lines follow each other");
        std::string line = text.substr(lines[i], end - lines[i]);
        while (!line.empty() && (line.back() == ' ' || line.back() == '\n' || line.back() == '\r'))
            line.pop_back();
        fuzz::require(line.size() <= 1 || forms::text_width_in_pixels(line, {kPoints}) <= room, "a line fits its box");
    }
    return 0;
}
