#include "desktop/RealProgram.h"

#include <QAbstractButton>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <QWindow>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>

#include "app/Start.h"
#include "desktop/Text.h"
#include "desktop/views/View.h"
#include "forms/CommandButton.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "platform/IniFile.h"

namespace fs = std::filesystem;

platform::Answer TestPlatform::message_box(int style, const std::string& title, const std::string& text) {
    told.push_back(text);
    if (real_boxes) return QtPlatform::message_box(style, title, text);
    if (style == platform::box_style::kInformation) return platform::Answer::Ok;
    if (answers.empty()) return platform::Answer::No;
    const platform::Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

RealProgram::RealProgram() {
    fs::create_directories(folder);
    fs::copy(SAMPLES_DIR, folder, fs::copy_options::recursive);
    set("Platform", "ProgramFiles", ".");
}

RealProgram::~RealProgram() { host.close_all(); }

void RealProgram::start_program() {
    host.attach(programma.windows);
    host.Ended = [this] { ended = true; };
    host.Failed = [](const std::string& what) { ADD_FAILURE() << what; };
    app::start(programma);
}

QWidget& RealProgram::widget(const forms::Control& control) {
    const desktop::FormWindow* of_form = host.window(&control.form());
    const desktop::views::View* view = of_form ? of_form->view(control) : nullptr;
    if (!view) throw std::logic_error(control.name() + " has no widget");
    return view->widget();
}

void RealProgram::click_at(QWidget& widget, const QPoint& place) {
    ASSERT_EQ(widget.window(), &window());
    ASSERT_TRUE(widget.isVisible());
    ASSERT_TRUE(window().rect().contains(widget.mapTo(&window(), place)));
    QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window(), place));
}

void RealProgram::click(const forms::Control& control) {
    QWidget& clicked = widget(control);
    click_at(clicked, clicked.rect().center());
}

void RealProgram::click_line(const forms::ListBox& list, int line) {
    auto& view = widget_as<QListView>(list);
    const QModelIndex index = view.model()->index(line, 0);
    view.scrollTo(index);
    click_at(*view.viewport(), view.visualRect(index).center());
}

void RealProgram::click_line(const forms::ListBox& list, const std::string& text) {
    const std::vector<std::string> all = lines(list);
    const auto found = std::ranges::find(all, text);
    ASSERT_NE(found, all.end()) << text;
    click_line(list, static_cast<int>(found - all.begin()));
}

void RealProgram::key(Qt::Key key, Qt::KeyboardModifiers held) { QTest::keyClick(window().windowHandle(), key, held); }

void RealProgram::accelerator(const forms::CommandButton& button) {
    const std::string& caption = button.Caption();
    const std::size_t mark = caption.find('&');
    ASSERT_LT(mark + 1, caption.size()) << caption;
    const QPointer<QAbstractButton> pressed(&widget_as<QAbstractButton>(button));
    key(static_cast<Qt::Key>(std::toupper(caption[mark + 1])), Qt::AltModifier);
    // It stays down for a moment, and clicks as it comes up.
    EXPECT_TRUE(QTest::qWaitFor([&] { return !pressed || !pressed->isDown(); }));
}

void RealProgram::type(const QString& text) {
    for (const QChar letter : text) {
        const bool enter = letter == '\n';
        const auto code = enter ? Qt::Key_Return : static_cast<Qt::Key>(letter.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, window().windowHandle(), code, enter ? QString("\r") : QString(letter),
                            letter.isUpper() ? Qt::ShiftModifier : Qt::NoModifier);
    }
}

std::string RealProgram::focused() {
    for (const forms::Control* control : window().form().controls()) {
        const desktop::views::View* view = window().view(*control);
        if (view && &view->widget() == window().focusWidget()) return control->name();
    }
    return "nothing";
}

void RealProgram::tab_to(const forms::Control& control) {
    for (int i = 0; i < 40 && focused() != control.name(); ++i)
        key(Qt::Key_Tab);
    ASSERT_EQ(focused(), control.name());
}

QRect RealProgram::marked() {
    QCoreApplication::processEvents();
    for (const QWidget* child : window().findChildren<QWidget*>()) {
        const auto* mark = dynamic_cast<const desktop::keys::FocusMark*>(child);
        if (!mark || !mark->isVisible()) continue;
        return mark->place().translated(mark->parentWidget()->mapTo(&window(), QPoint()));
    }
    return {};
}

QRect RealProgram::place_of(const forms::Control& control) {
    QWidget& shown_widget = widget(control);
    return {shown_widget.mapTo(&window(), QPoint()), shown_widget.size()};
}

void RealProgram::compose(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(window().focusWidget(), &event);
}

std::vector<std::string> RealProgram::lines(const forms::ListBox& list) {
    const QAbstractItemModel& model = *widget_as<QListView>(list).model();
    std::vector<std::string> all;
    for (int row = 0; row < model.rowCount(); ++row) {
        all.push_back(desktop::from_qt(model.data(model.index(row, 0)).toString()));
    }
    return all;
}

QStringList RealProgram::drawn_lines(const forms::TextBox& box) {
    QStringList drawn;
    const QTextDocument& document = *widget_as<QTextEdit>(box).document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QTextLine line = block.layout()->lineAt(i);
            drawn << block.text().mid(line.textStart(), line.textLength());
        }
    }
    return drawn;
}

QString RealProgram::shown(const forms::TextBox& box) {
    if (auto* line = dynamic_cast<QLineEdit*>(&widget(box))) return line->text();
    return widget_as<QTextEdit>(box).toPlainText();
}

QImage RealProgram::picture(const forms::Control& control) {
    QWidget& shown_widget = widget(control);
    return window().grab({shown_widget.mapTo(&window(), QPoint()), shown_widget.size()}).toImage();
}

QColor RealProgram::painted(const forms::Control& control) {
    const QImage image = picture(control);
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    return std::ranges::max_element(counts, {}, [](const auto& count) { return count.second; })->first;
}

std::string RealProgram::path(const std::string& name) const { return folder + "/" + name; }

std::string RealProgram::read(const std::string& name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void RealProgram::set(const std::string& section, const std::string& key, const std::string& value) {
    platform::write_setting(path("standaardtavrin.ini"), section, key, value);
}
