#include "desktop/views/PictureView.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/Colours.h"
#include "desktop/FormWindow.h"
#include "desktop/QtHost.h"
#include "desktop/Text.h"
#include "desktop/Words.h"
#include "desktop/views/Surface.h"
#include "forms/User.h"
#include "resources/Bericht.h"
#include "resources/MessageTable.h"
#include "resources/Plaatje.h"

namespace desktop::views {

namespace {

QString word_of(resources::Bericht message) { return to_qt(resources::message_text(static_cast<int>(message))); }

// What a picture says that says more than a card: a suit, or the state of a marker.
QString title_of(const forms::Picture& picture) {
    switch (picture.number) {
        case resources::plaatje::kSchoppen:
            return word_of(resources::Bericht::Schoppen);
        case resources::plaatje::kHarten:
            return word_of(resources::Bericht::Harten);
        case resources::plaatje::kRuiten:
            return word_of(resources::Bericht::Ruiten);
        case resources::plaatje::kKlaveren:
            return word_of(resources::Bericht::Klaveren);
        case resources::plaatje::kSansAtout:
            return words::kNoTrump;
        default:
            return picture.name == "ja"      ? words::kWithText
                   : picture.name == "nee"   ? words::kWithoutText
                   : picture.name == "bezig" ? words::kInWork
                                             : QString();
    }
}

constexpr double kSymbolSize = 32;  // pixels at zoom 1; what is larger is a card or a face

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
    PictureWidget(PictureCache& pictures, QWidget* parent) : Surface(parent), pictures_(pictures) {}

    void set_picture(const forms::Picture& picture, bool stretch, double zoom) {
        if (picture_ == picture && stretch_ == stretch && zoom_ == zoom) return;
        picture_ = picture;
        stretch_ = stretch;
        zoom_ = zoom;
        update();
    }
    const forms::Picture& picture() const { return picture_; }
    struct Inscription {
        QString text;
        QRect place;
        friend bool operator==(const Inscription&, const Inscription&) = default;
    };
    void set_inscriptions(const QList<Inscription>& inscriptions, const QColor& colour) {
        if (inscriptions_ == inscriptions && inscription_colour_ == colour) return;
        inscriptions_ = inscriptions;
        inscription_colour_ = colour;
        update();
    }
    QAccessible::Role accessible_role() const override {
        return clickable_ ? QAccessible::Button : QAccessible::Graphic;
    }
    void set_clickable(bool clickable) { clickable_ = clickable; }

private:
    void paint_content(QPainter& painter, const QRect& inside) override {
        painter.setPen(inscription_colour_);
        for (const Inscription& inscription : inscriptions_)
            painter.drawText(inscription.place, Qt::AlignCenter | Qt::TextDontClip, inscription.text);
        if (!picture_.empty()) paint_picture(painter, inside);
    }
    void paint_picture(QPainter& painter, const QRect& inside) {
        double scale = zoom_;
        QPointF corner = inside.topLeft();
        if (stretch_) {
            const QSizeF size = pictures_.size_of(picture_);
            if (size.isEmpty()) return;
            scale = std::min(inside.width() / size.width(), inside.height() / size.height());
            corner += QPointF(inside.width() - size.width() * scale, inside.height() - size.height() * scale) / 2;
        }
        const double ratio = devicePixelRatioF();
        const QRect dots = dots_of({corner, pictures_.size_of(picture_) * scale}, ratio);
        const QPixmap pixmap = pictures_.pixmap(picture_, dots.size(), ratio);
        if (pixmap.isNull()) return;
        corner = QPointF(dots.topLeft()) / ratio - mapTo(window(), QPointF());
        if (needs_rim()) {
            const QPixmap rim = silhouette(pixmap, colours::kSymbolRim);
            for (const QPointF aside : {QPointF(-zoom_, 0), QPointF(zoom_, 0), QPointF(0, -zoom_), QPointF(0, zoom_)})
                painter.drawPixmap(corner + aside, rim);
        }
        painter.drawPixmap(corner, pixmap);
    }

    // The physical pixels that lie wholly in a rectangle of this widget: at a fractional ratio its edges fall between
    // two of them, and what is painted there is cut off.
    QRect dots_of(const QRectF& place, double ratio) const {
        constexpr double kRounding = 0.01;
        const QRectF dots((place.topLeft() + mapTo(window(), QPointF())) * ratio, place.size() * ratio);
        const QPoint first(static_cast<int>(std::ceil(dots.left() - kRounding)),
                           static_cast<int>(std::ceil(dots.top() - kRounding)));
        const QPoint end(static_cast<int>(std::floor(dots.right() + kRounding)),
                         static_cast<int>(std::floor(dots.bottom() + kRounding)));
        return {first, QSize(std::max(1, end.x() - first.x()), std::max(1, end.y() - first.y()))};
    }

    // A small red or black symbol is lost on a dark ground.
    bool needs_rim() const {
        return !background().isValid() && std::max(width(), height()) <= kSymbolSize * zoom_ && on_dark_ground();
    }

    PictureCache& pictures_;
    double zoom_ = 1;
    forms::Picture picture_;
    bool stretch_ = false;
    bool clickable_ = false;
    QList<Inscription> inscriptions_;
    QColor inscription_colour_;
};

namespace {

PictureWidget* make_widget(FormWindow& window, QWidget* parent) {
    return new PictureWidget(window.host().pictures(), parent);
}

}  // namespace

PictureView::PictureView(FormWindow& window, forms::PictureBox& box, QWidget* parent)
    : View(window, box, make_widget(window, parent)), widget_(static_cast<PictureWidget&>(widget())) {
    show_ = [this, &box] {
        widget_.set_look(box.Opaque() ? colour(box.BackColor) : QColor(), box.BorderStyle() != 0, scale().zoom());
        widget_.set_picture(box.Picture, box.Stretch, scale().zoom());
        QList<PictureWidget::Inscription> inscriptions;
        for (const auto& [text, place] : box.inscriptions())
            inscriptions.push_back({to_qt(text), scale().rect(place)});
        widget_.set_inscriptions(inscriptions, colour(box.ForeColor));
    };
    widget_.Clicked = [this] { user_did([this] { forms::user::click(control()); }); };
}

PictureView::PictureView(FormWindow& window, forms::Image& image, QWidget* parent)
    : View(window, image, make_widget(window, parent)), widget_(static_cast<PictureWidget&>(widget())) {
    show_ = [this, &image] {
        widget_.set_look(QColor(), image.BorderStyle() != 0, scale().zoom());
        widget_.set_picture(image.Picture, false, scale().zoom());
    };
    widget_.Clicked = [this] { user_did([this] { forms::user::click(control()); }); };
}

const forms::Picture& PictureView::shown_picture() const { return widget_.picture(); }

void PictureView::show_state() {
    show_();
    widget_.set_clickable(static_cast<bool>(control().Click));
    const QString tip = to_qt(control().ToolTipText());
    widget_.setToolTip(tip.isEmpty() ? tip : QStringLiteral("<p>%1</p>").arg(tip.toHtmlEscaped()));
}

QString PictureView::spoken_name() const {
    const QString name = to_qt(control().AccessibleName());
    const QString shown = title_of(widget_.picture());
    return name.isEmpty() ? shown : shown.isEmpty() ? name : name + QStringLiteral(", ") + shown;
}

}  // namespace desktop::views
