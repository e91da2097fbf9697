#include "desktop/views/ScrollBarView.h"

#include <QSignalBlocker>

#include "forms/User.h"

namespace desktop::views {

ScrollBarView::ScrollBarView(FormWindow& window, forms::VScrollBar& bar, QWidget* parent)
    : View(window, bar, new QScrollBar(Qt::Vertical, parent)), bar_(bar), widget_(static_cast<QScrollBar&>(widget())) {
    widget_.setContextMenuPolicy(Qt::NoContextMenu);
    widget_.setFocusPolicy(Qt::TabFocus);
    connect(&widget_, &QScrollBar::valueChanged, this,
            [this](int value) { user_did([this, value] { forms::user::scroll(bar_, value); }); });
}

// A handler may have set another value than the user's; the bar then shows that one.
void ScrollBarView::show_state() {
    const QSignalBlocker blocker(widget_);
    widget_.setRange(bar_.Min, bar_.Max);
    widget_.setSingleStep(1);
    widget_.setPageStep(1);
    widget_.setValue(bar_.Value);
    widget_.update();
}

}  // namespace desktop::views
