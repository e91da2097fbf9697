#include "desktop/views/FrameView.h"

#include <QGroupBox>
#include <QPainter>
#include <algorithm>

#include "desktop/Colours.h"
#include "desktop/Text.h"

namespace desktop::views {

namespace {
// Pixels at zoom 1.
constexpr double kTitleIndent = 8;
constexpr double kTitleGap = 3;
constexpr double kCornerRadius = 3;
}  // namespace

// The title stands in the upper line of the frame, as the places of the controls in it expect.
class FrameWidget final : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

    void set_look(const QColor& background, const QColor& text, double zoom) {
        background_ = background;
        text_ = text;
        zoom_ = zoom;
        update();
    }

private:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        // A frame that reaches past what it stands on keeps its edge in sight.
        const QRect seen = rect() & parentWidget()->rect().translated(-pos());
        const int indent = static_cast<int>(kTitleIndent * zoom_);
        const int gap = static_cast<int>(kTitleGap * zoom_);
        const double radius = kCornerRadius * zoom_;
        const QString title =
            fontMetrics().elidedText(this->title(), Qt::ElideMiddle, seen.width() - 2 * indent, Qt::TextShowMnemonic);
        const QSize size(fontMetrics().size(Qt::TextShowMnemonic, title).width() + 1, fontMetrics().height());
        const QRect title_place = title.isEmpty() ? QRect() : QRect(QPoint(indent, 0), size);
        const QRectF line = QRectF(seen).adjusted(0.5, title_place.height() / 2 + 0.5, -0.5, -0.5);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(background_);
        painter.drawRoundedRect(line, radius, radius);
        painter.setPen(QPen(colours::kGroupLine, std::max(1.0, zoom_)));
        painter.setBrush(Qt::NoBrush);
        painter.setClipRegion(QRegion(rect()) - title_place.adjusted(-gap, 0, gap, 0));
        painter.drawRoundedRect(line, radius, radius);
        painter.restore();
        painter.setPen(isEnabled() ? text_ : palette().color(QPalette::Disabled, QPalette::WindowText));
        painter.drawText(title_place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, title);
    }

    QColor background_;
    QColor text_;
    double zoom_ = 1;
};

FrameView::FrameView(FormWindow& window, forms::Frame& frame, QWidget* parent)
    : View(window, frame, new FrameWidget(parent)), frame_(frame), widget_(static_cast<FrameWidget&>(widget())) {}

void FrameView::show_state() {
    const QString title = to_qt(frame_.Caption());
    if (widget_.title() != title) widget_.setTitle(title);
    widget_.set_look(colour(frame_.BackColor), colour(frame_.ForeColor), scale().zoom());
}

}  // namespace desktop::views
