#include "deals_desktop/TellingReport.h"

#include <utility>

#include "deals_desktop/Words.h"

namespace deals_desktop {

namespace {

constexpr std::size_t kAtATime = 200;

}  // namespace

void TellingReport::note(const std::string& text) { tell({text, {}}); }

void TellingReport::made(const std::string& name) {
    outcomes_.push_back(true);
    tell({{}, made_.arg(QString::fromStdString(name))});
}

void TellingReport::refused(const std::string& text) {
    outcomes_.push_back(false);
    tell({text, words::kRefused});
}

void TellingReport::step(std::size_t done, std::size_t all) { course_->step(done, all); }

void TellingReport::tell(Messages::Told told) {
    told_.push_back(std::move(told));
    if (told_.size() >= kAtATime) hand_over();
}

void TellingReport::hand_over() {
    course_->in_window([&messages = messages_, told = std::exchange(told_, {})] { messages.add(told); });
}

}  // namespace deals_desktop
