#include "deals_desktop/Work.h"

#include <QElapsedTimer>

#include "deals/Report.h"
#include "deals_desktop/Reasons.h"
#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

constexpr int kBetweenNews = 40;  // milliseconds

}  // namespace

void Work::Course::tell(int done, int all) {
    thread_local QElapsedTimer told;
    if (told.isValid() && told.elapsed() < kBetweenNews) return;
    told.start();
    in_window([&work = work_, done, all] { work.Told(work.name_, done, all); });
}

void Work::Course::step(std::size_t done, std::size_t all) {
    if (stopped()) throw deals::Stopped();
    tell(static_cast<int>(done), static_cast<int>(all));
}

void Work::Course::in_window(std::function<void()> action) {
    QMetaObject::invokeMethod(&work_, std::move(action), Qt::QueuedConnection);
}

Work::~Work() { stop(); }

void Work::start(const QString& name, Task task, std::function<void()> then) {
    Piece piece{name, std::move(task), std::move(then)};
    if (running_) {
        waiting_.push_back(std::move(piece));
    } else {
        run(piece);
    }
}

void Work::run(const Piece& piece) {
    running_ = true;
    name_ = piece.name;
    Told(name_, 0, 0);
    thread_ = std::jthread([this, piece](const std::stop_token& stop) {
        Course course(*this, stop);
        try {
            piece.task(course);
        } catch (const deals::Stopped&) {
            course.in_window([this, text = words::kStopped.arg(piece.name)] { Failed(text); });
        } catch (const std::exception& failure) {
            course.in_window([this, text = piece.name + QStringLiteral(": ") + dutch(failure)] { Failed(text); });
        }
        course.in_window([this, then = piece.then] {
            running_ = false;
            Ended();
            then();
            if (running_ || waiting_.empty()) return;
            const Piece next = std::move(waiting_.front());
            waiting_.pop_front();
            run(next);
        });
    });
}

void Work::stop() {
    waiting_.clear();
    thread_.request_stop();
}

}  // namespace deals_desktop
