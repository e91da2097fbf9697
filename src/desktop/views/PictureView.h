#pragma once

#include <functional>

#include "desktop/views/View.h"
#include "forms/Image.h"
#include "forms/PictureBox.h"

namespace desktop::views {

class PictureWidget;

// A picture box or an image: they differ in what lies behind and around the picture.
class PictureView final : public View {
public:
    PictureView(FormWindow& window, forms::PictureBox& box, QWidget* parent);
    PictureView(FormWindow& window, forms::Image& image, QWidget* parent);

    const forms::Picture& shown_picture() const;
    QString spoken_name() const override;

private:
    void show_state() override;

    PictureWidget& widget_;
    std::function<void()> show_;
};

}  // namespace desktop::views
