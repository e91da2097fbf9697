#include "desktop/Text.h"

#include <algorithm>

#include "platform/CodePage.h"

namespace desktop {

QString to_qt(std::string_view text) { return QString::fromStdString(to_utf8(text)); }
std::string from_qt(const QString& text) { return from_utf8(text.toStdString()); }

BoxText::BoxText(std::string_view text, bool multi_line) {
    std::string kept;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool line_break = text.substr(at, 2) == "\r\n";
        const bool control = static_cast<unsigned char>(text[at]) < ' ';
        if (!control || (line_break && multi_line)) {
            kept += control ? '\n' : text[at];
            core_.push_back(static_cast<int>(at));
        }
        if (line_break) ++at;
    }
    core_.push_back(static_cast<int>(text.size()));
    shown_ = to_qt(kept);
}

int BoxText::shown_position(int core_position) const {
    const auto found = std::ranges::lower_bound(core_, core_position);
    return static_cast<int>(std::min(found, core_.end() - 1) - core_.begin());
}

int BoxText::core_position(int shown_position) const {
    const auto last = static_cast<int>(core_.size()) - 1;
    return core_[static_cast<std::size_t>(std::clamp(shown_position, 0, last))];
}

}  // namespace desktop
