#include "script_desktop/Difference.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLineEdit>
#include <QListView>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTableWidget>
#include <QTextEdit>
#include <algorithm>
#include <vector>

#include "desktop/FormWindow.h"
#include "desktop/Text.h"
#include "desktop/views/LabelView.h"
#include "desktop/views/PictureView.h"
#include "desktop/views/View.h"
#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/FlexGrid.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "forms/Timer.h"
#include "forms/VScrollBar.h"
#include "script/Names.h"

namespace script_desktop {

namespace {

// Of a longer list only the number of lines and the selection are looked at.
constexpr int kMostLines = 2000;

QString text_of(const QString& value) { return value; }
QString text_of(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }
QString text_of(int value) { return QString::number(value); }
QString text_of(const QRect& value) {
    return QStringLiteral("%1 %2 %3 %4").arg(value.x()).arg(value.y()).arg(value.width()).arg(value.height());
}

bool same(const QRect& left, const QRect& right) {
    const auto near = [](int a, int b) { return std::abs(a - b) <= 1; };
    return near(left.left(), right.left()) && near(left.top(), right.top()) && near(left.width(), right.width()) &&
           near(left.height(), right.height());
}
template <class Value>
bool same(const Value& left, const Value& right) {
    return left == right;
}

// Whether the words are shown, however they are wrapped; what an ellipsis stands for is not looked at.
bool shows_words(const QString& shown, const QString& words) {
    const auto packed = [](QString text) { return text.remove(QRegularExpression(QStringLiteral("\\s"))); };
    const QStringList parts = packed(shown).split(QChar(0x2026));
    const QString all = packed(words);
    if (parts.size() == 1) return parts[0] == all;
    return all.startsWith(parts.first()) && all.endsWith(parts.last());
}

std::string name_of(const forms::Control& control) {
    const std::string index = control.index() < 0 ? "" : "(" + std::to_string(control.index()) + ")";
    return control.form().name() + "." + control.name() + index;
}

// Compares a control with its widget, and keeps the first difference.
class Comparison {
public:
    explicit Comparison(std::string name) : name_(std::move(name)) {}

    template <class Value>
    void expect(const std::string& what, const Value& core, const Value& shown) {
        if (!same(core, shown)) differs(what, text_of(core), text_of(shown));
    }
    void expect_words(const std::string& core, const QString& shown) {
        const QString words = desktop::to_qt(core);
        if (!shows_words(shown, words)) differs("words", words, shown);
    }
    void differs(const std::string& what, const QString& core, const QString& shown) {
        if (!found_.empty()) return;
        found_ = name_ + ": " + what + " is \"" + desktop::from_qt(core) + "\", the window shows \"" +
                 desktop::from_qt(shown) + "\"";
    }
    const std::string& found() const { return found_; }

private:
    std::string name_;
    std::string found_;
};

void compare_list(Comparison& comparison, const forms::ListBox& list, const QListView& view) {
    const QAbstractItemModel& model = *view.model();
    comparison.expect("ListCount", list.ListCount(), model.rowCount());
    if (list.ListCount() != model.rowCount()) return;
    for (int line = 0; line < std::min(list.ListCount(), kMostLines); ++line) {
        comparison.expect("line", desktop::to_qt(list.List(line)), model.index(line, 0).data().toString());
        comparison.expect("Selected", list.Selected(line), view.selectionModel()->isRowSelected(line));
    }
}

void compare_grid(Comparison& comparison, const forms::FlexGrid& grid, const QTableWidget& table) {
    if (!grid.Redraw) return;
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int col = 0; col < grid.Cols(); ++col) {
            const forms::FlexGrid::Cell& cell = grid.cell(row, col);
            const QTableWidgetItem& item = *table.item(row, col);
            const std::string at = "[" + std::to_string(row) + "," + std::to_string(col) + "]";
            comparison.expect(at, desktop::to_qt(cell.text), item.text());
            if (row >= grid.FixedRows() && col >= grid.FixedCols()) {
                comparison.expect(at + " colour", desktop::colour(cell.colour).name(),
                                  item.background().color().name());
            }
        }
    }
    comparison.expect("Row", grid.Row(), table.currentRow());
    comparison.expect("Col", grid.Col(), table.currentColumn());
}

void compare_box(Comparison& comparison, const forms::TextBox& box, const QWidget& widget) {
    const desktop::BoxText text(box.Text(), box.MultiLine);
    const int start = text.shown_position(box.SelStart);
    const int length = text.shown_position(box.SelStart + box.SelLength) - start;
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) {
        comparison.expect("Text", text.shown(), line->text());
        comparison.expect("SelStart", start, line->hasSelectedText() ? line->selectionStart() : line->cursorPosition());
        comparison.expect("SelLength", length, static_cast<int>(line->selectionLength()));
    } else if (const auto* edit = qobject_cast<const QTextEdit*>(&widget)) {
        const QTextCursor cursor = edit->textCursor();
        comparison.expect("Text", text.shown(), edit->toPlainText());
        comparison.expect("SelStart", start, cursor.selectionStart());
        comparison.expect("SelLength", length, cursor.selectionEnd() - cursor.selectionStart());
    }
}

void compare_picture(Comparison& comparison, const forms::Control& control, const desktop::views::PictureView& view) {
    const std::string wanted = control.find_property("Picture")->text();
    comparison.expect("Picture", desktop::to_qt(wanted), desktop::to_qt(property_text(view.shown_picture())));
}

// A label that lies behind other controls shows the words that are free, and the whole text as its tool tip.
void compare_label(Comparison& comparison, const forms::Label& label, const desktop::views::LabelView& view) {
    const QString shown = view.shown_words();
    const QString words = desktop::to_qt(label.Caption());
    const bool a_part = view.widget().toolTip() == desktop::to_qt(desktop::without_mark(label.Caption()));
    if (!a_part || shown.isEmpty() || !words.contains(shown)) comparison.expect_words(label.Caption, shown);
}

void compare_kind(Comparison& comparison, const forms::Control& control, const desktop::views::View& view) {
    const QWidget& widget = view.widget();
    if (const auto* label = dynamic_cast<const forms::Label*>(&control)) {
        compare_label(comparison, *label, dynamic_cast<const desktop::views::LabelView&>(view));
    } else if (const auto* button = dynamic_cast<const forms::CommandButton*>(&control)) {
        comparison.expect_words(button->Caption, dynamic_cast<const QAbstractButton&>(widget).text());
    } else if (const auto* tick = dynamic_cast<const forms::CheckBox*>(&control)) {
        const auto& box = dynamic_cast<const QAbstractButton&>(widget);
        comparison.expect_words(tick->Caption, box.text());
        comparison.expect("Value", tick->Value() == 1, box.isChecked());
    } else if (const auto* frame = dynamic_cast<const forms::Frame*>(&control)) {
        comparison.expect_words(frame->Caption, dynamic_cast<const QGroupBox&>(widget).title());
    } else if (const auto* list = dynamic_cast<const forms::ListBox*>(&control)) {
        compare_list(comparison, *list, dynamic_cast<const QListView&>(widget));
    } else if (const auto* grid = dynamic_cast<const forms::FlexGrid*>(&control)) {
        compare_grid(comparison, *grid, dynamic_cast<const QTableWidget&>(widget));
    } else if (const auto* bar = dynamic_cast<const forms::VScrollBar*>(&control)) {
        comparison.expect("Value", bar->Value(), dynamic_cast<const QScrollBar&>(widget).value());
    } else if (const auto* box = dynamic_cast<const forms::TextBox*>(&control)) {
        compare_box(comparison, *box, widget);
    } else if (const auto* picture = dynamic_cast<const desktop::views::PictureView*>(&view)) {
        compare_picture(comparison, control, *picture);
    }
}

// A label may be drawn wider than it is, and what reaches past its parent is cut off there.
void compare_place(Comparison& comparison, const forms::Control& control, const QWidget& widget,
                   const desktop::Scale& scale) {
    QRect wanted = scale.rect(control);
    if (dynamic_cast<const forms::Label*>(&control)) wanted.setWidth(std::max(wanted.width(), widget.width()));
    const QRect room = widget.parentWidget()->rect();
    comparison.expect("place", wanted & room, widget.geometry() & room);
}

std::string difference(const forms::Control& control, const desktop::FormWindow& window) {
    Comparison comparison(name_of(control));
    const desktop::views::View* view = window.view(control);
    comparison.expect("Visible", control.visible_to_user(), view && view->widget().isVisible());
    if (!view || !control.visible_to_user()) return comparison.found();
    comparison.expect("Enabled", control.enabled_for_user(), view->widget().isEnabled());
    compare_place(comparison, control, view->widget(), window.scale());
    compare_kind(comparison, control, *view);
    return comparison.found();
}

QString name_of_focus(const forms::Form& form, const desktop::FormWindow& window) {
    for (const forms::Control* control : form.controls()) {
        const desktop::views::View* view = window.view(*control);
        if (view && &view->widget() == window.focusWidget()) return desktop::to_qt(name_of(*control));
    }
    return QStringLiteral("nothing");
}

std::string difference(const forms::Form& form, const desktop::FormWindow& window) {
    Comparison comparison(form.name());
    comparison.expect("Visible", form.Visible(), window.isVisible());
    if (!form.Visible()) return comparison.found();
    comparison.expect("Caption", desktop::to_qt(form.Caption()), window.windowTitle());
    const desktop::Scale& scale = window.scale();
    if (form.WindowState() != forms::WindowState::Minimised) {
        comparison.expect("size", QRect(0, 0, scale.pixels(form.Width), scale.pixels(form.Height)), window.rect());
    }
    // A click on a window that another one covers at once leaves it with a focus that no key can reach; it is put right
    // when the window comes in front.
    const forms::Control* focus = window.isActiveWindow() ? form.focus() : nullptr;
    // Where the program parked it, the keyboard may be where the screen leaves it when all is over.
    const forms::Control* refuge = window.keyboard().refuge();
    const bool in_refuge = focus && !focus->TabStop() && refuge && window.keyboard().control() == refuge;
    if (focus && focus->visible_to_user() && focus->enabled_for_user() && !in_refuge) {
        comparison.expect("ActiveControl", desktop::to_qt(name_of(*focus)), name_of_focus(form, window));
    }
    return comparison.found();
}

// The window of another program may be the active one.
std::string window_in_front(const desktop::QtHost& host, const forms::Windows& windows) {
    const desktop::FormWindow* front = host.front();
    if (!front || front->isActiveWindow()) return {};
    const auto is_active = [&](const forms::Form* form) {
        return host.window(form) && host.window(form)->isActiveWindow();
    };
    const bool ours = !QApplication::activeWindow() || std::ranges::any_of(windows.loaded(), is_active);
    return ours ? front->form().name() + ": is not in front" : std::string();
}

}  // namespace

std::string difference(const desktop::QtHost& host, const forms::Windows& windows) {
    for (const forms::Form* form : windows.loaded()) {
        const desktop::FormWindow* window = host.window(form);
        if (!window && form->Visible()) return form->name() + ": has no window";
        if (!window) continue;
        if (std::string found = difference(*form, *window); !found.empty()) return found;
        for (const forms::Control* control : form->controls()) {
            if (std::string found = difference(*control, *window); !found.empty()) return found;
        }
    }
    return window_in_front(host, windows);
}

}  // namespace script_desktop
