#include "desktop/views/PictureView.h"

#include <QPainter>
#include <algorithm>

#include "desktop/FormWindow.h"
#include "desktop/QtHost.h"
#include "desktop/views/Surface.h"
#include "forms/User.h"

namespace desktop::views {

namespace {

constexpr int kSymbolSize = 32;  // logical pixels; what is larger is a card or a face

// The shape of the picture alone.
QPixmap silhouette(const QPixmap& picture, const QColor& colour) {
    QPixmap shape = picture;
    QPainter painter(&shape);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(shape.rect(), colour);
    return shape;
}

}  // namespace

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
        if (pixmap.isNull()) return;
        if (needs_rim()) {
            const QPixmap rim = silhouette(pixmap, Qt::white);
            for (const QPointF aside : {QPointF(-1, 0), QPointF(1, 0), QPointF(0, -1), QPointF(0, 1)})
                painter.drawPixmap(corner + aside, rim);
        }
        painter.drawPixmap(corner, pixmap);
    }

    // A small red or black symbol is lost on a dark ground.
    bool needs_rim() const {
        const auto* ground = dynamic_cast<const Surface*>(parentWidget());
        return !background().isValid() && std::max(width(), height()) <= kSymbolSize && ground &&
               ground->background().isValid() && ground->background().lightness() < 128;
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

}  // namespace desktop::views
