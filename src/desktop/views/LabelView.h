#pragma once

#include "desktop/views/View.h"
#include "forms/Label.h"

namespace desktop::views {

class LabelWidget;

class LabelView final : public View {
public:
    LabelView(FormWindow& window, forms::Label& label, QWidget* parent);

    // What it draws, with the mark of its accelerator; a line a line.
    QString shown_words() const;
    QString spoken_name() const override;

private:
    void show_state() override;
    // A label that starts at the left and has no ground of its own is as wide as its text needs.
    QRect place() const override;
    double pixels(double twips) const;

    forms::Label& label_;
    LabelWidget& widget_;
};

}  // namespace desktop::views
