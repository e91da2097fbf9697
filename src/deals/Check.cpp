#include "deals/Check.h"

#include <atomic>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <mutex>
#include <thread>

#include "deals/Arguments.h"
#include "deals/BoardFile.h"
#include "deals/LessonFolder.h"
#include "deals/Telling.h"
#include "deals/Verdict.h"
#include "exchange/DoubleDummy.h"
#include "exchange/LessonReader.h"
#include "platform/Console.h"
#include "platform/Paths.h"

namespace deals {

namespace {

constexpr std::size_t kAtATime = 100;
constexpr std::chrono::seconds kBetweenNews{1};

volatile std::sig_atomic_t interrupted = 0;

// The work is over before its end.
struct Interrupted {};

// Sets the signal's handler for as long as it lives.
class InterruptScope {
public:
    InterruptScope() {
        interrupted = 0;
        before_ = std::signal(SIGINT, [](int) { interrupted = 1; });
    }
    ~InterruptScope() { std::signal(SIGINT, before_); }
    InterruptScope(const InterruptScope&) = delete;
    InterruptScope& operator=(const InterruptScope&) = delete;

private:
    void (*before_)(int) = SIG_DFL;
};

// Tells on standard error how many deals are done: on one line of a terminal, otherwise a line each time.
class News {
public:
    void one_more() {
        const std::scoped_lock lock(mutex_);
        ++done_;
        const auto now = std::chrono::steady_clock::now();
        if (now - told_ < kBetweenNews) return;
        told_ = now;
        any_ = true;
        std::cerr << (terminal_ ? "\r" : "") << "checked " << done_ << (terminal_ ? " " : "\n") << std::flush;
    }
    void end() const {
        if (any_ && terminal_) std::cerr << "\r                    \r";
        if (interrupted != 0) std::cerr << "interrupted after " << done_ << "\n";
    }
    int done() const { return done_; }

private:
    const bool terminal_ = platform::error_is_terminal();
    std::mutex mutex_;
    std::chrono::steady_clock::time_point told_ = std::chrono::steady_clock::now();
    bool any_ = false;
    int done_ = 0;
};

class Checker {
public:
    explicit Checker(bool json) : json_(json) {
        if (json_) std::cout << "[";
    }

    void add(Verdict verdict) {
        waiting_.push_back(std::move(verdict));
        if (waiting_.size() >= kAtATime) work();
    }

    // Checks what waits, side by side, and tells it in its order.
    void work() {
        std::vector<char> done(waiting_.size(), 0);
        std::atomic<std::size_t> next = 0;
        const auto take_some = [&] {
            for (std::size_t at = next++; at < waiting_.size() && interrupted == 0; at = next++) {
                look(waiting_[at]);
                done[at] = 1;
                news_.one_more();
            }
        };
        {
            std::vector<std::jthread> threads;
            const auto count = std::min(static_cast<std::size_t>(exchange::solvers()), waiting_.size());
            for (std::size_t i = 0; i < count; ++i)
                threads.emplace_back(take_some);
        }
        for (std::size_t at = 0; at < waiting_.size(); ++at) {
            if (done[at] != 0) tell(waiting_[at]);
        }
        waiting_.clear();
        if (interrupted != 0) throw Interrupted();
    }

    void end() {
        news_.end();
        if (json_) std::cout << "\n]\n";
        std::cout.flush();
    }

    int checked() const { return news_.done(); }
    bool all_sound() const { return all_sound_; }

private:
    static void look(Verdict& verdict) {
        try {
            look_into(verdict);
        } catch (const std::exception& failure) {
            verdict.problems.push_back(english(failure));
        }
    }

    void tell(const Verdict& verdict) {
        all_sound_ = all_sound_ && verdict.sound();
        if (json_) {
            std::cout << (any_ ? ",\n" : "\n") << json_of(verdict);
        } else {
            std::cout << text_of(verdict);
        }
        any_ = true;
    }

    const bool json_;
    std::vector<Verdict> waiting_;
    News news_;
    bool all_sound_ = true;
    bool any_ = false;
};

void add_file(const std::string& file, bool one_of_many, Checker& checker) {
    int number = 0;
    read_boards(file, [&](exchange::Board& board) {
        std::string name = where(one_of_many ? file : "", board, ++number, board.line);
        name.erase(name.find_last_not_of(": ") + 1);
        checker.add(verdict_of(std::move(name), board));
    });
}

void add_lesson(const std::string& word, const std::string& program_folder, Checker& checker) {
    const auto folder = lesson_folder(word, program_folder);
    if (!folder) throw std::runtime_error("no such lesson or file");
    exchange::Lesson lesson = exchange::read_lesson(*folder);
    for (const exchange::Remark& note : lesson.board.notes)
        std::cerr << "note: " << lesson.name << ": " << note.text << "\n";
    Verdict verdict{.name = lesson.name, .board = std::move(lesson.board), .problems = std::move(lesson.problems)};
    checker.add(std::move(verdict));
}

}  // namespace

int check(const std::vector<std::string>& words) {
    const Arguments arguments(words, {"--program"}, {"--json"});
    const InterruptScope scope;
    Checker checker(arguments.has("--json"));
    bool failed = false;
    try {
        for (const std::string& word : arguments.files()) {
            try {
                if (std::filesystem::is_regular_file(platform::path_of(word))) {
                    add_file(word, arguments.files().size() > 1, checker);
                } else {
                    add_lesson(word, arguments.program_folder(), checker);
                }
            } catch (const std::exception& failure) {
                std::cerr << "error: " << word << ": " << english(failure) << "\n";
                failed = true;
            }
        }
        checker.work();
    } catch (const Interrupted&) {
        failed = true;
    }
    checker.end();
    if (checker.checked() == 0) return kNothingDone;
    return failed || !checker.all_sound() ? kSomeRefused : kDone;
}

}  // namespace deals
