#include "desktop/views/ButtonViews.h"

#include "desktop/Text.h"
#include "forms/User.h"

namespace desktop::views {

namespace {

class TickWidget final : public QCheckBox {
public:
    using QCheckBox::QCheckBox;
    std::function<void()> Clicked;

private:
    void nextCheckState() override {
        if (Clicked) Clicked();
    }
};

// For a caption as wide as the core counts it, but never wider than its place.
QFont caption_font(const std::string& caption, const forms::Control& control, const Scale& scale, double margin) {
    const double room = scale.pixels(control.Width) - margin * scale.zoom();
    const double width = std::min(core_width(caption, control, scale.zoom()), room);
    return fitted_to(screen_font(control, scale.zoom()), to_qt(without_mark(caption)), width);
}

void show_caption(QAbstractButton& widget, const std::string& caption) {
    const QString text = to_qt(caption);
    if (widget.text() != text) widget.setText(text);
}

void show_colour(QWidget& widget, QPalette::ColorRole role, const QColor& wanted) {
    QPalette colours = widget.palette();
    if (colours.color(role) == wanted) return;
    colours.setColor(role, wanted);
    widget.setPalette(colours);
}

// Pixels at zoom 1.
constexpr double kButtonMargin = 6;
constexpr double kTickWidth = 22;

}  // namespace

CommandButtonView::CommandButtonView(FormWindow& window, forms::CommandButton& button, QWidget* parent)
    : View(window, button, button.Caption().empty() ? new FocusSink(parent) : new QPushButton(parent)),
      button_(button),
      widget_(static_cast<QPushButton&>(widget())) {
    widget_.setAutoDefault(true);
    connect(&widget_, &QPushButton::clicked, this, [this] { user_did([this] { forms::user::click(button_); }); });
}

QFont CommandButtonView::font() const { return caption_font(button_.Caption, button_, scale(), kButtonMargin); }

void CommandButtonView::show_state() {
    show_caption(widget_, button_.Caption);
    if (button_.BackColor() != forms::kFaceColour) show_colour(widget_, QPalette::Button, colour(button_.BackColor));
}

CheckBoxView::CheckBoxView(FormWindow& window, forms::CheckBox& box, QWidget* parent)
    : View(window, box, new TickWidget(parent)), box_(box), widget_(static_cast<QCheckBox&>(widget())) {
    static_cast<TickWidget&>(widget_).Clicked = [this] { user_did([this] { forms::user::click(box_); }); };
}

QFont CheckBoxView::font() const { return caption_font(box_.Caption, box_, scale(), kTickWidth); }

void CheckBoxView::show_state() {
    show_caption(widget_, box_.Caption);
    show_colour(widget_, QPalette::WindowText, colour(box_.ForeColor));
    widget_.setChecked(box_.Value() == 1);
}

}  // namespace desktop::views
