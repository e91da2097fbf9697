#pragma once

#include <string>
#include <string_view>

// Pieces of a page. All that is not markup goes through `escaped`.
namespace page {

// A text as it stands between tags or within an attribute's quotes: signs of markup are written out, control characters
// other than the line break are blanks.
std::string escaped(std::string_view text);

// <name attributes>content</name>; the attributes begin with a blank.
std::string element(std::string_view name, std::string_view content, std::string_view attributes = {});
//  name="value", with a blank in front and the value escaped.
std::string attribute(std::string_view name, std::string_view value);
std::string attribute(std::string_view name, int value);

// What only a screen reader tells.
std::string spoken(std::string_view text);

}  // namespace page
