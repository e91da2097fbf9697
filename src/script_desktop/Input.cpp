#include "script_desktop/Input.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QScrollBar>
#include <QStyleOptionSlider>
#include <QTest>
#include <optional>

namespace script_desktop::input {

namespace {

// How far apart the points are at which a free one is looked for, in pixels.
constexpr int kStep = 3;

bool is_free(const QWidget& widget, const QPoint& point) {
    const QWidget& window = *widget.window();
    const QPoint there = widget.mapTo(&window, point);
    return window.rect().contains(there) && window.childAt(there) == &widget;
}

std::optional<QPoint> free_point(const QWidget& widget, const QRect& part) {
    if (is_free(widget, part.center())) return part.center();
    for (int y = part.top(); y <= part.bottom(); y += kStep) {
        for (int x = part.left(); x <= part.right(); x += kStep) {
            if (is_free(widget, {x, y})) return QPoint(x, y);
        }
    }
    return {};
}

QRect arrow_of(const QScrollBar& bar, QStyle::SubControl arrow) {
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Vertical;
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, arrow, &bar);
}

}  // namespace

bool click(QWidget& widget, const QRect& part) {
    const std::optional<QPoint> point = free_point(widget, part);
    if (!point) return false;
    QWidget& window = *widget.window();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window, *point));
    return true;
}

void key(QWidget& window, Qt::Key key, Qt::KeyboardModifiers held) {
    QTest::keyClick(window.windowHandle(), key, held);
}

void type(QWidget& window, QChar character) {
    if (character == u'\t') {  // the key would move the focus; a text that is put in may hold one
        QInputMethodEvent put_in;
        put_in.setCommitString(character);
        if (QWidget* focused = window.focusWidget()) QApplication::sendEvent(focused, &put_in);
        return;
    }
    const bool enter = character == u'\n';
    const auto code = enter ? Qt::Key_Return : static_cast<Qt::Key>(character.toUpper().unicode());
    const QString text = enter ? QStringLiteral("\r") : QString(character);
    QTest::sendKeyEvent(QTest::Click, window.windowHandle(), code, text,
                        character.isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
}

void scroll(QScrollBar& bar, int value) {
    if (std::abs(value - bar.value()) == 1) {
        click(bar, arrow_of(bar, value < bar.value() ? QStyle::SC_ScrollBarSubLine : QStyle::SC_ScrollBarAddLine));
        return;
    }
    bar.setSliderDown(true);
    bar.setSliderPosition(value);
    bar.setSliderDown(false);
}

void settle() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace script_desktop::input
