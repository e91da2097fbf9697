#pragma once

#include <QWidget>

namespace desktop::keys {

// The frame around what the keys act on. It lies in front of everything, and the mouse goes through it.
class FocusMark final : public QWidget {
public:
    explicit FocusMark(QWidget* parent);

    // Around that place on its parent; around nothing, it is hidden.
    void show_around(const QRect& place);

private:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace desktop::keys
