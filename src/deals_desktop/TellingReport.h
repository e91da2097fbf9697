#pragma once

#include <vector>

#include "deals/Report.h"
#include "deals_desktop/Messages.h"
#include "deals_desktop/Work.h"

namespace deals_desktop {

// What work on deals tells, among the messages of the window. It is told in the thread of the work.
class TellingReport final : public deals::Report {
public:
    // `made` is what is told of a deal that was made, with "%1" for its name.
    TellingReport(Messages& messages, const QString& made) : messages_(messages), made_(made) {}

    // Gives the report its way to the window for as long as the work goes on, and hands over what is left.
    class Scope {
    public:
        Scope(TellingReport& report, Work::Course& course) : report_(report) { report_.course_ = &course; }
        ~Scope() { report_.hand_over(); }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

    private:
        TellingReport& report_;
    };

    void note(const std::string& text) override;
    void made(const std::string& name) override;
    void refused(const std::string& text) override;
    void step(std::size_t done, std::size_t all) override;

    // Of each deal in its order, whether it was made. Read it when the work is over.
    const std::vector<bool>& outcomes() const { return outcomes_; }

private:
    void tell(Messages::Told told);
    void hand_over();

    Messages& messages_;
    const QString made_;
    Work::Course* course_ = nullptr;
    std::vector<Messages::Told> told_;
    std::vector<bool> outcomes_;
};

}  // namespace deals_desktop
