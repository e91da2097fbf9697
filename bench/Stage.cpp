#include "Stage.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWindow>

#include "Measure.h"
#include "app/Start.h"
#include "base/Text.h"
#include "desktop/FormWindow.h"
#include "forms/ListBox.h"
#include "forms/User.h"
#include "platform/Paths.h"

namespace fs = std::filesystem;

namespace bench {

namespace {

// Sees when a window is painted.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QObject* window) : window_(window) { qApp->installEventFilter(this); }
    ~PaintWatch() override { qApp->removeEventFilter(this); }
    bool painted = false;

private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == window_ && (event->type() == QEvent::UpdateRequest || event->type() == QEvent::Paint))
            painted = true;
        return false;
    }
    QObject* window_;
};

fs::path new_folder() {
    std::string name = (fs::temp_directory_path() / "zandolin-bench-XXXXXX").string();
    return mkdtemp(name.data());
}

// Folders of deals under other numbers, with copies of a deal's files or empty.
void multiply(const fs::path& folder, const std::string& deal, int count, bool with_files) {
    for (int number = 1; number <= count; ++number) {
        const std::string name = deal.substr(0, deal.size() - 3) + std::to_string(10000 + number);
        fs::create_directory(folder / name);
        if (!with_files) continue;
        for (const auto& file : fs::directory_iterator(folder / deal)) {
            fs::copy(file.path(), folder / name / base::replaced(file.path().filename().string(), deal, name));
        }
    }
}

}  // namespace

fs::path make_program_folder(const std::string& samples, const FolderContents& contents) {
    fs::path folder = new_folder();
    fs::copy(samples, folder, fs::copy_options::recursive);
    std::FILE* settings = std::fopen((folder / "standaardtavrin.ini").c_str(), "wb");
    std::fputs("[Platform]\r\nProgramFiles=.\r\nServer=127.0.0.1:9\r\n", settings);
    std::fclose(settings);
    multiply(folder / "aftavrin", "QVT_Spel 001", contents.packages, true);
    multiply(folder / "aftavrin", "QVT_Spel 001", contents.empty_packages, false);
    multiply(folder / "RVLX" / "Spellen", "Spel 001", contents.empty_deals, false);
    return folder;
}

Stage::Stage(const fs::path& folder)
    : folder_(folder),
      platform(host, platform::path_text(folder_), services::settings_file(platform::path_text(folder_))),
      programma(platform, host) {
    host.attach(programma.windows);
    app::start(programma);
    paint();
}

Stage::~Stage() {
    host.close_all();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void Stage::let_cards_be_prepared() {
    while (preparer.isActive())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

void Stage::paint() {
    const desktop::FormWindow* window = host.window(programma.windows.active());
    const PaintWatch watch(const_cast<desktop::FormWindow*>(window));
    const auto start = Clock::now();
    const auto exposed = [&] { return window->windowHandle() && window->windowHandle()->isExposed(); };
    while ((!watch.painted || !exposed()) && milliseconds_since(start) < 2000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
    }
    QCoreApplication::processEvents();
}

double Stage::painted(const std::function<void()>& action) {
    return time_of([&] {
        action();
        paint();
    });
}

forms::Form& Stage::form(const std::string& name) { return *programma.windows.find(name); }

void Stage::click(const std::string& form_name, const std::string& name, int index) {
    forms::user::click(form(form_name).control(name, index));
}

void Stage::choose(const std::string& form_name, const std::string& list, const std::string& text) {
    auto& lines = control<forms::ListBox>(form_name, list);
    forms::user::select(lines, lines.find(text, forms::Match::Exact));
}

}  // namespace bench
