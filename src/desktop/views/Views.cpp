#include "desktop/views/Views.h"

#include "desktop/views/ButtonViews.h"
#include "desktop/views/FrameView.h"
#include "desktop/views/GridView.h"
#include "desktop/views/LabelView.h"
#include "desktop/views/LineEditView.h"
#include "desktop/views/ListView.h"
#include "desktop/views/PictureView.h"
#include "desktop/views/ScrollBarView.h"
#include "desktop/views/TextEditView.h"

namespace desktop::views {

namespace {

template <class Kind, class KindView>
std::unique_ptr<View> make_if(FormWindow& window, forms::Control& control, QWidget* parent) {
    auto* of_kind = dynamic_cast<Kind*>(&control);
    return of_kind ? std::make_unique<KindView>(window, *of_kind, parent) : nullptr;
}

std::unique_ptr<View> make_box(FormWindow& window, forms::Control& control, QWidget* parent) {
    auto* box = dynamic_cast<forms::TextBox*>(&control);
    if (!box) return nullptr;
    if (box->MultiLine) return std::make_unique<TextEditView>(window, *box, parent);
    return std::make_unique<LineEditView>(window, *box, parent);
}

using Make = std::unique_ptr<View> (*)(FormWindow&, forms::Control&, QWidget*);

constexpr Make kMakers[] = {
    &make_if<forms::Label, LabelView>,   &make_if<forms::PictureBox, PictureView>,
    &make_if<forms::Image, PictureView>, &make_if<forms::CommandButton, CommandButtonView>,
    &make_if<forms::ListBox, ListView>,  &make_if<forms::CheckBox, CheckBoxView>,
    &make_if<forms::Frame, FrameView>,   &make_if<forms::VScrollBar, ScrollBarView>,
    &make_if<forms::FlexGrid, GridView>, &make_box,
};

}  // namespace

std::unique_ptr<View> make_view(FormWindow& window, forms::Control& control, QWidget* parent) {
    for (const Make make : kMakers) {
        if (auto view = make(window, control, parent)) return view;
    }
    return nullptr;
}

}  // namespace desktop::views
