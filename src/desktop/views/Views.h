#pragma once

#include <memory>

#include "forms/Control.h"

class QWidget;

namespace desktop {
class FormWindow;
}

namespace desktop::views {

class View;

// A view with a new widget on `parent`, in front of what stands there; null for a control that no user ever sees.
std::unique_ptr<View> make_view(FormWindow& window, forms::Control& control, QWidget* parent);

}  // namespace desktop::views
