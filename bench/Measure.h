#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace bench {

using Clock = std::chrono::steady_clock;
double milliseconds_since(Clock::time_point start);

// Milliseconds that an action takes.
double time_of(const std::function<void()>& action);

double median(std::vector<double> values);
// The value that 99 of 100 do not pass.
double percentile99(std::vector<double> values);

// Collects the figures: a line each on standard output and in the file, with tabs between name, value, unit, aim and
// "ok" or "over".
class Report {
public:
    explicit Report(const std::string& file);
    ~Report();
    void add(const std::string& name, double value, const std::string& unit, double aim);
    // Median and 99th percentile of the same figure.
    void add_times(const std::string& name, const std::vector<double>& milliseconds, double aim);

private:
    std::string file_;
    std::string lines_;
};

}  // namespace bench
