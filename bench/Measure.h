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
// "ok" or "over"; "not judged" on a machine that had other work when the report was begun. Beside the file, under its
// name with ".samples" behind it, stand all the values that a figure was made from.
class Report {
public:
    explicit Report(std::string file);
    ~Report();
    // A figure that is the median of these.
    void add_median(const std::string& name, const std::vector<double>& values, const std::string& unit, double aim);
    // Median and 99th percentile of the same figure, milliseconds.
    void add_times(const std::string& name, const std::vector<double>& milliseconds, double aim_of_median,
                   double aim_of_99th);
    void add_99th(const std::string& name, const std::vector<double>& milliseconds, double aim);

private:
    void add(const std::string& name, double value, const std::string& unit, double aim,
             const std::vector<double>& samples);

    std::string file_;
    bool judges_;
    std::string lines_;
    std::string samples_;
};

}  // namespace bench
