#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace base {

// Text inside the program is Windows-1252, one byte a character.

// The pieces of a split text, numbered from 0. A number that is not there is failure 9.
class Pieces {
public:
    Pieces() = default;
    explicit Pieces(std::vector<std::string> pieces) : pieces_(std::move(pieces)) {}

    const std::string& operator[](int index) const;
    int last() const { return static_cast<int>(pieces_.size()) - 1; }  // -1 for the empty text, which has no piece
    auto begin() const { return pieces_.begin(); }
    auto end() const { return pieces_.end(); }

private:
    std::vector<std::string> pieces_;
};

// Cuts at every occurrence of the separator, which is not empty. The empty text gives no piece at all.
Pieces split(std::string_view text, std::string_view separator);

// Blanks (0x20 only) taken off at both ends.
std::string trimmed(std::string_view text);

// Numeric value: leading blanks skipped, then a sign and as many digits as stand there; 0 if there are none.
// A value that an int cannot hold stays at the nearest one that it can.
int numeric_value(std::string_view text);
// The sign and the digits that make up that value, however many.
std::string_view number_part(std::string_view text);

std::string replaced(std::string_view text, std::string_view what, std::string_view by);
std::string lower_case(std::string_view text);
std::string upper_case(std::string_view text);

// Order of two texts without regard to case: below 0, 0, above 0.
int compare_ignoring_case(std::string_view left, std::string_view right);
bool equal_ignoring_case(std::string_view left, std::string_view right);

// The first `count` characters, or fewer where the text is shorter.
std::string left(std::string_view text, std::size_t count);
// The last `count` characters, or fewer where the text is shorter.
std::string right(std::string_view text, std::size_t count);
// From character `from` (the first is 1) to the end; nothing where the text is shorter.
std::string middle(std::string_view text, std::size_t from);

}  // namespace base
