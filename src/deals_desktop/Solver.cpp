#include "deals_desktop/Solver.h"

#include <algorithm>
#include <utility>

#include "deals/Verdict.h"
#include "exchange/DoubleDummy.h"
#include "platform/Background.h"

namespace deals_desktop {

namespace {

std::optional<exchange::BestPlay> best_play_of(const exchange::Board& board) {
    deals::Verdict verdict = deals::verdict_of({}, board);
    try {
        deals::look_into(verdict);
    } catch (const std::exception&) {  // The column stays empty.
    }
    return verdict.best_play;
}

}  // namespace

Solver::Solver() = default;

Solver::~Solver() {
    for (std::jthread& thread : threads_)
        thread.request_stop();
    waits_.notify_all();
}

void Solver::add(const std::vector<Job>& jobs) {
    if (jobs.empty()) return;
    {
        const std::scoped_lock lock(mutex_);
        jobs_.insert(jobs_.end(), jobs.begin(), jobs.end());
    }
    if (done_ == all_) done_ = all_ = 0;
    all_ += static_cast<int>(jobs.size());
    waits_.notify_all();
    while (threads_.size() < static_cast<std::size_t>(exchange::solvers()))
        threads_.emplace_back([this](const std::stop_token& stop) { solve(stop); });
}

void Solver::hurry(int entry) {
    const std::scoped_lock lock(mutex_);
    const auto job = std::ranges::find(jobs_, entry, &Job::entry);
    if (job != jobs_.end()) std::rotate(jobs_.begin(), job, job + 1);
}

void Solver::stop() {
    const std::scoped_lock lock(mutex_);
    all_ -= static_cast<int>(jobs_.size());
    jobs_.clear();
}

void Solver::solve(const std::stop_token& stop) {
    platform::work_in_background();  // the window goes first
    for (;;) {
        Job job;
        {
            std::unique_lock lock(mutex_);
            if (!waits_.wait(lock, stop, [&] { return !jobs_.empty(); }) || stop.stop_requested()) return;
            job = std::move(jobs_.front());
            jobs_.pop_front();
        }
        auto best = best_play_of(*job.board);
        tell({std::move(job), std::move(best)});
    }
}

// Many that are found while the window is busy are handed over together.
void Solver::tell(Solved solved) {
    const std::scoped_lock lock(mutex_);
    solved_.push_back(std::move(solved));
    if (solved_.size() == 1)
        QMetaObject::invokeMethod(
            this, [this] { hand_over(); }, Qt::QueuedConnection);
}

void Solver::hand_over() {
    std::vector<Solved> solved;
    {
        const std::scoped_lock lock(mutex_);
        solved.swap(solved_);
    }
    done_ += static_cast<int>(solved.size());
    Found(solved);
}

}  // namespace deals_desktop
