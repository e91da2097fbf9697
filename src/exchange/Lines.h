#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>

namespace exchange {

// Reads a text file of any size line by line, as UTF-8. A line that is valid UTF-8 is taken as such, every other as
// Windows-1252; a byte order mark tells UTF-16. Lines end in CR LF, CR or LF.
class Lines {
public:
    explicit Lines(std::istream& stream);

    // The next line without its end; none behind the last. Failure 57 where the stream breaks off.
    std::optional<std::string> next();
    int number() const { return number_; }  // of the line given last, from 1

private:
    enum class Encoding { Bytes, Utf16LittleEndian, Utf16BigEndian };

    bool fill();  // more bytes in the buffer; false at the end
    std::optional<char> next_byte();
    std::optional<std::string> line_of_bytes();
    std::optional<std::string> line_of_units();
    std::optional<char16_t> next_unit();

    std::istream& stream_;
    std::string buffer_;
    std::size_t at_ = 0;
    Encoding encoding_ = Encoding::Bytes;
    bool after_carriage_return_ = false;
    int number_ = 0;
};

bool is_utf8(std::string_view text);

}  // namespace exchange
