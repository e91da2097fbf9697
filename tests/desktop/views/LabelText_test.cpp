#include "desktop/views/LabelText.h"

#include "desktop/TestWindows.h"
#include "forms/CommandButton.h"
#include "forms/TextMeasure.h"

namespace {

class LabelForm final : public forms::Form {
public:
    explicit LabelForm(forms::Windows& windows) : Form(windows, "labels", {4500, 1500}) { label.AutoSize = true; }

    forms::Label label{*this, "label", {150, 150, 0, 195}};
    forms::Label beside{*this, "beside", {30000, 150, 300, 195}};
    forms::CommandButton button{*this, "button", {30000, 0, 600, 450}};
};

// Where the neighbours of a label stand decides what of it is drawn.
TEST_F(TestWindows, ALabelKeepsOffWhatStandsBesideIt) {
    auto& form = show<LabelForm>();
    const std::string path = "/media/" + std::string(60, 'a') + "/stick";
    const double wide = forms::text_width("Foutnummer:", {});
    struct {
        const char* what;
        std::string text;
        bool grows;
        double beside;  // twips from the label to its neighbour, and to the left edge of a button in front of it
        double button;
        std::string drawn;
        bool smaller;
    } const rows[] = {
        {"alone", "Foutnummer:", false, 9000, 9000, "Foutnummer:", false},
        {"a little too wide", "Foutnummer:", false, wide * 0.9, 9000, "Foutnummer:", false},
        {"too wide", "Foutnummer:", false, wide * 0.82, 9000, "Foutnummer:", true},
        {"behind a button", "Nummer: 12", true, 9000, -100, "12", false},
        {"wider than the form", path, true, 9000, 9000, "", false},
    };
    for (const auto& row : rows) {
        form.label.AutoSize = row.grows;
        if (!row.grows) form.label.Width = wide / 2;
        form.label.Height = 195;
        form.label.Caption = row.text;
        form.beside.Left = form.label.Left + row.beside;
        form.button.Left = form.label.Left + row.button;
        const desktop::views::LabelLine line = desktop::views::label_lines(form.label).at(0);
        if (row.drawn.empty()) {
            EXPECT_EQ(line.text.substr(0, 7) + line.text.substr(line.text.size() - 5), "/media/stick") << row.what;
        } else {
            EXPECT_EQ(line.text, row.drawn) << row.what;
        }
        EXPECT_EQ(line.scale < 1, row.smaller) << row.what;
        const double right = line.indent + line.width;
        EXPECT_LE(right, std::min(row.beside, form.Width - form.label.Left)) << row.what;
        if (row.button < 0) {
            EXPECT_GE(line.indent, row.button + form.button.Width) << row.what;
        }
    }
}

}  // namespace
