#pragma once

#include <QWidget>
#include <functional>

namespace desktop::views {

// A plain area that can be clicked, with a background and a thin frame if it is to have them.
class Surface : public QWidget {
public:
    explicit Surface(QWidget* parent) : QWidget(parent) {}

    std::function<void()> Clicked;

    // An invalid colour is no background.
    void set_look(const QColor& background, bool framed);
    const QColor& background() const { return background_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    // What stands on the background, within the frame.
    virtual void paint_content(QPainter& painter, const QRect& inside) = 0;

private:
    QColor background_;
    bool framed_ = false;
    bool pressed_ = false;
};

}  // namespace desktop::views
