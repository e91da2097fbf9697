#pragma once

#include <QAccessible>
#include <QWidget>
#include <functional>

namespace desktop::views {

// A plain area that can be clicked, with a background and a thin frame if it is to have them.
class Surface : public QWidget {
public:
    explicit Surface(QWidget* parent) : QWidget(parent) {}

    std::function<void()> Clicked;

    // An invalid colour is no background. The frame is as thin as the zoom lets a line of one pixel be.
    void set_look(const QColor& background, bool framed, double zoom);
    const QColor& background() const { return background_; }
    // Whether what it stands on is dark.
    bool on_dark_ground() const;
    // What it is for a screen reader.
    virtual QAccessible::Role accessible_role() const = 0;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

    // What stands on the background, within the frame.
    virtual void paint_content(QPainter& painter, const QRect& inside) = 0;

private:
    QColor background_;
    int frame_ = 0;  // its width, logical pixels
    bool pressed_ = false;
};

}  // namespace desktop::views
