#include "desktop/Text.h"

#include <algorithm>

#include "platform/CodePage.h"

namespace desktop {

QString to_qt(std::string_view text) { return QString::fromStdString(platform::to_utf8(text)); }
std::string from_qt(const QString& text) { return platform::from_utf8(text.toStdString()); }

std::string typed_text(QString text) {
    constexpr struct {
        char16_t full;
        char16_t hollow;
        char16_t letter;
    } kSuits[] = {{u'\u2660', u'\u2664', u'S'},
                  {u'\u2665', u'\u2661', u'H'},
                  {u'\u2666', u'\u2662', u'R'},
                  {u'\u2663', u'\u2667', u'K'}};
    for (const auto& suit : kSuits)
        text.replace(QChar(suit.full), QChar(suit.letter)).replace(QChar(suit.hollow), QChar(suit.letter));
    // Phones and browsers write behind a symbol which of its two pictures they mean.
    return from_qt(text.remove(QChar(u'\uFE0E')).remove(QChar(u'\uFE0F')));
}

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
