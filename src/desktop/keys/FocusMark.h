#pragma once

#include <QWidget>

namespace desktop::keys {

// The frame around what the keys act on. It lies in front of everything, and the mouse goes through it.
class FocusMark final : public QWidget {
public:
    explicit FocusMark(QWidget* parent);

    // Around that place on its parent; around nothing, it is hidden.
    void show_around(const QRect& place, double zoom);
    QRect place() const { return geometry().adjusted(width_, width_, -width_, -width_); }

private:
    void paintEvent(QPaintEvent* event) override;

    int width_ = 0;  // logical pixels that it stands out on each side
};

}  // namespace desktop::keys
