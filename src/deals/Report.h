#pragma once

#include <functional>
#include <stdexcept>
#include <string>

// What work on deals tells while it goes on; UTF-8.
namespace deals {

// Thrown where the user wants no more of some work; nothing half is left of it.
class Stopped : public std::runtime_error {
public:
    Stopped() : std::runtime_error("stopped") {}
};

// Told between two deals: how many are done. It may throw Stopped.
using Progress = std::function<void(std::size_t done, std::size_t all)>;

class Report {
public:
    virtual ~Report() = default;
    virtual void note(const std::string& text) = 0;     // what was mended, cut or left out
    virtual void made(const std::string& name) = 0;     // a deal or a lesson, or that it was written
    virtual void refused(const std::string& text) = 0;  // one that was not, and why
    // As Progress.
    virtual void step(std::size_t /*done*/, std::size_t /*all*/) {}
};

// The report of the command line: notes go to standard error, the others to standard output, a line each.
class PrintedReport final : public Report {
public:
    void note(const std::string& text) override;
    void made(const std::string& name) override;
    void refused(const std::string& text) override;
};

}  // namespace deals
