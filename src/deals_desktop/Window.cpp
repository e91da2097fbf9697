#include "deals_desktop/Window.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>

#include "deals_desktop/Words.h"
#include "services/Settings.h"

namespace deals_desktop {

namespace {

constexpr QSize kUsualSize(1180, 760);
constexpr QSize kFrame(10, 40);  // that a window manager may put around it

QStringList files_of(const QMimeData& data) {
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) files.append(url.toLocalFile());
    }
    return files;
}

}  // namespace

Window::Window(const std::string& program_folder)
    : text_size_(services::settings_file(program_folder)), deals_(program_folder), lessons_(program_folder) {
    setWindowTitle(words::kTitle);
    pages_.addTab(&deals_, words::kDealsPage);
    pages_.addTab(&lessons_, words::kLessonsPage);
    pages_.setDocumentMode(true);
    setCentralWidget(&pages_);
    setAcceptDrops(true);
    make_menus();
    make_view_menu();
    resize((kUsualSize * text_size_.factor()).boundedTo(screen()->availableSize() - kFrame));
    deals_.list().setFocus();
    connect(&pages_, &QTabWidget::currentChanged, this, [this] {
        page().list().setFocus();
        if (&page() == &lessons_) lessons_.refresh();
    });
}

// The pages go one by one, and the last one left would be shown.
Window::~Window() { pages_.disconnect(this); }

Page& Window::page() { return static_cast<Page&>(*pages_.currentWidget()); }

DealsPage& Window::shown_deals() {
    pages_.setCurrentWidget(&deals_);
    return deals_;
}

LessonsPage& Window::shown_lessons() {
    pages_.setCurrentWidget(&lessons_);
    return lessons_;
}

void Window::make_menus() {
    const auto add = [this](QMenu* menu, const QString& text, const QKeySequence& keys, auto action) {
        QAction* const entry = menu->addAction(text);
        entry->setShortcut(keys);
        connect(entry, &QAction::triggered, this, action);
        return entry;
    };
    QMenu* const file = menuBar()->addMenu(words::kFileMenu);
    add(file, words::kOpen, QKeySequence::Open, [this] { shown_deals().ask_for_files(); });
    add(file, words::kNew, QKeySequence::New, [this] { shown_deals().make_new(); });
    add(file, words::kChange, Qt::Key_F2, [this] { shown_deals().change(); });
    add(file, words::kSavePbn, QKeySequence::Save, [this] { shown_deals().save_to_file(); });
    add(file, words::kClear, {}, [this] { shown_deals().clear_list(); });
    add(file, words::kRefresh, QKeySequence::Refresh, [this] { shown_lessons().refresh(); });
    file->addSeparator();
    add(file, words::kQuit, QKeySequence::Quit, [this] { close(); });

    QMenu* const choose = menuBar()->addMenu(words::kTickMenu);
    add(choose, words::kTickAll, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A),
        [this] { page().model().tick_all(true); });
    add(choose, words::kTickNone, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N),
        [this] { page().model().tick_all(false); });
    add(choose, words::kTick, {}, [this] { page().list().tick_chosen(); });
    choose->addSeparator();
    QAction* const solve = add(choose, words::kSolve, Qt::Key_F8, [this](bool wanted) {
        deals_.solve(wanted);
        lessons_.solve(wanted);
    });
    solve->setCheckable(true);
    solve->setChecked(true);
    for (Page* const each : std::initializer_list<Page*>{&deals_, &lessons_})
        each->SolvingStopped = [this, solve] {
            solve->setChecked(false);
            deals_.solve(false);
            lessons_.solve(false);
        };
}

// What a click on a column's head does.
void Window::make_sort_menu(QMenu& menu) {
    QMenu* const columns = menu.addMenu(words::kSortMenu);
    for (int column = 0; column < DealModel::ColumnCount; ++column) {
        QAction* const entry = columns->addAction(column == DealModel::Name ? words::kName : words::kColumns[column]);
        entry->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + column)));
        connect(entry, &QAction::triggered, this, [this, column] { page().list().sort_by(column); });
    }
    QAction* const as_read = columns->addAction(words::kAsRead);
    connect(as_read, &QAction::triggered, this, [this] { page().list().sortByColumn(-1, Qt::AscendingOrder); });
}

// The keys are those of the eight screens.
void Window::make_view_menu() {
    QMenu* const menu = menuBar()->addMenu(words::kViewMenu);
    make_sort_menu(*menu);
    menu->addSeparator();
    const auto add = [&](const QString& text, const QList<QKeySequence>& keys, TextSize::Step step) {
        QAction* const entry = menu->addAction(text);
        entry->setShortcuts(keys);
        connect(entry, &QAction::triggered, this, [this, step] { take_size(step); });
    };
    add(words::kLarger, {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
        TextSize::Step::Larger);
    add(words::kSmaller, {QKeySequence(Qt::CTRL | Qt::Key_Minus)}, TextSize::Step::Smaller);
    add(words::kUsualSize, {QKeySequence(Qt::CTRL | Qt::Key_0)}, TextSize::Step::Usual);
}

// No larger than the screen has room for.
void Window::take_size(TextSize::Step step) {
    constexpr double kNext = 1.1;
    const QSize room = screen()->availableSize() - kFrame;
    const QSize least = minimumSizeHint() * kNext;
    if (step == TextSize::Step::Larger && least.boundedTo(room) != least) return;
    text_size_.take(step);
}

void Window::closeEvent(QCloseEvent* event) {
    if (leaves_ || deals_.model().unsaved().empty()) return;
    event->ignore();
    shown_deals().ask_about_typed(words::kQuitAnyway, [this] {
        leaves_ = true;
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);  // this one has to end first
    });
}

void Window::dragEnterEvent(QDragEnterEvent* event) {
    if (!files_of(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void Window::dropEvent(QDropEvent* event) {
    shown_deals().open(files_of(*event->mimeData()));
    event->acceptProposedAction();
}

}  // namespace deals_desktop
