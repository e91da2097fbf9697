#include "desktop/views/TextBoxView.h"

#include <QKeyEvent>
#include <QToolTip>
#include <algorithm>

#include "desktop/FormWindow.h"
#include "desktop/Text.h"
#include "desktop/Words.h"
#include "forms/Form.h"
#include "forms/User.h"
#include "forms/Windows.h"

namespace desktop::views {

namespace {

constexpr char kBackspace = 8;

int common_start(const QString& left, const QString& right, qsizetype most) {
    qsizetype count = 0;
    while (count < most && left[count] == right[count])
        ++count;
    return static_cast<int>(count);
}

int common_end(const QString& left, const QString& right, qsizetype most) {
    qsizetype count = 0;
    while (count < most && left[left.size() - 1 - count] == right[right.size() - 1 - count])
        ++count;
    return static_cast<int>(count);
}

}  // namespace

TextBoxView::TextBoxView(FormWindow& window, forms::TextBox& box, QWidget* widget)
    : View(window, box, widget), box_(box) {}

void TextBoxView::show_state() {
    QPalette colours = widget().palette();
    if (colours.color(QPalette::Base) != colour(box_.BackColor) ||
        colours.color(QPalette::Text) != colour(box_.ForeColor)) {
        colours.setColor(QPalette::Base, colour(box_.BackColor));
        colours.setColor(QPalette::Text, colour(box_.ForeColor));
        widget().setPalette(colours);
    }
    const BoxText text(box_.Text(), box_.MultiLine);
    const bool changed = shown_text() != text.shown();
    if (changed) show_text(text.shown());
    if (changed && box_.Spoken()) speak(text.shown());
    const int start = text.shown_position(box_.SelStart);
    const TextRange range{start, text.shown_position(box_.SelStart + box_.SelLength) - start};
    if (shown_selection() != range) select(range);
}

// After an edit the cursor stands behind what was put in: what follows it stayed as it was.
void TextBoxView::text_changed() {
    if (refreshing()) return;
    const BoxText old(box_.Text(), box_.MultiLine);
    const QString before = old.shown();
    const QString now = shown_text();
    if (now == before) return;
    const auto shorter = std::min(before.size(), now.size());
    const int kept_end = common_end(before, now, std::min(shorter, now.size() - cursor()));
    const int kept_start = common_start(before, now, shorter - kept_end);
    const int rest =
        kept_end + (kept_start + kept_end < shorter
                        ? common_end(before.chopped(kept_end), now.chopped(kept_end), shorter - kept_start - kept_end)
                        : 0);
    const std::string added = typed_text(now.mid(kept_start, now.size() - rest - kept_start));
    const int from = old.core_position(kept_start);
    const int to = old.core_position(static_cast<int>(before.size()) - rest);
    user_did([this, &added, &now, from, to, caret = cursor()] {
        box_.form().windows().dispatch([&] {
            forms::user::select_text(box_, from, to - from);
            forms::user::type(box_, added);
            // What was typed may be what stood there: the caret is behind it all the same.
            const BoxText text(box_.Text(), box_.MultiLine);
            if (text.shown() == now) forms::user::select_text(box_, text.core_position(caret), box_.SelLength);
        });
    });
    if (!window().retired() && !added.empty()) tell_if_full();
}

// More would be dropped without a word.
void TextBoxView::tell_if_full() {
    constexpr int kNotNumbers = 10;  // a box for a number says it by itself
    const int most = box_.MaxLength;
    if (most <= kNotNumbers || static_cast<int>(box_.Text().size()) < most) return;
    const QString words = QString(words::kBoxIsFull).arg(most);
    QToolTip::setFont(screen_font(kUsualPoints, false, scale().zoom()));
    QToolTip::showText(widget().mapToGlobal(QPoint(0, widget().height())), words, &widget());
    speak(words);
}

void TextBoxView::selection_changed() {
    if (refreshing()) return;
    const BoxText text(box_.Text(), box_.MultiLine);
    if (shown_text() != text.shown()) return;  // a text_changed() is about to come
    const TextRange range = shown_selection();
    const int start = text.core_position(range.start);
    forms::user::select_text(box_, start, text.core_position(range.start + range.length) - start);
}

bool TextBoxView::eventFilter(QObject* watched, QEvent* event) {
    if (View::eventFilter(watched, event)) return true;
    return event->type() == QEvent::KeyPress && key_is_dropped(static_cast<QKeyEvent*>(event)->key());
}

// The keys that the key filter gets although they put no character in.
bool TextBoxView::key_is_dropped(int key) {
    if (key == Qt::Key_Backspace && box_.KeyPress) {
        bool kept = true;
        window().act([&] { kept = forms::user::press(box_, kBackspace); });
        return !kept || window().retired();
    }
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && !box_.MultiLine) {
        user_did([this] { forms::user::type(box_, "\r\n"); });
        return true;
    }
    return false;
}

}  // namespace desktop::views
