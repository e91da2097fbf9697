#pragma once

#include <string>

// What work on deals tells while it goes on; UTF-8.
namespace deals {

class Report {
public:
    virtual ~Report() = default;
    virtual void note(const std::string& text) = 0;     // what was mended, cut or left out
    virtual void made(const std::string& name) = 0;     // a deal or a lesson, or that it was written
    virtual void refused(const std::string& text) = 0;  // one that was not, and why
};

// The report of the command line: notes go to standard error, the others to standard output, a line each.
class PrintedReport final : public Report {
public:
    void note(const std::string& text) override;
    void made(const std::string& name) override;
    void refused(const std::string& text) override;
};

}  // namespace deals
