#include "desktop/PictureView.h"

#include <QPainter>
#include <algorithm>

#include "desktop/FormWindow.h"
#include "desktop/QtHost.h"
#include "desktop/Surface.h"
#include "forms/User.h"

namespace desktop {

// Paints its picture at the pixel ratio of the screen that it stands on at the time.
class PictureWidget final : public Surface {
public:
    PictureWidget(PictureCache& pictures, double zoom, QWidget* parent)
        : Surface(parent), pictures_(pictures), zoom_(zoom) {}

    void set_picture(const forms::Picture& picture, bool stretch) {
        if (picture_ == picture && stretch_ == stretch) return;
        picture_ = picture;
        stretch_ = stretch;
        update();
    }
    const forms::Picture& picture() const { return picture_; }

private:
    void paint_content(QPainter& painter, const QRect& inside) override {
        if (picture_.empty()) return;
        double scale = zoom_;
        QPointF corner = inside.topLeft();
        if (stretch_) {
            const QSizeF size = pictures_.size_of(picture_);
            if (size.isEmpty()) return;
            scale = std::min(inside.width() / size.width(), inside.height() / size.height());
            corner += QPointF(inside.width() - size.width() * scale, inside.height() - size.height() * scale) / 2;
        }
        const QPixmap pixmap = pictures_.pixmap(picture_, scale, devicePixelRatioF());
        if (!pixmap.isNull()) painter.drawPixmap(corner, pixmap);
    }

    PictureCache& pictures_;
    double zoom_;
    forms::Picture picture_;
    bool stretch_ = false;
};

namespace {

PictureWidget* make_widget(FormWindow& window, QWidget* parent) {
    return new PictureWidget(window.host().pictures(), window.host().scale().zoom(), parent);
}

}  // namespace

PictureView::PictureView(FormWindow& window, forms::PictureBox& box, QWidget* parent)
    : View(window, box, make_widget(window, parent)), widget_(static_cast<PictureWidget&>(widget())) {
    show_ = [this, &box] {
        widget_.set_look(box.Opaque() ? colour(box.BackColor) : QColor(), box.BorderStyle() != 0);
        widget_.set_picture(box.Picture, box.Stretch);
    };
    widget_.Clicked = [this] { user_did([this] { forms::user::click(control()); }); };
}

PictureView::PictureView(FormWindow& window, forms::Image& image, QWidget* parent)
    : View(window, image, make_widget(window, parent)), widget_(static_cast<PictureWidget&>(widget())) {
    show_ = [this, &image] {
        widget_.set_look(QColor(), image.BorderStyle() != 0);
        widget_.set_picture(image.Picture, false);
    };
    widget_.Clicked = [this] { user_did([this] { forms::user::click(control()); }); };
}

const forms::Picture& PictureView::shown_picture() const { return widget_.picture(); }

void PictureView::show_state() { show_(); }

}  // namespace desktop
