#pragma once

#include <QObject>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "deals_desktop/Entry.h"

namespace deals_desktop {

// Works out the best play of boards, on all cores, while the window goes on.
class Solver final : public QObject {
public:
    struct Job {
        int entry = 0;  // its number in the list
        SharedBoard board{};
    };
    struct Solved {
        Job job{};
        std::optional<exchange::BestPlay> best{};
    };

    Solver();
    ~Solver() override;

    void add(const std::vector<Job>& jobs);
    // That one next, where it still waits.
    void hurry(int entry);
    // Forgets what waits.
    void stop();

    int done() const { return done_; }
    int all() const { return all_; }

    // In the window.
    std::function<void(const std::vector<Solved>& solved)> Found;

private:
    void solve(const std::stop_token& stop);
    void tell(Solved solved);
    void hand_over();

    std::mutex mutex_;
    std::condition_variable_any waits_;
    std::deque<Job> jobs_;
    std::vector<Solved> solved_;  // not handed over yet
    int done_ = 0;                // since it last had nothing to do
    int all_ = 0;
    std::vector<std::jthread> threads_;
};

}  // namespace deals_desktop
