#include "desktop/views/FrameView.h"

#include <QGroupBox>
#include <QPainter>

#include "desktop/Text.h"

namespace desktop::views {

namespace {
const QColor kLineColour(0xB4, 0xB4, 0xB4);
constexpr int kTitleIndent = 8;
constexpr int kTitleGap = 3;
constexpr double kCornerRadius = 3;
}  // namespace

// The title stands in the upper line of the frame, as the places of the controls in it expect.
class FrameWidget final : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

    void set_colours(const QColor& background, const QColor& text) {
        background_ = background;
        text_ = text;
        update();
    }

private:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        // A frame that reaches past what it stands on keeps its edge in sight.
        const QRect seen = rect() & parentWidget()->rect().translated(-pos());
        const QString title = fontMetrics().elidedText(this->title(), Qt::ElideMiddle, seen.width() - 2 * kTitleIndent,
                                                       Qt::TextShowMnemonic);
        const QSize size(fontMetrics().size(Qt::TextShowMnemonic, title).width() + 1, fontMetrics().height());
        const QRect title_place = title.isEmpty() ? QRect() : QRect(QPoint(kTitleIndent, 0), size);
        const QRectF line = QRectF(seen).adjusted(0.5, title_place.height() / 2 + 0.5, -0.5, -0.5);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(background_);
        painter.drawRoundedRect(line, kCornerRadius, kCornerRadius);
        painter.setPen(kLineColour);
        painter.setBrush(Qt::NoBrush);
        painter.setClipRegion(QRegion(rect()) - title_place.adjusted(-kTitleGap, 0, kTitleGap, 0));
        painter.drawRoundedRect(line, kCornerRadius, kCornerRadius);
        painter.restore();
        painter.setPen(isEnabled() ? text_ : palette().color(QPalette::Disabled, QPalette::WindowText));
        painter.drawText(title_place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, title);
    }

    QColor background_;
    QColor text_;
};

FrameView::FrameView(FormWindow& window, forms::Frame& frame, QWidget* parent)
    : View(window, frame, new FrameWidget(parent)), frame_(frame), widget_(static_cast<FrameWidget&>(widget())) {}

void FrameView::show_state() {
    const QString title = to_qt(frame_.Caption());
    if (widget_.title() != title) widget_.setTitle(title);
    widget_.set_colours(colour(frame_.BackColor), colour(frame_.ForeColor));
}

}  // namespace desktop::views
