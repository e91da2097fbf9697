#pragma once

#include <QObject>
#include <QString>
#include <deque>
#include <functional>
#include <thread>

namespace deals_desktop {

// One piece of work at a time that goes on beside the window.
class Work final : public QObject {
public:
    // What the piece of work has of the window; it may be used in its thread alone.
    class Course {
    public:
        Course(Work& work, std::stop_token stop) : work_(work), stop_(std::move(stop)) {}
        bool stopped() const { return stop_.stop_requested(); }
        // How much is done; `all` is 0 where nobody knows. Told some times a second at most.
        void tell(int done, int all);
        // The same between two deals, where the work ends if it was stopped: deals::Stopped.
        void step(std::size_t done, std::size_t all);
        // Has the window do something, in the order asked.
        void in_window(std::function<void()> action);

    private:
        Work& work_;
        std::stop_token stop_;
    };
    using Task = std::function<void(Course& course)>;

    ~Work() override;

    // `then` is done in the window when the task is over, also behind a failure or a stop, which are told. While other
    // work goes on, it waits for its turn.
    void start(const QString& name, Task task, std::function<void()> then);
    // What waits is forgotten.
    void stop();
    bool running() const { return running_; }

    // In the window: how far it is, which also tells of its begin and end, and a failure of the task.
    std::function<void(const QString& name, int done, int all)> Told;
    std::function<void()> Ended;
    std::function<void(const QString& text)> Failed;

private:
    struct Piece {
        QString name{};
        Task task{};
        std::function<void()> then{};
    };
    void run(const Piece& piece);

    std::deque<Piece> waiting_;
    QString name_;
    bool running_ = false;
    std::jthread thread_;
};

}  // namespace deals_desktop
