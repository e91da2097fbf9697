#pragma once

#include "desktop/View.h"
#include "forms/Label.h"

namespace desktop {

class LabelWidget;

class LabelView final : public View {
public:
    LabelView(FormWindow& window, forms::Label& label, QWidget* parent);

    // What it draws, with the mark of its accelerator; a line a line.
    QString shown_words() const;

private:
    void show_state() override;
    // A label that starts at the left and has no ground of its own is as wide as its text needs.
    QRect place() const override;
    double shown_width(const std::string& line) const;

    forms::Label& label_;
    LabelWidget& widget_;
};

// The lines in which a label shows its text: it breaks at blanks where the label is wider than high for it, that is,
// where there is room for a second line. Widths are twips.
std::vector<std::string> label_lines(const forms::Label& label);

}  // namespace desktop
