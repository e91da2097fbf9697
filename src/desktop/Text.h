#pragma once

#include <QString>
#include <string>
#include <string_view>

// The program's texts are Windows-1252, one byte a character; widgets hold UTF-16. Both have one unit a character, so
// that positions are the same.
namespace desktop {

QString to_qt(std::string_view text);
// What Windows-1252 cannot hold becomes "?".
std::string from_qt(const QString& text);
// The same of what a user put in: the symbol of a suit is its Dutch letter.
std::string typed_text(QString text);

// The text of a box with the marks that a text widget cannot hold left out: a line break is one "\n", in a box of one
// line there is none, and every other control character is gone.
class BoxText {
public:
    BoxText(std::string_view text, bool multi_line);

    const QString& shown() const { return shown_; }
    // Positions from the one to the other; one past the end stands for the end.
    int shown_position(int core_position) const;
    int core_position(int shown_position) const;

private:
    QString shown_;
    std::vector<int> core_;  // for each shown character and for the end
};

}  // namespace desktop
